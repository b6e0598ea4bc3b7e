// What the main window offers around the graph: presets, a sample to go to, the export, zone
// influence.

#include "samplegraph/frmGoto.h"
#include "samplegraph/frmNewPresetName.h"
#include "samplegraph/frmPresetSampleDetails.h"
#include "scatter/frmPresetScatterDetails.h"
#include "support/ProgramFixture.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;

class GraphWindows : public ProgramFixture {
 protected:
  // The program goes before its desktop.
  ~GraphWindows() override { program.reset(); }
  void Open(int samples, const std::string& settings = "[General]\r\n") {
    files.files["/logs/run.txt"] =
        SmallLog(samples, [](SmallSample& one) { one.rpm = 1000 + one.sample % 100; });
    files.files["/car/Tarnview.ini"] = settings;
    program = std::make_unique<Program>(desk, files, clock, processes, ProgramFolders{},
                                        "/car/Tarnview.ini");
    program->Start("", false);
    Main().LoadDataFile("/logs/run.txt", 0);
    desk.messages.clear();
  }
  std::string Range() { return Main().PlotRangeFrom.Text() + "-" + Main().PlotRangeTo.Text(); }
  Ids Ticked() {
    Ids items;
    for (const auto& row : Main().lvwSampleDetails.Rows())
      if (row.checked) items.push_back(std::stoi(row.tag));
    return items;
  }
  void Goto(const std::string& number, bool showPointWidth = false) {
    desk.work = [=](Form& form) {
      auto& window = dynamic_cast<frmGoto&>(form);
      window.txtSampleNumber.Do({"type", {number}});
      window.chkShowPointWidth.Value = showPointWidth;
      window.cmdOK.Do({"click", {}});
    };
    Main().mnuViewGoto.Do({"click", {}});
  }

  RecordingHost desk;
};

constexpr const char* kPresets =
    "[General]\r\nChecked Data Items=3,5\r\n[New Preset Sample Graphs]\r\n"
    "Graph 1 Name=Knock\r\nGraph 1 Data Items=20,3\r\nGraph 1 Fix Graph Max=Y\r\nGraph 1 Graph "
    "Max=120\r\n"
    "Graph 1 Log Family=1\r\n"
    "Graph 2 Name=Other\r\nGraph 2 Data Items=1\r\nGraph 2 Fix Graph Max=N\r\nGraph 2 Graph "
    "Max=10\r\n"
    "Graph 2 Log Family=6\r\n"
    "Graph 3 Name=None\r\nGraph 3 Data Items=\r\nGraph 3 Fix Graph Max=N\r\nGraph 3 Graph "
    "Max=10\r\n"
    "Graph 3 Log Family=1\r\n";

TEST_F(GraphWindows, APresetTicksItsItemsAndDraws) {
  Open(50, kPresets);
  Main().chkShowCheckedOnly.Value = true;
  ASSERT_EQ(Main().lvwPresets.Count(), 2);
  Main().lvwPresets.Do({"row", {"Knock"}});
  EXPECT_EQ(Ticked(), (Ids{20, 3}));  // in the order of the list
  EXPECT_EQ(Main().lvwSampleDetails.Count(), 2);
  EXPECT_TRUE(Main().chkFixY.Value());
  EXPECT_TRUE(Main().chSampleGraph.Data().Series().empty());
  Main().lvwPresets.Do({"double", {"Knock"}});
  EXPECT_EQ(Main().chSampleGraph.Data().Series().size(), 2u);
  EXPECT_EQ(Main().chSampleGraph.Data().y.max, 120);
  Main().lvwPresets.Do({"row", {"None"}});
  EXPECT_EQ(Ticked(), (Ids{}));
}

TEST_F(GraphWindows, TheFixedMaximumIsSteppedWithinItsLimits) {
  Open(50, kPresets);
  Main().chkFixY.Value = true;
  const std::tuple<const char*, const char*, const char*> rows[] = {{"90", "up", "100"},
                                                                    {"15", "down", "10"},
                                                                    {"2147483647", "up", "1000"},
                                                                    {"-2147483648", "down", "10"}};
  for (const auto& [before, direction, after] : rows) {
    Main().txtYMax.Text = std::string(before);
    Main().updYMax.Do({"step", {direction}});
    EXPECT_EQ(Main().txtYMax.Text(), after) << before;
  }
}

