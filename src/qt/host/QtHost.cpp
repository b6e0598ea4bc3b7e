#include "qt/host/QtHost.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QEventLoop>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <algorithm>

#include "qt/Text.h"
#include "qt/chart/PicturePainter.h"
#include "qt/host/Dialogs.h"
#include "qt/host/WaitingBox.h"
#include "ui/Chart.h"
#include "ui/Form.h"
#include "ui/MenuItem.h"

namespace tarnview {
namespace {

/// Milliseconds between two repaints of a long loop: quicker, the eye sees no more and the loop
/// loses time.
constexpr int kRepaintEvery = 30;
/// Of a chart that no window shows.
constexpr QSize kPictureSize(1400, 800);

bool IsSplash(const QWidget& window) { return window.property("frameless").toBool(); }

}  // namespace

QtHost::~QtHost() = default;

bool QtHost::ShowManual(const std::string& folder, const std::string& topic) {
  if (!manual_) manual_ = std::make_unique<ManualWindow>();
  return manual_->ShowTopic(folder, topic, QApplication::activeModalWidget());
}

/// The manual stays open when the window goes for which it was opened.
void QtHost::FreeManual(const QWidget& window) {
  if (!manual_ || manual_->parentWidget() != &window) return;
  const bool shown = manual_->isVisible();
  manual_->setParent(nullptr, Qt::Window);
  manual_->setVisible(shown);
}

Reply QtHost::Ask(const Box& box) {
  FlushAll();
  const UserEvents::Pause pause(events);
  return AskInBox(box, OwnerOfDialog());
}

bool QtHost::Choose(Dialog& dialog) {
  FlushAll();
  const UserEvents::Pause pause(events);
  return ChooseInDialog(dialog, OwnerOfDialog());
}

FormWindow* QtHost::WindowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& one) { return &one->form() == &form; });
  if (found == windows_.end()) return nullptr;
  return found->get();
}

QWidget* QtHost::OwnerOfDialog() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  // The window that the user is in: raised with its owner, a dialog of another would bring that one
  // over it.
  const FormWindow* front = nullptr;
  if (front_) front = WindowOf(*front_);
  if (front && front->window().isVisible() && !IsSplash(front->window())) return &front->window();
  return MainWindow();
}

QWidget* QtHost::MainWindow() const {
  // The main window is the first that stays; a splash goes away by itself.
  for (const auto& one : windows_)
    if (!IsSplash(one->window())) return &one->window();
  return nullptr;
}

void QtHost::Show(Form& form, bool modal) {
  FormWindow* window = WindowOf(form);
  if (!window) {
    windows_.push_back(
        std::make_unique<FormWindow>(form, modal ? OwnerOfDialog() : MainWindow(),
                                     [this](Form& inFront) { CameToFront(inFront); }));
    window = windows_.back().get();
  }
  window->Raise(modal);
  // Painted before its first activation, which may take long.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  CameToFront(form);
  if (modal && form.IsShown()) RunModal(form);
}

void QtHost::CameToFront(Form& form) {
  if (front_ == &form) return;
  front_ = &form;
  form.Form_Activate();
}

void QtHost::RunModal(Form& form) {
  const UserEvents::Pause pause(events);
  QEventLoop loop;
  loops_.push_back({&form, &loop});
  loop.exec();
}

void QtHost::Hide(Form& form) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& one) { return &one->form() == &form; });
  if (found == windows_.end()) return;
  (*found)->LetGo();
  FreeManual((*found)->window());
  windows_.erase(found);
  if (front_ == &form) front_ = nullptr;
  const auto modal = std::find_if(loops_.begin(), loops_.end(),
                                  [&](const auto& one) { return one.form == &form; });
  if (modal != loops_.end()) {
    modal->loop->quit();
    loops_.erase(modal);
  }
  if (windows_.empty()) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

void QtHost::PopupMenu(MenuItem& menu) {
  FormWindow* window = WindowOf(menu.form);
  if (!window) return;
  window->binder().Flush();
  const UserEvents::Pause pause(events);
  if (auto* shown = qobject_cast<QMenu*>(window->binder().ViewOf(menu)))
    shown->exec(QCursor::pos());
}

void QtHost::DoEvents() {
  FlushAll();
  QCoreApplication::processEvents(events.Busy() ? QEventLoop::ExcludeUserInputEvents
                                                : QEventLoop::AllEvents);
}

void QtHost::Repaint(Form&) {
  if (repainting_ || (sinceRepaint_.isValid() && sinceRepaint_.elapsed() < kRepaintEvery)) return;
  repainting_ = true;
  FlushAll();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  repainting_ = false;
  sinceRepaint_.start();
}

std::unique_ptr<Waiting> QtHost::Wait(const std::string& program) {
  FlushAll();
  return std::make_unique<WaitingBox>(ToQt(program), OwnerOfDialog());
}

void QtHost::SetClipboardText(const std::string& text) {
  QApplication::clipboard()->setText(ToQt(text));
}

std::string QtHost::ClipboardText() { return FromQt(QApplication::clipboard()->text()); }

QSize QtHost::SizeOf(const Chart& chart) const {
  FormWindow* window = WindowOf(chart.form);
  if (!window) return kPictureSize;
  const auto* view = qobject_cast<QWidget*>(window->binder().ViewOf(chart));
  if (view) return view->size();
  return kPictureSize;
}

void QtHost::CopyPicture(const Chart& chart) {
  const QSize size = SizeOf(chart);
  auto* picture = new QMimeData;
  picture->setImageData(DrawImage(chart.Data(), size, qApp->devicePixelRatio()));
  // For programs that scale what they take.
  picture->setData("image/svg+xml", DrawSvg(chart.Data(), size));
  QApplication::clipboard()->setMimeData(picture);
}

bool QtHost::SavePicture(const Chart& chart, const std::string& path, std::string& error) {
  const QSize size = SizeOf(chart);
  return DrawPicture(chart.Data(), path, size.width(), size.height(), error);
}

bool QtHost::PrintPage(const PrintJob& job, std::string& error) {
  FlushAll();
  const UserEvents::Pause pause(events);
  return printing_.Print(job, OwnerOfDialog(), error);
}

bool QtHost::PreviewPage(const PrintJob& job, std::string& error) {
  FlushAll();
  const UserEvents::Pause pause(events);
  return printing_.Preview(job, OwnerOfDialog(), error);
}

void QtHost::FlushAll() {
  for (const auto& window : windows_) window->binder().Flush();
}

}  // namespace tarnview
