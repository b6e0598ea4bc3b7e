#include "scatter/frmScatterGraph.h"
#include "support/PresetWindows.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

/// Two scatter windows over a log, and a main window that only notes what it is asked for.
class ScatterGraphTest : public PresetWindowsTest, protected frmScatterGraph::MainWindow {
 protected:
  ScatterGraphTest() {
    clsScatterGraphPreset boost{{}, 255, 8, 6, 5, 3, "Boost", true, {}};
    boost.objFilters.AddDirect({kBoundNotSet, 100, 5});
    boost.lngLogFamily = 1;
    presets.AddDirect(boost);
    presets.AddDirect(boost).lngLogFamily = 6;
    story.PassOver("lvwSampleDetails");
    story.PassOver("mnu");
    story.Fact("main window", [this] { return shown + told; });
    story.Fact("points", [this] { return Looks(); });
    // ITEM FROM TO; "-": no bound
    story.Verb("filter", [this](const auto& words) {
      const auto bound = [&](std::size_t n) {
        return words[n] == "-" ? kBoundNotSet : std::stod(words[n]);
      };
      window->AddFilter({bound(2), bound(1), std::stoi(words[0])});
    });
    story.Verb("axes", [this](const auto& words) {
      window->ChooseAxes(std::stoi(words[0]), std::stoi(words[1]));
    });
    story.Verb("drawQuietly", [this](const auto&) { window->DrawScatter(true); });
    story.Verb("takesOffers", [this](const auto& words) { host.takesOffers = words[0] == "yes"; });
    story.Verb("failWrites", [this](const auto& words) { files.failWrites = words[0] == "yes"; });
    story.Verb("read", [this](const auto& words) { shown = files.files[words[0]]; });
    story.Verb("logCloses", [this](const auto&) { window->LogIsClosing(); });
  }
  /// Shape, size and colour of the points, and what they are tinted by.
  std::string Looks() const {
    if (!window || !window->chScatterGraph.Data().Cloud()) return "none";
    const PointCloud& cloud = Points();
    return std::to_string(static_cast<int>(cloud.shape)) + " " + std::to_string(cloud.size) + " " +
           std::to_string(cloud.colour) + (cloud.density ? " density" : "") +
           (cloud.tint.empty()
                ? ""
                : " by " + cloud.tintAxis.title + " from " + NumberText(cloud.tint.front()) +
                      " to " + NumberText(cloud.tint.back()));
  }
  /// Samples from 1 at 1000 RPM and their number; 40 kPa, and 120 kPa in each tenth.
  void Open(int samples) {
    log.Clear(catalogue.gcolFixedDataItems, samples);
    for (int n = 1; n <= samples; ++n) {
      const std::int32_t row = log.glngDataLog.AddRow();
      log.glngDataLog.Set(kSample, row, n);
      log.glngDataLog.Set(kRPM, row, 1000 + n);
      log.glngDataLog.Set(kMAP, row, n % 10 == 0 ? 1200 : 400);
    }
    log.glngLastSample = samples - 1;
    log.glngFirstSampleTime = 1;
    log.glngLastSampleTime = samples;
    log.gblnSamplesLoaded = true;
    log.gintCurrentFileType = kFMLinkLog;
    log.gstrCurrentFile = "/logs/run.txt";
    log.gstrCurrentFileTitle = "run.txt";
    const frmScatterGraph::Surroundings around{kinds,   catalogue, log,    settings,
                                               presets, files,     errors, messages};
    frmScatterGraph::MainWindow& self = *this;
    for (auto* one : {&other, &window}) {
      *one = std::make_unique<frmScatterGraph>(host, around, self);
      (*one)->Show();
    }
  }
  const PointCloud& Points() const { return *window->chScatterGraph.Data().Cloud(); }

  void ShowPoint(std::int32_t sample) override { shown += std::to_string(sample) + " "; }
  std::optional<clsScatterFilter> RangeFilter() const override { return rangeFilter; }
  std::vector<int> ListedItems() const override { return {1, 3, 5}; }
  void ScatterPresetsChanged(bool added) override {
    told += added ? "added " : "changed ";
    other->PopulatePresets();
  }
  void ScatterGraphClosed(int ID) override { told += "closed " + std::to_string(ID); }

