#include <gtest/gtest.h>

#include "scatter/frmScatterFilter.h"
#include "support/PresetWindows.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;

class ScatterFilterTest : public PresetWindowsTest {
 protected:
  ScatterFilterTest() { Open({.dblFrom = 60, .lngDataItemSeq = 5}); }
  void Open(const clsScatterFilter& filter, bool blnQuiet = false) {
    window.emplace(host, catalogue, messages);
    window->SetScatterFilter(filter, 1, blnQuiet);
    window->Show();
  }
  /// Enters bounds and presses OK; the boxes that came.
  Ids Enter(const std::string& from, const std::string& to) {
    if (!window->IsShown()) window->Show();
    window->cboFrom.Do({"type", {from}});
    if (window->cboTo.Enabled) window->cboTo.Do({"type", {to}});
    window->cmdOK.Do({"click", {}});
    return Boxes();
  }

  std::optional<frmScatterFilter> window;
};

TEST_F(ScatterFilterTest, TakesBoundsOfANumber) {
  EXPECT_EQ(window->imgcboDataItem.Text(), "Manifold Air Pressure");
  EXPECT_EQ(window->cboFrom.Text(), "60");
  EXPECT_EQ(window->cboTo.Text(), "");
  EXPECT_EQ(Enter("", " "), (Ids{44}));
  EXPECT_EQ(Enter("60.5", "60"), (Ids{45}));
  EXPECT_TRUE(window->IsShown());
  EXPECT_FALSE(window->Accepted());
  const struct {
    const char *from, *to;
    double dblFrom, dblTo;
  } kRows[] = {{"5", "5", 5, 5},
               {"", "1e2x", kBoundNotSet, 1},
               {"x", "-0", 0, 0},
               {".50", "", 0.5, kBoundNotSet}};
  for (const auto& row : kRows) {
    EXPECT_EQ(Enter(row.from, row.to), (Ids{})) << row.from;
    EXPECT_TRUE(window->Accepted());
    EXPECT_EQ(window->GetScatterFilter().dblFrom, row.dblFrom) << row.from;
    EXPECT_EQ(window->GetScatterFilter().dblTo, row.dblTo) << row.to;
    EXPECT_EQ(window->GetScatterFilter().lngDataItemSeq, 5);
  }
  EXPECT_EQ(window->cboFrom.Text(), "0.5");
}

TEST_F(ScatterFilterTest, TakesAValueOfAList) {
  window->imgcboDataItem.Do({"choose", {"Throttle Switch"}});
  EXPECT_EQ(window->cboFrom.Entries(), (std::vector<std::string>{"None", "Idle", "WOT"}));
  EXPECT_FALSE(window->cboTo.Enabled());
  window->cboFrom.Do({"type", {"wide"}});
  EXPECT_EQ(Boxes(), (Ids{42}));
  EXPECT_EQ(window->cboFrom.Text(), "wide");
  EXPECT_EQ(window->ActiveControl(), &window->cboFrom);
  window->cmdOK.Do({"click", {}});
  EXPECT_EQ(Boxes(), (Ids{42}));
  EXPECT_TRUE(window->IsShown());
  window->cboFrom.Do({"type", {"wot"}});
  EXPECT_EQ(window->cboFrom.Text(), "WOT");
  window->cmdOK.Do({"click", {}});
  EXPECT_EQ(window->GetScatterFilter().dblFrom, 2);
  EXPECT_EQ(window->GetScatterFilter().dblTo, kBoundNotSet);
  EXPECT_EQ(window->GetScatterFilter().lngDataItemSeq, 15);

  Open({.dblFrom = 1, .lngDataItemSeq = 15});
  EXPECT_EQ(window->cboFrom.Text(), "Idle");
  window->imgcboDataItem.Do({"choose", {"RPM"}});
  EXPECT_EQ(window->cboFrom.Text(), "");
  EXPECT_TRUE(window->cboTo.Enabled());
}

TEST_F(ScatterFilterTest, KeepsTheOneOfTwoValuesThatReadAlike) {
  catalogue.gcolFixedDataItems.Item(15).varDescList = {"On", "Off", "On"};
  Open({.dblFrom = 2, .lngDataItemSeq = 15});
  window->cmdOK.Do({"click", {}});
  EXPECT_EQ(window->GetScatterFilter().dblFrom, 2);
}

TEST_F(ScatterFilterTest, LeavesWithoutAQuestion) {
  window->imgcboDataItem.Do({"choose", {"Throttle Switch"}});
  for (const bool byKey : {true, false}) {
    window->cboFrom.SetFocus();
    window->cboFrom.Text = std::string("wide");
    byKey ? void(window->Press(KeyPress{"Escape"})) : window->cmdCancel.Do({"click", {}});
    EXPECT_EQ(Boxes(), (Ids{}));
    EXPECT_FALSE(window->IsShown());
    window->Show();
  }
}

TEST_F(ScatterFilterTest, TellsOfAnItemThatIsNotOffered) {
  Open({.dblFrom = 3, .lngDataItemSeq = 47});
  EXPECT_TRUE(host.messages.back().text.ends_with("\r\n\r\nData Item: 47"));
  EXPECT_EQ(Boxes(), (Ids{43}));
  EXPECT_EQ(window->imgcboDataItem.Text(), "Sample No.");
  EXPECT_EQ(window->cboFrom.Text(), "");
  Open({}, true);
  EXPECT_EQ(Boxes(), (Ids{}));
}

}  // namespace
}  // namespace tarnview
