// What the main window offers around the graph: presets, a sample to go to, the export, zone
// influence.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class GraphWindows : public ProgramFixture {
 protected:
  GraphWindows() {
    story.Fact("presets", [this] {
      std::string told;
      if (!Runs()) return told;
      for (const auto& preset : program->Global().gcolSampleGraphPresets) {
        told += (told.empty() ? "" : "; ") + preset.strName + " of " +
                std::to_string(preset.lngLogFamily) + ":";
        for (const int item : preset.colDataItems) told += " " + std::to_string(item);
        told += " to " + std::to_string(preset.lngGraphMax);
      }
      return told;
    });
    story.Fact("scatters", [this] {
      if (!Runs() || program->Global().gcolScatterGraphPresets.Count() == 0) return std::string();
      const auto& presets = program->Global().gcolScatterGraphPresets;
      const auto& last = presets.Item(presets.Count());
      return last.strName + ": " + std::to_string(last.lngXAxisDataItem) + " " +
             std::to_string(last.lngYAxisDataItem);
    });
  }
};

constexpr const char* kPresets = R"([General]
Checked Data Items=3,5
[New Preset Sample Graphs]
Graph 1 Name=Knock
Graph 1 Data Items=20,3
Graph 1 Fix Graph Max=Y
Graph 1 Graph Max=120
Graph 1 Log Family=1
Graph 2 Name=Other
Graph 2 Data Items=1
Graph 2 Log Family=6
Graph 3 Name=None
Graph 3 Data Items=
Graph 3 Log Family=1
)";

TEST_F(GraphWindows, PresetsAreUpdatedAddedAndEdited) {
  Open(50, kPresets);
  EXPECT_STORY(story, R"(
row lvwPresets Knock -> chkFixY checked, txtYMax=120
tick lvwSampleDetails MAP on; write txtYMax 7x5; click mnuEditUpdatePreset -> presets=Knock of 1: 20 5 3 to 75; Other of 6: 1 to 0; None of 1: to 0, txtYMax=7x5
click mnuEditNewPreset -> +frmNewPresetName
type txtName " "; click cmdOK -> [41 ok], txtName= 
type txtName Mine; click cmdOK -> -frmNewPresetName, presets=Knock of 1: 20 5 3 to 75; Other of 6: 1 to 0; None of 1: to 0; Mine of 1: 20 5 3 to 75
show lvwPresets -> lvwPresets columns=[Preset Graphs], lvwPresets count=3, lvwPresets[1]=[Knock], lvwPresets[1] unselected, lvwPresets[2]=[None], lvwPresets[2] unselected, lvwPresets[3]=[Mine], lvwPresets[3] selected
# The editors work on a copy of their list.
click mnuCustomisePresetSample -> +frmMaint
double lvwNameList Knock -> +frmPresetSampleDetails
type txtName Renamed; click cmdOK -> -frmPresetSampleDetails
click cmdCancel -> -frmMaint
show lvwPresets[1] -> lvwPresets[1]=[Knock], lvwPresets[1] unselected
click mnuCustomisePresetSample -> +frmMaint
double lvwNameList Knock -> +frmPresetSampleDetails
type txtName Renamed; click cmdOK -> -frmPresetSampleDetails
click cmdOK -> -frmMaint, presets=Renamed of 1: 20 5 3 to 80; Other of 6: 1 to 0; None of 1: to 0; Mine of 1: 20 5 3 to 75
show lvwPresets[1] -> lvwPresets[1]=[Renamed], lvwPresets[1] unselected
click mnuCustomisePresetScatter -> +frmMaint
click cmdNew -> +frmPresetScatterDetails
choose imgcboYAxis "Knock Sensor"; click cmdOK -> -frmPresetScatterDetails
click cmdOK -> -frmMaint, scatters=New Preset: 3 20
)");
}

