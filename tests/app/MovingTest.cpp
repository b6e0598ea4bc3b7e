// Every key and every menu entry that moves through the log: what it does to the range and to the
// selected point.

#include <set>

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class Moving : public ProgramFixture {
 protected:
  Moving() {
    Open(2000, "", [](SmallSample& one) { one.rpm = 1000 + one.sample % 100; });
    Main().cmdDrawGraph.Press();
  }
  /// Samples 501 to 601 after the whole log, the middle one selected.
  void Reset() {
    DrawAnew("1", "2000");
    DrawAnew("501", "601");
    Main().cboZoomAmount.Text = "2";
    Main().lvwSampleDetails.SetFocus();
    host.messages.clear();
  }
  void DrawAnew(const char* from, const char* to) {
    Main().Selected().Forget();
    Draw(from, to);
  }
  std::string Drawn() {
    const DrawnGraph& plot = Main().Drawn();
    return std::to_string(plot.lngPlotFirstIndex + 1) + "-" +
           std::to_string(plot.lngPlotLastIndex + 1);
  }
};

TEST_F(Moving, MenuEntries) {
  const struct {
    const char* name;
    int index;
    const char* range;
    const char* drawn;
  } kRows[] = {
      {"mnuViewScrollLeft", -1, "491-591", "491-591"},
      {"mnuViewScrollRight", -1, "511-611", "511-611"},
      {"mnuViewPageLeft", -1, "401-501", "401-501"},
      {"mnuViewPageRight", -1, "601-701", "601-701"},
      {"mnuViewStart", -1, "1-101", "1-101"},
      {"mnuViewFinish", -1, "1900-2000", "1900-2000"},
      {"mnuViewZoomIn", -1, "527-577", "527-577"},
      {"mnuViewZoomInAmount", 10, "547-557", "547-557"},
      {"mnuViewZoomOut", -1, "452-652", "452-652"},
      {"mnuViewZoomOutAmount", 3, "402-702", "402-702"},
      {"mnuViewZoomFull", -1, "1-2000", "1-2000"},
      {"mnuViewPrevious", -1, "1-2000", "1-2000"},
      {"mnuRightClickDrawGraph", -1, "501-601", "501-601"},
      {"mnuRightClickZoomIn", -1, "527-577", "527-577"},
      {"mnuRightClickZoomInAmount", 5, "542-562", "542-562"},
      {"mnuRightClickZoomOut", -1, "452-652", "452-652"},
      {"mnuRightClickZoomOutAmount", 100, "1-2000", "1-2000"},
      {"mnuRightClickZoomOutFull", -1, "1-2000", "1-2000"},
      {"mnuRightClickPrevGraph", -1, "1-2000", "1-2000"},
      {"mnuRightClickPlotFrom", -1, "551-601", "501-601"},
      {"mnuRightClickPlotTo", -1, "501-551", "501-601"},
      {"mnuRightClickPlotFromAnd", -1, "551-601", "551-601"},
      {"mnuRightClickPlotToAnd", -1, "501-551", "501-551"},
  };
  for (const auto& row : kRows) {
    Reset();
    Main().chSampleGraph.RightClick();
    Control* entry = Main().Find(row.name, row.index);
    ASSERT_TRUE(entry) << row.name;
    entry->Do({"click", {}});
    EXPECT_EQ(Range(), row.range) << row.name;
    EXPECT_EQ(Drawn(), row.drawn) << row.name;
    if (row.index > 0) {
      EXPECT_EQ(Main().cboZoomAmount.Text(), std::to_string(row.index)) << row.name;
    }
  }
}