  Settings settings;
  clsScatterGraphPresets presets;
  OpenLog log;
  std::optional<clsScatterFilter> rangeFilter;
  std::string shown, told;
  std::unique_ptr<frmScatterGraph> other, window;
};

TEST_F(ScatterGraphTest, OpensWithAFirstChoiceOfAxesAndTheRangeOnShow) {
  rangeFilter = {30, 10, 1};
  settings.gblnAutoScatterFilter = false;
  settings.gstrAlternativeBackgroundPicture = "/p.png";
  files.files["/p.png"] = "";
  catalogue.gcolFixedDataItems.Item(20).blnDisplay = false;
  Open(50);
  ExpectWhole(*window, TARNVIEW_TESTS);
  settings.gstrAlternativeBackgroundPicture = "/q.png";
  window->OptionsChanged();
  EXPECT_EQ(window->fraPicture.BackgroundPicture(), "/q.png");
  EXPECT_EQ(window->lvwFilters.Count(), 0);
  EXPECT_EQ(window->lvwSampleDetails.RowOfTag("20"), 0);
  settings.gblnAutoScatterFilter = true;
  catalogue.gcolFixedDataItems.Item(20).blnDisplay = true;
  Open(50);
  log.blnTooLong = true;
  EXPECT_GT(window->lvwSampleDetails.RowOfTag("20"), 0);
  EXPECT_STORY(story, R"(
show caption lblEmptyPlace cboPointShape cboPointSize lvwFilters lvwPresets cmdShowPoint chScatterGraph -> caption=Tarnview Scatter Graph - run.txt, lblEmptyPlace=Choose two data items and press Draw, cboPointShape list=[3D Ball|Circle|Dash|Diamond|Down Tri|Plus|Square|Star|Up Tri|X], cboPointShape=3D Ball, cboPointSize list=[1|2|3|4|5|6|7|8|9|10], cboPointSize=4, lvwFilters columns=[Item|From|To], lvwFilters count=1, lvwFilters[1]=[Sample|10|30], lvwFilters[1] selected, lvwPresets columns=[Preset Graphs], lvwPresets count=1, lvwPresets[1]=[Boost], lvwPresets[1] unselected, cmdShowPoint off, cmdShowPoint=&Show Point..., chScatterGraph series count=0, chScatterGraph x_axis min=0, chScatterGraph x_axis max=1, chScatterGraph x_axis format=, chScatterGraph y_axis max=1, chScatterGraph y_axis divisions=10, chScatterGraph selected=[0|0]
click cmdDrawGraph -> points=0 4 12607488, caption=Tarnview Scatter Graph - run.txt Sample Load Range 1 - 50, cmdShowPoint on, chScatterGraph filters count=1, chScatterGraph filters[0]=Sample [Sample No.] from 10 to 30, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=21 from [1010|10|10] to [1030|30|30], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=21 points, prgProgInd value=20
)");
}

TEST_F(ScatterGraphTest, WhatIsKeptOfItsPlace) {
  settings.windows.scatterGraph = {6000, 12000, 900, 600, 0};
  Open(50);
  EXPECT_EQ(window->Left, 900);
  window->Unload();
  window->ID = 3;
  window->Cascade = 2;
  window->Show();
  EXPECT_EQ(std::pair(window->Left, window->Top), std::pair(1620, 1320));
  window->Dividers = "1,2";
  EXPECT_STORY(story, "click mnuFileClose -> -frmScatterGraph.2, main window=closed 0closed 3");
  EXPECT_EQ(settings.windows.scatterGraph->lngLeft, 900);
  EXPECT_EQ(settings.beyond.scatterDividers, "1,2");
}

