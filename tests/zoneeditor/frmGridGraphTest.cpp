#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "ui/RecordingHost.h"
#include "zoneeditor/frmGridGraph.h"

namespace tarnview {
namespace {

/// The fuel grid of a turbo chip: each cell its row and column, the two cells of closed loop
/// control locked.
GridGraphRequest Request() {
  GridGraphRequest request;
  request.readOnly = false;
  request.rotation = 20;
  request.elevation = 240;
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = 1; column <= kGridColumns; ++column)
      request.table.Text(row, column) = std::to_string(20 * row + column);
  request.table.locked[5][0] = request.table.locked[5][1] = true;
  request.caption = "Fuel (This Datalog)";
  request.kind = GraphKind(0);
  request.source = GraphSource(0, "");
  return request;
}

class frmGridGraphTest : public testing::Test {
 protected:
  frmGridGraph& Open(GridGraphRequest request = Request()) {
    window = std::make_unique<frmGridGraph>(
        host, frmGridGraph::Surroundings{angles, errors, messages}, request);
    window->Show();
    return *window;
  }
  void Do(Control& control, const char* verb, std::vector<std::string> words = {}) {
    control.Do({verb, words});
  }
  /// Row, column, value ("-" when it cannot be edited), the chart's point and its number there.
  std::string State() {
    const Surface& surface = *window->chGridGraph.Data().AsSurface();
    const int row = window->chGridGraph.SelectedSeries(),
              column = window->chGridGraph.SelectedPoint();
    std::string state = window->cboRow.Text() + "|" + window->cboColumn.Text() + "|" +
                        window->txtValue.Text() + (window->txtValue.ReadOnly ? "-" : "") + "|" +
                        std::to_string(row) + "," + std::to_string(column);
    if (row > 0)
      state += "=" + NumberText(surface.At(static_cast<std::size_t>(row - 1),
                                           static_cast<std::size_t>(column - 1)));
    return state;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return std::string(); }};
  GraphAngles angles;
  std::unique_ptr<frmGridGraph> window;
};

TEST_F(frmGridGraphTest, CellsArePickedAndEditedInTheGraph) {
  frmGridGraph& w = Open();
  EXPECT_EQ(w.Caption(), "Tarnview 3D Graph - Fuel (This Datalog)");
  EXPECT_EQ(State(), "||-|0,0");
  EXPECT_EQ(w.cboRow.Entries().front(), "200kPa 600");
  EXPECT_EQ(w.cboRow.Entries().back(), "0kPa 100");
  const Surface& surface = *w.chGridGraph.Data().AsSurface();
  std::string told = surface.title + "; " + surface.subtitle + "; " + surface.height.title + ";";
  for (const std::string& column : surface.columns) told += " " + column;
  told += "; locked:";
  for (std::size_t cell = 0; cell < surface.locked.size(); ++cell)
    if (surface.locked[cell])
      told += " " + surface.rows[cell / 16] + " " + surface.columns[cell % 16];
  EXPECT_EQ(
      told,
      "Fuel Zone Graph; This Data Log; Fuel; 00 05 10 15 20 25 30 35 40 45 50 55 60 65 70 75; "
      "locked: 200kPa 600 00 200kPa 600 05");
  const struct {
    const char* done;
    std::function<void()> run;
    const char* state;
  } kStory[] = {
      {"a point",
       [&] {
         Do(w.chGridGraph, "point", {"3", "5"});
       },
       "80kPa 300|20|65|3,5=65"},
      {"another row", [&] { Do(w.cboRow, "choose", {"#0"}); }, "200kPa 600|20|125|6,5=125"},
      {"another column", [&] { Do(w.cboColumn, "choose", {"75"}); }, "200kPa 600|75|136|6,16=136"},
      {"typed too high", [&] { Do(w.txtValue, "type", {"300"}); }, "200kPa 600|75|255|6,16=255"},
      {"stepped", [&] { Do(w.updValue, "step", {"up"}); }, "200kPa 600|75|255|6,16=255"},
      {"stepped down", [&] { Do(w.updValue, "step", {"down"}); }, "200kPa 600|75|254|6,16=254"},
      {"no number", [&] { Do(w.txtValue, "type", {"x"}); }, "200kPa 600|75|0|6,16=0"},
      {"reset", [&] { Do(w.cmdReset, "click"); }, "200kPa 600|75|0|6,16=0"},
      {"a locked cell",
       [&] {
         Do(w.chGridGraph, "point", {"6", "2"});
       },
       "200kPa 600|05|122-|6,2=122"},
      {"the cell beside",
       [&] {
         Do(w.chGridGraph, "point", {"6", "3"});
       },
       "200kPa 600|10|123|6,3=123"},
  };
  for (const auto& step : kStory) {
    step.run();
    EXPECT_EQ(State(), step.state) << step.done;
  }
  EXPECT_THROW(Do(w.chGridGraph, "point", {"7", "1"}), CannotDo);
  w.txtValue.SetFocus();
  w.txtValue.Text = std::string("77");
  w.Press({"Enter"});
  EXPECT_EQ(State(), "200kPa 600|10|77|6,3=77");
  EXPECT_TRUE(w.IsShown()) << "Enter in the field takes the value alone";
  w.txtValue.Text = std::string("78");
  Do(w.cmdOK, "click");
  EXPECT_TRUE(w.Accepted());
  EXPECT_EQ(w.Table().Text(6, 3), "78");
  EXPECT_EQ(w.Table().Text(6, 16), "0");
}

