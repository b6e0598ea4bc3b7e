#include "qt/binder/WindowWalk.h"

#include <QRegularExpression>
#include <QVariant>
#include <QWidget>
#include <set>

#include "qt/binder/Binder.h"
#include "ui/Form.h"
#include "ui/Timer.h"

namespace tarnview {

std::vector<std::string> WindowFaults(const Form& form, const QWidget& window) {
  static const QRegularExpression controlLike(
      "^(mnu|cmd|chk|cbo|lvw|txt|upd|lbl|fra|hsb|vsb|ch|sta|pro|lst|opt|rad|pic|grd|tab|tmr)[A-Z]");
  std::vector<std::string> faults;
  std::set<std::string> names;
  for (const Control* control : form.Controls()) {
    names.insert(ViewName(*control));
    if (!dynamic_cast<const Timer*>(control) &&
        !window.findChild<QObject*>(QString::fromStdString(ViewName(*control))))
      faults.push_back(form.name + ": nothing shows " + control->FullName());
  }
  for (const QObject* child : window.findChildren<QObject*>()) {
    const QString second = child->property("control").toString();
    const QString name = second.isEmpty() ? child->objectName() : second;
    if ((!second.isEmpty() || name.contains(controlLike)) && !names.contains(name.toStdString()))
      faults.push_back(form.name + ": no control for " + name.toStdString());
  }
  return faults;
}

}  // namespace tarnview
