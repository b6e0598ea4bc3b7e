#include <gtest/gtest.h>

#include "app/MainWindowControls.h"
#include "app/frmNonModalMessage.h"
#include "qt/TestApplication.h"
#include "qt/host/FormWindow.h"
#include "qt/host/QtHost.h"
#include "qt/host/WindowPlacement.h"
#include "qt/pictures/AllWindows.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(WindowPlacementTest, AWindowOnAScreenThatIsGoneComesBack) {
  const QRect laptop(0, 0, 1366, 740), beside(1366, 0, 1920, 1080);
  const struct {
    const char* what;
    QRect wanted;
    QList<QRect> screens;
    QRect placed;
  } rows[] = {
      // clang-format off
      {"as it was", {100, 80, 800, 600}, {laptop}, {100, 80, 800, 600}},
      {"across two screens", {1000, 80, 1500, 600}, {laptop, beside}, {1000, 80, 1500, 600}},
      {"the second screen is gone", {1500, 80, 800, 600}, {laptop}, {566, 80, 800, 600}},
      {"and was larger", {1400, 40, 1800, 1000}, {laptop}, {0, 32, 1366, 708}},
      {"larger than the one screen", {10, 40, 2500, 1300}, {laptop}, {0, 32, 1366, 708}},
      {"caption above the screen", {100, -90, 800, 600}, {laptop}, {100, 32, 800, 600}},
      {"numbers of a damaged file", {-90000, 100000, 800, 600}, {laptop, beside}, {0, 140, 800, 600}},
      {"no screen at all", {5, 5, 10, 10}, {}, {5, 5, 10, 10}},
      // clang-format on
  };
  for (const auto& row : rows)
    EXPECT_EQ(FitOnScreens(row.wanted, row.screens), row.placed) << row.what;
}

TEST(WindowPlacementTest, AWindowBesideItsOwnerLeavesTheGraphFree) {
  const QRect screen(0, 0, 1366, 740);
  const struct {
    const char* what;
    QRect owner;
    QPoint placed;
  } rows[] = {
      {"right of it", {0, 40, 900, 600}, {915, 40}},
      {"left of it", {400, 40, 900, 600}, {21, 40}},
      {"no room: over its lists", {2, 40, 1093, 614}, {2, 440}},
      {"over all of the screen", {0, 0, 1366, 740}, {0, 526}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Beside(row.owner, {364, 214}, screen).topLeft(), row.placed) << row.what;
}

TEST(WindowPlacementTest, AWindowTakesItsPlaceAndKeepsItUpToDate) {
  TestApplication();
  QtHost host;
  frmNonModalMessage form(host, [](int) {});
  form.Left = 1500;
  form.Top = 1200;
  form.Width = 7500;
  form.Height = 4500;
  form.Show();
  QWidget& window = host.WindowOf(form)->window();
  EXPECT_EQ(window.geometry(), QRect(100, 80, 500, 300));
  window.setGeometry(120, 90, 520, 310);
  Settle();
  EXPECT_EQ(QRect(form.Left, form.Top, form.Width, form.Height),
            QRect(120 * 15, 90 * 15, 520 * 15, 310 * 15));
  window.showMaximized();
  Settle();
  EXPECT_EQ(form.WindowState, 2);
  EXPECT_EQ(form.Width, 520 * 15) << "a maximized window keeps the size that it goes back to";
  form.Unload();
  EXPECT_EQ(form.WindowState, 2);
  Settle();
  form.Show();
  EXPECT_TRUE(host.WindowOf(form)->window().isMaximized());
  form.Unload();
  Settle();
}

struct Controls : MainWindowControls {
  using MainWindowControls::MainWindowControls;
};

TEST(WindowPlacementTest, TheBarsBetweenItsPartsStayWhereTheyWereDragged) {
  TestApplication();
  RecordingHost host;
  Controls first(host), second(host), damaged(host);
  FormWindow dragged(first, nullptr, [](Form&) {});
  dragged.window().resize(1300, 900);
  dragged.Raise(false);
  Settle();
  auto* bar = dragged.window().findChild<QSplitter*>("mainSplitter");
  EXPECT_EQ(first.Dividers, "") << "nobody dragged one";
  bar->setSizes({500, 700});
  emit bar->splitterMoved(500, 1);
  EXPECT_EQ(first.Dividers.substr(0, 13), "mainSplitter=");
  second.Dividers = first.Dividers;
  second.Width = 1300 * 15;
  second.Height = 900 * 15;
  damaged.Dividers = "mainSplitter=1 listSplitter=x,-5,99999999999 nothing=1,2 ==";
  FormWindow again(second, nullptr, [](Form&) {}), odd(damaged, nullptr, [](Form&) {});
  again.Raise(false);
  odd.Raise(false);
  Settle();
  EXPECT_NEAR(again.window().findChild<QSplitter*>("mainSplitter")->sizes().first(),
              bar->sizes().first(), 4);
  Settle();
}

/// What fits 1920 by 1080 at twice the size: 960 by 540 less the window's frame, and for the main
/// window a desktop's panel.
TEST(WindowPlacementTest, EveryWindowFitsASmallScreen) {
  TestApplication();
  RecordingHost host;
  AllWindows windows(host);
  for (Form* form : windows.Forms()) {
    FormWindow shown(*form, nullptr, [](Form&) {});
    shown.Raise(false);
    Settle();
    const QWidget* window = &shown.window();
    const QSize least = shown.window().minimumSizeHint().expandedTo(shown.window().minimumSize());
    EXPECT_LE(least.width(), 950) << form->name;
    EXPECT_LE(least.height(), window->inherits("QDialog") ? 505 : 480) << form->name;
    if (form->name != "frmDataTags") continue;
    // No wider than the column of lists that it stands over where the screen has no other room.
    EXPECT_LE(window->width(), 44 * window->fontMetrics().averageCharWidth());
    const auto* list = window->findChild<QTreeWidget*>("lvwTags");
    EXPECT_EQ(list->header()->length(), list->viewport()->width());
  }
  Settle();
}

TEST(WindowPlacementTest, InALowColumnTheListStaysAndTheOthersGo) {
  TestApplication();
  RecordingHost host;
  Controls form(host);
  FormWindow shown(form, nullptr, [](Form&) {});
  const auto partsAt = [&](int height) {
    shown.window().resize(1000, height);
    shown.Raise(false);
    Settle();
    QString parts;
    for (const char* name : {"lvwSampleDetails", "lvwPresets", "fraZoneInfl"})
      if (shown.window().findChild<QWidget*>(name)->isVisible()) parts += QString(name) + " ";
    return parts.trimmed().toStdString();
  };
  EXPECT_EQ(partsAt(900), "lvwSampleDetails lvwPresets fraZoneInfl");
  EXPECT_EQ(partsAt(640), "lvwSampleDetails lvwPresets");
  EXPECT_EQ(partsAt(480), "lvwSampleDetails");
  EXPECT_EQ(partsAt(900), "lvwSampleDetails lvwPresets fraZoneInfl");
  form.fraZoneInfl.Visible = false;
  EXPECT_EQ(partsAt(900), "lvwSampleDetails lvwPresets");
}

}  // namespace
}  // namespace tarnview
