#include "scatter/frmScatterGraph.h"
#include "support/AddSample.h"
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
      if (!window->ChooseAxes(std::stoi(words[0]), std::stoi(words[1]))) told += "refused ";
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
    for (int n = 1; n <= samples; ++n)
      AddSample(log, {{kSample, n}, {kRPM, 1000 + n}, {kMAP, n % 10 == 0 ? 1200 : 400}});
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
  EXPECT_STORY(story);
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
  EXPECT_STORY(story);
  EXPECT_EQ(settings.windows.scatterGraph->lngLeft, 900);
  EXPECT_EQ(settings.beyond.scatterDividers, "1,2");
}

TEST_F(ScatterGraphTest, DrawsTheSamplesThatPass) {
  Open(40);
  EXPECT_STORY(story);
  std::string page;
  for (const auto& text : host.pages[0].texts) page += text.text + "|";
  EXPECT_EQ(page,
            "Tarnview Scatter Graph|File : |/logs/run.txt|Filters : |MAP [Manifold Air Pressure] "
            "from 100|Sample [Sample No.] from 15 to 35|");
}

TEST_F(ScatterGraphTest, AFaultLeavesNoGraph) {
  Open(6000);
  EXPECT_STORY(story);
}

TEST_F(ScatterGraphTest, ExportsThePoints) {
  Open(40);
  EXPECT_STORY(story);
}

TEST_F(ScatterGraphTest, APointLeadsBackToTheSampleGraphAsLongAsItsLogIsOpen) {
  Open(500);
  story.Fact("rpm", [this] {
    return window->lvwSampleDetails.At(window->lvwSampleDetails.RowOfTag("3")).texts[1];
  });
  EXPECT_STORY(story);
}

TEST_F(ScatterGraphTest, ColoursAndDensityChangeTheGraphOnShow) {
  Open(40);
  EXPECT_STORY(story);
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
  EXPECT_STORY(story);
  EXPECT_EQ(presets.Item(3).lngLogFamily, 1);
  EXPECT_EQ(other->objFilters().Count(), 0) << "each window has filters of its own";
}

}  // namespace
}  // namespace tarnview
