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
  EXPECT_STORY(story, R"(
show cboFrom cboTo -> cboFrom list=[], cboFrom=60, cboTo list=[], cboTo=
type cboFrom ""; type cboTo " "; click cmdOK -> [44 ok], cboFrom=
type cboFrom 60.5; type cboTo 60; click cmdOK -> [45 ok], cboFrom=60.5, cboTo=60
type cboFrom 5; type cboTo 5; click cmdOK -> -frmScatterFilter, filter=5 5 5
again; type cboFrom ""; type cboTo 1e2x; click cmdOK -> filter=5 - 1
again; type cboFrom x; type cboTo -0; click cmdOK -> filter=5 0 0
again; type cboFrom .50; type cboTo ""; click cmdOK -> filter=5 0.5 -
again; show cboFrom -> cboFrom list=[], cboFrom=0.5, +frmScatterFilter, filter=5 0.5 -?
)");
}

TEST_F(ScatterFilterTest, TakesAValueOfAList) {
  EXPECT_STORY(story, R"(
choose imgcboDataItem "Throttle Switch" -> imgcboDataItem=Throttle Switch, cboFrom list=[None|Idle|WOT], cboFrom=None, cboTo off
type cboFrom wide; show focus -> focus cboFrom, [42 ok], cboFrom=wide
click cmdOK -> [42 ok]
type cboFrom wot -> cboFrom=WOT
click cmdOK -> -frmScatterFilter, filter=15 2 -
)");
  Open({.dblFrom = 1, .lngDataItemSeq = 15});
  EXPECT_STORY(story, R"(
show cboFrom -> cboFrom list=[None|Idle|WOT], cboFrom=Idle
choose imgcboDataItem RPM -> imgcboDataItem=RPM, cboFrom list=[], cboFrom=, cboTo on
)");
}

TEST_F(ScatterFilterTest, KeepsTheOneOfTwoValuesThatReadAlike) {
  catalogue.gcolFixedDataItems.Item(15).varDescList = {"On", "Off", "On"};
  Open({.dblFrom = 2, .lngDataItemSeq = 15});
  window->cmdOK.Press();
  EXPECT_EQ(window->GetScatterFilter().dblFrom, 2);
}

TEST_F(ScatterFilterTest, LeavesWithoutAQuestion) {
  EXPECT_STORY(story, R"(
choose imgcboDataItem "Throttle Switch" -> imgcboDataItem=Throttle Switch, cboFrom list=[None|Idle|WOT], cboFrom=None, cboTo off
write cboFrom wide; key Escape -> -frmScatterFilter
again; write cboFrom wide; click cmdCancel
)");
}

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
