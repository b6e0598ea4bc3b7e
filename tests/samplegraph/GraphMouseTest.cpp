#include "WholeGraph.h"
#include "samplegraph/GraphMouse.h"

namespace tarnview {
namespace {

class GraphMouseTest : public WholeGraph {
 protected:
  void OpenAndDraw(int samples = 2000) {
    OpenLog(samples);
    graph.DrawGraphChecked();
  }
  /// A verb and what it is told, as `Sample` values or whole numbers.
  std::string Mouse(const std::string& verb, std::vector<std::string> words) {
    chSampleGraph.Do({verb, std::move(words)});
    return Range();
  }
  static std::string Time(double sample) { return std::to_string(sample * 0.08192); }
};

TEST_F(GraphMouseTest, MovesTheRange) {
  OpenAndDraw();
  const struct {
    const char *from, *to, *verb;
    std::vector<std::string> words;
    const char* range;
  } kRows[] = {
      // The wheel keeps what is under the pointer where it is.
      {"1001", "1201", "wheel", {Time(1101), "3"}, "1051-1151"},
      {"1001", "1201", "wheel", {Time(1001), "3"}, "1001-1101"},
      {"1001", "1201", "wheel", {Time(1201), "-3"}, "801-1201"},
      {"1001", "1201", "wheel", {Time(9999), "3"}, "1101-1201"},
      {"1001", "1201", "wheel", {Time(1101), "0"}, "1001-1201"},
      // Never beyond the log, never below three samples, and each notch does something.
      {"101", "301", "wheel", {Time(201), "-9"}, "1-1602"},
      {"101", "301", "wheel", {Time(201), "-1e9"}, "1-2000"},
      {"101", "301", "wheel", {Time(201), "1e9"}, "200-202"},
      {"200", "202", "wheel", {Time(201), "1"}, "200-202"},
      {"200", "202", "wheel", {Time(200), "-1"}, "200-203"},
      // A drag carries the graph along, as far as the log goes.
      {"1001", "1201", "pan", {Time(1100), Time(1150)}, "951-1151"},
      {"1001", "1201", "pan", {Time(1100), Time(1050)}, "1051-1251"},
      {"101", "301", "pan", {Time(150), Time(290)}, "1-201"},
      {"101", "301", "pan", {Time(150), Time(-9000)}, "250-450"},
      {"1", "2000", "pan", {Time(100), Time(900)}, "1-2000"},
      // A marked range, either way round, grown where it is too narrow.
      {"1", "2000", "band", {Time(120.4), Time(180.6)}, "120-181"},
      {"1", "2000", "band", {Time(181), Time(120)}, "120-181"},
      {"1", "2000", "band", {Time(500), Time(500.2)}, "500-502"},
      {"1", "2000", "band", {Time(2000), Time(2000)}, "1998-2000"},
      {"101", "301", "double", {}, "1-2000"},
  };
  for (const auto& row : kRows) {
    Draw(row.from, row.to);
    EXPECT_EQ(Mouse(row.verb, row.words), row.range)
        << row.from << "-" << row.to << " " << row.verb << " "
        << (row.words.empty() ? "" : row.words[0]);
  }
}

TEST_F(GraphMouseTest, WithoutQuickGraphTheWheelStopsWhereDrawWouldAndSaysNothing) {
  OpenAndDraw();
  chkQuickGraph.Value = false;
  Draw("501", "701");
  EXPECT_EQ(Mouse("wheel", {Time(601), "-20"}), "101-1101");
  EXPECT_EQ(Mouse("wheel", {Time(601), "-1"}), "101-1101");
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(GraphMouseTest, PreviousGraphLeadsBackToWhereTheHandBegan) {
  OpenAndDraw();
  Draw("501", "701");
  for (int notch = 0; notch < 5; ++notch) Mouse("wheel", {Time(601), "1"});
  Mouse("pan", {Time(601), Time(610)});
  Mouse("pan", {Time(601), Time(620)});
  EXPECT_NE(Mouse("pan", {Time(601), Time(620)}), "501-701");
  zoom.ShowPreviousGraph();
  EXPECT_EQ(Mouse("hover", {}), "501-701");
  // A marked range is a move of its own.
  Mouse("wheel", {Time(601), "3"});
  EXPECT_EQ(Mouse("band", {Time(570), Time(590)}), "570-590");
  zoom.ShowPreviousGraph();
  EXPECT_EQ(Mouse("hover", {}), "551-651");
}

TEST_F(GraphMouseTest, TheListFollowsThePointerAndComesBack) {
  OpenAndDraw();
  Draw("101", "301");
  chSampleGraph.SelectPoint(1, 51);
  Mouse("hover", {Time(201.4)});
  EXPECT_EQ(Shown("1") + " " + Shown("3"), "201 1201");
  EXPECT_EQ(Said(), "Sample: 201, Secs: 16.466");
  EXPECT_DOUBLE_EQ(chSampleGraph.HairLine().value(), 16.4659);
  EXPECT_EQ(selection.lngHighlightSample(), 151);
  // It is still there when the graph has moved under it.
  Mouse("wheel", {Time(201), "1"});
  EXPECT_EQ(Shown("1"), "201");
  Mouse("pan", {Time(205), Time(215)});
  EXPECT_EQ(Shown("1"), "205");
  Mouse("hover", {});
  EXPECT_EQ(Shown("1") + " " + Shown("3"), "151 1151");
  EXPECT_FALSE(chSampleGraph.HairLine().has_value());
  EXPECT_EQ(chSampleGraph.SelectedPoint(), 151 - std::stoi(PlotRangeFrom.Text()) + 1);
}

TEST_F(GraphMouseTest, ATinyOrEmptyLogIsNoTrouble) {
  OpenAndDraw(3);
  for (const char* verb : {"wheel", "pan", "band"})
    EXPECT_EQ(Mouse(verb, {Time(1), "-2"}), "1-3") << verb;
  log.gblnSamplesLoaded = false;
  range.Clear();
  graph.Clear();
  for (const auto& raise : {chSampleGraph.Wheel, chSampleGraph.Pan, chSampleGraph.Band})
    raise(1, 2);
  chSampleGraph.Hover(1);
  chSampleGraph.HoverEnd();
  EXPECT_EQ(PlotRangeFrom.Text(), "");
}

}  // namespace
}  // namespace tarnview