TEST_F(ScatterGraphTest, DrawsTheSamplesThatPass) {
  Open(40);
  EXPECT_STORY(story, R"(
axes 3 5; filter 5 100 -; filter 1 15 35 -> cboYAxis=Manifold Air Pressure, lvwFilters count=2, lvwFilters[1]=[MAP|100|-], lvwFilters[1] unselected, lvwFilters[2]=[Sample|15|35], lvwFilters[2] selected
click cmdDrawGraph -> points=0 4 12607488, cmdShowPoint on, chScatterGraph filters count=2, chScatterGraph filters[0]=MAP [Manifold Air Pressure] from 100, chScatterGraph filters[1]=Sample [Sample No.] from 15 to 35, chScatterGraph x_item=3, chScatterGraph y_item=5, chScatterGraph points count=2, chScatterGraph points[0]=[1020|120|20], chScatterGraph points[1]=[1030|120|30], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=2 points, prgProgInd value=20
show mnuFilePrint mnuFilePrintPreview mnuFileSavePicture mnuFileExport mnuEditCopy mnuRightClickCopy mnuRightClickPrint -> mnuFilePrint=&Print..., mnuFilePrintPreview=Print Pre&view..., mnuFileSavePicture=Save Pict&ure As..., mnuFileExport=&Export..., mnuEditCopy=&Copy Graph, mnuRightClickCopy=&Copy Graph, mnuRightClickPrint=&Print...
# An item that is not offered.
axes 1 47
answer cancel; click mnuFilePrint -> [printer "" cancel]
answer printer; click mnuRightClickPrint; click mnuEditCopy -> [printer "" ok], pages=1, copied=1
)");
  std::string page;
  for (const auto& text : host.pages[0].texts) page += text.text + "|";
  EXPECT_EQ(page,
            "Tarnview Scatter Graph|File : |/logs/run.txt|Filters : |MAP [Manifold Air Pressure] "
            "from 100|Sample [Sample No.] from 15 to 35|");
}

TEST_F(ScatterGraphTest, AFaultLeavesNoGraph) {
  Open(6000);
  EXPECT_STORY(story, R"(
drawQuietly -> lblEmptyPlace=Too many samples for a graph without a filter: add a filter, or choose Draw All, staScatterGraph[0]=Too many samples for a graph without a filter: add a filter, or choose Draw All
click cmdDrawGraph; show mnuFileExport mnuFilePrint -> mnuFileExport off, mnuFileExport=&Export..., mnuFilePrint off, mnuFilePrint=&Print..., [3 ok]
# Draw All, and that once.
takesOffers yes; click cmdDrawGraph; show mnuFileExport mnuFilePrint -> mnuFileExport=&Export..., mnuFilePrint=&Print..., [3 ok], points=0 4 12607488, cmdShowPoint on, chScatterGraph filters count=0, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=6000 from [1001|1|1] to [7000|6000|6000], fraPicture hidden, lblEmptyPlace=Choose two data items and press Draw, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=6000 points, prgProgInd value=5999
takesOffers no; click cmdDrawGraph -> [3 ok], points=none, cmdShowPoint off, chScatterGraph series count=0, chScatterGraph x_axis min=0, chScatterGraph x_axis max=1, chScatterGraph x_axis format=, chScatterGraph y_axis max=1, chScatterGraph y_axis divisions=10, fraPicture shown, lblEmptyPlace=Too many samples for a graph without a filter: add a filter, or choose Draw All, fraSampleDetails off, staScatterGraph[0]=Too many samples for a graph without a filter: add a filter, or choose Draw All, staScatterGraph[2]=
# A filter lifts the limit.
filter 3 0 -; click cmdDrawGraph -> points=0 4 12607488, cmdShowPoint on, lvwFilters count=1, lvwFilters[1]=[RPM|0|-], lvwFilters[1] selected, chScatterGraph filters count=1, chScatterGraph filters[0]=RPM [RPM] from 0, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=6000 from [1001|1|1] to [7000|6000|6000], fraPicture hidden, lblEmptyPlace=Choose two data items and press Draw, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=6000 points
# None passes.
filter 3 9000 -; drawQuietly -> points=none, cmdShowPoint off, lvwFilters count=2, lvwFilters[1] unselected, lvwFilters[2]=[RPM|9000|-], lvwFilters[2] selected, chScatterGraph series count=0, chScatterGraph x_axis min=0, chScatterGraph x_axis max=1, chScatterGraph x_axis format=, chScatterGraph y_axis max=1, chScatterGraph y_axis divisions=10, fraPicture shown, fraSampleDetails off, staScatterGraph[0] to [2]=, prgProgInd value=5970
click cmdDrawGraph; show mnuFileExport mnuFilePrint -> mnuFileExport off, mnuFileExport=&Export..., mnuFilePrint off, mnuFilePrint=&Print..., [46 ok]
)");
}

