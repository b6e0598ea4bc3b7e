#include "samplegraph/frmNewPresetName.h"
#include "scatter/frmScatterGraph.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;

constexpr const char* kSettings =
    "[General]\r\nChecked Data Items=3,5,20\r\nShow Checked Only=Y\r\nShow Point Sample Graph "
    "Width=60\r\n"
    "[New Preset Scatter Graphs]\r\n"
    "Graph 1 Name=Boost\r\nGraph 1 Point Colour=255\r\nGraph 1 Point Shape=8\r\nGraph 1 Point "
    "Size=6\r\n"
    "Graph 1 X Axis=3\r\nGraph 1 Y Axis=5\r\nGraph 1 File Open Draw=Y\r\nGraph 1 Log Family=1\r\n"
    "Graph 1 Filter 1 Data Item=5\r\nGraph 1 Filter 1 From=100\r\nGraph 1 Filter 1 To=\r\n"
    "Graph 2 Name=Other family\r\nGraph 2 Point Colour=0\r\nGraph 2 Point Shape=0\r\nGraph 2 Point "
    "Size=1\r\n"
    "Graph 2 X Axis=3\r\nGraph 2 Y Axis=5\r\nGraph 2 File Open Draw=Y\r\nGraph 2 Log Family=6\r\n";

/// 40 kPa, and 120 kPa in each tenth sample.
void Shape(SmallSample& one) {
  one.rpm = 1000 + one.sample;
  if (one.sample % 10 == 0) one.mapKPa = 120;
}

class ScatterGraphTest : public ProgramFixture {
 protected:
  // The program goes before its desktop.
  ~ScatterGraphTest() override { program.reset(); }
  void Open(int samples, const std::string& settings = kSettings) {
    files.files["/logs/run.txt"] = SmallLog(samples, Shape);
    Start("", settings);
    Main().LoadDataFile("/logs/run.txt", 0);
    host.messages.clear();
  }
  frmScatterGraph& NewWindow() {
    Main().mnuModulesScatterGraph.Do({"click", {}});
    return dynamic_cast<frmScatterGraph&>(*host.Front());
  }
  static void Click(Control& control) { control.Do({"click", {}}); }
  Ids Boxes() {
    const Ids ids = MessageIds();
    host.messages.clear();
    return ids;
  }
  static const PointCloud& Points(const frmScatterGraph& window) {
    return *window.chScatterGraph.Data().Cloud();
  }
};

TEST_F(ScatterGraphTest, OpensWithAFirstChoiceOfAxes) {
  Open(50);
  const frmScatterGraph& window = NewWindow();
  EXPECT_EQ(window.Caption(), "Tarnview Scatter Graph - run.txt");
  EXPECT_EQ(window.cboXAxis.Text(), "RPM");
  EXPECT_EQ(window.cboYAxis.ListIndex(), 0);
  EXPECT_EQ(window.cboColourBy.Text(), "None");
  EXPECT_EQ(window.lvwFilters.Count(), 0);
  EXPECT_EQ(window.lvwPresets.Count(), 1);
  for (const Control* control : std::initializer_list<const Control*>{
           &window.cmdShowPoint, &window.mnuFilePrint, &window.mnuFilePrintPreview,
           &window.mnuFileSavePicture, &window.mnuFileExport, &window.mnuEditCopy,
           &window.mnuRightClickPrint, &window.chScatterGraph})
    EXPECT_FALSE(control->Enabled()) << control->name;
}

TEST_F(ScatterGraphTest, DrawsTheSamplesThatPass) {
  Open(40);
  frmScatterGraph& window = NewWindow();
  window.ChooseAxes(3, 5);
  window.AddFilter({kBoundNotSet, 100, 5});
  window.AddFilter({35, 15, 1});
  Click(window.cmdDrawGraph);
  EXPECT_EQ(Points(window).sample, (std::vector<double>{20, 30}));
  EXPECT_EQ(Points(window).x, (std::vector<double>{1020, 1030}));
  EXPECT_EQ(Points(window).y, (std::vector<double>{120, 120}));
  EXPECT_EQ(window.chScatterGraph.Data().y.title, "Manifold Air Pressure");
  EXPECT_EQ(window.staScatterGraph.Panel(1), "Graph draw complete");
  EXPECT_TRUE(window.chScatterGraph.Visible());
  EXPECT_FALSE(window.fraPicture.Visible());
  EXPECT_FALSE(window.prgProgInd.Visible());
  EXPECT_EQ(Boxes(), Ids{});
  Click(window.mnuFilePrint);
  host.answers.push_back({Answer::Kind::Printer});
  Click(window.mnuRightClickPrint);
  ASSERT_EQ(host.pages.size(), 1u) << "the first printer dialog was cancelled";
  std::string page;
  for (const auto& text : host.pages[0].texts) page += text.text + "|";
  EXPECT_NE(page.find("Tarnview Scatter Graph|"), page.npos) << page;
  EXPECT_NE(page.find("/logs/run.txt"), page.npos) << page;
  EXPECT_NE(page.find("MAP [Manifold Air Pressure] from 100"), page.npos) << page;
}

