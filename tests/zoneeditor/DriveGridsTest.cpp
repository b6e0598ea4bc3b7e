#include "support/AddSample.h"
#include "zoneeditor/EditorWorld.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

/// An editor on a drive of which the plot range is the first 60 samples: 20 at 1000 RPM, 40 at
/// 2000, and then 30 at 3000.
class DriveGridsTest : public EditorWorld, protected DriveGrids::Drive {
 protected:
  DriveGridsTest() {
    log.Clear(catalogue.gcolFixedDataItems, 100);
    log.zones.gblnZoneLayout6 = false;
    Add(20, 1000, 14560, 7);
    Add(40, 2000, 13300, 9);
    Add(30, 3000, 15400, 0);
    ZoneEditorParameters parameters;
    parameters.map = MapWith(Chip("1.8 2005-02-10 3"), 2, 100);
    parameters.comparison = ComparisonZones{};
    Open(parameters, this);
    story.PassOver("back_colour");  // heat: see below
    story.Fact("sample", [this] { return std::to_string(current); });
    story.Verb("faster", [this](const auto&) {
      for (int row = 20; row < 60; ++row)
        log.glngDataLog.Set(kRPM, row, row < 40 || row == 59 ? 9000 : 2000);
    });
  }
  ~DriveGridsTest() override { window.reset(); }  // it looks at the drive to its end
  void Add(int count, int RPM, int airFuel, int knock) {
    for (int i = 0; i < count; ++i)
      AddSample(log, {{kSample, log.glngDataLog.Rows()},
                      {kRPM, RPM},
                      {kMAP, 200},
                      {kAF, airFuel},
                      {kAFTgt, 14000},
                      {kKnock, knock}});
  }
  const OpenLog& Log() const override { return log; }
  DrivenRange PlotRange() const override { return {0, 59}; }
  int CurrentSample() const override { return current; }
  void SelectSample(int index) override { current = index; }

  OpenLog log;
  int current = -1;
};

TEST_F(DriveGridsTest, ShowsWhatIsAskedForOfTheRangeOrTheLog) { EXPECT_STORY(story); }

TEST_F(DriveGridsTest, ACellGoesThroughItsSamplesInTheGraph) { EXPECT_STORY(story); }

TEST_F(DriveGridsTest, AProposalIsAppliedAsOneStep) { EXPECT_STORY(story); }

}  // namespace
}  // namespace tarnview
