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
  EXPECT_STORY(story, R"(
show caption cboRow chGridGraph -> caption=Tarnview 3D Graph - Fuel (This Datalog), cboRow list=[200kPa 600|160kPa 500|120kPa 400|80kPa 300|40kPa 200|0kPa 100], cboRow=, chGridGraph title=Fuel Zone Graph, chGridGraph subtitle=This Data Log, chGridGraph rotation=20, chGridGraph elevation=240, chGridGraph zoom=1, chGridGraph count=6, chGridGraph[1]=0kPa 100, chGridGraph[2]=40kPa 200, chGridGraph[3]=80kPa 300, chGridGraph[4]=120kPa 400, chGridGraph[5]=160kPa 500, chGridGraph[6]=200kPa 600, chGridGraph columns=[00|05|10|15|20|25|30|35|40|45|50|55|60|65|70|75], chGridGraph values count=6, chGridGraph values[0]=16 from 21 to 36, chGridGraph values[1]=16 from 41 to 56, chGridGraph values[2]=16 from 61 to 76, chGridGraph values[3]=16 from 81 to 96, chGridGraph values[4]=16 from 101 to 116, chGridGraph values[5]=16 from 121 to 136, chGridGraph locked count=2, chGridGraph locked[0]=[6|1], chGridGraph locked[1]=[6|2], chGridGraph height_axis min=20, chGridGraph height_axis max=140, chGridGraph height_axis divisions=6, chGridGraph selected=[0|0]
point chGridGraph 3 5 -> height=65, chGridGraph selected=[3|5], cboRow=80kPa 300, cboColumn=20, txtValue=65, updValue on
choose cboRow #0 -> height=125, chGridGraph selected=[6|5], cboRow=200kPa 600, txtValue=125
choose cboColumn 75 -> height=136, chGridGraph selected=[6|16], cboColumn=75, txtValue=136
type txtValue 300 -> height=255, chGridGraph values[5]=16 from 121 to 255, chGridGraph height_axis min=0, chGridGraph height_axis max=300, txtValue=255
step updValue up
step updValue down -> height=254, chGridGraph values[5]=16 from 121 to 254, txtValue=254
type txtValue x -> height=0, chGridGraph values[5]=16 from 121 to 0, chGridGraph height_axis max=150, chGridGraph height_axis divisions=3, txtValue=0
click cmdReset
point chGridGraph 6 2; show txtValue -> txtValue=122, height=122, chGridGraph selected=[6|2], cboColumn=05, txtValue=122, updValue off
point chGridGraph 6 3 -> height=123, chGridGraph selected=[6|3], cboColumn=10, txtValue=123, updValue on
point chGridGraph 7 1 -> cannot: chGridGraph has no such series
# Enter in the field takes the value alone.
write txtValue 77; key Enter -> height=77, txtValue=77
write txtValue 78; click cmdOK -> -frmGridGraph, height=78
)");
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(window->Table().Text(6, 3) + window->Table().Text(6, 16), "780");
}

TEST_F(frmGridGraphTest, AnglesFollowFieldsArrowsAndTheHand) {
  Open();
  EXPECT_STORY(story, R"(
angles
type txtRotation 45 -> chGridGraph rotation=45, txtRotation=45
type txtRotation 400 -> chGridGraph rotation=359, txtRotation=359
step updRotation up
step updRotation down -> chGridGraph rotation=358, txtRotation=358
type txtElevation -5 -> chGridGraph elevation=0, txtElevation=0
step updElevation up -> chGridGraph elevation=1, txtElevation=1
turn chGridGraph 5 -20 -> chGridGraph rotation=3, chGridGraph elevation=21, txtRotation=3, txtElevation=21
wheel chGridGraph 0 2 -> chGridGraph zoom=1.3225
double chGridGraph -> chGridGraph rotation=1, chGridGraph elevation=2, chGridGraph zoom=1, txtRotation=1, txtElevation=2
write txtRotation 500 -> chGridGraph rotation=359, txtRotation=500
click cmdOK -> -frmGridGraph
)");
  EXPECT_EQ(window->Rotation(), 359);
  EXPECT_EQ(window->Elevation(), 2);
}

TEST_F(frmGridGraphTest, AViewEditsNothing) {
  GridGraphRequest request = Request();
  request.readOnly = true;
  request.table.Text(2, 2) = "";
  Open(request);
  EXPECT_STORY(story, R"(
show cmdOK cmdCancel -> cmdOK hidden, cmdOK=OK, cmdCancel=&Close
# An empty difference is none.
point chGridGraph 2 2 -> height=0, chGridGraph selected=[2|2], cboRow=40kPa 200, cboColumn=05
type txtValue 1 -> cannot: txtValue cannot be edited
step updValue up -> cannot: updValue is disabled
click cmdCancel -> -frmGridGraph
)");
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