TEST_F(ScatterGraphTest, ExportsThePoints) {
  Open(40);
  EXPECT_STORY(story, R"(
axes 5 3; filter 5 100 -; filter 1 - 30; click cmdDrawGraph -> points=0 4 12607488, cboXAxis=Manifold Air Pressure, cboYAxis=RPM, cmdShowPoint on, lvwFilters count=2, lvwFilters[1]=[MAP|100|-], lvwFilters[1] unselected, lvwFilters[2]=[Sample|-|30], lvwFilters[2] selected, chScatterGraph filters count=2, chScatterGraph filters[0]=MAP [Manifold Air Pressure] from 100, chScatterGraph filters[1]=Sample [Sample No.] to 30, chScatterGraph x_item=5, chScatterGraph y_item=3, chScatterGraph points count=3, chScatterGraph points[0]=[120|1010|10], chScatterGraph points[1]=[120|1020|20], chScatterGraph points[2]=[120|1030|30], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=3 points, prgProgInd value=29
# Not drawn with.
filter 3 1 - -> lvwFilters count=3, lvwFilters[2] unselected, lvwFilters[3]=[RPM|1|-], lvwFilters[3] selected
answer file /a.csv; click mnuFileExport; read /a.csv -> [save "Export" of CSV files (*.csv) /a.csv], main window=TARNVIEW SCATTER GRAPH EXPORT FILE\nOriginal Data Log Path and File Name: /logs/run.txt\nOriginal Data Log File Type: FM Link Data Logs\n\nFilters:\nMAP [Manifold Air Pressure] from 100\nSample [Sample No.] to 30\n\nSample,MAP,RPM\n10,120.0,1010\n20,120.0,1020\n30,120.0,1030\n, staScatterGraph[0]=Export complete, prgProgInd value=2
failWrites yes; answer file /a.csv; click mnuFileExport -> [save "Export" of CSV files (*.csv) /a.csv], [64 ok], staScatterGraph[0]=
failWrites no; axes 1 3; click cmdDrawGraph; answer file /b.csv; click mnuFileExport; read /b.csv -> [save "Export" of CSV files (*.csv) /b.csv], main window=TARNVIEW SCATTER GRAPH EXPORT FILE\nOriginal Data Log Path and File Name: /logs/run.txt\nOriginal Data Log File Type: FM Link Data Logs\n\nFilters:\nMAP [Manifold Air Pressure] from 100\nSample [Sample No.] to 30\nRPM [RPM] from 1\n\nSample,Sample,RPM,MAP\n10,10,1010,120.0\n20,20,1020,120.0\n30,30,1030,120.0\n, cboXAxis=Sample No., chScatterGraph filters count=3, chScatterGraph filters[2]=RPM [RPM] from 1, chScatterGraph x_item=1, chScatterGraph points[0]=[10|1010|10], chScatterGraph points[1]=[20|1020|20], chScatterGraph points[2]=[30|1030|30], staScatterGraph[0]=Export complete
)");
}

TEST_F(ScatterGraphTest, APointLeadsBackToTheSampleGraphAsLongAsItsLogIsOpen) {
  Open(500);
  story.Fact("rpm", [this] {
    return window->lvwSampleDetails.At(window->lvwSampleDetails.RowOfTag("3")).texts[1];
  });
  EXPECT_STORY(story, R"(
axes 3 5; click cmdDrawGraph -> points=0 4 12607488, cboYAxis=Manifold Air Pressure, cmdShowPoint on, chScatterGraph filters count=0, chScatterGraph x_item=3, chScatterGraph y_item=5, chScatterGraph points=500 from [1001|40|1] to [1500|120|500], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=500 points, prgProgInd value=499
# No point, nothing to show.
click cmdShowPoint
point chScatterGraph 1 100 -> rpm=1100, chScatterGraph selected=[1|100]
click cmdShowPoint -> main window=100 
logCloses; show mnuFileExport mnuFilePrint -> mnuFileExport off, mnuFileExport=&Export..., mnuFilePrint=&Print..., rpm=
# Of the log that was open before.
click cmdShowPoint
point chScatterGraph 1 100
click cmdShowPoint
click mnuViewSampleDetails; show mnuViewSampleDetails -> mnuViewSampleDetails=&Sample Details, fraSampleDetails hidden
)");
}

