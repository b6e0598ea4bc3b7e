#include <gtest/gtest.h>

#include "desk/RecentMenu.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(RecentMenu, TheLatestStandsOnTopOnceAndTheOldestFallsOff) {
  std::vector<std::string> paths;
  for (const char* path : {"/a", "/b", "/c", "/B", "/d"}) AddRecentPath(paths, path, 3);
  EXPECT_EQ(paths, (std::vector<std::string>{"/d", "/B", "/c"}));
}

TEST(RecentMenu, ShowsWhatThereIs) {
  RecordingHost host;
  struct Window : Form {
    explicit Window(Host& itsHost) : Form(itsHost, "frmTest", "") {}
    MenuItem rule{*this, "mnuSep", "-"};
    ControlArray<MenuItem> entries{*this, "mnuRecent", UpTo(3), "", ""};
  } window(host);
  ShowRecentPaths(window.entries, window.rule, {"/r & d/a.pow"});
  EXPECT_TRUE(window.rule.Visible());
  EXPECT_EQ(window.entries(0).Caption(), "&1 /r && d/a.pow");
  EXPECT_EQ(window.entries(0).ToolTip(), "/r & d/a.pow");
  EXPECT_FALSE(window.entries(1).Visible());
  ShowRecentPaths(window.entries, window.rule, {});
  EXPECT_FALSE(window.rule.Visible());
  EXPECT_FALSE(window.entries(0).Visible());
}

}  // namespace
}  // namespace tarnview
