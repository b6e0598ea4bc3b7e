#pragma once

#include <memory>
#include <string>

#include "base/FileSystem.h"
#include "qt/host/PaperPage.h"
#include "ui/Host.h"

class QPrinter;
class QWidget;

namespace tarnview {

/// The printer, with what was chosen in its dialog last: printer, paper and orientation stay for
/// the next page.
class Printing {
 public:
  explicit Printing(SizeOfChart sizeOf);
  ~Printing();

  /// As Host::PrintPage and Host::PreviewPage.
  bool Print(const PrintJob& job, QWidget* parent, std::string& error);
  bool Preview(const PrintJob& job, QWidget* parent, std::string& error);

 private:
  QPrinter& PrinterFor(const PrintJob& job);

  RealFileSystem files_;
  SizeOfChart sizeOf_;
  std::unique_ptr<QPrinter> printer_;
};

/// Draws the page on a printer that was chosen, or into the file that was chosen in its place.
/// False: `error` says why.
bool DrawPage(FileSystem& files, const PrintJob& job, QPrinter& printer, const SizeOfChart& sizeOf,
              std::string& error);

}  // namespace tarnview
