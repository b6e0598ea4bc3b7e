#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/Host.h"
#include "ui/RecordingPage.h"
#include "ui/Value.h"

namespace tarnview {

/// What a script answers to the next box or dialog.
struct Answer {
  enum class Kind { Yes, No, Ok, Cancel, File, Folder, Colour, Printer, Stop } kind = Kind::Ok;
  std::string path = {};
  long colour = 0;
  int filterIndex = 0;  ///< of a file dialog, from 1; 0 leaves it
};

/// A desktop without a screen: it answers boxes and dialogs from a queue and remembers what was
/// shown. With no answer queued, a box gets its default button and a dialog Cancel.
class RecordingHost : public Host {
 public:
  RecordingHost() {
    ShowHelp = [this](const std::string& topic) { helpTopics.push_back(topic); };
  }

  std::deque<Answer> answers;
  std::optional<Answer> nextFile;  ///< for the next file dialog, before the queue
  List boxes;  ///< {"id", "text", "style", "reply"} or {"dialog", "title", "filter", "reply"}
  std::vector<Box> messages;  ///< the boxes alone
  std::vector<Form*> open;    ///< windows on show, the front one last
  std::string clipboard;
  std::vector<std::string> waits;  ///< programs that were waited for
  std::vector<std::string>
      helpTopics;  ///< where the manual was opened, until a program brings its own
  std::vector<const Chart*> copied;   ///< charts whose picture went to the clipboard
  std::vector<std::string> pictures;  ///< paths of the pictures saved
  std::vector<RecordingPage> pages;   ///< printed or shown before printing
  std::string popup;                  ///< the menu that was last opened at the pointer
  std::function<void(Form&)> work;    ///< what a user does in a modal window; it is closed then
  bool takesOffers = false;           ///< presses the one more button of a box that has one
  std::string refusal;                ///< why pictures and pages fail; empty: they do not

  Reply Ask(const Box& box) override;
  bool Choose(Dialog& dialog) override;
  void Show(Form& form, bool modal) override;
  void Hide(Form& form) override;
  void PopupMenu(MenuItem& menu) override;
  void DoEvents() override {}
  void Repaint(Form&) override {}
  /// With Stop as the next answer, the user stops waiting at once.
  std::unique_ptr<Waiting> Wait(const std::string& program) override;
  void SetClipboardText(const std::string& text) override { clipboard = text; }
  std::string ClipboardText() override { return clipboard; }
  void CopyPicture(const Chart& chart) override { copied.push_back(&chart); }
  bool SavePicture(const Chart& chart, const std::string& path, std::string& error) override;
  bool PrintPage(const PrintJob& job, std::string& error) override;
  bool PreviewPage(const PrintJob& job, std::string& error) override;

  /// The window in front; nullptr when none is open.
  Form* Front() const {
    if (open.empty()) return nullptr;
    return open.back();
  }

 protected:
  /// Runs while a modal window is open; the window must be unloaded when it returns.
  virtual void RunModal(Form& form);
};

}  // namespace tarnview
