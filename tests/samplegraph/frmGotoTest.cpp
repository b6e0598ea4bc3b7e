#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "model/Column.h"
#include "samplegraph/ClosestSample.h"
#include "samplegraph/frmGoto.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

/// Samples 5, 6, 7, 10, 11 at 1, 1.5, 2, 4 and 4.5 seconds.
class GotoTest : public ::testing::Test {
 protected:
  GotoTest() {
    log.Clear(catalogue.gcolFixedDataItems, 5);
    for (const auto& [sample, tenths] : {std::pair{5, 10}, {6, 15}, {7, 20}, {10, 40}, {11, 45}}) {
      const int row = log.glngDataLog.AddRow();
      log.glngDataLog.Set(kSample, row, sample);
      log.glngDataLog.Set(kSecs, row, tenths * 1000);  // ten-thousandths of a second
    }
    log.glngLastSample = 4;
    log.glngFirstSampleTime = 5;
    log.glngLastSampleTime = 11;
  }

  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  RecordingHost host;
};

TEST_F(GotoTest, TheClosestSampleIsWalkedToFromAGuess) {
  const struct {
    std::int32_t time, index;
  } kRows[] = {{0, 0},     {10000, 0}, {12000, 1}, {15000, 1}, {19999, 1}, {30000, 2},
               {39999, 2}, {40000, 3}, {44000, 3}, {45000, 4}, {90000, 4}};
  for (const auto& row : kRows)
    EXPECT_EQ(ClosestSampleNumberToTime(log, row.time), row.index) << row.time;
  log.glngLastSample = 0;
  log.glngLastSampleTime = 5;
  EXPECT_EQ(ClosestSampleNumberToTime(log, 99), 0) << "one sample alone";
}

TEST_F(GotoTest, NumberAndTimeFollowEachOther) {
  frmGoto window(host, log, 6, true);
  window.Show();
  EXPECT_EQ(window.txtSampleTime.Text(), "1.5");
  const struct {
    TextBox& box;
    const char *typed, *number, *time;
  } kRows[] = {
      {window.txtSampleNumber, "7", "7", "2"},        {window.txtSampleNumber, "6.5x", "6", "1.5"},
      {window.txtSampleNumber, "-3", "5", "1"},       {window.txtSampleNumber, "8", "8", "2"},
      {window.txtSampleNumber, "99999", "11", "4.5"}, {window.txtSampleTime, "4", "10", "4"},
      {window.txtSampleTime, "-1", "5", "1"},         {window.txtSampleTime, "1e9", "11", "4.5"},
      {window.txtSampleTime, "x", "5", "1"}};
  for (const auto& row : kRows) {
    row.box.Do({"type", {row.typed}});
    window.cmdCancel.SetFocus();
    EXPECT_EQ(window.txtSampleNumber.Text() + " " + window.txtSampleTime.Text(),
              std::string(row.number) + " " + row.time)
        << row.typed;
  }
}

TEST_F(GotoTest, EnterTakesWhatIsTypedAndEscapeNothing) {
  frmGoto accepted(host, log, 6, false);
  accepted.Show();
  accepted.txtSampleTime.SetFocus();
  accepted.txtSampleTime.Text = std::string("2");
  accepted.chkShowPointWidth.Value = true;
  accepted.Press({"Enter"});
  EXPECT_FALSE(accepted.IsShown());
  EXPECT_TRUE(accepted.Accepted());
  EXPECT_EQ(accepted.lngSampleNumber(), 7);
  EXPECT_TRUE(accepted.blnShowPointWidth());

  frmGoto cancelled(host, log, 6, false);
  cancelled.Show();
  cancelled.Press({"Escape"});
  EXPECT_FALSE(cancelled.IsShown());
  EXPECT_FALSE(cancelled.Accepted());
}

}  // namespace
}  // namespace tarnview
