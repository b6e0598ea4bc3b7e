#include <gtest/gtest.h>

#include "app/MainWindowControls.h"
#include "app/RecentFiles.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(RecentFiles, KeepsNineTheLatestOnTopEachOnce) {
  RecordingHost host;
  MainWindowControls window(host);
  RecentFiles recent(window.mnuRecentlyUsed, window.mnuSepRecentlyUsed);
  EXPECT_FALSE(window.mnuSepRecentlyUsed.Visible());
  for (int n = 1; n <= 11; ++n)
    recent.AddRecentlyUsedFile("/logs/" + std::to_string(n) + ".txt", 1);
  EXPECT_EQ(recent.Count(), 9);
  EXPECT_EQ(window.mnuRecentlyUsed(0).Tag, "1|/logs/11.txt");
  EXPECT_EQ(window.mnuRecentlyUsed(8).Caption(), "&9 /logs/3.txt");

  recent.AddRecentlyUsedFile("/LOGS/5.TXT", 2);
  EXPECT_EQ(recent.Count(), 9);
  EXPECT_EQ(window.mnuRecentlyUsed(0).Tag, "2|/LOGS/5.TXT");
  EXPECT_EQ(window.mnuRecentlyUsed(1).Caption(), "&2 /logs/11.txt");
  EXPECT_TRUE(window.mnuSepRecentlyUsed.Visible());
}

TEST(RecentFiles, ANameIsShownAsItIs) {
  RecordingHost host;
  MainWindowControls window(host);
  RecentFiles recent(window.mnuRecentlyUsed, window.mnuSepRecentlyUsed);
  const std::string path = "/logs/" + std::string(60, 'x') + " Tom & Jerry.txt";
  recent.AddRecentlyUsedFile(path, 1);
  EXPECT_EQ(window.mnuRecentlyUsed(0).Caption(),
            "&1 " + std::string(32, 'x') + "...Tom && Jerry.txt");
  EXPECT_EQ(window.mnuRecentlyUsed(0).ToolTip(), path);
}

}  // namespace
}  // namespace tarnview
