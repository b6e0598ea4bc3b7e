#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "qt/ScreenStory.h"
#include "qt/binder/Binder.h"
#include "qt/binder/UpDownWidget.h"
#include "ui/Frame.h"
#include "ui/OptionButton.h"
#include "ui/TabStrip.h"

namespace tarnview {
namespace {

/// A window with two pages: a grid on one, two choices on the other.
class GridWidgetTest : public testing::Test {
 protected:
  GridWidgetTest() {
    grid.SetSize(3, 4);
    grid.SetText(1, 1, "11");
    tabs.SetTabs({{"Grid", &fraGrid}, {"&Unit", &fraUnit}});
    auto* column = new QVBoxLayout(&window);
    book = Named(new QTabWidget, "tabPages");
    column->addWidget(book);
    auto* first = Named(new QWidget, "fraGrid");
    view = Named(new GridWidget(first), "grdData_2");
    (new QVBoxLayout(first))->addWidget(view);
    auto* second = Named(new QWidget, "fraUnit");
    auto* choices = new QVBoxLayout(second);
    for (const char* name : {"radA", "radB"}) choices->addWidget(Named(new QRadioButton, name));
    for (QWidget* page : {first, second}) book->addTab(page, "");
    binder = std::make_unique<Binder>(form, window);
    window.resize(400, 300);
    window.show();
    window.activateWindow();
    Settle();
  }

  template <class Widget>
  static Widget* Named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
  }
  QPoint Middle(int row, int column) const { return view->RectOf({row, column}).center(); }

  QApplication& application = TestApplication();
  RecordingHost host;
  Form form{host, "frmGrid", "Grid"};
  Grid grid{form, "grdData", 2};
  TabStrip tabs{form, "tabPages"};
  Frame fraGrid{form, "fraGrid"}, fraUnit{form, "fraUnit"};
  OptionButton radA{form, "radA", "fraUnit", "A"}, radB{form, "radB", "fraUnit", "B"};
  QWidget window;
  QTabWidget* book = nullptr;
  GridWidget* view = nullptr;
  std::unique_ptr<Binder> binder;
  ScreenStory story{form, host, window};
};

TEST_F(GridWidgetTest, TheMouseMarksCells) {
  for (int row = 0; row < 3; ++row)
    for (int column = 0; column < 4; ++column)
      EXPECT_EQ(view->PlaceAt(Middle(row, column)), (GridPlace{row, column}));
  story.Hand("drag", [&](const auto&) {
    QTest::mousePress(view, Qt::LeftButton, {}, Middle(2, 3));
    MoveMouse(*view, Middle(1, 2), Qt::LeftButton);
    QTest::mouseRelease(view, Qt::LeftButton, {}, Middle(1, 2));
  });
  story.Hand("extend", [&](const auto&) {
    QTest::mouseClick(view, Qt::LeftButton, Qt::ShiftModifier, Middle(2, 1));
  });
  EXPECT_STORY(story);
}

TEST_F(GridWidgetTest, ACellIsEditedInItsPlace) {
  story.Hand("up", [&](const auto&) {
    view->findChild<UpDownWidget*>()->findChildren<QToolButton*>().first()->click();
  });
  EXPECT_STORY(story);
  EXPECT_TRUE(story.Find<QLineEdit>("field").geometry().intersects(view->RectOf({2, 3})));
}

TEST_F(GridWidgetTest, RingMarksAndBlackoutsAreDrawn) {
  const QImage before = view->grab().toImage();
  grid.Ring = GridPoint{1.5, 1.5};
  Settle();
  const QImage ringed = view->grab().toImage();
  EXPECT_NE(before, ringed);
  const QPoint between = (Middle(1, 1) + Middle(2, 2)) / 2;
  EXPECT_EQ(before.copy(QRect(Middle(2, 3), QSize(5, 5))),
            ringed.copy(QRect(Middle(2, 3), QSize(5, 5))));
  const QRect around(between - QPoint(16, 16), QSize(32, 32));
  EXPECT_NE(before.copy(around), ringed.copy(around));
  for (const auto mark : {GridCell::Mark::Raised, GridCell::Mark::Lowered}) {
    GridCell cell;
    cell.mark = mark;
    grid.SetCell(2, 3, cell);
    Settle();
    const QRect place = view->RectOf({2, 3});
    const bool raised = mark == GridCell::Mark::Raised;
    const QImage shown = view->grab().toImage();
    const QColor above = shown.pixelColor(place.topLeft() + QPoint(1, 1));
    const QColor below = shown.pixelColor(place.bottomLeft() + QPoint(1, -1));
    EXPECT_GT((raised ? above : below).hsvSaturation(),
              (raised ? below : above).hsvSaturation() + 50);
  }
  GridCell black;
  black.blackedOut = true;
  grid.SetCell(2, 3, black);
  Settle();
  EXPECT_LT(qGray(view->grab().toImage().pixel(Middle(2, 3))), 0x70);
}

TEST_F(GridWidgetTest, ARingIsSeenInLightAndDark) {
  grid.Ring = GridPoint{1.5, 1.5};
  for (const int base : {0xFF, 0x20}) {
    QPalette palette(QColor(base, base, base));
    palette.setColor(QPalette::Base, QColor(base, base, base));
    palette.setColor(QPalette::Text, base > 0x80 ? Qt::black : Qt::white);
    view->setPalette(palette);
    Settle();
    const QPoint between = (Middle(1, 1) + Middle(2, 2)) / 2;
    const QImage shown = view->grab().toImage();
    int contrast = 0;
    for (int along = -16; along <= 16; ++along)
      contrast =
          std::max(contrast, std::abs(qGray(shown.pixel(between + QPoint(along, 3))) - base));
    EXPECT_GT(contrast, 0x80) << base;
  }
}

TEST_F(GridWidgetTest, TabsAndChoicesFollowBothWays) {
  story.Hand("tab", [&](const auto&) { book->setCurrentIndex(1); });
  story.Hand("none", [&](const auto&) { radB.Value = false; });
  story.Hand("alone", [&](const auto&) { tabs.SetTabs({{"Grid alone", &fraGrid}}); });
  EXPECT_STORY(story);
  EXPECT_FALSE(book->isTabVisible(1));
  EXPECT_EQ(book->tabText(0), "Grid alone");
  EXPECT_TRUE(view->isVisible());
}

}  // namespace
}  // namespace tarnview