TEST_F(GraphWindows, GoesToASampleInAGraphOfTheSameWidth) {
  Open(2000);
  story.Verb("draw", [this](const auto& words) {
    Main().Selected().Forget();
    Draw(words[0], words[1]);
    Main().PlotRangeFrom.SetFocus();
  });
  EXPECT_STORY(story, R"(
click mnuViewGoto -> cannot: mnuViewGoto is disabled
draw 100 175 -> graph=100-175 at 137, PlotRangeFrom=100, PlotRangeTo=175, txtYMax=240, staDataLogViewer[0]=Sample: 137, Secs: 11.223
# To even halves.
click mnuViewGoto -> +frmGoto
type txtSampleNumber 1000; click cmdOK -> -frmGoto, graph=962-1038 at 1000, PlotRangeFrom=962, PlotRangeTo=1038, staDataLogViewer[0]=Sample: 1000, Secs: 81.920
draw 100 175 -> graph=100-175 at 137, PlotRangeFrom=100, PlotRangeTo=175, staDataLogViewer[0]=Sample: 137, Secs: 11.223
click mnuViewGoto -> +frmGoto
type txtSampleNumber 20; click chkShowPointWidth; click cmdOK -> -frmGoto, graph=1-70 at 20, PlotRangeFrom=1, PlotRangeTo=70, staDataLogViewer[0]=Sample: 20, Secs: 1.638
draw 100 109 -> graph=100-109 at 105, PlotRangeFrom=100, PlotRangeTo=109, staDataLogViewer[0]=Sample: 105, Secs: 8.602
click mnuViewGoto -> +frmGoto
type txtSampleNumber 500; click chkShowPointWidth; click cmdOK -> -frmGoto, graph=450-550 at 500, PlotRangeFrom=450, PlotRangeTo=550, staDataLogViewer[0]=Sample: 500, Secs: 40.960
draw 100 110 -> graph=100-110 at 105, PlotRangeFrom=100, PlotRangeTo=110, staDataLogViewer[0]=Sample: 105, Secs: 8.602
click mnuViewGoto -> +frmGoto
type txtSampleNumber 500; click cmdOK -> -frmGoto, graph=495-505 at 500, PlotRangeFrom=495, PlotRangeTo=505, staDataLogViewer[0]=Sample: 500, Secs: 40.960
draw 100 175 -> graph=100-175 at 137, PlotRangeFrom=100, PlotRangeTo=175, staDataLogViewer[0]=Sample: 137, Secs: 11.223
click mnuViewGoto -> +frmGoto
type txtSampleNumber 500; click cmdCancel -> -frmGoto
)");
}

TEST_F(GraphWindows, AnExportKeepsItsPathUntilTheNextLog) {
  Open(40);
  EXPECT_STORY(story, R"(
answer file /logs/other.csv; click mnuFileExport -> [save "Export" of CSV files (*.csv) /logs/other.csv], wrote other.csv, staDataLogViewer[0]=Export complete
disk full; answer ok; click mnuFileExport -> [save "Export" of CSV files (*.csv) ok], [64 ok], wrote other.csv, staDataLogViewer[0]=
disk well; load /logs/run.txt -> [16 ok], staDataLogViewer[0]=Loading complete
answer ok; click mnuFileExport -> [save "Export" of CSV files (*.csv) ok], wrote run.csv, staDataLogViewer[0]=Export complete
)");
  EXPECT_NE(files.files["/logs/run.csv"].find("File Type: FM Link Data Logs\r\n"),
            std::string::npos);
}

TEST_F(GraphWindows, ZoneInfluenceFollowsTheSelectedSampleOfALinkLog) {
  Open(40, "", [](SmallSample& one) { one.rpm += one.sample; });
  EXPECT_STORY(story, R"(
show fraZoneInfl mnuViewZoneInfl lblZoneInfl(0) -> fraZoneInfl=Zone Influence, mnuViewZoneInfl=&Zone Influence, mnuViewZoneInfl checked, lblZoneInfl(0)=
click cmdDrawGraph; show lblZoneInfl(0) lblZoneInfl(1) lblZoneInfl(2) lblZoneInfl(3) -> lblZoneInfl(0)=105, lblZoneInfl(1)=110, lblZoneInfl(2)=205, lblZoneInfl(3)=210, graph=1-40 at 20, txtYMax=240, staDataLogViewer[0]=Sample: 20, Secs: 1.638
click mnuViewZoneInfl; show "fraZoneInfl visible" "mnuViewZoneInfl checked" -> fraZoneInfl hidden
click mnuViewZoneInfl; show "fraZoneInfl visible" "mnuViewZoneInfl checked" -> mnuViewZoneInfl checked
load /logs/none.txt; show lblZoneInfl(0) lblZoneInfl(1) lblZoneInfl(2) lblZoneInfl(3) "mnuViewZoneInfl enabled" -> lblZoneInfl(0)=, lblZoneInfl(1)=, lblZoneInfl(2)=, lblZoneInfl(3)=, mnuViewZoneInfl off, [15 ok], [12 ok], graph=none, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
)");
  Main().LoadDataFile("/logs/run.txt", 0);
  Do("click cmdDrawGraph");
  Main().picZoneInfl.SetSize(1120, 460);
  const auto& shapes = Main().picZoneInfl.Shapes();
  ASSERT_EQ(shapes.circles.size(), 2u);
  // 1020 RPM between the middles of the zones, at 750 and 1250; 40 kPa half way between the rows at
  // 20 and 60.
  EXPECT_EQ(shapes.circles[0], (Drawing::Circle{600, 230, 30, true}));
  EXPECT_EQ(shapes.lines[0], (Drawing::Line{0, 230, 1120, 230}));
}

}  // namespace
}  // namespace tarnview
