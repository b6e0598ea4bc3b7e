#include "model/Catalogue.h"
#include "samplegraph/ClosestSample.h"
#include "samplegraph/frmGoto.h"
#include "support/AddSample.h"
#include "support/Story.h"
#include "support/Table.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

/// Samples 5, 6, 7, 10, 11 at 1, 1.5, 2, 4 and 4.5 seconds.
class GotoTest : public ::testing::Test {
 protected:
  GotoTest() {
    log.Clear(catalogue.gcolFixedDataItems, 5);
    for (const auto& [sample, tenths] : {std::pair{5, 10}, {6, 15}, {7, 20}, {10, 40}, {11, 45}})
      AddSample(log, {{kSample, sample}, {kSecs, tenths * 1000}});  // ten-thousandths of a second
  }

  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
};

TEST_F(GotoTest, TheClosestSampleIsWalkedToFromAGuess) {
  const auto closest = [this](const TableRow& row) {
    return std::to_string(ClosestSampleNumberToTime(log, row.Int(0)));
  };
  ExpectTable(closest, R"(
0 -> 0 | 10000 -> 0 | 12000 -> 1 | 15000 -> 1 | 19999 -> 1 | 30000 -> 2 | 39999 -> 2 | 40000 -> 3 | 44000 -> 3 | 45000 -> 4 | 90000 -> 4
)");
  log.glngLastSample = 0;
  log.glngLastSampleTime = 5;
  EXPECT_EQ(ClosestSampleNumberToTime(log, 99), 0) << "one sample alone";
}

TEST_F(GotoTest, NumberAndTimeFollowEachOtherAndEnterTakesThem) {
  RecordingHost host;
  frmGoto window(host, log, 6, true);
  Story story(host);
  window.Show();
  ExpectWhole(window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
  EXPECT_TRUE(window.Accepted());
  EXPECT_EQ(window.lngSampleNumber(), 7);
  EXPECT_FALSE(window.blnShowPointWidth());
  frmGoto cancelled(host, log, 6, false);
  cancelled.Show();
  cancelled.Press({"Escape"});
  EXPECT_FALSE(cancelled.IsShown());
  EXPECT_FALSE(cancelled.Accepted());
}

}  // namespace
}  // namespace tarnview