TEST_F(GraphWindows, PresetsAreUpdatedAddedAndKept) {
  Open(50, kPresets);
  auto& presets = program->Global().gcolSampleGraphPresets;
  Main().mnuEditUpdatePreset.Do({"click", {}});  // none selected
  EXPECT_EQ(presets.Item(1).colDataItems, (Ids{20, 3}));
  Main().lvwPresets.Do({"row", {"Knock"}});
  Main().lvwSampleDetails.SetChecked(Main().lvwSampleDetails.RowOfTag("5"), true);
  Main().txtYMax.Text = std::string("7x5");
  Main().mnuEditUpdatePreset.Do({"click", {}});
  EXPECT_EQ(presets.Item(1).colDataItems, (Ids{20, 5, 3}));
  EXPECT_EQ(presets.Item(1).lngGraphMax, 75);

  desk.work = [](Form& form) {
    auto& window = dynamic_cast<frmNewPresetName&>(form);
    EXPECT_EQ(window.txtName.Text(), "New Preset");
    window.txtName.Text = std::string(" ");
    window.cmdOK.Press();
    window.txtName.Text = std::string("Mine");
    window.cmdOK.Press();
  };
  Main().mnuEditNewPreset.Do({"click", {}});
  EXPECT_EQ(desk.messages.at(0).id, 41);
  EXPECT_EQ(Main().lvwPresets.At(Main().lvwPresets.SelectedRow()).texts[0], "Mine");
  const auto& added = presets.Item(presets.Count());
  EXPECT_EQ(added.colDataItems, (Ids{20, 5, 3}));
  EXPECT_EQ(added.lngLogFamily, 1);
}

TEST_F(GraphWindows, TheEditorOfPresetsWorksOnACopy) {
  Open(50, kPresets);
  desk.work = [&](Form& form) {
    if (auto* details = dynamic_cast<frmPresetSampleDetails*>(&form)) {
      details->txtName.Text = std::string("Renamed");
      details->cmdOK.Press();
      return;
    }
    auto& window = dynamic_cast<frmMaint&>(form);
    window.lvwNameList.Do({"double", {"Knock"}});
    EXPECT_EQ(Main().lvwPresets.At(1).texts[0], "Knock");
    window.cmdOK.Press();
  };
  Main().mnuCustomisePresetSample.Do({"click", {}});
  EXPECT_EQ(Main().lvwPresets.At(1).texts[0], "Renamed");
}

TEST_F(GraphWindows, TheEditorOfScatterPresetsWorksOnItsOwnList) {
  Open(50);
  desk.work = [&](Form& form) {
    if (auto* details = dynamic_cast<frmPresetScatterDetails*>(&form)) {
      details->imgcboYAxis.Do({"choose", {"Knock Sensor"}});
      details->cmdOK.Press();
      return;
    }
    auto& window = dynamic_cast<frmMaint&>(form);
    EXPECT_EQ(window.Caption(), "Preset Scatter Graph Editor");
    window.cmdNew.Press();
    window.cmdOK.Press();
  };
  const auto& presets = program->Global().gcolScatterGraphPresets;
  const int before = presets.Count();
  Main().mnuCustomisePresetScatter.Do({"click", {}});
  ASSERT_EQ(presets.Count(), before + 1);
  EXPECT_EQ(presets.Item(before + 1).strName, "New Preset");
  EXPECT_EQ(presets.Item(before + 1).lngXAxisDataItem, 3);
  EXPECT_EQ(presets.Item(before + 1).lngYAxisDataItem, 20);
}

