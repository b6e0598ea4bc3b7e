#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Control.h"
#include "ui/Host.h"
#include "ui/Keys.h"

namespace tarnview {

class CommandButton;

enum class MousePointer { Default = 0, Hourglass = 11 };

/// How a dialog was closed: by its OK, or in any other way.
enum class Outcome { Cancelled, Accepted };

/// A window without a toolkit: its controls are members of the derived class and stand in
/// `Controls` in the order of their declaration, which is the tab order.
class Form {
 public:
  Form(Host& host, std::string name, std::string caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Host& host;
  const std::string name;  ///< its class, "frmGoto"
  Property<std::string> Caption;
  Property<std::string>
      Subtitle;  ///< what the title bar tells behind the caption; empty for nothing
  Property<MousePointer> Pointer;
  CommandButton* DefaultButton = nullptr;  ///< what Enter presses
  CommandButton* CancelButton = nullptr;   ///< what Escape presses
  std::string HelpTopic;  ///< where F1 opens the manual ("DataTags"); empty: F1 does nothing

  // Where the window stands and what it is: kept up to date by the toolkit, which also takes what
  // Form_Load sets here. In twips, 15 to a pixel of a screen with 96 to the inch. A Width of 0: the
  // design size, where the desktop puts it.
  int Left = 0, Top = 0, Width = 0, Height = 0;
  int WindowState = 0;  ///< 0 normal, 1 minimized, 2 maximized
  /// Where the user dragged the bars between its parts: words of the toolkit's own,
  /// "mainSplitter=300,900 ...". Kept and taken as the place is.
  std::string Dividers;

  const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name and index (-1 for one outside an array); nullptr if there is none.
  Control* Find(std::string_view name, int index = -1) const;
  Control* ActiveControl() const { return active_; }
  void SetFocus(Control* control);

  void Show();
  void ShowModal();
  bool IsShown() const { return shown_; }
  /// While Unload is at work: a field that is left now has nothing to check any more.
  bool IsUnloading() const { return unloading_; }
  /// Closes the window; false when it refused.
  bool Unload();
  bool Accepted() const { return outcome_ == Outcome::Accepted; }
  /// Draws what has changed while a long loop runs.
  void Refresh() { host.Repaint(*this); }

  /// A key from the user: the window first, then the active control, then Enter, Escape and the
  /// menus' shortcuts. True if something took it.
  bool Press(const KeyPress& key);
  /// The first half of Press, for a toolkit that has its own way with Enter, Escape and shortcuts.
  bool KeyGoesDown(const KeyPress& key);
  /// Enter, where nothing else took it: presses the button that has the focus, else the default
  /// one, for which the field is left first (and may keep the caret where its text will not do).
  /// False: there is no such button.
  bool PressEnter();
  /// The same for a key that is let go.
  bool KeyGoesUp(const KeyPress& key);

  /// A file dropped on the window. False: the window takes none.
  virtual bool DropFile(const std::string& /*path*/) { return false; }

  /// The widget's way to hear of Caption, Pointer and focus.
  std::function<void()> Watcher;
  /// Called by the host each time the window comes to the front.
  virtual void Form_Activate() {}
  /// The window got another size (pixels inside the frame).
  virtual void Form_Resize() {}

 protected:
  virtual void Form_Load() {}
  /// False keeps the window open.
  virtual bool Form_QueryUnload() { return true; }
  virtual void Form_Unload() {}
  /// True eats the key.
  virtual bool Form_KeyDown(const KeyPress&) { return false; }
  virtual bool Form_KeyUp(const KeyPress&) { return false; }
  /// OK: closes the window and tells its caller to take what is in it.
  void Accept();
  /// Tells the caller the same, however the window closes.
  void MarkAccepted() { outcome_ = Outcome::Accepted; }

 private:
  friend class Control;
  void Add(Control& control);
  void Remove(Control& control);
  void Open(bool modal);

  std::vector<Control*> controls_;
  Control* active_ = nullptr;
  bool shown_ = false;
  Outcome outcome_ = Outcome::Cancelled;
  bool unloading_ = false;
  bool leaving_ = false;  ///< while a control is told that the focus has left it
};

}  // namespace tarnview
