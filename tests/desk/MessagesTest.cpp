#include <gtest/gtest.h>

#include "desk/Messages.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class MessagesTest : public testing::Test {
 protected:
  static std::string Description(int type) {
    static const char* const kNames[] = {"",
                                         "FM Link Data Logs",
                                         "FM Link MAP Files",
                                         "Tec-2 Data Logs",
                                         "Tec-3 Data Logs",
                                         "LinkPlus Data Logs",
                                         "UTEC CSV Data Logs",
                                         "UTEC Fixed-Width Data Logs"};
    return kNames[type];
  }
  RecordingHost host;
  Messages messages{host, &Description};
};

TEST_F(MessagesTest, HaveTextAndStyle) {
  struct Row {
    int id, style;
    const char* text;
  };
  const Row rows[] = {
      // clang-format off
      {4, 48, "Unable to load Conversion File.\rApplication default values will be used instead."},
      {8, 48,
       "Problem loading chip date - default assumed.\rWARNING: Before uploading zone data from this file\r"
       "ensure that ALL zone settings contain valid data."},
      {22, 48, "An error occurred loading the Change Comparison File.\rA full upload will take place instead."},
      {34, 48,
       "Error opening Zone Data Editor.  Are you sure your Regional Settings are either \r"
       "English (United Kingdom) or English (United States) ?"},
      {43, 64, "Data Item not found from preset graph definition.\r\nDefault value will be used instead."},
      {51, 48, "Data log too long - only first 300000 lines loaded."},
      {86, 64, "Data log definition loaded successfully."},
      {92, 64,
       "Problem loading preset graph - data item(s) in preset graph file\r\nare not relevant to selected Log Family:"},
      {101, 48, "Unknown error loading data log definition"},
      {0, 48, "Unknown error."},
      {49, 48, "Unknown error."},
      {102, 48, "Unknown error."},
      // clang-format on
  };
  for (const Row& row : rows) {
    EXPECT_EQ(messages.Text(static_cast<Message>(row.id)), row.text);
    EXPECT_EQ(Messages::Style(static_cast<Message>(row.id)), row.style) << row.id;
  }
}

TEST_F(MessagesTest, NameTheWrongKindOfFile) {
  const std::pair<int, const char*> rows[] = {{52, "FM Link Data Log"}, {53, "LinkPlus Data Log"},
                                              {54, "Tec-2 Data Log"},   {55, "Tec-3 Data Log"},
                                              {56, "FM Link MAP File"}, {59, "UTEC CSV Data Log"},
                                              {60, "UTEC Fixed-Width "}};
  for (const auto& [id, name] : rows)
    EXPECT_EQ(messages.Text(static_cast<Message>(id)),
              std::string("That doesn't look like a ") + name +
                  " file to me.\r\nPlease ensure correct file type is chosen when opening a file.");
}

TEST_F(MessagesTest, AreShownInABoxOrBesideTheProgram) {
  messages.ShowMessage(Message::DefinitionOfSettingsNotFound, false, "C:\\x.def");
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(host.messages[0].id, 79);
  EXPECT_EQ(host.messages[0].style, 48);
  EXPECT_EQ(host.messages[0].title, "Tarnview");
  EXPECT_EQ(host.messages[0].text,
            "Universal data log definition file not found:\r\n\r\nC:\\x.def");

  messages.ShowMessage(Message::FileNotLoaded, true);  // no window to show it: a box
  EXPECT_EQ(host.messages.size(), 2u);
  std::string shown;
  messages.ShowNonModal = [&](Message id, const std::string& text) {
    shown = std::to_string(static_cast<int>(id)) + " " + text;
  };
  messages.ShowMessage(Message::FileNotLoaded, true);
  EXPECT_EQ(shown, "15 File could not be loaded.");
  EXPECT_EQ(host.messages.size(), 2u);
  messages.ShowMessage(Message::FileNotLoaded);
  EXPECT_EQ(host.messages.size(), 3u);
}

TEST_F(MessagesTest, HaveLongDetailsCutWhereTheyAreShown) {
  messages.ShowMessage(Message::NoColumnsRecognised, false, std::string(5000, 'x'));
  const Box& box = host.messages[0];
  const std::string text = messages.Text(Message::NoColumnsRecognised) + "\r\n\r\n";
  EXPECT_EQ(box.TextWithin(kMostDetailsInBox), text + std::string(597, 'x') + "...");
  EXPECT_EQ(box.TextWithin(kMostDetailsTold), text + std::string(3997, 'x') + "...");
  EXPECT_EQ(box.text.size(), text.size() + 5000);
  EXPECT_EQ((Box{0, std::string(700, 'y'), kBoxOk, ""}.TextWithin(kMostDetailsInBox)),
            std::string(700, 'y'));
}

TEST_F(MessagesTest, AskQuestions) {
  EXPECT_TRUE(messages.AskQuestion(Question::DeleteItem));
  EXPECT_FALSE(messages.AskQuestion(Question::PresetOfOtherFamily, true));
  host.answers.push_back({Answer::Kind::No, "", 0});
  EXPECT_FALSE(messages.AskQuestion(static_cast<Question>(15)));
  ASSERT_EQ(host.messages.size(), 3u);
  EXPECT_EQ(host.messages[0].style, 36);
  EXPECT_EQ(host.messages[0].id, 0);
  EXPECT_EQ(host.messages[1].style, 292);
  EXPECT_EQ(host.messages[1].text,
            "The preset graph definition you are loading is for a different Log Family than "
            "that\r\ncurrently selected, "
            "and may contain data items that are not relevant.\r\n\r\nAre you sure you want to "
            "continue?");
  EXPECT_EQ(host.messages[2].text, "Do you want to proceed?");
}

}  // namespace
}  // namespace tarnview