TEST_F(GraphWindows, GoesToASampleInAGraphOfTheSameWidth) {
  Open(2000);
  EXPECT_FALSE(Main().mnuViewGoto.Enabled());
  Main().PlotRangeFrom.Text = std::string("100");
  Main().PlotRangeTo.Text = std::string("175");
  Main().cmdDrawGraph.Press();
  Main().PlotRangeFrom.SetFocus();
  Goto("1000");
  EXPECT_EQ(Range(), "962-1038");  // 962.5 and 1037.5
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 1000);
  Goto("20", true);
  EXPECT_EQ(Range(), "1-70") << "the check of Draw pulls From in";
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 20);
  Main().PlotRangeTo.Text = std::string("8");
  Main().cmdDrawGraph.Press();
  Goto("500");
  EXPECT_EQ(Range(), "450-550") << "a narrow graph takes the width of Show Point";
  desk.work = nullptr;
  Main().mnuRightClickGoto.Do({"click", {}});
  EXPECT_EQ(Range(), "450-550");
}

TEST_F(GraphWindows, ExportsWhatTheListShows) {
  Open(40, "[General]\r\nChecked Data Items=3\r\n");
  Main().PlotRangeFrom.Text = std::string("2");
  Main().PlotRangeTo.Text = std::string("3");
  Main().chkShowCheckedOnly.Value = true;
  desk.answers.push_back({Answer::Kind::Ok});
  Main().mnuFileExport.Do({"click", {}});
  EXPECT_EQ(files.files["/logs/run.csv"],
            "TARNVIEW EXPORT FILE\r\n"
            "Original Data Log Path and File Name: /logs/run.txt\r\n"
            "Original Data Log File Type: FM Link Data Logs\r\n"
            "\r\n"
            "Sample,Secs,RPM\r\n"
            "2,0.164,1002\r\n"
            "3,0.246,1003\r\n");
  EXPECT_EQ(Main().staDataLogViewer.Panel(1), "Export complete");

  desk.answers.push_back({Answer::Kind::File, "/logs/other.csv"});
  Main().lvwSampleDetails.SetChecked(1, false);
  Main().mnuFileExport.Do({"click", {}});
  EXPECT_TRUE(
      files.files["/logs/other.csv"].ends_with("\r\nSample,Secs\r\n2,0.164\r\n3,0.246\r\n"));

  files.failWrites = true;
  desk.answers.push_back({Answer::Kind::Ok});
  desk.messages.clear();
  Main().mnuFileExport.Do({"click", {}});
  EXPECT_EQ(files.accesses.back(), "write /logs/other.csv") << "the path used last";
  EXPECT_EQ(desk.messages.at(0).id, 64);
}

TEST_F(GraphWindows, ZoneInfluenceFollowsTheSelectedSampleOfALinkLog) {
  Open(40);
  EXPECT_TRUE(Main().fraZoneInfl.Visible());
  EXPECT_TRUE(Main().mnuViewZoneInfl.Checked());
  EXPECT_EQ(Main().lblZoneInfl(0).Caption(), "");
  Main().cmdDrawGraph.Press();
  EXPECT_EQ(Main().lblZoneInfl(0).Caption() + " " + Main().lblZoneInfl(3).Caption(), "105 210");
  Main().picZoneInfl.SetSize(1120, 460);
  const auto& shapes = Main().picZoneInfl.Shapes();
  ASSERT_EQ(shapes.circles.size(), 2u);
  // 1020 RPM between the middles of the zones, at 750 and 1250; 40 kPa half way between the rows at
  // 20 and 60.
  EXPECT_EQ(shapes.circles[0], (Drawing::Circle{600, 230, 30, true}));
  EXPECT_EQ(shapes.lines[0], (Drawing::Line{0, 230, 1120, 230}));
  Main().mnuViewZoneInfl.Do({"click", {}});
  EXPECT_FALSE(Main().fraZoneInfl.Visible());
  EXPECT_FALSE(program->Global().settings.gblnDisplayZoneInfluence);
  Main().mnuViewZoneInfl.Do({"click", {}});
  Main().LoadDataFile("/logs/none.txt", 0);
  EXPECT_EQ(Main().lblZoneInfl(0).Caption(), "");
  EXPECT_FALSE(Main().mnuViewZoneInfl.Enabled());
}

}  // namespace
}  // namespace tarnview
