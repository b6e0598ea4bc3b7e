#include <gmock/gmock.h>

#include "qt/Gestures.h"
#include "qt/TestApplication.h"
#include "qt/chart/ChartGestures.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A chart from 0 to 10, and what its gestures tell, in whole numbers.
class ChartGesturesTest : public testing::Test {
 protected:
  ChartGesturesTest() {
    ChartDescription data;
    data.x = {0, 10, 10, "#######0"};
    data.y = {0, 10, 10, "#######0"};
    std::get<Curves>(data.kind).series = {{1, "A", {0, 5, 10}, {5, 5, 5}, {}}};
    chart_.resize(600, 400);
    chart_.SetDescription(data);
    chart_.show();
    Settle();
  }
  void Listen(ChartGestures& gestures) {
    const auto tell = [this](const char* what) { return Telling(told_, what); };
    QObject::connect(&gestures, &ChartGestures::Turned, tell("wheel"));
    QObject::connect(&gestures, &ChartGestures::Marked, tell("band"));
    QObject::connect(&gestures, &ChartGestures::Panned, tell("pan"));
    QObject::connect(&gestures, &ChartGestures::DoubleClicked, tell("double"));
    QObject::connect(&gestures, &ChartGestures::PointedAt, tell("hover"));
    QObject::connect(&gestures, &ChartGestures::PointerLeft, tell("left"));
    QObject::connect(&chart_, &ChartWidget::PointClicked, tell("click"));
  }
  QPoint At(double x) const {
    return {static_cast<int>(std::lround(chart_.xAxis->coordToPixel(x))),
            static_cast<int>(chart_.yAxis->coordToPixel(5))};
  }
  void Drag(Qt::MouseButton button, Qt::KeyboardModifiers held, QPoint from, QPoint to) {
    QTest::mousePress(&chart_, button, held, from);
    for (const QPoint at : {(from + to) / 2, to}) MoveMouse(chart_, at, button, held);
    QTest::mouseRelease(&chart_, button, held, to);
  }
  void Turn(double x, int eighths) { TurnWheel(chart_, At(x), eighths); }

  QApplication& application_ = TestApplication();
  std::vector<std::string> told_;  // the chart tells of the pointer even as it goes
  ChartWidget chart_;
};

TEST_F(ChartGesturesTest, AWheelTurnedFastIsToldOnce) {
  Listen(*new ChartGestures(chart_, true));
  for (double x : {3, 4, 5}) Turn(x, 120);
  EXPECT_THAT(told_, IsEmpty());
  Settle();
  EXPECT_THAT(told_, ElementsAre("wheel 5 3"));
  Turn(2, -20);
  Settle();
  EXPECT_EQ(told_.size(), 1u) << "a touchpad's small part of a notch waits";
  Turn(2, -220);
  Settle();
  EXPECT_EQ(told_.back(), "wheel 2 -2");
}

TEST_F(ChartGesturesTest, DragsMarkOrPanAndAShortOneIsAClick) {
  Listen(*new ChartGestures(chart_, true));
  Drag(Qt::LeftButton, {}, At(7), At(3));
  EXPECT_THAT(told_, ElementsAre("band 3 7"));
  told_.clear();
  Drag(Qt::LeftButton, {}, At(5), At(5) + QPoint(3, 3));
  EXPECT_THAT(told_, ElementsAre("click 0 2"));
  told_.clear();
  Drag(Qt::LeftButton, Qt::ShiftModifier, At(7), At(3));
  EXPECT_EQ(told_.front(), "pan 7 3") << "its newest place alone";
  told_.clear();
  Drag(Qt::MiddleButton, {}, At(2), At(6));
  EXPECT_EQ(told_.front(), "pan 2 6");
  Settle();
  told_.clear();
  QTest::mouseDClick(&chart_, Qt::LeftButton, {}, At(4));
  EXPECT_EQ(told_.back(), "double");
}

TEST_F(ChartGesturesTest, ThePointerIsFollowedUntilItLeaves) {
  Listen(*new ChartGestures(chart_, true));
  for (double x : {2, 3, 4}) QTest::mouseMove(&chart_, At(x));
  Settle();
  EXPECT_EQ(told_.back(), "hover 4");
  EXPECT_LT(told_.size(), 4u);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&chart_, &leave);
  EXPECT_EQ(told_.back(), "left");
}

TEST_F(ChartGesturesTest, AChartThatDoesNotMoveIsClickedOnAlone) {
  Listen(*new ChartGestures(chart_, false));
  Turn(5, 120);
  Drag(Qt::LeftButton, {}, At(0), At(9));
  QTest::mouseMove(&chart_, At(4));
  Settle();
  EXPECT_THAT(told_, ElementsAre("click 0 1"));
}

}  // namespace
}  // namespace tarnview
