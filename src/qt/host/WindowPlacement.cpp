#include "qt/host/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>
#include <QWidget>
#include <algorithm>

#include "ui/Form.h"

namespace tarnview {
namespace {

constexpr int kMaximized = 2;
constexpr int kTwipsPerPixel = 15;  // at 96 to the inch, which the toolkit's pixels stand for
/// Pixels of a caption: its height, and how much of its width a hand needs.
constexpr int kCaptionHeight = 32, kCaptionHold = 100;
/// Pixels beyond any desktop: what a damaged file says is brought into these first.
constexpr int kFarAway = 100000;

int ToPixels(int twips) { return std::clamp(twips / kTwipsPerPixel, -kFarAway, kFarAway); }

bool CanBeHeld(const QRect& window, const QList<QRect>& screens) {
  const QRect caption(window.left(), window.top() - kCaptionHeight, window.width(), kCaptionHeight);
  return std::any_of(screens.begin(), screens.end(), [&](const QRect& screen) {
    const QRect seen = caption & screen;
    return seen.width() >= std::min(kCaptionHold, window.width()) &&
           seen.height() >= kCaptionHeight / 2;
  });
}

bool FitsInto(const QRect& window, const QList<QRect>& screens) {
  QRect desktop;
  for (const QRect& screen : screens) desktop |= screen;
  return window.width() <= desktop.width() && window.height() <= desktop.height();
}

/// How far a place lies from a screen's middle, for the choice of the nearest.
int Distance(const QRect& a, const QRect& b) { return (a.center() - b.center()).manhattanLength(); }

}  // namespace

QRect FitOnScreens(const QRect& wanted, const QList<QRect>& screens) {
  if (screens.isEmpty() || (CanBeHeld(wanted, screens) && FitsInto(wanted, screens))) return wanted;
  const QRect nearest = *std::min_element(
      screens.begin(), screens.end(),
      [&](const QRect& a, const QRect& b) { return Distance(a, wanted) < Distance(b, wanted); });
  const QRect room = nearest.adjusted(0, kCaptionHeight, 0, 0);
  QRect placed(wanted.topLeft(), wanted.size().boundedTo(room.size()));
  placed.moveLeft(std::clamp(placed.left(), room.left(), room.right() + 1 - placed.width()));
  placed.moveTop(std::clamp(placed.top(), room.top(), room.bottom() + 1 - placed.height()));
  return placed;
}

QRect Beside(const QRect& owner, const QSize& size, const QRect& screen) {
  constexpr int kFrame = 16;  // of both windows' borders together
  QRect placed(QPoint(owner.right() + kFrame, owner.top()), size);
  if (placed.right() + kFrame > screen.right()) placed.moveRight(owner.left() - kFrame);
  if (placed.left() - kFrame < screen.left()) placed.moveBottomLeft(owner.bottomLeft());
  return FitOnScreens(placed, {screen});
}

void TakePlacement(const Form& form, QWidget& window) {
  if (form.Width <= 0) return;
  QList<QRect> screens;
  for (const QScreen* screen : QGuiApplication::screens()) screens << screen->availableGeometry();
  const QRect wanted(ToPixels(form.Left), ToPixels(form.Top), ToPixels(form.Width),
                     ToPixels(form.Height));
  window.setGeometry(FitOnScreens(wanted, screens));
  if (form.WindowState == kMaximized) window.setWindowState(Qt::WindowMaximized);
}

void NotePlacement(const QWidget& window, Form& form) {
  if (window.isMaximized())
    form.WindowState = kMaximized;
  else
    form.WindowState = 0;
  if (window.isMinimized()) return;
  const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
  if (place.isEmpty()) return;
  form.Left = place.left() * kTwipsPerPixel;
  form.Top = place.top() * kTwipsPerPixel;
  form.Width = place.width() * kTwipsPerPixel;
  form.Height = place.height() * kTwipsPerPixel;
}

// "mainSplitter=310,690 listSplitter=400,200,0": pixels, which the toolkit takes as shares where
// the room is another.
void TakeDividers(const Form& form, QWidget& window) {
  for (const QString& word : QString::fromStdString(form.Dividers).split(' ', Qt::SkipEmptyParts)) {
    auto* splitter = window.findChild<QSplitter*>(word.section('=', 0, 0));
    QList<int> sizes;
    for (const QString& size : word.section('=', 1).split(','))
      sizes << std::clamp(size.toInt(), 0, kFarAway);
    if (splitter && sizes.size() == splitter->count()) splitter->setSizes(sizes);
  }
}

void NoteDividers(const QWidget& window, Form& form) {
  QStringList words;
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    QStringList sizes;
    for (const int size : splitter->sizes()) sizes << QString::number(size);
    words << splitter->objectName() + "=" + sizes.join(',');
  }
  form.Dividers = words.join(' ').toStdString();
}

}  // namespace tarnview
