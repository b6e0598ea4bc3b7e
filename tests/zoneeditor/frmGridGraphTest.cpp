#include "base/Numbers.h"
#include "support/Table.h"
#include "support/WholeWindow.h"
#include "zoneeditor/EditorWorld.h"
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

class frmGridGraphTest : public EditorWorld {
 protected:
  frmGridGraphTest() {
    story.Verb("angles", [this](const auto&) { angles = {1, 2, 3, 4}; });
    story.Fact("height", [this] { return Height(); });
    story.Fact("result", [this] {
      if (window->IsShown()) return std::string();
      return (window->Accepted() ? "accepted " : "closed ") + std::to_string(window->Rotation()) +
             "," + std::to_string(window->Elevation()) + " " + window->Table().Text(6, 3) + " " +
             window->Table().Text(6, 16);
    });
  }
  void Open(const GridGraphRequest& request = Request()) {
    window = std::make_unique<frmGridGraph>(
        host, frmGridGraph::Surroundings{angles, errors, messages}, request);
    window->Show();
  }
  /// The selected cell of the surface.
  std::string Height() {
    const int row = window->chGridGraph.SelectedSeries();
    const int column = window->chGridGraph.SelectedPoint();
    if (row <= 0) return "";
    return NumberText(window->chGridGraph.Data().AsSurface()->At(
        static_cast<std::size_t>(row - 1), static_cast<std::size_t>(column - 1)));
  }

  GraphAngles angles;
  std::unique_ptr<frmGridGraph> window;
};

TEST_F(frmGridGraphTest, CellsArePickedAndEditedInTheGraph) {
  Open();
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
}

TEST_F(frmGridGraphTest, AnglesFollowFieldsArrowsAndTheHand) {
  Open();
  EXPECT_STORY(story);
}

TEST_F(frmGridGraphTest, AViewEditsNothing) {
  GridGraphRequest request = Request();
  request.readOnly = true;
  request.table.Text(2, 2) = "";
  Open(request);
  EXPECT_STORY(story);
}

TEST(GridGraphTable, TextsOfEachGrid) {
  std::string told;
  for (int grid = 0; grid < 6; ++grid) {
    const StartingAngles start = AnglesOf({1, 2, 3, 4}, grid);
    told += "\n" + GraphKind(grid) + "; " + GraphSource(grid, "Mine") + "; " +
            std::to_string(start.rotation) + "," + std::to_string(start.elevation);
  }
  for (const bool normallyAspirated : {true, false}) {
    told += "\n";
    for (int row = 1; row <= 6; ++row) told += GraphRowLabel(normallyAspirated, row) + "; ";
  }
  ExpectTold(told, R"(
 Fuel Zone Graph; This Data Log; 1,2
 Fuel Zone Graph; Benchmark Mine; 1,2
 Fuel Zone Graph; Comparison with Benchmark Mine; 1,2
 Ignition Zone Graph; This Data Log; 3,4
 Ignition Zone Graph; Benchmark Mine; 3,4
 Ignition Zone Graph; Comparison with Benchmark Mine; 3,4
0kPa 100; 34kPa 200; 48kPa 300; 61kPa 400; 74kPa 500; 88kPa 600; 
0kPa 100; 40kPa 200; 80kPa 300; 120kPa 400; 160kPa 500; 200kPa 600; )");
}

TEST(GridGraphTable, HeightsStandOnRoundNumbers) {
  ExpectTable(
      [](const TableRow& row) {
        const ChartAxis axis = HeightAxis({row.Number(0), row.Number(1)});
        return NumberText(axis.min) + " to " + NumberText(axis.max) + " in " +
               std::to_string(axis.divisions);
      },
      R"(
0, 0 -> 0 to 1 in 1 | 60, 255 -> 50 to 300 in 5 | 3, 9 -> 3 to 9 in 6 | -7, 5 -> -10 to 5 in 3 | 12, 12 -> 12 to 13 in 1 | -32768, 32767 -> -40000 to 40000 in 4
)");
}

/// Of row 6, fuel leaves out two columns and ignition one: kept on purpose. What was not edited
/// stays, whatever its range.
TEST(GridGraphTable, ComesBackButForTheLastRowsFirstCells) {
  // normally aspirated, ignition; the rows 1 and 6, of which all cells but one were edited
  ExpectTable(
      [](const TableRow& row) {
        const ZoneGrid grid{row.Yes(1) ? ZoneGrid::Ignition : ZoneGrid::Fuel};
        ZoneSheet sheet;
        sheet.normallyAspirated = row.Yes(0);
        sheet.Shown(ZoneCell(grid, 0, 4)) = 250;
        GridGraphTable before;
        for (auto& texts : before.texts) texts.fill("0");
        GridGraphTable after = before;
        for (const int line : {1, 6})
          for (int column = 1; column <= kGridColumns; ++column)
            after.Text(line, column) = std::to_string(20 + column);
        before.Text(1, 5) = after.Text(1, 5);
        const ZoneSheet result = WithGraphTable(sheet, grid, before, after);
        std::string told;
        for (const int line : {0, 5})
          for (int column = 0; column < kGridColumns; ++column)
            told += std::to_string(result.Shown(ZoneCell(grid, line, column))) + " ";
        return told;
      },
      R"(
yes, no -> 21 22 23 24 250 26 27 28 29 30 31 32 33 34 35 36 0 0 23 24 25 26 27 28 29 30 31 32 33 34 35 36  | yes, yes -> 21 22 23 24 250 26 27 28 29 30 31 32 33 34 35 36 0 22 23 24 25 26 27 28 29 30 31 32 33 34 35 36 
no, no -> 21 22 23 24 250 26 27 28 29 30 31 32 33 34 35 36 0 0 23 24 25 26 27 28 29 30 31 32 33 34 35 36  | no, yes -> 21 22 23 24 250 26 27 28 29 30 31 32 33 34 35 36 0 0 23 24 25 26 27 28 29 30 31 32 33 34 35 36 
)");
}

}  // namespace
}  // namespace tarnview
