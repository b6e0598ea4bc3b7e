#include "qt/binder/Binder.h"

#include <QAction>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "qt/binder/Adapters.h"
#include "ui/Form.h"

namespace tarnview {
namespace {

/// Showing the focus makes a field dirty that was left, whose handler corrects another: no window
/// needs more.
constexpr std::size_t kMostRounds = 4;
/// Milliseconds until what is dirty even then is shown: short for the eye, long for the processor.
constexpr int kLater = 20;

/// All at once: to look through hundreds of widgets for each control is most of what a large window
/// costs.
Views ViewsIn(const QWidget& window) {
  const auto children = window.findChildren<QObject*>();
  Views views;
  for (QObject* child : children)
    if (const QString name = child->objectName(); !name.isEmpty() && !views.contains(name))
      views[name] = {child};
  for (QObject* child : children)
    if (const QString shown = child->property("control").toString(); !shown.isEmpty())
      views[shown].push_back(child);
  return views;
}

}  // namespace

std::string ViewName(const Control& control) {
  if (control.index < 0) return control.name;
  return control.name + "_" + std::to_string(control.index);
}

Binder::Binder(Form& form, QWidget& window) : window_(window) {
  nextFlush_.setSingleShot(true);
  connect(&nextFlush_, &QTimer::timeout, this, [this, &form] {
    form.host.events.Run(form.name, "Flush", [self = QPointer<Binder>(this)] {
      if (self) self->Flush();
    });
  });
  const Views views = ViewsIn(window);
  for (Control* control : form.Controls()) Bind(*control, views);
  Flush();
}

void Binder::Bind(Control& control, const Views& views) {
  if (auto adapter = MakeAdapter(control, nullptr, *this)) return Add(std::move(adapter));
  for (QObject* view : views.value(QString::fromStdString(ViewName(control))))
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
  if (std::find(dirty_.begin(), dirty_.end(), &adapter) == dirty_.end()) dirty_.push_back(&adapter);
  if (!nextFlush_.isActive()) nextFlush_.start(0);
}

void Binder::Flush() {
  // A handler of the focus may close the window, and this binder goes with it.
  const QPointer<Binder> self(this);
  for (std::size_t left = kMostRounds * adapters_.size(); left > 0 && !dirty_.empty(); --left) {
    Adapter* next = dirty_.front();
    dirty_.erase(dirty_.begin());
    next->Refresh();
    if (!self) return;
  }
  if (dirty_.empty())
    nextFlush_.stop();
  else
    nextFlush_.start(kLater);
}

Control* Binder::ControlOf(const QObject* widget) const {
  for (; widget && widget != &window_; widget = widget->parent())
    for (const auto& adapter : adapters_)
      if (adapter->view() == widget) return &adapter->control();
  return nullptr;
}

QObject* Binder::ViewOf(const Control& control) const {
  const auto found = std::find_if(adapters_.begin(), adapters_.end(),
                                  [&](const auto& one) { return &one->control() == &control; });
  if (found == adapters_.end()) return nullptr;
  return (*found)->view();
}

}  // namespace tarnview
