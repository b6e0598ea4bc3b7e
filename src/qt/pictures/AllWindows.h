#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Program.h"
#include "app/frmAbout.h"
#include "app/frmNonModalMessage.h"
#include "app/frmSplash.h"

namespace tarnview {

/// One of each window, for those who look at all of them: the walk over their controls, the pictures.
class AllWindows {
 public:
  /// Loads them; with a log, the main window draws it, and the others hold something to show.
  explicit AllWindows(Host& host, const std::string& log = "");
  ~AllWindows();

  std::vector<Form*> Forms();

 private:
  struct NoMainWindow;

  void Fill();

  RealFileSystem files_;
  RealClock clock_;
  RealProcesses processes_;
  Program program_;
  std::unique_ptr<NoMainWindow> mainWindow_;
  clsLogTags tagList_;
  frmSplash splash_;
  frmAbout about_;
  frmNonModalMessage message_;
  frmDataTags tags_;
};

}  // namespace tarnview
