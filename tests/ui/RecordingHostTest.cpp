#include <gtest/gtest.h>

#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(RecordingHost, AnswersFromItsQueueThenByDefault) {
  RecordingHost host;
  host.answers = {{Answer::Kind::No, "", 0}};
  EXPECT_EQ(host.Ask({0, "Save?", 51, "T"}), Reply::No);
  EXPECT_EQ(host.Ask({0, "Save?", 51, "T"}), Reply::Yes);
  EXPECT_EQ(host.Ask({0, "Sure?", 292, "T"}), Reply::No);
  EXPECT_EQ(host.Ask({12, "Told.", 64, "T"}), Reply::Ok);
  EXPECT_EQ(host.messages.size(), 4u);
  EXPECT_EQ(host.boxes.size(), 4u);
}

TEST(RecordingHost, AWaitGoesOnUnlessTheNextAnswerStopsIt) {
  RecordingHost host;
  EXPECT_TRUE(host.Wait("program")->GoOn());
  host.answers = {{Answer::Kind::No, "", 0}, {Answer::Kind::Stop, "", 0}};
  EXPECT_TRUE(host.Wait("program")->GoOn());
  host.answers.pop_front();
  EXPECT_FALSE(host.Wait("program")->GoOn());
  EXPECT_TRUE(host.answers.empty());
}

TEST(RecordingHost, ChoosesWhatTheScriptSays) {
  RecordingHost host;
  Dialog dialog;
  dialog.path = "before.txt";
  dialog.colour = 5;
  EXPECT_FALSE(host.Choose(dialog));
  EXPECT_EQ(dialog.path, "before.txt");
  host.answers = {{Answer::Kind::File, "a.txt", 0},
                  {Answer::Kind::Colour, "", 0x0000FF},
                  {Answer::Kind::Cancel, "", 0}};
  EXPECT_TRUE(host.Choose(dialog));
  EXPECT_EQ(dialog.path, "a.txt");
  EXPECT_EQ(dialog.colour, 5);
  EXPECT_TRUE(host.Choose(dialog));
  EXPECT_EQ(dialog.colour, 0x0000FF);
  EXPECT_FALSE(host.Choose(dialog));
  EXPECT_EQ(host.boxes.size(), 4u);
  EXPECT_TRUE(host.messages.empty());
}

}  // namespace
}  // namespace tarnview
