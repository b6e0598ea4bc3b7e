#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ui/UserEvents.h"

namespace tarnview {

class Chart;
class Form;
class MenuItem;
class Page;

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
  /// One more button, for who can show it: what it says, and what it does once the box is gone. The
  /// box's own answer is then that of Enter.
  std::string offer = {};
  std::function<void()> takeOffer = {};
  std::size_t detailsFrom =
      std::string::npos;  ///< where in the text the details begin; npos: it has none

  /// The text with at most so many bytes of details, which may be a line of a file, and "..." for
  /// the rest.
  std::string TextWithin(std::size_t mostDetails) const;
  /// The button that Enter presses.
  Reply DefaultReply() const;
};

/// Bytes of a box's details that fit a screen, and that are told where room is cheap. The error log
/// has them whole.
inline constexpr std::size_t kMostDetailsInBox = 600, kMostDetailsTold = 4000;

enum class DialogKind { Open, Save, Folder, Colour, Printer };

/// A file, folder or colour dialog (a printer's comes with Host::PrintPage): what it starts from
/// and, after OK, what was chosen.
struct Dialog {
  DialogKind kind = DialogKind::Open;
  std::string title = {};
  std::string filter = {};       ///< "Text Files|*.txt|All|*.*"
  int filterIndex = 1;           ///< chosen filter, from 1
  std::string initialPath = {};  ///< folder, or a file whose folder is meant
  std::string path = {};         ///< file name to start with; the chosen path
  long colour = 0;               ///< 0xBBGGRR
  bool ofOpenFile = false;       ///< saves the file that is open, which it may then go over
};

/// One page for the printer.
struct PrintJob {
  std::string title;                ///< names the job where printers list them
  std::function<void(Page&)> fill;  ///< draws the page, as often as it is asked for
};

/// What a user sees while an outside program runs: that it does, for how long, and a button "Stop
/// Waiting". As long as this lives the windows are drawn and take no input.
class Waiting {
 public:
  virtual ~Waiting() = default;
  /// Lets the desktop work for a moment; false once the user wants to wait no longer.
  virtual bool GoOn() = 0;
};

/// What the program asks of a desktop. The windows know this and nothing of a toolkit.
class Host {
 public:
  virtual ~Host() = default;

  /// Opens the manual at a topic; set once by the program. Empty: there is no manual.
  std::function<void(const std::string& topic)> ShowHelp;

  /// What the user does goes through here; boxes, dialogs and modal windows pause it.
  UserEvents events;
  /// In words, why nothing may be saved into the file that a dialog chose; "" where it may. Set
  /// once by the program.
  std::function<std::string(const Dialog& chosen)> WhyNotSave;

  /// Shows the manual that lies in a folder, in a window of the desktop's own; false where there is
  /// none.
  virtual bool ShowManual(const std::string& /*folder*/, const std::string& /*topic*/) {
    return false;
  }

  virtual Reply Ask(const Box& box) = 0;
  /// False on Cancel; then `dialog` is unchanged.
  virtual bool Choose(Dialog& dialog) = 0;

  /// Brings a window up; a modal one returns when it has been unloaded.
  virtual void Show(Form& form, bool modal) = 0;
  /// The window is gone from the screen; its object may be destroyed after this.
  virtual void Hide(Form& form) = 0;
  /// Opens a pop-up menu at the pointer.
  virtual void PopupMenu(MenuItem& menu) = 0;

  /// Lets pending events run, but for the user's while one of them is at work.
  virtual void DoEvents() = 0;
  /// Draws what has changed, without taking input: for progress in a long loop.
  virtual void Repaint(Form& form) = 0;

  /// `program` is the name of what is waited for.
  virtual std::unique_ptr<Waiting> Wait(const std::string& program) = 0;

  virtual void SetClipboardText(const std::string& text) = 0;
  /// "" where something else is on the clipboard.
  virtual std::string ClipboardText() = 0;

  /// The picture of a chart, as its window shows it, on the clipboard.
  virtual void CopyPicture(const Chart& chart) = 0;
  /// The same in a file; the ending of `path` (.png, .svg, .pdf) says as what. False: nothing was
  /// written, and `error` says why.
  virtual bool SavePicture(const Chart& chart, const std::string& path, std::string& error) = 0;
  /// Asks for a printer, its copies and orientation, and prints. False: nothing was printed, and
  /// `error` says why; it is empty where the user cancelled.
  virtual bool PrintPage(const PrintJob& job, std::string& error) = 0;
  /// Shows the page before it is printed; returns when the user is done. As PrintPage, where
  /// printing from there fails.
  virtual bool PreviewPage(const PrintJob& job, std::string& error) = 0;
};

}  // namespace tarnview
