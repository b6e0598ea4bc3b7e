#include <gtest/gtest.h>

#include "desk/SaveDialog.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(SaveDialog, ComesAgainUntilTheFileMayBeWritten) {
  RecordingHost host;
  host.WhyNotSave = [](const Dialog& chosen) {
    return chosen.path == "/log.txt" ? "Not this one:" : "";
  };
  host.answers = {{Answer::Kind::File, "/log"}, {}, {Answer::Kind::File, "/other"}};
  Dialog dialog;
  EXPECT_TRUE(ChooseFileToSave(host, dialog, [](Dialog& chosen) { chosen.path += ".txt"; }));
  EXPECT_EQ(dialog.path, "/other.txt");
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(host.messages[0].text, "Not this one:\r\n/log.txt\r\n\r\nPlease choose another name.");
  host.answers = {{Answer::Kind::File, "/log.txt"}, {}, {Answer::Kind::Cancel}};
  EXPECT_FALSE(ChooseFileToSave(host, dialog));
}

}  // namespace
}  // namespace tarnview