TEST_F(frmGridGraphTest, AnglesFollowFieldsArrowsAndTheHand) {
  frmGridGraph& w = Open();
  angles = {1, 2, 3, 4};
  const auto view = [&] {
    const SurfaceView& it = w.chGridGraph.Data().AsSurface()->view;
    return w.txtRotation.Text() + "," + w.txtElevation.Text() + " " + std::to_string(it.rotation) +
           "," + std::to_string(it.elevation) + " x" + FixedText(it.zoom, 2);
  };
  const struct {
    const char* done;
    std::function<void()> run;
    const char* view;
  } kStory[] = {
      {"typed", [&] { Do(w.txtRotation, "type", {"45"}); }, "45,240 45,240 x1.00"},
      {"too high", [&] { Do(w.txtRotation, "type", {"400"}); }, "359,240 359,240 x1.00"},
      {"up", [&] { Do(w.updRotation, "step", {"up"}); }, "359,240 359,240 x1.00"},
      {"down", [&] { Do(w.updRotation, "step", {"down"}); }, "358,240 358,240 x1.00"},
      {"negative", [&] { Do(w.txtElevation, "type", {"-5"}); }, "358,0 358,0 x1.00"},
      {"a step up", [&] { Do(w.updElevation, "step", {"up"}); }, "358,1 358,1 x1.00"},
      {"the hand",
       [&] {
         Do(w.chGridGraph, "turn", {"5", "-20"});
       },
       "3,21 3,21 x1.00"},
      {"the wheel",
       [&] {
         Do(w.chGridGraph, "wheel", {"0", "2"});
       },
       "3,21 3,21 x1.32"},
      {"double click", [&] { Do(w.chGridGraph, "double"); }, "1,2 1,2 x1.00"},
  };
  for (const auto& step : kStory) {
    step.run();
    EXPECT_EQ(view(), step.view) << step.done;
  }
  w.txtRotation.Text = std::string("500");
  EXPECT_EQ(w.chGridGraph.Data().AsSurface()->view.rotation, 359) << "while it is typed";
  Do(w.cmdOK, "click");
  EXPECT_EQ(w.Rotation(), 359);
  EXPECT_EQ(w.Elevation(), 2);
}

