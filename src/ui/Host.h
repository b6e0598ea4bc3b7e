#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tarnview {

class Form;
class MenuItem;

/// Answers of a message box, with the numbers of the desktop's own boxes.
enum class Reply { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Bits of a box's style: buttons, icon, which button Enter presses.
enum BoxStyle : int {
  kBoxOk = 0,
  kBoxYesNoCancel = 3,
  kBoxYesNo = 4,
  kBoxQuestion = 32,
  kBoxExclamation = 48,
  kBoxInformation = 64,
  kBoxSecondIsDefault = 256
};

struct Box {
  int id = 0;  ///< number of the message; 0 for a box that is no numbered message
  std::string text;
  int style = kBoxOk;
  std::string title;

  /// The button that Enter presses.
  Reply DefaultReply() const;
};

enum class DialogKind { Open, Save, Folder, Colour, Printer };

/// A file, folder, colour or printer dialog: what it starts from and, after OK, what was chosen.
struct Dialog {
  DialogKind kind = DialogKind::Open;
  std::string title;
  std::string filter;       ///< "Text Files|*.txt|All|*.*"
  int filterIndex = 1;      ///< chosen filter, from 1
  std::string initialPath;  ///< folder, or a file whose folder is meant
  std::string path;         ///< file name to start with; the chosen path
  long colour = 0;          ///< 0xBBGGRR
};

/// What the program asks of a desktop. The windows know this and nothing of a toolkit.
class Host {
 public:
  virtual ~Host() = default;

  virtual Reply Ask(const Box& box) = 0;
  /// False on Cancel; then `dialog` is unchanged.
  virtual bool Choose(Dialog& dialog) = 0;

  /// Brings a window up; a modal one returns when it has been unloaded.
  virtual void Show(Form& form, bool modal) = 0;
  /// The window is gone from the screen; its object may be destroyed after this.
  virtual void Hide(Form& form) = 0;
  /// Opens a pop-up menu at the pointer.
  virtual void PopupMenu(MenuItem& menu) = 0;

  /// Lets pending events run.
  virtual void DoEvents() = 0;
  /// Draws what has changed, without taking input: for progress in a long loop.
  virtual void Repaint(Form& form) = 0;

  virtual void SetClipboardText(const std::string& text) = 0;
};

}  // namespace tarnview
