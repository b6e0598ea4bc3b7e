#include <gmock/gmock.h>

#include "qt/TestApplication.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview {
namespace {

ChartDescription Empty() {
  ChartDescription chart;
  chart.kind = Curves{};
  chart.x = {0, 100, 2, "0", "", 2};
  chart.y = {0, 100, 2, "0"};
  chart.colours.text = 0x123456;
  return chart;
}

class MarkLabelsTest : public testing::Test {
 protected:
  /// The smallest rectangle that holds all that the marks change, in per cent of the graph from
  /// its left and lower edge.
  QRect Ink(std::vector<ChartMark> marks, bool pointed = false) {
    chart.SetDescription(description);
    const QImage plain = chart.toPixmap(600, 400).toImage();
    if (pointed) {
      chart.ShowLabels(std::move(marks));
    } else {
      ChartDescription withMarks = description;
      withMarks.marks = std::move(marks);
      chart.SetDescription(withMarks);
    }
    const QImage marked = chart.toPixmap(600, 400).toImage();
    QRect ink;
    for (int y = 0; y < plain.height(); ++y)
      for (int x = 0; x < plain.width(); ++x)
        if (plain.pixel(x, y) != marked.pixel(x, y)) ink |= QRect(x, y, 1, 1);
    const QRect plot = chart.axisRect()->rect();
    const auto place = [&](QPoint at) {
      return QPoint((at.x() - plot.left()) * 100 / plot.width(),
                    (plot.bottom() - at.y()) * 100 / plot.height());
    };
    return {place(ink.bottomLeft()), place(ink.topRight())};
  }

  QApplication& application = TestApplication();
  ChartDescription description = Empty();
  ChartWidget chart;
};

TEST_F(MarkLabelsTest, ATextStandsAboveItsRingOrWhereThereIsRoom) {
  const QRect ring = Ink({{50, 50, "", 255}}), text = Ink({{50, 50, "12.3", 255}});
  EXPECT_TRUE(text.contains(ring));
  EXPECT_TRUE(ring.contains(50, 50));
  EXPECT_EQ(text.top(), ring.top()) << "nothing below";
  EXPECT_GT(text.bottom(), ring.bottom());
  EXPECT_LT(Ink({{50, 100, "12.3", 255, false}}).bottom(), 100) << "below, without room above";
  const QRect two = Ink({{50, 50, "12.3", 255}, {50, 50, "45.6", 255}});
  EXPECT_LT(two.top(), ring.top()) << "one above, one below";
  EXPECT_EQ(two.bottom(), text.bottom());
}

TEST_F(MarkLabelsTest, ATextThatStaysKeepsOffTheCurves) {
  const std::vector<ChartMark> peak{{50, 97, "393.5 hp", 255, false}};
  description.kind = Curves{{{1, "Power", {0, 40, 50, 50.5}, {80, 96, 97, 0}, {}}}};
  EXPECT_TRUE(Ink(peak).left() > 50 && Ink(peak).bottom() > 90) << "beside a peak at the top edge";
  EXPECT_LT(Ink({{20, 40, "393.5 hp", 255, false}}).left(), 20) << "above, where no curve is";
}

TEST_F(MarkLabelsTest, AtThePointerATextStandsToTheRightOrTurnsLeft) {
  const QRect middle = Ink({{50, 50, "12.3 hp", 255, false}}, true);
  EXPECT_GT(middle.left(), 49);
  EXPECT_TRUE(middle.top() < 50 && middle.bottom() > 50);
  EXPECT_LT(Ink({{98, 50, "12.3 hp", 255, false}}, true).right(), 98);
  EXPECT_GE(Ink({{50, 0, "4235 rpm", 0, false}}, true).top(), 0) << "above the axis";
}

TEST_F(MarkLabelsTest, TicksStandBetweenTheDivisionsThatSaySo) {
  chart.SetDescription(Empty());
  EXPECT_TRUE(chart.xAxis->subTicks());
  EXPECT_EQ(qSharedPointerCast<QCPAxisTickerText>(chart.xAxis->ticker())->subTickCount(), 1);
  EXPECT_EQ(chart.xAxis->subTickPen(), chart.xAxis->tickPen());
  EXPECT_FALSE(chart.yAxis->subTicks());
}

}  // namespace
}  // namespace tarnview
