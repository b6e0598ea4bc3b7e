#include "scatter/frmScatterFilter.h"
#include "support/PresetWindows.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class ScatterFilterTest : public PresetWindowsTest {
 protected:
  ScatterFilterTest() {
    story.Fact("filter", [this] { return Filter(); });
    story.Verb("again", [this](const auto&) { window->Show(); });
    Open({.dblFrom = 60, .lngDataItemSeq = 5});
  }
  void Open(const clsScatterFilter& filter, bool blnQuiet = false) {
    window.emplace(host, catalogue, messages);
    window->SetScatterFilter(filter, 1, blnQuiet);
    window->Show();
  }
  std::string Filter() const {
    const clsScatterFilter filter = window->GetScatterFilter();
    const auto bound = [](double value) { return value == kBoundNotSet ? "-" : NumberText(value); };
    return std::to_string(filter.lngDataItemSeq) + " " + bound(filter.dblFrom) + " " +
           bound(filter.dblTo) + (window->Accepted() ? "" : "?");
  }

  std::optional<frmScatterFilter> window;
};

TEST_F(ScatterFilterTest, TakesBoundsOfANumber) {
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
}

TEST_F(ScatterFilterTest, TakesAValueOfAList) {
  EXPECT_STORY(story);
  Open({.dblFrom = 1, .lngDataItemSeq = 15});
  EXPECT_STORY(story);
}

TEST_F(ScatterFilterTest, KeepsTheOneOfTwoValuesThatReadAlike) {
  catalogue.gcolFixedDataItems.Item(15).varDescList = {"On", "Off", "On"};
  Open({.dblFrom = 2, .lngDataItemSeq = 15});
  window->cmdOK.Press();
  EXPECT_EQ(window->GetScatterFilter().dblFrom, 2);
}

TEST_F(ScatterFilterTest, LeavesWithoutAQuestion) { EXPECT_STORY(story); }

TEST_F(ScatterFilterTest, TellsOfAnItemThatIsNotOffered) {
  Open({.dblFrom = 3, .lngDataItemSeq = 47});
  EXPECT_TRUE(host.messages.back().text.ends_with("\r\n\r\nData Item: 47"));
  EXPECT_EQ(Boxes(), (std::vector<int>{43}));
  EXPECT_EQ(window->imgcboDataItem.Text() + window->cboFrom.Text(), "Sample No.");
  Open({}, true);
  EXPECT_TRUE(host.messages.empty());
}

}  // namespace
}  // namespace tarnview
