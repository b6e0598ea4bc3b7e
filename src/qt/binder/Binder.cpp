#include "qt/binder/Binder.h"

#include <QAction>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "qt/binder/Adapters.h"
#include "ui/Form.h"

namespace tarnview {

std::string ViewName(const Control& control) {
  return control.index < 0 ? control.name : control.name + "_" + std::to_string(control.index);
}

std::vector<QObject*> ViewsOf(const Control& control, const QWidget& window) {
  const QString name = QString::fromStdString(ViewName(control));
  std::vector<QObject*> views;
  if (auto* first = window.findChild<QObject*>(name)) views.push_back(first);
  for (QObject* child : window.findChildren<QObject*>())
    if (child->property("control").toString() == name) views.push_back(child);
  return views;
}

Binder::Binder(Form& form, QWidget& window) : window_(window) {
  for (Control* control : form.Controls()) Bind(*control);
  Flush();
}

void Binder::Bind(Control& control) {
  if (auto adapter = MakeAdapter(control, nullptr, *this)) return Add(std::move(adapter));
  for (QObject* view : ViewsOf(control, window_))
    if (auto adapter = MakeAdapter(control, view, *this)) Add(std::move(adapter));
}

void Binder::Add(std::unique_ptr<Adapter> adapter) {
  // The control may outlive this binder.
  adapter->control().Watch([it = QPointer<Adapter>(adapter.get())](What what) {
    if (it) it->MarkDirty(what);
  });
  adapters_.push_back(std::move(adapter));
  adapters_.back()->MarkAllDirty();
}

void Binder::Queue(Adapter& adapter) {
  if (std::find(dirty_.begin(), dirty_.end(), &adapter) != dirty_.end()) return;
  if (dirty_.empty()) QTimer::singleShot(0, this, &Binder::Flush);
  dirty_.push_back(&adapter);
}

void Binder::Flush() {
  // Showing focus raises events of the controls, which may make others dirty.
  while (!dirty_.empty()) {
    Adapter* next = dirty_.front();
    dirty_.erase(dirty_.begin());
    next->Refresh();
  }
}

Control* Binder::ControlOf(const QObject* widget) const {
  for (; widget && widget != &window_; widget = widget->parent())
    for (const auto& adapter : adapters_)
      if (adapter->view() == widget) return &adapter->control();
  return nullptr;
}

QObject* Binder::ViewOf(const Control& control) const {
  const auto found =
      std::find_if(adapters_.begin(), adapters_.end(), [&](const auto& one) { return &one->control() == &control; });
  return found == adapters_.end() ? nullptr : (*found)->view();
}

}  // namespace tarnview
