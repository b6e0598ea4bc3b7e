#pragma once

#include <string>

#include "base/FileSystem.h"
#include "customise/OptionsControls.h"
#include "desk/Messages.h"

namespace tarnview {

/// The paths of the Options window: what each must be, and how each is looked for.
class OptionPaths {
 public:
  OptionPaths(OptionsControls& window, FileSystem& files, Messages& messages);

  /// The text of a path is good; if not, the user has been told. A working directory gets its last
  /// separator. Of the definition file only that it is there.
  bool ValidatePath(int index);

 private:
  void cmdBrowse_Click(int index);

  OptionsControls& window_;
  FileSystem& files_;
  Messages& messages_;
};

}  // namespace tarnview
