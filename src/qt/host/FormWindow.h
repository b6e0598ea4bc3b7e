#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "qt/binder/Binder.h"
#include "ui/Keys.h"

class QKeyEvent;

namespace tarnview {

class Form;

/// A form and the window that shows it: caption, pointer, place, keys, focus, dropped files, the close box.
class FormWindow : public QObject {
 public:
  /// `cameToFront` is called when the desktop activates the window. The form must have a file in forms/.
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
  void ShowCaption();
  bool WindowEvent(QEvent& event);
  void NoteWhereItIs();
  bool KeyDown(QKeyEvent& event);
  bool KeyUp(QKeyEvent& event);
  bool EnterOrEscape(const KeyPress& key);
  bool Receives(QObject* receiver) const;
  void DrainRepeats();

  Form& form_;
  QPointer<QWidget> window_;
  Binder binder_;
  std::function<void(Form&)> cameToFront_;
  bool draining_ = false;
  std::optional<KeyPress> pressed_;  ///< the key that went down last
};

}  // namespace tarnview
