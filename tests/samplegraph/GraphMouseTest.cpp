#include "WholeGraph.h"

namespace tarnview {
namespace {

using GraphMouseTest = WholeGraph;

TEST_F(GraphMouseTest, MovesTheRange) {
  OpenLog(2000);
  ExpectFacts({"range", "boxes"}, R"(
# The wheel keeps what is under the pointer where it is.
1001, 1201, wheel chSampleGraph @1101 3 -> 1051-1151 | 1001, 1201, wheel chSampleGraph @1001 3 -> 1001-1101 | 1001, 1201, wheel chSampleGraph @1201 -3 -> 801-1201
1001, 1201, wheel chSampleGraph @9999 3 -> 1101-1201 | 1001, 1201, wheel chSampleGraph @1101 0 -> 1001-1201
# Never beyond the log, never below three samples, and each notch does something.
101, 301, wheel chSampleGraph @201 -9 -> 1-1602 | 101, 301, wheel chSampleGraph @201 -1e9 -> 1-2000 | 1901, 2000, wheel chSampleGraph @1950 -3 -> 1802-2000
101, 301, wheel chSampleGraph @201 1e9 -> 200-202 | 200, 202, wheel chSampleGraph @201 1 -> 200-202 | 200, 202, wheel chSampleGraph @200 -1 -> 200-203
# A drag carries the graph along, as far as the log goes.
1001, 1201, pan chSampleGraph @1100 @1150 -> 951-1151 | 1001, 1201, pan chSampleGraph @1100 @1050 -> 1051-1251 | 101, 301, pan chSampleGraph @150 @290 -> 1-201
101, 301, pan chSampleGraph @150 @-9000 -> 250-450 | 1, 2000, pan chSampleGraph @100 @900 -> 1-2000
# A marked range, either way round, grown where it is too narrow.
1, 2000, band chSampleGraph @120.4 @180.6 -> 120-181 | 1, 2000, band chSampleGraph @181 @120 -> 120-181 | 1, 2000, band chSampleGraph @500 @500.2 -> 500-502
1, 2000, band chSampleGraph @2000 @2000 -> 1998-2000 | 101, 301, double chSampleGraph -> 1-2000
# Previous Graph leads back to where the hand began; a marked range is a move of its own.
501, 701, wheel chSampleGraph @601 1 ; wheel chSampleGraph @601 1 ; pan chSampleGraph @601 @620 -> 519-645 | 501, 701, wheel chSampleGraph @601 1 ; pan chSampleGraph @601 @620 ; back -> 501-701
501, 701, wheel chSampleGraph @601 3 ; band chSampleGraph @570 @590 ; back -> 551-651
# Without Quick Graph the wheel stops where Draw would, and says nothing.
501, 701, click chkQuickGraph ; wheel chSampleGraph @601 -20 -> 101-1101 | 101, 1101, wheel chSampleGraph @601 -1 -> 101-1101
)");
}

TEST_F(GraphMouseTest, TheListFollowsThePointerAndComesBack) {
  OpenLog(2000);
  facts["RPM"] = [this] { return "; RPM " + Shown("3"); };
  facts["line"] = [this] {
    const auto line = chSampleGraph.HairLine();
    return "; line " + (line ? FixedText(*line, 4) : "none");
  };
  facts["point"] = [this] { return "; point " + std::to_string(chSampleGraph.SelectedPoint()); };
  ExpectFacts({"foot", "RPM", "line", "point", "sample"}, R"(
101, 301, point chSampleGraph 1 51 ; hover chSampleGraph @201.4 -> Sample: 201, Secs: 16.466; RPM 1201; line 16.4659; point 51 sample 151
# It is still there when the graph has moved under it.
101, 301, hover chSampleGraph @201.4 ; wheel chSampleGraph @201 1 -> Sample: 201, Secs: 16.466; RPM 1201; line 16.4659; point 31 sample 151
101, 301, hover chSampleGraph @201.4 ; pan chSampleGraph @205 @215 -> Sample: 205, Secs: 16.794; RPM 1205; line 16.7936; point 61 sample 151
101, 301, hover chSampleGraph @999 -> Sample: 301, Secs: 24.658; RPM 1301; line 24.6579; point 51 sample 151
101, 301, hover chSampleGraph @201.4 ; hover chSampleGraph -> Sample: 151, Secs: 12.370; RPM 1151; line none; point 51 sample 151
101, 301, hover chSampleGraph @201.4 ; hover chSampleGraph ; wheel chSampleGraph @201 1 -> Sample: 151, Secs: 12.370; RPM 1151; line none; point 31 sample 151
)");
}

TEST_F(GraphMouseTest, ATinyOrEmptyLogIsNoTrouble) {
  OpenLog(3);
  ExpectFacts({"range", "boxes"}, R"(
1, 3, wheel chSampleGraph @1 -2 -> 1-3 | 1, 3, pan chSampleGraph @1 @3 -> 1-3 | 1, 3, band chSampleGraph @1 @2 -> 1-2
)");
  log.gblnSamplesLoaded = false;
  range.Clear();
  graph.Clear();
  for (const auto& raise : {chSampleGraph.Wheel, chSampleGraph.Pan, chSampleGraph.Band})
    raise(1, 2);
  chSampleGraph.Hover(1);
  chSampleGraph.HoverEnd();
  EXPECT_EQ(Range(), "-");
}

}  // namespace
}  // namespace tarnview
