// What the main window offers around the graph: presets, a sample to go to, the export, zone
// influence.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class GraphWindows : public ProgramFixture {
 protected:
  /// What a user does in the windows of those names, then in the main window.
  void Do(const std::string& action, std::map<std::string, std::string> inWindows = {}) {
    host.work = [=](Form& form) {
      if (inWindows.contains(form.name)) Act(form, inWindows.at(form.name));
    };
    Act(Main(), action);
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

TEST_F(GraphWindows, PresetsAreUpdatedAddedAndKept) {
  Open(50, kPresets);
  auto& presets = program->Global().gcolSampleGraphPresets;
  Do("row lvwPresets Knock\ntick lvwSampleDetails MAP on\ntype txtYMax 7x5\n"
     "click mnuEditUpdatePreset");
  EXPECT_EQ(presets.Item(1).colDataItems, (Ids{20, 5, 3}));
  EXPECT_EQ(presets.Item(1).lngGraphMax, 75);
  Do("click mnuEditNewPreset",
     {{"frmNewPresetName", "type txtName  \nclick cmdOK\ntype txtName Mine\nclick cmdOK"}});
  EXPECT_EQ(Boxes(), (Ids{41}));
  EXPECT_EQ(Main().lvwPresets.At(Main().lvwPresets.SelectedRow()).texts[0], "Mine");
  EXPECT_EQ(presets.Item(4).colDataItems, (Ids{20, 5, 3}));
  EXPECT_EQ(presets.Item(4).lngLogFamily, 1);
}

TEST_F(GraphWindows, TheEditorsOfPresetsWorkOnACopyOfTheirList) {
  Open(50, kPresets);
  Do("click mnuCustomisePresetSample",
     {{"frmMaint", "double lvwNameList Knock\nclick cmdCancel"},
      {"frmPresetSampleDetails", "type txtName Renamed\nclick cmdOK"}});
  EXPECT_EQ(Main().lvwPresets.At(1).texts[0], "Knock");
  Do("click mnuCustomisePresetSample",
     {{"frmMaint", "double lvwNameList Knock\nclick cmdOK"},
      {"frmPresetSampleDetails", "type txtName Renamed\nclick cmdOK"}});
  EXPECT_EQ(Main().lvwPresets.At(1).texts[0], "Renamed");

  const auto& presets = program->Global().gcolScatterGraphPresets;
  const int before = presets.Count();
  Do("click mnuCustomisePresetScatter",
     {{"frmMaint", "click cmdNew\nclick cmdOK"},
      {"frmPresetScatterDetails", "choose imgcboYAxis Knock Sensor\nclick cmdOK"}});
  ASSERT_EQ(presets.Count(), before + 1);
  EXPECT_EQ(presets.Item(before + 1).strName, "New Preset");
  EXPECT_EQ(presets.Item(before + 1).lngXAxisDataItem, 3);
  EXPECT_EQ(presets.Item(before + 1).lngYAxisDataItem, 20);
}

TEST_F(GraphWindows, GoesToASampleInAGraphOfTheSameWidth) {
  Open(2000);
  EXPECT_FALSE(Main().mnuViewGoto.Enabled());
  const struct {
    const char *from, *to, *inWindow, *range;
    std::int32_t highlight;
  } kRows[] = {
      {"100", "175", "type txtSampleNumber 1000\nclick cmdOK", "962-1038", 1000},  // to even halves
      {"100", "175", "type txtSampleNumber 20\nclick chkShowPointWidth\nclick cmdOK", "1-70", 20},
      {"100", "109", "type txtSampleNumber 500\nclick chkShowPointWidth\nclick cmdOK", "450-550",
       500},
      {"100", "110", "type txtSampleNumber 500\nclick cmdOK", "495-505", 500},
      {"100", "175", "type txtSampleNumber 500\nclick cmdCancel", "100-175", 137},
  };
  for (const auto& row : kRows) {
    Main().Selected().Forget();
    Draw(row.from, row.to);
    Main().PlotRangeFrom.SetFocus();
    Do("click mnuViewGoto", {{"frmGoto", row.inWindow}});
    EXPECT_EQ(Range(), row.range) << row.inWindow;
    EXPECT_EQ(Main().Selected().lngHighlightSample(), row.highlight) << row.inWindow;
  }
}

TEST_F(GraphWindows, AnExportKeepsItsPathUntilTheNextLog) {
  Open(40);
  host.answers = {{Answer::Kind::File, "/logs/other.csv"}, {Answer::Kind::Ok}};
  Do("click mnuFileExport");
  EXPECT_TRUE(Main().Exported());
  files.failWrites = true;
  Do("click mnuFileExport");
  EXPECT_EQ(files.accesses.back(), "write /logs/other.csv") << "the path used last";
  EXPECT_EQ(Boxes(), (Ids{64}));
  EXPECT_FALSE(Main().Exported());
  files.failWrites = false;
  Main().LoadDataFile("/logs/run.txt", 0);
  host.answers = {{Answer::Kind::Ok}};
  Do("click mnuFileExport");
  EXPECT_NE(files.files["/logs/run.csv"].find("File Type: FM Link Data Logs\r\n"),
            std::string::npos);
}

TEST_F(GraphWindows, ZoneInfluenceFollowsTheSelectedSampleOfALinkLog) {
  Open(40, "", [](SmallSample& one) { one.rpm += one.sample; });
  EXPECT_TRUE(Main().fraZoneInfl.Visible() && Main().mnuViewZoneInfl.Checked());
  const char* const kZones = "lblZoneInfl(0) lblZoneInfl(1) lblZoneInfl(2) lblZoneInfl(3)";
  EXPECT_EQ(Texts(Main(), kZones), "|||");
  Do("click cmdDrawGraph");
  EXPECT_EQ(Texts(Main(), kZones), "105|110|205|210");
  Main().picZoneInfl.SetSize(1120, 460);
  const auto& shapes = Main().picZoneInfl.Shapes();
  ASSERT_EQ(shapes.circles.size(), 2u);
  // 1020 RPM between the middles of the zones, at 750 and 1250; 40 kPa half way between the rows at
  // 20 and 60.
  EXPECT_EQ(shapes.circles[0], (Drawing::Circle{600, 230, 30, true}));
  EXPECT_EQ(shapes.lines[0], (Drawing::Line{0, 230, 1120, 230}));
  Do("click mnuViewZoneInfl");
  EXPECT_FALSE(Main().fraZoneInfl.Visible() || Set().gblnDisplayZoneInfluence);
  Do("click mnuViewZoneInfl");
  Main().LoadDataFile("/logs/none.txt", 0);
  EXPECT_EQ(Texts(Main(), kZones), "|||");
  EXPECT_FALSE(Main().mnuViewZoneInfl.Enabled());
}

}  // namespace
}  // namespace tarnview
