#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "qt/binder/Binder.h"
#include "ui/Keys.h"

class QDropEvent;
class QKeyEvent;

namespace tarnview {

class Form;

/// A form and the window that shows it: caption, pointer, place, keys, focus, dropped files, the
/// close box.
class FormWindow : public QObject {
 public:
  /// `cameToFront` is called when the desktop activates the window. The form must have a file in
  /// forms/.
  FormWindow(Form& form, QWidget* parent, std::function<void(Form&)> cameToFront);
  ~FormWindow() override;

  Form& form() const { return form_; }
  QWidget& window() const { return *window_; }
  Binder& binder() { return binder_; }
  /// Shows it, or brings it to the front.
  void Raise(bool modal);
  /// The controls may be destroyed after this.
  void LetGo();

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  /// Runs what the user does, as an event with an end for its errors; nothing once the window is
  /// gone.
  void Run(const char* procedure, std::function<void()> event);
  void RunWhenFree(const char* procedure, std::function<void()> event);
  std::function<void()> WhileHere(std::function<void()> event);
  void ShowCaption();
  bool WindowEvent(QEvent& event);
  void NoteWhereItIs();
  bool KeyDown(QKeyEvent& event);
  bool KeyUp(QKeyEvent& event);
  bool EnterOrEscape(const KeyPress& key);
  bool Receives(QObject* receiver) const;
  void DrainRepeats();
  void SelectTextOnOpening(QWidget& first);
  void TakeFocus(QWidget& widget);
  /// Another window, or an open dialog, has the user.
  bool IsHeldUp() const;
  bool DragOrDrop(QDropEvent& event);

  Form& form_;
  QPointer<QWidget> window_;
  Binder binder_;
  std::function<void(Form&)> cameToFront_;
  bool draining_ = false;
  bool opens_ = false;               ///< on show, and nothing in it has had the focus
  std::optional<KeyPress> pressed_;  ///< the key that went down last
};

}  // namespace tarnview
