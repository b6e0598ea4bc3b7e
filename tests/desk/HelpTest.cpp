#include <gtest/gtest.h>

#include "desk/Help.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class HelpTest : public ::testing::Test {
 protected:
  RecordingHost host;
  MemoryFileSystem files;
  RecordingProcesses processes;
  EXEFunctions programs{processes, host};
  Messages messages{host, [](int) { return ""; }};
  Help help{files, programs, messages, "C:\\car\\Documentation\\", "C:\\me\\"};
};

TEST_F(HelpTest, OpensTheManualAtATopic) {
  files.files["C:\\car\\Documentation\\Contents.htm"] = "";
  help.ShowHelp("GotoSample");
  const std::string& page = files.files["C:\\car\\Documentation\\HelpLauncher.htm"];
  EXPECT_NE(page.find("src=\"file://C:/car/Documentation/Contents.htm\""), page.npos);
  EXPECT_NE(page.find("src=\"file://C:/car/Documentation/Instructions.htm#GotoSample\""),
            page.npos);
  help.ShowHelp("");
  EXPECT_NE(files.files["C:\\car\\Documentation\\HelpLauncher.htm"].find("Instructions.htm\""),
            page.npos);
  EXPECT_EQ(processes.opened,
            std::vector<std::string>(2, "C:\\car\\Documentation\\HelpLauncher.htm"));
}

TEST_F(HelpTest, APathOfAnyCharactersIsNamedWhole) {
  const std::string folder = "/my #1 caf\xC3\xA9%/";
  Help odd{files, programs, messages, folder};
  files.files[folder + "Contents.htm"] = "";
  odd.ShowHelp("Keys");
  const std::string& page = files.files[folder + "HelpLauncher.htm"];
  EXPECT_NE(page.find("\"file:///my%20%231%20caf%C3%A9%25/Instructions.htm#Keys\""), page.npos)
      << page;
}

TEST_F(HelpTest, AManualThatCannotBeWrittenToIsOpenedFromTheUsersFolder) {
  files.files["C:\\car\\Documentation\\Contents.htm"] = "";
  files.broken = {"C:\\car\\Documentation\\HelpLauncher.htm"};
  help.ShowHelp("DataTags");
  EXPECT_EQ(processes.opened, std::vector<std::string>{"C:\\me\\HelpLauncher.htm"});
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(HelpTest, NoManualOrAFullDiskIsTold) {
  help.ShowHelp("DataTags");
  files.files["C:\\car\\Documentation\\Contents.htm"] = "";
  files.failWrites = true;
  help.ShowHelp("DataTags");
  ASSERT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.messages[0].id, 30);
  EXPECT_EQ(host.messages[1].id, 30);
  files.failWrites = false;
  files.broken = {"C:\\car\\Documentation\\HelpLauncher.htm"};
  Help{files, programs, messages, "C:\\car\\Documentation\\"}.ShowHelp("DataTags");
  EXPECT_EQ(host.messages.size(), 3u) << "without a folder of the user's it goes nowhere else";
  EXPECT_TRUE(processes.opened.empty());
}

}  // namespace
}  // namespace tarnview
