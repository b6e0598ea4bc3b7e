#include <gtest/gtest.h>

#include "app/MainWindowControls.h"
#include "app/RecentFiles.h"
#include "support/Accept.h"
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
  recent.AddRecentlyUsedFile("/LOGS/5.TXT", 2);
  recent.AddRecentlyUsedFile("/" + std::string(60, 'x') + " Tom & Jerry.txt", 1);
  std::string told;
  for (int n = 0; n < 9; ++n) {
    const MenuItem& item = window.mnuRecentlyUsed(n);
    told +=
        item.Caption() + "; " + item.Tag.substr(0, 12) + "; " + item.ToolTip().substr(0, 12) + "\n";
  }
  ExpectTold(told,
             R"(&1 xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...Tom && Jerry.txt; 1|/xxxxxxxxx; /xxxxxxxxxxx
&2 /LOGS/5.TXT; 2|/LOGS/5.TX; /LOGS/5.TXT
&3 /logs/11.txt; 1|/logs/11.t; /logs/11.txt
&4 /logs/10.txt; 1|/logs/10.t; /logs/10.txt
&5 /logs/9.txt; 1|/logs/9.tx; /logs/9.txt
&6 /logs/8.txt; 1|/logs/8.tx; /logs/8.txt
&7 /logs/7.txt; 1|/logs/7.tx; /logs/7.txt
&8 /logs/6.txt; 1|/logs/6.tx; /logs/6.txt
&9 /logs/4.txt; 1|/logs/4.tx; /logs/4.txt
)");
  EXPECT_EQ(recent.Count(), 9);
  EXPECT_TRUE(window.mnuSepRecentlyUsed.Visible());
}

}  // namespace
}  // namespace tarnview