TEST_F(Moving, Keys) {
  const struct {
    const char* keys;
    const char* control;
    const char* range;
    int point;
    bool taken;
  } kRows[] = {
      // clang-format off
      {"Shift+Left", "chSampleGraph", "501-601", 50, true},    {"Shift+Right", "chSampleGraph", "501-601", 52, true},
      {"Shift+Left", "lvwSampleDetails", "501-601", 50, true}, {"Shift+Right", "lvwSampleDetails", "501-601", 52, true},
      {"Shift+Left", "PlotRangeFrom", "501-601", 51, false},   {"Left", "chSampleGraph", "501-601", 50, true},
      {"Right", "chSampleGraph", "501-601", 52, true},         {"Left", "lvwSampleDetails", "501-601", 51, false},
      {"Ctrl+Left", "cboZoomAmount", "401-501", 51, true},     {"Ctrl+Right", "PlotRangeTo", "601-701", 51, true},
      {"Alt+Left", "lvwSampleDetails", "491-591", 61, true},   {"Alt+Right", "cmdDrawGraph", "511-611", 41, true},
      {"Ctrl+Alt+Left", "chSampleGraph", "491-591", 61, true}, {"Ctrl+Alt+Right", "chSampleGraph", "511-611", 41, true},
      {"Ctrl+Home", "PlotRangeFrom", "1-101", 51, true},       {"Ctrl+End", "lvwPresets", "1900-2000", 51, true},
      {"Ctrl+F", "chSampleGraph", "1-2000", 139, true},        {"Ctrl+I", "PlotRangeFrom", "527-577", 25, true},
      {"Ctrl+O", "cboZoomAmount", "452-652", 100, true},
      // clang-format on
  };
  for (const auto& row : kRows) {
    Reset();
    Main().Find(row.control)->SetFocus();
    EXPECT_EQ(Main().Press(*ParseKeys(row.keys)), row.taken) << row.keys << " " << row.control;
    EXPECT_EQ(Range(), row.range) << row.keys << " " << row.control;
    EXPECT_EQ(Main().Selected().lngSelectedPoint(), row.point) << row.keys << " " << row.control;
  }
}

TEST_F(Moving, KeysOfDisabledButtonsDoNothing) {
  for (const char* keys : {"Ctrl+F", "Ctrl+O"}) {
    DrawAnew("1", "2000");
    Main().Press(*ParseKeys(keys));
    EXPECT_EQ(Range(), "1-2000") << keys;
  }
  DrawAnew("501", "509");
  Main().Press(*ParseKeys("Ctrl+I"));
  EXPECT_EQ(Range(), "501-509");
  DrawAnew("1", "101");
  Main().chSampleGraph.SelectPoint(1, 1);
  for (const char* keys : {"Shift+Left", "Alt+Left", "Ctrl+Left", "Ctrl+Home"}) {
    Main().Press(*ParseKeys(keys));
    EXPECT_EQ(Range(), "1-101") << keys;
    EXPECT_EQ(Main().Selected().lngSelectedPoint(), 1) << keys;
  }
}

TEST_F(Moving, ShiftUpAndDownWalkTheCurvesByTheirHeightAndStopAtTheEnds) {
  Reset();
  const auto& series = Main().chSampleGraph.Data().Series();
  ASSERT_GE(series.size(), 3u);
  const auto height = [&] {
    const Selection& plot = Main().Selected();
    return series[static_cast<std::size_t>(plot.intSelectedSeries() / 2)]
        .y[static_cast<std::size_t>(plot.lngSelectedPoint() - 1)];
  };
  for (const auto& [keys, sign] : {std::pair{"Shift+Down", -1}, std::pair{"Shift+Up", 1}}) {
    std::set<int> seen;
    for (std::size_t i = 0; i < 2 * series.size(); ++i) {
      const double before = height();
      seen.insert(Main().Selected().intSelectedSeries());
      Main().Press(*ParseKeys(keys));
      EXPECT_GE((height() - before) * sign, 0) << keys;
      EXPECT_EQ(Main().Selected().lngSelectedPoint(), 51);
    }
    EXPECT_EQ(seen.size(), sign < 0 ? seen.size() : series.size())
        << "from the lowest to the highest";
  }
}

}  // namespace
}  // namespace tarnview