TEST_F(frmGridGraphTest, AViewEditsNothing) {
  GridGraphRequest request = Request();
  request.readOnly = true;
  request.table.Text(2, 2) = "";
  frmGridGraph& w = Open(request);
  EXPECT_FALSE(w.cmdOK.Visible);
  EXPECT_EQ(w.cmdCancel.Caption(), "&Close");
  Do(w.chGridGraph, "point", {"2", "2"});
  EXPECT_EQ(State(), "40kPa 200|05|-|2,2=0") << "an empty difference is none";
  EXPECT_THROW(Do(w.txtValue, "type", {"1"}), CannotDo);
  EXPECT_THROW(Do(w.updValue, "step", {"up"}), CannotDo);
  Do(w.cmdCancel, "click");
  EXPECT_FALSE(w.IsShown() || w.Accepted());
}

TEST(GridGraphTable, TextsOfEachGrid) {
  const GraphAngles angles{1, 2, 3, 4};
  std::string told;
  for (int grid = 0; grid < 6; ++grid) {
    const StartingAngles start = AnglesOf(angles, grid);
    told += GraphKind(grid) + "; " + GraphSource(grid, "Mine") + "; " +
            std::to_string(start.rotation) + "," + std::to_string(start.elevation) + "\n";
  }
  EXPECT_EQ(told,
            " Fuel Zone Graph; This Data Log; 1,2\n"
            " Fuel Zone Graph; Benchmark Mine; 1,2\n"
            " Fuel Zone Graph; Comparison with Benchmark Mine; 1,2\n"
            " Ignition Zone Graph; This Data Log; 3,4\n"
            " Ignition Zone Graph; Benchmark Mine; 3,4\n"
            " Ignition Zone Graph; Comparison with Benchmark Mine; 3,4\n");
  std::string rows;
  for (bool normallyAspirated : {true, false})
    for (int row = 1; row <= 6; ++row) rows += GraphRowLabel(normallyAspirated, row) + "; ";
  EXPECT_EQ(rows,
            "0kPa 100; 34kPa 200; 48kPa 300; 61kPa 400; 74kPa 500; 88kPa 600; "
            "0kPa 100; 40kPa 200; 80kPa 300; 120kPa 400; 160kPa 500; 200kPa 600; ");
}

TEST(GridGraphTable, HeightsStandOnRoundNumbers) {
  const struct {
    std::vector<double> values;
    double min, max;
    int divisions;
  } kAxes[] = {{{0, 0}, 0, 1, 1},    {{60, 255}, 50, 300, 5}, {{3, 9}, 3, 9, 6},
               {{-7, 5}, -10, 5, 3}, {{12, 12}, 12, 13, 1},   {{-32768, 32767}, -40000, 40000, 4}};
  for (const auto& row : kAxes) {
    const ChartAxis axis = HeightAxis(row.values);
    EXPECT_EQ(axis.min, row.min) << row.values[1];
    EXPECT_EQ(axis.max, row.max) << row.values[1];
    EXPECT_EQ(axis.divisions, row.divisions) << row.values[1];
  }
}

/// Of row 6, fuel leaves out two columns and ignition one: kept on purpose.
TEST(GridGraphTable, ComesBackButForTheLastRowsFirstCells) {
  for (bool normallyAspirated : {true, false})
    for (ZoneGrid grid : {ZoneGrid::Fuel, ZoneGrid::Ignition}) {
      ZoneSheet sheet;
      sheet.normallyAspirated = normallyAspirated;
      sheet.Shown(ZoneCell(grid, 0, 0)) = 250;
      GridGraphTable before;
      for (auto& row : before.texts) row.fill("10");
      before.Text(1, 1) = "250";
      GridGraphTable after = before;
      for (int column = 1; column <= 4; ++column)
        after.Text(6, column) = std::to_string(20 + column);
      const ZoneSheet result = WithGraphTable(sheet, grid, before, after);
      std::string last;
      for (int column = 0; column < 4; ++column)
        last += std::to_string(result.Shown(ZoneCell(grid, 5, column))) + " ";
      const bool second = normallyAspirated && grid == ZoneGrid::Ignition;
      EXPECT_EQ(last, second ? "0 22 23 24 " : "0 0 23 24 ");
      EXPECT_EQ(result.Shown(ZoneCell(grid, 0, 0)), 250)
          << "what was not edited stays, whatever its range";
    }
}

}  // namespace
}  // namespace tarnview