TEST_F(ScatterGraphTest, ColoursAndDensityChangeTheGraphOnShow) {
  Open(40);
  EXPECT_STORY(story, R"(
click cmdDrawGraph; point chScatterGraph 1 7 -> points=0 4 12607488, cmdShowPoint on, chScatterGraph filters count=0, chScatterGraph x_item=3, chScatterGraph y_item=1, chScatterGraph points=40 from [1001|1|1] to [1040|40|40], chScatterGraph selected=[1|7], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=40 points, prgProgInd value=39
# A new filter waits for Draw.
filter 5 100 -; choose cboColourBy "Manifold Air Pressure"; show mnuViewDensity -> mnuViewDensity off, mnuViewDensity=&Density, points=0 4 12607488 by Manifold Air Pressure from 40 to 120, cboColourBy=Manifold Air Pressure, lvwFilters count=1, lvwFilters[1]=[MAP|100|-], lvwFilters[1] selected
choose cboColourBy None; show mnuViewDensity -> mnuViewDensity=&Density, points=0 4 12607488, cboColourBy=None
click mnuViewDensity -> points=0 4 12607488 density
choose cboColourBy "Manifold Air Pressure" -> points=0 4 12607488 by Manifold Air Pressure from 40 to 120, cboColourBy=Manifold Air Pressure
)");
  settings.gintGraphColourScheme = 2;
  window->OptionsChanged();
  EXPECT_EQ(window->chScatterGraph.Data().colours.backdrop, 0);
}

TEST_F(ScatterGraphTest, PresetsAreAppliedUpdatedAndAdded) {
  Open(40);
  // Of the first: axes, style, filters, drawn on opening.
  story.Fact("boost", [this] {
    const clsScatterGraphPreset& boost = presets.Item(1);
    return std::to_string(boost.lngXAxisDataItem) + " " + std::to_string(boost.lngYAxisDataItem) +
           " " + std::to_string(boost.lngPointSize) + " " +
           std::to_string(boost.objFilters.Count()) + (boost.FileOpenDraw ? " drawn" : "");
  });
  story.Verb("style", [this](const auto& words) {
    presets.Item(1).lngPointShape = presets.Item(1).lngPointSize = std::stoi(words[0]);
  });
  EXPECT_STORY(story, R"(
# None is selected.
click mnuEditUpdatePreset
row lvwPresets Boost -> cboYAxis=Manifold Air Pressure, cboPointShape=Up Tri, cboPointSize=6, picColour colour=255, lvwFilters count=1, lvwFilters[1]=[MAP|100|-], lvwFilters[1] selected, lvwPresets[1] selected
double lvwPresets Boost -> points=8 6 255, cmdShowPoint on, chScatterGraph filters count=1, chScatterGraph filters[0]=MAP [Manifold Air Pressure] from 100, chScatterGraph x_item=3, chScatterGraph y_item=5, chScatterGraph points count=4, chScatterGraph points[0]=[1010|120|10], chScatterGraph points[1]=[1020|120|20], chScatterGraph points[2]=[1030|120|30], chScatterGraph points[3]=[1040|120|40], fraPicture hidden, fraSampleDetails on, staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=4 points, prgProgInd value=39
type cboPointSize 9; choose cboYAxis "Knock Sensor"; filter 3 - 2000 -> cboYAxis=Knock Sensor, cboPointSize=9, lvwFilters count=2, lvwFilters[1] unselected, lvwFilters[2]=[RPM|-|2000], lvwFilters[2] selected
click mnuEditUpdatePreset -> main window=changed , boost=3 20 9 2 drawn
click mnuEditNewPreset -> +frmNewPresetName
type txtName Mine; click cmdOK -> -frmNewPresetName, main window=changed added , frmScatterGraph/lvwPresets count=2, frmScatterGraph/lvwPresets[2]=[Mine], frmScatterGraph/lvwPresets[2] unselected, lvwPresets count=2, lvwPresets[1] unselected, lvwPresets[2]=[Mine], lvwPresets[2] selected
style 99; row lvwPresets Boost -> boost=3 20 99 2 drawn, cboPointShape=X, cboPointSize=10, lvwFilters[1] selected, lvwFilters[2] unselected, lvwPresets[1] selected, lvwPresets[2] unselected
style -1; row lvwPresets Boost -> boost=3 20 -1 2 drawn, cboPointShape=3D Ball, cboPointSize=1
)");
  EXPECT_EQ(presets.Item(3).lngLogFamily, 1);
  EXPECT_EQ(other->objFilters().Count(), 0) << "each window has filters of its own";
}

}  // namespace
}  // namespace tarnview
