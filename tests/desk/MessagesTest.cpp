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

TEST_F(MessagesTest, AreShownInABoxOrBesideTheProgramAndAskQuestions) {
  messages.ShowMessage(Message::DefinitionOfSettingsNotFound, false, "C:\\x.def");
  messages.ShowMessage(Message::FileNotLoaded, true);  // no window to show it: a box
  messages.ShowNonModal = [this](Message id, const std::string& text) {
    host.messages.push_back({static_cast<int>(id), text, 0, "beside"});
  };
  messages.ShowMessage(Message::FileNotLoaded, true);
  messages.ShowMessage(Message::FileNotLoaded);
  messages.Failed = [this](Message id, const std::string& text) {
    host.messages.push_back({static_cast<int>(id), text, 0, "logged"});
  };
  for (const Message id : {Message::HelpFailed, Message::FileNotLoaded})
    messages.ShowMessage(id, true);
  std::string told = "\n";
  told += messages.AskQuestion(Question::DeleteItem) ? "yes " : "no ";
  told += messages.AskQuestion(Question::PresetOfOtherFamily, true) ? "yes " : "no ";
  host.answers = {{Answer::Kind::No}};
  told += messages.AskQuestion(static_cast<Question>(15)) ? "yes " : "no ";
  for (const Box& box : host.messages)
    told += "\n" + std::to_string(box.id) + " " + std::to_string(box.style) + " " + box.title +
            ": " + Join(SplitAt(box.text, "\r\n"), "/");
  ExpectTold(told, R"(
yes no no 
79 48 Tarnview: Universal data log definition file not found://C:\x.def
15 64 Tarnview: File could not be loaded.
15 0 beside: File could not be loaded.
15 64 Tarnview: File could not be loaded.
30 0 logged: Problem trying to run on-line help.
30 0 beside: Problem trying to run on-line help.
15 0 beside: File could not be loaded.
0 36 Tarnview: Are you sure you want to delete this item?
0 292 Tarnview: The preset graph definition you are loading is for a different Log Family than that/currently selected, and may contain data items that are not relevant.//Are you sure you want to continue?
0 36 Tarnview: Do you want to proceed?)");
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

}  // namespace
}  // namespace tarnview
