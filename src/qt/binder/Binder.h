#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "qt/binder/Adapter.h"

class QWidget;

namespace tarnview {

class Form;

/// "txtFrom"; "mnuRecentlyUsed_2" for a member of an array.
std::string ViewName(const Control& control);

/// Everything in a window that shows a control, by the control's name: what bears the name first,
/// then what names it in its property "control".
using Views = QHash<QString, std::vector<QPointer<QObject>>>;

/// Ties the controls of a form to the widgets of its window by their names. What changes in the
/// controls is shown once per turn of the event loop, or at once by Flush. What a refresh changes
/// again is shown in the same flush, a few rounds long; then it waits for a later one, so that two
/// that change each other never hold up the program.
class Binder : public QObject {
 public:
  Binder(Form& form, QWidget& window);

  void Flush();
  void Queue(Adapter& adapter);

  /// The control that a widget or its nearest ancestor shows; nullptr for none.
  Control* ControlOf(const QObject* widget) const;
  /// The first view of a control; nullptr for none.
  QObject* ViewOf(const Control& control) const;

 private:
  void Bind(Control& control, const Views& views);
  void Add(std::unique_ptr<Adapter> adapter);

  QWidget& window_;
  std::vector<std::unique_ptr<Adapter>> adapters_;
  std::vector<Adapter*> dirty_;
  QTimer nextFlush_;
};

}  // namespace tarnview
