#include "qt/host/FormWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSplitter>
#include <QUrl>
#include <QVariant>
#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "qt/Text.h"
#include "qt/binder/FormTable.h"
#include "qt/host/GiveWay.h"
#include "qt/host/KeyNames.h"
#include "qt/host/WindowPlacement.h"
#include "qt/icons/Icons.h"
#include "qt/icons/Looks.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"

namespace tarnview {
namespace {

/// A main window first takes most of the screen, since its graph is what the user came for.
void SizeMainWindow(QWidget& window) {
  if (window.inherits("QMainWindow")) window.resize(window.screen()->availableSize() * 4 / 5);
}

/// A text that wraps may need more lines than the design had room for, in a large font.
void MakeRoomForTexts(QWidget& window) {
  const QLayout* layout = window.layout();
  if (!layout || !layout->hasHeightForWidth()) return;
  const int height = layout->totalHeightForWidth(window.width());
  if (height > window.height()) window.resize(window.width(), height);
}

/// On a wide screen labels would stand far from their fields: a part with the property
/// "mostLetters" grows no wider than so many.
void HoldWidths(QWidget& window) {
  for (QWidget* part : window.findChildren<QWidget*>())
    if (const int letters = part->property("mostLetters").toInt(); letters > 0)
      part->setMaximumWidth(letters * part->fontMetrics().averageCharWidth());
}

/// A part scrolls on a low screen alone: on others the window opens at the height that shows all.
void MakeRoomForParts(QWidget& window) {
  if (window.inherits("QMainWindow") || !window.layout() || window.isVisible()) return;
  const auto parts = window.findChildren<QWidget*>();
  const bool scrolls = std::any_of(parts.begin(), parts.end(), [](const QWidget* part) {
    return part->property("scrolls").toBool();
  });
  const int height = std::min(window.layout()->sizeHint().height(),
                              window.screen()->availableSize().height() * 9 / 10);
  if (scrolls && height > window.height()) window.resize(window.width(), height);
}

QWidget& MakeWindowOf(const Form& form, QWidget* parent) {
  QWidget* window = MakeWindow(form.name, parent);
  if (!window) qFatal("forms/%s.ui is missing", form.name.c_str());
  if (window->property("frameless").toBool()) window->setWindowFlag(Qt::FramelessWindowHint);
  window->setWindowIcon(ProgramIcon());
  SetLooks(*window);
  SizeMainWindow(*window);
  LetScrollIn(*window);
  HoldWidths(*window);
  GiveWayIn(*window);
  if (parent && window->property("besideOwner").toBool())
    window->setGeometry(Beside(parent->geometry(), window->sizeHint().expandedTo(window->size()),
                               parent->screen()->availableGeometry()));
  TakePlacement(form, *window);
  TakeDividers(form, *window);
  return *window;
}

/// The one local file that is dragged; empty for anything else.
std::string DraggedFile(const QMimeData& data) {
  if (data.urls().size() != 1) return {};
  const QUrl url = data.urls().constFirst();
  const QString path = url.toLocalFile();
  // The toolkit has a mark in the place of each byte that is no text.
  if (!path.contains(QChar::ReplacementCharacter)) return PathFromQt(path);
  return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

/// Enter belongs to a field of several lines and to an open list.
bool KeepsEnter(const QWidget* widget) {
  const auto* lines = qobject_cast<const QPlainTextEdit*>(widget);
  return lines && !lines->isReadOnly();
}

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* parent, std::function<void(Form&)> cameToFront)
    : form_(form),
      window_(&MakeWindowOf(form, parent)),
      binder_(form, *window_),
      cameToFront_(std::move(cameToFront)) {
  window_->setAcceptDrops(true);
  form_.Watcher = [this] { ShowCaption(); };
  ShowCaption();
  for (const QSplitter* splitter : window_->findChildren<QSplitter*>())
    connect(splitter, &QSplitter::splitterMoved, this, [this] { NoteDividers(*window_, form_); });
  qApp->installEventFilter(this);
}

FormWindow::~FormWindow() {
  qApp->removeEventFilter(this);
  if (!window_) return;
  window_->hide();
  // A widget of it may be in the middle of telling about the click that closed the window.
  window_->deleteLater();
}

void FormWindow::LetGo() {
  form_.Watcher = nullptr;
  for (Control* control : form_.Controls()) control->Forget();
}

std::function<void()> FormWindow::WhileHere(std::function<void()> event) {
  return [self = QPointer<FormWindow>(this), event = std::move(event)] {
    if (self) event();
  };
}

void FormWindow::Run(const char* procedure, std::function<void()> event) {
  form_.host.events.Run(form_.name, procedure, WhileHere(std::move(event)));
}

void FormWindow::RunWhenFree(const char* procedure, std::function<void()> event) {
  form_.host.events.RunWhenFree(form_.name, procedure, WhileHere(std::move(event)));
}

void FormWindow::ShowCaption() {
  window_->setWindowTitle(CaptionToQt(form_.Caption() + WithLead(" - ", form_.Subtitle())));
  if (form_.Pointer == MousePointer::Hourglass)
    window_->setCursor(Qt::WaitCursor);
  else
    window_->unsetCursor();
}

void FormWindow::Raise(bool modal) {
  binder_.Flush();
  MakeRoomForTexts(*window_);
  MakeRoomForParts(*window_);
  if (modal) window_->setWindowModality(Qt::ApplicationModal);
  opens_ = !window_->isVisible();
  window_->show();
  if (QWidget* first = window_->focusWidget()) SelectTextOnOpening(*first);
  window_->raise();
  window_->activateWindow();
}

/// What is typed first into a window takes the place of the text there. The desktop may give the
/// focus only after the window is on show.
void FormWindow::SelectTextOnOpening(QWidget& first) {
  if (&first == window_ || !std::exchange(opens_, false)) return;
  if (auto* field = qobject_cast<QLineEdit*>(&first)) field->selectAll();
}

bool FormWindow::eventFilter(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return Receives(receiver) && KeyDown(static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
      return Receives(receiver) && KeyUp(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
      if (auto* widget = qobject_cast<QWidget*>(receiver); widget && widget->window() == window_) {
        SelectTextOnOpening(*widget);
        TakeFocus(*widget);
      }
      return false;
    default:
      return receiver == window_ && WindowEvent(*event);
  }
}

bool FormWindow::WindowEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      // Unload hides the window where it agrees; this object may be gone then.
      event.ignore();
      RunWhenFree("Form_QueryUnload", [this] { form_.Unload(); });
      return true;
    case QEvent::WindowActivate:
      RunWhenFree("Form_Activate", [this] { cameToFront_(form_); });
      return false;
    case QEvent::Resize:
      NoteWhereItIs();
      RunWhenFree("Form_Resize", [this] { form_.Form_Resize(); });
      return false;
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::WindowStateChange:
      NoteWhereItIs();
      return false;
    case QEvent::DragEnter:
    case QEvent::Drop:
      return DragOrDrop(static_cast<QDropEvent&>(event));
    default:
      return false;
  }
}

bool FormWindow::IsHeldUp() const {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal && modal != window_;
}

/// A file that comes while a dialog is open is refused: nothing may be loaded behind the dialog's
/// back.
bool FormWindow::DragOrDrop(QDropEvent& event) {
  const std::string path = DraggedFile(*event.mimeData());
  if (path.empty() || IsHeldUp()) {
    event.ignore();
    return true;
  }
  event.acceptProposedAction();
  // Opened after the drop is over, so that the window dragged from does not wait for a long load.
  if (event.type() == QEvent::Drop)
    QMetaObject::invokeMethod(
        this, [this, path] { RunWhenFree("DropFile", [this, path] { form_.DropFile(path); }); },
        Qt::QueuedConnection);
  return true;
}

/// The focus may have gone on when this comes to run.
void FormWindow::TakeFocus(QWidget& widget) {
  RunWhenFree("SetFocus", [this, taken = QPointer<QWidget>(&widget)] {
    if (!taken || window_->focusWidget() != taken) return;
    if (Control* control = binder_.ControlOf(taken)) form_.SetFocus(control);
  });
}

/// A window that is not on show yet has no place of its own.
void FormWindow::NoteWhereItIs() {
  if (window_->isVisible()) NotePlacement(*window_, form_);
}

bool FormWindow::Receives(QObject* receiver) const {
  // A key that nobody takes travels up through the parents; the window sees it once, before the
  // first of them.
  QWidget* first = window_->focusWidget();
  if (!first) first = window_.data();
  return receiver == first && !IsHeldUp();
}

bool FormWindow::KeyDown(QKeyEvent& event) {
  // What comes past the toolkit's own queue while an event is at work is too early.
  if (form_.host.events.Busy() || (draining_ && event.isAutoRepeat())) return true;
  const auto key = ToKeyPress(event);
  if (!key) return false;
  pressed_ = key;
  const QPointer<FormWindow> self(this);
  bool taken = false;
  Run("Form_KeyDown", [&] { taken = form_.KeyGoesDown(*key); });
  if (!self) return true;
  if (taken) DrainRepeats();
  return taken || EnterOrEscape(*key);
}

/// A key held down must not queue up work: what repeated while the window was at work is dropped.
void FormWindow::DrainRepeats() {
  if (draining_) return;
  draining_ = true;
  const QPointer<FormWindow> self(this);
  QCoreApplication::processEvents();
  if (self) draining_ = false;
}

bool FormWindow::EnterOrEscape(const KeyPress& key) {
  if (!key.Plain() || (key.key != "Enter" && key.key != "Escape")) return false;
  if (key.key == "Escape") {
    // A window without such a button takes the close box's way; the main window does not close on a
    // stray key.
    if (CommandButton* button = form_.CancelButton)
      Run("Escape", [button] { button->Press(); });
    else if (window_->inherits("QDialog"))
      Run("Form_QueryUnload", [this] { form_.Unload(); });
    return true;
  }
  QWidget* focus = window_->focusWidget();
  if (KeepsEnter(focus)) return false;
  CommandButton* button = nullptr;
  if (focus) button = dynamic_cast<CommandButton*>(binder_.ControlOf(focus));
  if (!button) button = form_.DefaultButton;
  if (button) Run("Enter", [button] { button->Press(); });
  return true;
}

bool FormWindow::KeyUp(QKeyEvent& event) {
  if (event.isAutoRepeat() || form_.host.events.Busy()) return false;
  auto key = ToKeyPress(event);
  if (!key) return false;
  // Hands often let Ctrl or Shift go first: the key counts as it was pressed.
  if (pressed_ && pressed_->key == key->key) key = std::exchange(pressed_, std::nullopt);
  bool taken = false;
  Run("Form_KeyUp", [&] { taken = form_.KeyGoesUp(*key); });
  return taken;
}

}  // namespace tarnview
