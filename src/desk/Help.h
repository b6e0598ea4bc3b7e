#pragma once

#include <string>

#include "base/FileSystem.h"
#include "desk/EXEFunctions.h"
#include "desk/Messages.h"

namespace tarnview {

/// The manual: "Contents.htm" and "Instructions.htm" in a folder. Where the desktop has no window
/// for it, they are opened side by side by a page written there.
class Help {
 public:
  /// `folder` is the manual's folder, "Documentation", with a separator at its end. Where nothing
  /// can be written there, the page goes to `writableFolder`.
  Help(FileSystem& files, EXEFunctions& programs, Messages& messages, std::string folder,
       std::string writableFolder = "")
      : files_(files),
        programs_(programs),
        messages_(messages),
        folder_(std::move(folder)),
        writableFolder_(std::move(writableFolder)) {}

  /// Opens the manual, at a topic if one is given ("DataTags"). A failure shows message 30.
  void ShowHelp(const std::string& topic);
  const std::string& Folder() const { return folder_; }

 private:
  bool WriteLauncher(const std::string& launcher, const std::string& page);

  FileSystem& files_;
  EXEFunctions& programs_;
  Messages& messages_;
  std::string folder_;
  std::string writableFolder_;
};

}  // namespace tarnview
