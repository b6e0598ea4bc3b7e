#include "desk/Messages.h"
#include "support/Table.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class MessagesTest : public testing::Test {
 protected:
  RecordingHost host;
  Messages messages{host, [](int type) { return "type " + std::to_string(type) + "s"; }};
};

TEST_F(MessagesTest, HaveTextAndStyle) {
  ExpectTable(
      [this](const TableRow& row) {
        const auto id = static_cast<Message>(row.Int(0));
        std::string text = std::to_string(Messages::Style(id)) + " " + messages.Text(id);
        for (const char* end : {"\r\n", "\r"})
          for (std::size_t at; (at = text.find(end)) != text.npos;)
            text.replace(at, std::string_view(end).size(), "/");
        return text;
      },
      R"(
0 -> 48 Unknown error. | 49 -> 48 Unknown error. | 102 -> 48 Unknown error.
4 -> 48 Unable to load Conversion File./Application default values will be used instead.
8 -> 48 Problem loading chip date - default assumed./WARNING: Before uploading zone data from this file/ensure that ALL zone settings contain valid data.
22 -> 48 An error occurred loading the Change Comparison File./A full upload will take place instead.
34 -> 48 Error opening Zone Data Editor.  Are you sure your Regional Settings are either /English (United Kingdom) or English (United States) ?
43 -> 64 Data Item not found from preset graph definition./Default value will be used instead.
51 -> 48 Data log too long - only first 300000 lines loaded. | 86 -> 64 Data log definition loaded successfully. | 101 -> 48 Unknown error loading data log definition
52 -> 48 That doesn't look like a type 1 file to me./Please ensure correct file type is chosen when opening a file.
53 -> 48 That doesn't look like a type 5 file to me./Please ensure correct file type is chosen when opening a file.
54 -> 48 That doesn't look like a type 3 file to me./Please ensure correct file type is chosen when opening a file. | 55 -> 48 That doesn't look like a type 4 file to me./Please ensure correct file type is chosen when opening a file.
56 -> 48 That doesn't look like a type 2 file to me./Please ensure correct file type is chosen when opening a file. | 59 -> 48 That doesn't look like a type 6 file to me./Please ensure correct file type is chosen when opening a file. | 60 -> 48 That doesn't look like a type 7 file to me./Please ensure correct file type is chosen when opening a file.
92 -> 64 Problem loading preset graph - data item(s) in preset graph file/are not relevant to selected Log Family:
)");
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
