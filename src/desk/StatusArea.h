#pragma once

#include <exception>
#include <string>

#include "ui/Form.h"
#include "ui/ProgressBar.h"
#include "ui/StatusBar.h"

namespace tarnview {

/// The foot of the main window: what is going on (panel 1), how far it is (panel 2), what is loaded
/// (panel 3).
class StatusArea {
 public:
  StatusArea(Form& window, StatusBar& bar, ProgressBar& progress)
      : window_(window), bar_(bar), progress_(progress) {
    progress_.Visible = false;
  }

  void Say(std::string text) { bar_.SetPanel(1, std::move(text)); }
  void SayLoaded(std::string text) { bar_.SetPanel(3, std::move(text)); }

  /// The bar lies over panel 2 while something runs.
  void ShowProgressInStatusBar(long max) {
    progress_.Max = max;
    progress_.Value = 0L;
    progress_.Visible = true;
    window_.Refresh();
  }
  void Progress(std::string text, long value) {
    Say(std::move(text));
    progress_.Value = value;
    window_.Refresh();
  }
  void ProgressFull() { progress_.Value = progress_.Max(); }
  void HideProgress() { progress_.Visible = false; }

 private:
  Form& window_;
  StatusBar& bar_;
  ProgressBar& progress_;
};

/// The hourglass over a window for as long as it lives. However the work ends, the hourglass and
/// the progress bar go; where it fails, the word of what was going on goes, too.
class AtWork {
 public:
  AtWork(Form& window, StatusArea& status)
      : window_(window),
        status_(status),
        before_(window.Pointer),
        failures_(std::uncaught_exceptions()) {
    window_.Pointer = MousePointer::Hourglass;
  }
  ~AtWork() {
    status_.HideProgress();
    if (std::uncaught_exceptions() > failures_) status_.Say("");
    window_.Pointer = before_;
  }
  AtWork(const AtWork&) = delete;

 private:
  Form& window_;
  StatusArea& status_;
  MousePointer before_;
  int failures_;  ///< on their way already
};

}  // namespace tarnview
