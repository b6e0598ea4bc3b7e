#pragma once

#include <optional>
#include <string>

#include "base/FileSystem.h"
#include "desk/Messages.h"
#include "model/Settings.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ProgressBar.h"
#include "zones/MapFile.h"
#include "zones/clsBenchmark.h"

namespace tarnview {

/// Reads the zones of a MAP file or of an FM Link log, with a bar that shows how far it is, and
/// closes by itself.
class frmLoadBenchmark : public Form {
 public:
  frmLoadBenchmark(Host& itsHost, FileSystem& files, const Settings& settings, Messages& messages);

  Label lblFile{*this, "lblFile"};
  ProgressBar proProgInd{*this, "proProgInd"};

  std::string FileToLoad;
  /// Shows the window, reads the file, and closes the window: nothing else runs meanwhile.
  void Run();
  bool SuccessfulLoad() const { return loaded_.has_value(); }
  /// Without name and file.
  const clsBenchmark& LoadedBenchmark() const { return *loaded_; }

 protected:
  void Form_Load() override;

 private:
  void Load();
  MapReading ReadLog(std::string_view bytes);
  void Take(const MapReading& reading);

  FileSystem& files_;
  const Settings& settings_;
  Messages& messages_;
  std::optional<clsBenchmark> loaded_;
};

}  // namespace tarnview
