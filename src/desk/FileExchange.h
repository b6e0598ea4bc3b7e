#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/Clock.h"
#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "desk/Messages.h"
#include "ui/Form.h"

namespace tarnview {

/// How a window gives what it edits to files and takes it from them: the dialogs, the file used
/// last since the window opened, and what is told of a file that cannot be had.
class FileExchange {
 public:
  struct Kind {
    const char* extension;  ///< with its point
    const char* filter;     ///< of the dialogs
    bool addsExtension;     ///< to a name that has none
    Message notLoaded;
  };
  struct Surroundings {
    const std::string& workingDirectory;  ///< where the first file is looked for
    FileSystem& files;
    Clock& clock;
    ErrorLog& errors;
    Messages& messages;
  };
  FileExchange(Form& window, const Surroundings& surroundings, const Kind& kind)
      : window_(window), around_(surroundings), kind_(kind) {}

  /// Asks for the file, the first time under a name, and writes the text.
  void Save(std::string_view name, const std::function<std::string(const Moment& now)>& text);
  using Take = std::function<void(std::string_view bytes, const std::string& path)>;
  /// Asks for the file and hands its bytes over; an error in it is told.
  void Load(const Take& take);

 private:
  Dialog DialogFor(DialogKind kind, const char* title) const;
  std::string ProposedFile(std::string_view name) const;

  Form& window_;
  Surroundings around_;
  Kind kind_;
  std::string lastFile_;
};

}  // namespace tarnview