TEST_F(ScatterGraphTest, AFaultLeavesNoGraph) {
  Open(6000);
  frmScatterGraph& window = NewWindow();
  const auto gone = [&] {
    return !window.chScatterGraph.Data().Cloud() && !window.chScatterGraph.Visible() &&
           window.fraPicture.Visible() && !window.mnuFilePrint.Enabled() &&
           !window.mnuFileExport.Enabled() && !window.cmdShowPoint.Enabled();
  };
  const auto drawsAgain = [&] {
    window.AddFilter({kBoundNotSet, 0, 3});
    Click(window.cmdDrawGraph);
    return window.chScatterGraph.Data().Cloud() != nullptr;
  };
  window.DrawScatter(true);
  EXPECT_EQ(Boxes(), Ids{});
  EXPECT_TRUE(gone());
  Click(window.cmdDrawGraph);
  EXPECT_TRUE(gone());
  for (const std::string& told : {window.staScatterGraph.Panel(1), window.lblEmptyPlace.Caption()})
    EXPECT_EQ(told,
              "Too many samples for a graph without a filter: add a filter, or choose Draw All");
  EXPECT_EQ(window.Pointer(), MousePointer::Default);
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(host.messages[0].offer, "Draw &All");
  EXPECT_EQ(Boxes(), Ids{3});
  host.takesOffers = true;
  Click(window.cmdDrawGraph);
  EXPECT_EQ(Points(window).x.size(), 6000u);
  host.takesOffers = false;
  EXPECT_EQ(Boxes(), Ids{3});
  Click(window.cmdDrawGraph);
  EXPECT_TRUE(gone());
  EXPECT_EQ(Boxes(), Ids{3});
  EXPECT_TRUE(drawsAgain()) << "one filter, though all pass, lifts the limit";
  EXPECT_EQ(Points(window).x.size(), 6000u);
  window.AddFilter({kBoundNotSet, 9000, 3});
  window.DrawScatter(true);
  EXPECT_EQ(Boxes(), Ids{});
  EXPECT_TRUE(gone());
  Click(window.cmdDrawGraph);
  EXPECT_EQ(Boxes(), Ids{46});
  EXPECT_TRUE(gone());
}

TEST_F(ScatterGraphTest, ExportsThePoints) {
  Open(40);
  frmScatterGraph& window = NewWindow();
  window.ChooseAxes(5, 3);
  window.AddFilter({kBoundNotSet, 100, 5});
  window.AddFilter({30, kBoundNotSet, 1});
  Click(window.cmdDrawGraph);
  window.AddFilter({kBoundNotSet, 1, 3});  // not drawn with
  host.nextFile = Answer{Answer::Kind::File, "/out.csv"};
  Click(window.mnuFileExport);
  EXPECT_EQ(files.files["/out.csv"],
            "TARNVIEW SCATTER GRAPH EXPORT FILE\r\nOriginal Data Log Path and File Name: "
            "/logs/run.txt\r\n"
            "Original Data Log File Type: FM Link Data Logs\r\n\r\nFilters:\r\n"
            "MAP [Manifold Air Pressure] from 100\r\nSample [Sample No.] to "
            "30\r\n\r\nSample,MAP,RPM,Knock\r\n"
            "10,120.0,1010,40\r\n20,120.0,1020,40\r\n30,120.0,1030,40\r\n");
  EXPECT_EQ(window.staScatterGraph.Panel(1), "Export complete");
  window.ChooseAxes(1, 3);
  window.DrawScatter(true);
  files.failWrites = true;
  host.nextFile = Answer{Answer::Kind::File, "/out.csv"};
  Click(window.mnuFileExport);
  EXPECT_EQ(Boxes(), Ids{64});
  EXPECT_FALSE(window.Exported());
  files.failWrites = false;
  host.nextFile = Answer{Answer::Kind::File, "/out.csv"};
  Click(window.mnuFileExport);
  EXPECT_NE(
      files.files["/out.csv"].find("\r\nSample,Sample,RPM,Knock,MAP\r\n10,10,1010,40,120.0\r\n"),
      std::string::npos)
      << files.files["/out.csv"];
}

TEST_F(ScatterGraphTest, APointLeadsBackToTheSampleGraph) {
  Open(500);
  frmScatterGraph& window = NewWindow();
  Click(window.cmdDrawGraph);
  Click(window.cmdShowPoint);
  EXPECT_FALSE(Main().chSampleGraph.Visible()) << "no point, nothing to show";
  window.chScatterGraph.Do({"point", {"1", "100"}});
  const int rpm = window.lvwSampleDetails.RowOfTag("3");
  EXPECT_EQ(window.lvwSampleDetails.At(rpm).texts[1], "1100");
  Click(window.cmdShowPoint);
  EXPECT_EQ(host.Front(), &Main());
  EXPECT_EQ(Main().PlotRangeFrom.Text() + "-" + Main().PlotRangeTo.Text(), "70-130");
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 100);
  EXPECT_TRUE(Main().chSampleGraph.Visible());
  Click(window.mnuViewSampleDetails);
  EXPECT_FALSE(window.fraSampleDetails.Visible());
  EXPECT_FALSE(window.mnuViewSampleDetails.Checked());
}

