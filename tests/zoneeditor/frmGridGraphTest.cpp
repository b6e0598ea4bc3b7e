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

class frmGridGraphTest : public testing::Test, protected EditorWorld {
 protected:
  frmGridGraphTest() {
    story.Verb("angles", [this](const auto&) { angles = {1, 2, 3, 4}; });
    story.Fact("height", [this] { return Height(); });
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
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(window->Table().Text(6, 3) + window->Table().Text(6, 16), "780");
}

TEST_F(frmGridGraphTest, AnglesFollowFieldsArrowsAndTheHand) {
  Open();
  EXPECT_STORY(story);
  EXPECT_EQ(window->Rotation(), 359);
  EXPECT_EQ(window->Elevation(), 2);
}

TEST_F(frmGridGraphTest, AViewEditsNothing) {
  GridGraphRequest request = Request();
  request.readOnly = true;
  request.table.Text(2, 2) = "";
  Open(request);
  EXPECT_STORY(story);
  EXPECT_FALSE(window->Accepted());
}

TEST(GridGraphTable, TextsOfEachGrid) {
  const GraphAngles angles{1, 2, 3, 4};
  std::string told;
  for (int grid = 0; grid < 6; ++grid) {
    const StartingAngles start = AnglesOf(angles, grid);
    told += GraphKind(grid) + "; " + GraphSource(grid, "Mine") + "; " +
            std::to_string(start.rotation) + "," + std::to_string(start.elevation) + "\n";
  }
  ExpectTold("\n" + told, R"(
 Fuel Zone Graph; This Data Log; 1,2
 Fuel Zone Graph; Benchmark Mine; 1,2
 Fuel Zone Graph; Comparison with Benchmark Mine; 1,2
 Ignition Zone Graph; This Data Log; 3,4
 Ignition Zone Graph; Benchmark Mine; 3,4
 Ignition Zone Graph; Comparison with Benchmark Mine; 3,4
)");
  std::string rows;
  for (bool normallyAspirated : {true, false})
    for (int row = 1; row <= 6; ++row) rows += GraphRowLabel(normallyAspirated, row) + "; ";
  ExpectTold(
      rows,
      R"(0kPa 100; 34kPa 200; 48kPa 300; 61kPa 400; 74kPa 500; 88kPa 600; 0kPa 100; 40kPa 200; 80kPa 300; 120kPa 400; 160kPa 500; 200kPa 600; )");
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
  // normally aspirated, ignition
  ExpectTable(
      [](const TableRow& row) {
        const ZoneGrid grid{row.Yes(1) ? ZoneGrid::Ignition : ZoneGrid::Fuel};
        ZoneSheet sheet;
        sheet.normallyAspirated = row.Yes(0);
        sheet.Shown(ZoneCell(grid, 0, 0)) = 250;
        GridGraphTable before;
        for (auto& texts : before.texts) texts.fill("10");
        before.Text(1, 1) = "250";
        GridGraphTable after = before;
        for (int column = 1; column <= 4; ++column)
          after.Text(6, column) = std::to_string(20 + column);
        const ZoneSheet result = WithGraphTable(sheet, grid, before, after);
        std::string told = std::to_string(result.Shown(ZoneCell(grid, 0, 0))) + ":";
        for (int column = 0; column < 4; ++column)
          told += " " + std::to_string(result.Shown(ZoneCell(grid, 5, column)));
        return told;
      },
      R"(
yes, no -> 250: 0 0 23 24 | yes, yes -> 250: 0 22 23 24 | no, no -> 250: 0 0 23 24 | no, yes -> 250: 0 0 23 24
)");
}

}  // namespace
}  // namespace tarnview
