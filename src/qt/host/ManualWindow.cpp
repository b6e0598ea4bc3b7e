#include "qt/host/ManualWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/FileSystem.h"
#include "qt/Text.h"
#include "qt/icons/Icons.h"

namespace tarnview {
namespace {

constexpr const char* kContents = "Contents.htm";
constexpr const char* kInstructions = "Instructions.htm";
/// Pages are known by names of this kind, in which no character of the folder's path can be taken
/// for another thing.
constexpr const char* kScheme = "manual";

/// Lines of text high, characters wide: what a page of the manual fills well.
constexpr int kLines = 44, kCharacters = 100, kContentsCharacters = 38;

/// The toolkit knows few of a browser's styles; these say the same in its words.
constexpr const char* kStyle =
    "h1 { font-size: x-large; } h2 { font-size: large; margin-top: 24px; } h3 { margin-top: 14px; }"
    ".contents ul { list-style-type: none; } "
    "th, td { padding: 3px 12px 3px 0; text-align: left; vertical-align: top; }"
    "code, pre, kbd { font-family: monospace; }";

bool IsThere(const std::string& folder) {
  RealFileSystem files;
  return files.FileExists(folder + kContents) && files.FileExists(folder + kInstructions);
}

}  // namespace

void ManualPage::ShowPage(const QString& page, const QString& topic) {
  QUrl url;
  url.setScheme(kScheme);
  url.setPath("/" + page);
  if (!topic.isEmpty()) url.setFragment(topic);
  setSource(url);
}

QVariant ManualPage::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::StyleSheetResource) return QString(kStyle);
  const QUrl url = QUrl(QString(kScheme) + ":/").resolved(name);
  const std::string path = PathFromQt(url.path().mid(1));
  if (url.scheme() != kScheme || path.empty() || path.find("..") != path.npos) return {};
  const auto bytes = RealFileSystem().Read(folder_ + path);
  if (!bytes) return {};
  const std::string_view all = *bytes;
  const QByteArray content(all.data(), static_cast<qsizetype>(all.size()));
  if (type == QTextDocument::ImageResource) return Picture(content);
  return QString::fromUtf8(content);
}

/// No wider than the page, and as sharp as the screen.
QVariant ManualPage::Picture(const QByteArray& bytes) const {
  QImage image = QImage::fromData(bytes);
  const qreal ratio = devicePixelRatioF();
  const int most = qMax(viewport()->width() - 2 * fontMetrics().height(), 100);
  const int pixels = static_cast<int>(most * ratio);
  if (image.width() > pixels) image = image.scaledToWidth(pixels, Qt::SmoothTransformation);
  if (image.width() > most) image.setDevicePixelRatio(image.width() / static_cast<qreal>(most));
  return image;
}

void ManualPage::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  // Colours of links were worked out from the palette that was.
  if (event->type() == QEvent::PaletteChange && !source().isEmpty()) reload();
}

ManualWindow::ManualWindow()
    : contents_(new ManualPage), instructions_(new ManualPage), find_(new QLineEdit) {
  setObjectName("manual");
  setWindowTitle(tr("Tarnview Instructions"));
  setWindowIcon(ProgramIcon());
  contents_->setAccessibleName(tr("Contents"));
  contents_->setOpenLinks(false);
  instructions_->setAccessibleName(tr("Instructions"));
  instructions_->setOpenLinks(false);
  const auto follow = [this](const QUrl& link) {
    if (link.scheme() == kScheme || link.isRelative())
      instructions_->ShowPage(kInstructions, link.fragment());
    else
      QDesktopServices::openUrl(link);
  };
  connect(contents_, &QTextBrowser::anchorClicked, this, follow);
  connect(instructions_, &QTextBrowser::anchorClicked, this, follow);

  auto* right = new QWidget;
  auto* column = new QVBoxLayout(right);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(MakeTools());
  column->addWidget(instructions_);
  auto* halves = new QSplitter;
  halves->addWidget(contents_);
  halves->addWidget(right);
  halves->setStretchFactor(1, 1);
  (new QVBoxLayout(this))->addWidget(halves);

  const int line = fontMetrics().height(), character = fontMetrics().averageCharWidth();
  const int left = kContentsCharacters * character;
  halves->setSizes({left, kCharacters * character});
  resize(QSize(left + kCharacters * character, kLines * line)
             .boundedTo(screen()->availableSize() * 9 / 10));
}

QLayout* ManualWindow::MakeTools() {
  auto* row = new QHBoxLayout;
  const auto add = [&](Qt::ArrowType arrow, const QString& says, const QKeySequence& keys,
                       auto does) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setToolTip(says + " (" + keys.toString(QKeySequence::NativeText) + ")");
    button->setAccessibleName(says);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, does);
    connect(new QShortcut(keys, this), &QShortcut::activated, button, &QToolButton::click);
    row->addWidget(button);
    return button;
  };
  auto* back =
      add(Qt::LeftArrow, tr("Back"), Qt::ALT | Qt::Key_Left, [this] { instructions_->backward(); });
  auto* forward = add(Qt::RightArrow, tr("Forward"), Qt::ALT | Qt::Key_Right,
                      [this] { instructions_->forward(); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(instructions_, &QTextBrowser::backwardAvailable, back, &QToolButton::setEnabled);
  connect(instructions_, &QTextBrowser::forwardAvailable, forward, &QToolButton::setEnabled);
  row->addStretch();
  find_->setPlaceholderText(tr("Find (Ctrl+F)"));
  find_->setAccessibleName(tr("Find in the instructions"));
  find_->setClearButtonEnabled(true);
  find_->setMaximumWidth(30 * fontMetrics().averageCharWidth());
  row->addWidget(find_);
  connect(find_, &QLineEdit::returnPressed, this,
          [this] { Find(QApplication::keyboardModifiers() & Qt::ShiftModifier); });
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
    find_->setFocus(Qt::ShortcutFocusReason);
    find_->selectAll();
  });
  return row;
}

void ManualWindow::Find(bool backward) {
  QTextDocument::FindFlags way;
  way.setFlag(QTextDocument::FindBackward, backward);
  if (find_->text().isEmpty() || instructions_->find(find_->text(), way)) return;
  // Once more from the other end.
  instructions_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  instructions_->find(find_->text(), way);
}

bool ManualWindow::ShowTopic(const std::string& folder, const std::string& topic, QWidget* owner) {
  if (!IsThere(folder)) return false;
  // A child of a modal window takes input while that one is open.
  if (parentWidget() != owner) setParent(owner, Qt::Window);
  show();
  for (ManualPage* page : {contents_, instructions_}) page->SetFolder(folder);
  if (contents_->source().isEmpty()) contents_->ShowPage(kContents, "");
  instructions_->ShowPage(kInstructions, ToQt(topic));
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
  instructions_->setFocus();
  return true;
}

void ManualWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) close();
  QWidget::keyPressEvent(event);
}

}  // namespace tarnview