TEST_F(ScatterGraphTest, APointOfALogThatIsGoneIsForgotten) {
  Open(500);
  frmScatterGraph& window = NewWindow();
  window.ChooseAxes(3, 5);
  Click(window.cmdDrawGraph);
  EXPECT_EQ(window.Subtitle(), "MAP against RPM");
  window.chScatterGraph.Do({"point", {"1", "100"}});
  Main().LoadDataFile("/logs/run.txt", 0);
  Click(window.cmdShowPoint);
  EXPECT_FALSE(Main().chSampleGraph.Visible()) << "chosen in the log before";
  window.chScatterGraph.Do({"point", {"1", "100"}});
  Click(window.cmdShowPoint);
  EXPECT_FALSE(Main().chSampleGraph.Visible()) << "chosen in the graph of the log before";
}

TEST_F(ScatterGraphTest, ColoursAndDensityChangeTheGraphOnShow) {
  Open(40);
  frmScatterGraph& window = NewWindow();
  Click(window.cmdDrawGraph);
  EXPECT_TRUE(Points(window).tint.empty());
  window.chScatterGraph.Do({"point", {"1", "7"}});
  window.AddFilter({kBoundNotSet, 100, 5});  // waits for Draw
  window.cboColourBy.Do({"choose", {"Manifold Air Pressure"}});
  ASSERT_EQ(Points(window).tint.size(), 40u);
  EXPECT_EQ(Points(window).tint[9], 120);
  EXPECT_EQ(Points(window).tintAxis.title, "Manifold Air Pressure");
  EXPECT_EQ(window.chScatterGraph.SelectedPoint(), 7);
  EXPECT_FALSE(window.mnuViewDensity.Enabled()) << "the points have a colour already";
  window.cboColourBy.Do({"choose", {"None"}});
  EXPECT_TRUE(Points(window).tint.empty());
  Click(window.mnuViewDensity);
  EXPECT_TRUE(Points(window).density);
  window.cboColourBy.Do({"choose", {"Manifold Air Pressure"}});
  EXPECT_FALSE(Points(window).density);
}

TEST_F(ScatterGraphTest, PresetsAreAppliedUpdatedAndAdded) {
  Open(40);
  frmScatterGraph& first = NewWindow();
  frmScatterGraph& window = NewWindow();
  const auto& presets = program->Global().gcolScatterGraphPresets;
  Click(window.mnuEditUpdatePreset);  // none selected
  EXPECT_EQ(presets.Item(1).lngPointSize, 6);
  window.lvwPresets.Do({"row", {"Boost"}});
  EXPECT_EQ(window.cboYAxis.Text(), "Manifold Air Pressure");
  EXPECT_EQ(window.cboPointShape.Text(), "Up Tri");
  EXPECT_EQ(window.lvwFilters.Count(), 1);
  EXPECT_FALSE(window.chScatterGraph.Visible());
  window.lvwPresets.Do({"double", {"Boost"}});
  EXPECT_EQ(Points(window).x.size(), 4u);
  EXPECT_EQ(Points(window).colour, 255);

  window.cboPointSize.Do({"type", {"9"}});
  window.AddFilter({2000, kBoundNotSet, 3});
  Click(window.mnuEditUpdatePreset);
  EXPECT_EQ(presets.Item(1).lngPointSize, 9);
  EXPECT_EQ(presets.Item(1).objFilters.Count(), 2);
  EXPECT_TRUE(presets.Item(1).FileOpenDraw) << "not the window's to change";
  EXPECT_EQ(window.lvwPresets.SelectedRow(), 1);

  host.work = [](Form& form) {
    auto& name = dynamic_cast<frmNewPresetName&>(form);
    name.txtName.Text = std::string("Mine");
    name.cmdOK.Press();
  };
  Click(window.mnuEditNewPreset);
  EXPECT_EQ(presets.Item(presets.Count()).strName, "Mine");
  EXPECT_EQ(presets.Item(presets.Count()).lngLogFamily, 1);
  EXPECT_EQ(window.lvwPresets.SelectedRow(), 2);
  ASSERT_EQ(first.lvwPresets.Count(), 2);
  EXPECT_EQ(first.lvwPresets.At(2).texts[0], "Mine");
  EXPECT_EQ(first.lvwFilters.Count(), 0) << "each window has filters of its own";
}

}  // namespace
}  // namespace tarnview
