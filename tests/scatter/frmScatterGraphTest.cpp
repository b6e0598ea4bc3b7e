#include <gtest/gtest.h>

#include "scatter/frmScatterGraph.h"
#include "support/PresetWindows.h"
#include "support/WindowActions.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;
using Numbers = std::vector<double>;

/// Two scatter windows over a log, and a main window that only notes what it is asked for.
class ScatterGraphTest : public PresetWindowsTest, protected frmScatterGraph::MainWindow {
 protected:
  ScatterGraphTest() {
    clsScatterGraphPreset boost{{}, 255, 8, 6, 5, 3, "Boost", true, {}};
    boost.objFilters.AddDirect({kBoundNotSet, 100, 5});
    boost.lngLogFamily = 1;
    presets.AddDirect(boost);
    presets.AddDirect(boost).lngLogFamily = 6;
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
  void Do(const std::string& actions) { Act(*window, actions); }
  const PointCloud& Points() const { return *window->chScatterGraph.Data().Cloud(); }
  std::string Panel() const { return window->staScatterGraph.Panel(1); }

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

constexpr const char* kOfAGraph =
    "cmdShowPoint mnuFilePrint mnuFilePrintPreview mnuFileSavePicture mnuFileExport mnuEditCopy "
    "mnuRightClickCopy mnuRightClickPrint chScatterGraph fraSampleDetails";

TEST_F(ScatterGraphTest, OpensWithAFirstChoiceOfAxesAndTheRangeOnShow) {
  rangeFilter = {30, 10, 1};
  for (const bool wanted : {true, false}) {
    settings.gblnAutoScatterFilter = wanted;
    catalogue.gcolFixedDataItems.Item(20).blnDisplay = wanted;
    Open(50);
    EXPECT_EQ(window->lvwFilters.Count(), wanted ? 1 : 0);
    EXPECT_EQ(window->lvwSampleDetails.RowOfTag("20") > 0, wanted);
  }
  EXPECT_EQ(window->Caption() + "|" + Texts(*window, "cboXAxis cboYAxis cboColourBy lblEmptyPlace"),
            "Tarnview Scatter Graph - run.txt|RPM|Sample No.|None|Choose two data items and "
            "press Draw");
  EXPECT_EQ(Texts(*window, "cboPointShape cboPointSize"), "3D Ball|4");
  EXPECT_EQ(window->lvwPresets.Count(), 1);
  EXPECT_EQ(Enabled(*window, kOfAGraph), "");
  log.blnTooLong = true;
  Do("click cmdDrawGraph");
  EXPECT_EQ(window->Caption(), "Tarnview Scatter Graph - run.txt Sample Load Range 1 - 50");
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
  Do("click mnuFileClose");
  EXPECT_EQ(settings.windows.scatterGraph->lngLeft, 900);
  EXPECT_EQ(settings.beyond.scatterDividers + told, "1,2closed 0closed 3");
}

TEST_F(ScatterGraphTest, DrawsTheSamplesThatPass) {
  Open(40);
  EXPECT_TRUE(window->ChooseAxes(3, 5));
  window->AddFilter({kBoundNotSet, 100, 5});
  window->AddFilter({35, 15, 1});
  Do("click cmdDrawGraph");
  EXPECT_EQ(Points().sample, (Numbers{20, 30}));
  EXPECT_EQ(Points().x, (Numbers{1020, 1030}));
  EXPECT_EQ(Points().y, (Numbers{120, 120}));
  const ChartDescription& chart = window->chScatterGraph.Data();
  EXPECT_EQ(chart.x.title + chart.y.title + window->Subtitle(),
            "RPMManifold Air PressureMAP against RPM");
  EXPECT_EQ(Panel() + window->staScatterGraph.Panel(3), "Graph draw complete2 points");
  EXPECT_EQ(window->chScatterGraph.Visible(), !window->fraPicture.Visible());
  EXPECT_FALSE(window->prgProgInd.Visible());
  EXPECT_EQ(Enabled(*window, kOfAGraph), std::string(kOfAGraph) + " ");
  EXPECT_FALSE(window->ChooseAxes(1, 47)) << "not offered";
  EXPECT_EQ(window->cboXAxis.Text(), "RPM");

  host.answers = {{Answer::Kind::Cancel}, {Answer::Kind::Printer}};
  Do("click mnuFilePrint\nclick mnuRightClickPrint\nclick mnuEditCopy");
  ASSERT_EQ(host.pages.size(), 1u) << "the first printer dialog was cancelled";
  std::string page;
  for (const auto& text : host.pages[0].texts) page += text.text + "|";
  EXPECT_EQ(page,
            "Tarnview Scatter Graph|File : |/logs/run.txt|Filters : |MAP [Manifold Air Pressure] "
            "from 100|Sample [Sample No.] from 15 to 35|");
  EXPECT_EQ(host.copied.size(), 1u);
}

TEST_F(ScatterGraphTest, AFaultLeavesNoGraph) {
  Open(6000);
  const clsScatterFilter none{}, all{kBoundNotSet, 0, 3}, tooHigh{kBoundNotSet, 9000, 3};
  const char* const kTooMany =
      "Too many samples for a graph without a filter: add a filter, or choose Draw All";
  const struct {
    const char* what;
    bool quiet, takesOffers;
    clsScatterFilter filter;
    Ids boxes;
    std::size_t points;
    const char* said;
  } kRows[] = {
      {"too many, quietly", true, false, none, {}, 0, kTooMany},
      {"too many", false, false, none, {3}, 0, kTooMany},
      {"Draw All", false, true, none, {3}, 6000, "Graph draw complete"},
      {"and that once", false, false, none, {3}, 0, kTooMany},
      {"a filter lifts the limit", false, false, all, {}, 6000, "Graph draw complete"},
      {"none passes, quietly", true, false, tooHigh, {}, 0, ""},
      {"none passes", false, false, none, {46}, 0, ""},
  };
  for (const auto& row : kRows) {
    if (row.filter.lngDataItemSeq) window->AddFilter(row.filter);
    host.takesOffers = row.takesOffers;
    if (row.quiet)
      window->DrawScatter(true);
    else
      Do("click cmdDrawGraph");
    EXPECT_EQ(Boxes(), row.boxes) << row.what;
    EXPECT_EQ(window->chScatterGraph.Data().Cloud() ? Points().x.size() : 0, row.points);
    EXPECT_EQ(window->chScatterGraph.Visible(), row.points > 0) << row.what;
    EXPECT_EQ(window->fraPicture.Visible(), row.points == 0) << row.what;
    EXPECT_EQ(Enabled(*window, kOfAGraph).empty(), row.points == 0) << row.what;
    EXPECT_EQ(Panel(), row.said) << row.what;
    EXPECT_EQ(window->lblEmptyPlace.Caption() == kTooMany, row.said == kTooMany) << row.what;
    EXPECT_EQ(window->Pointer(), MousePointer::Default);
  }
}

TEST_F(ScatterGraphTest, ExportsThePoints) {
  Open(40);
  window->ChooseAxes(5, 3);
  window->AddFilter({kBoundNotSet, 100, 5});
  window->AddFilter({30, kBoundNotSet, 1});
  Do("click cmdDrawGraph");
  window->AddFilter({kBoundNotSet, 1, 3});  // not drawn with
  const auto exportTo = [&](const char* path, bool fails) {
    files.failWrites = fails;
    host.nextFile = Answer{Answer::Kind::File, path};
    Do("click mnuFileExport");
    std::string text = files.files[path];
    std::erase(text, '\r');
    return text;
  };
  EXPECT_EQ(exportTo("/a.csv", false), R"(TARNVIEW SCATTER GRAPH EXPORT FILE
Original Data Log Path and File Name: /logs/run.txt
Original Data Log File Type: FM Link Data Logs

Filters:
MAP [Manifold Air Pressure] from 100
Sample [Sample No.] to 30

Sample,MAP,RPM
10,120.0,1010
20,120.0,1020
30,120.0,1030
)");
  EXPECT_EQ(Panel() + " " + std::to_string(window->prgProgInd.Max()), "Export complete 3");
  EXPECT_TRUE(window->Exported());
  exportTo("/a.csv", true);
  EXPECT_EQ(Boxes(), Ids{64});
  EXPECT_FALSE(window->Exported());
  window->ChooseAxes(1, 3);
  Do("click cmdDrawGraph");
  EXPECT_NE(exportTo("/b.csv", false).find("\nSample,Sample,RPM,MAP\n10,10,1010,120.0\n"),
            std::string::npos);
}

TEST_F(ScatterGraphTest, APointLeadsBackToTheSampleGraphAsLongAsItsLogIsOpen) {
  Open(500);
  window->ChooseAxes(3, 5);
  Do("click cmdDrawGraph\nclick cmdShowPoint");
  const auto choose = [&] {
    window->chScatterGraph.Do({"point", {"1", "100"}});
    return window->lvwSampleDetails.At(window->lvwSampleDetails.RowOfTag("3")).texts[1];
  };
  EXPECT_EQ(choose() + shown, "1100") << "no point, nothing to show";
  Do("click cmdShowPoint");
  EXPECT_EQ(shown, "100 ");
  window->LogIsClosing();
  EXPECT_FALSE(window->mnuFileExport.Enabled());
  EXPECT_TRUE(window->mnuFilePrint.Enabled());
  Do("click cmdShowPoint");
  EXPECT_EQ(choose(), "") << "chosen in the graph of the log before";
  Do("click cmdShowPoint\nclick mnuViewSampleDetails");
  EXPECT_EQ(shown, "100 ");
  EXPECT_FALSE(window->fraSampleDetails.Visible() || window->mnuViewSampleDetails.Checked());
}

TEST_F(ScatterGraphTest, ColoursAndDensityChangeTheGraphOnShow) {
  Open(40);
  Do("click cmdDrawGraph");
  EXPECT_TRUE(Points().tint.empty());
  window->chScatterGraph.Do({"point", {"1", "7"}});
  window->AddFilter({kBoundNotSet, 100, 5});  // waits for Draw
  Do("choose cboColourBy Manifold Air Pressure");
  ASSERT_EQ(Points().tint.size(), 40u);
  EXPECT_EQ(Points().tint[9], 120);
  EXPECT_EQ(Points().tintAxis.title, "Manifold Air Pressure");
  EXPECT_EQ(window->chScatterGraph.SelectedPoint(), 7);
  EXPECT_FALSE(window->mnuViewDensity.Enabled()) << "the points have a colour already";
  Do("choose cboColourBy None");
  EXPECT_TRUE(Points().tint.empty());
  Do("click mnuViewDensity");
  EXPECT_TRUE(Points().density);
  Do("choose cboColourBy Manifold Air Pressure");
  EXPECT_FALSE(Points().density);
  settings.gintGraphColourScheme = 2;
  window->OptionsChanged();
  EXPECT_EQ(window->chScatterGraph.Data().colours.backdrop, 0);
}

TEST_F(ScatterGraphTest, PresetsAreAppliedUpdatedAndAdded) {
  Open(40);
  Do("click mnuEditUpdatePreset");  // none selected
  EXPECT_EQ(presets.Item(1).lngPointSize, 6);
  Do("row lvwPresets Boost");
  EXPECT_EQ(Texts(*window, "cboXAxis cboYAxis cboPointShape cboPointSize"),
            "RPM|Manifold Air Pressure|Up Tri|6");
  EXPECT_EQ(window->lvwFilters.Count(), 1);
  EXPECT_FALSE(window->chScatterGraph.Visible());
  Do("double lvwPresets Boost");
  EXPECT_EQ(Points().x.size(), 4u);
  EXPECT_EQ(Points().colour, 255);
  EXPECT_EQ(static_cast<int>(Points().shape) * 10 + Points().size, 86);

  Do("type cboPointSize 9\nchoose cboYAxis Knock Sensor");
  window->AddFilter({2000, kBoundNotSet, 3});
  Do("click mnuEditUpdatePreset");
  const clsScatterGraphPreset& boost = presets.Item(1);
  EXPECT_EQ(boost.lngYAxisDataItem * 10 + boost.lngPointSize, 209);
  EXPECT_EQ(boost.objFilters.Count(), 2);
  EXPECT_TRUE(boost.FileOpenDraw) << "not the window's to change";
  EXPECT_EQ(window->lvwPresets.SelectedRow(), 1);
  host.work = [](Form& form) { Act(form, "type txtName Mine\nclick cmdOK"); };
  Do("click mnuEditNewPreset");
  EXPECT_EQ(presets.Item(3).strName, "Mine");
  EXPECT_EQ(presets.Item(3).lngLogFamily, 1);
  EXPECT_EQ(told, "changed added ");
  EXPECT_EQ(window->lvwPresets.SelectedRow(), 2);
  EXPECT_EQ(other->lvwPresets.Count(), 2);
  EXPECT_EQ(other->objFilters().Count(), 0) << "each window has filters of its own";
  for (const auto& [number, style] : {std::pair{99, "X|10"}, {-1, "3D Ball|1"}}) {
    presets.Item(1).lngPointShape = presets.Item(1).lngPointSize = number;
    Do("row lvwPresets Boost");
    EXPECT_EQ(Texts(*window, "cboPointShape cboPointSize"), style);
  }
}

}  // namespace
}  // namespace tarnview
