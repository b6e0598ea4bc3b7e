#include "customise/frmLineFrequency.h"
#include "customise/frmLogDescription.h"
#include "model/Catalogue.h"
#include "support/Story.h"
#include "support/Table.h"
#include "support/WholeWindow.h"
#include "support/WindowActions.h"
#include "universal/BuiltInTitles.h"
#include "universal/DefinitionWriter.h"

namespace tarnview {
namespace {

constexpr const char* kLog =
    "made up\nTime;RPM;Speed;Odd\ns;rpm;km/h;\n0;900;30;1,5\n1;950;31;1,6\n2;980;32;1,7\n";

class LogDescription : public ::testing::Test {
 protected:
  frmLogDescription Open(const char* log, const clsDataLog* edited = nullptr) {
    return {host, log, "/logs/my run.csv", titles, catalogue.gcolFixedDataItems, edited};
  }
  /// What is shown: the form, the kind of each line, each column with what it becomes, and the
  /// fields of the one that is selected.
  static std::string Shown(const frmLogDescription& window) {
    std::string text;
    for (const Control* control : std::initializer_list<const Control*>{
             &window.cboEncoding, &window.cboDelimiter, &window.cboDecimalSign,
             &window.txtTitleLine, &window.txtUnitsLine, &window.txtDataLine, &window.cboTimeColumn,
             &window.cboTimeForm, &window.txtLineFrequency})
      text += TextOf(*control) + " ";
    text += "/";
    for (const auto& row : window.lvwHead.Rows()) text += " " + row.texts[1];
    for (const auto& row : window.lvwColumns.Rows()) {
      text += " / " + row.texts[0];
      for (const std::size_t part : {5u, 6u, 7u, 8u}) text += " " + row.texts[part];
    }
    text += " / " + std::to_string(window.lvwColumns.SelectedRow()) + ":";
    for (const Control* control : std::initializer_list<const Control*>{
             &window.cboItem, &window.txtFactor, &window.txtOffset, &window.txtUnit,
             &window.txtDecimals})
      text += " " + TextOf(*control);
    return text + (window.chkShown.Value() ? " shown" : "");
  }
  static std::string TextOf(const Control& control) {
    std::string text;
    for (const auto& [name, value] : control.Facts())
      if (name == "text") text = std::get<std::string>(value.Get());
    return (text.empty() ? "-" : text) + (control.Enabled() ? "" : "!");
  }

  RecordingHost host;
  Story story{host};
  const Catalogue catalogue = BuildDataItemCatalogue();
  const TitleDictionary titles{BuiltInTitles()};
};

TEST_F(LogDescription, FollowsEachChoice) {
  const auto shown = [this](const TableRow& row) {
    frmLogDescription window = Open(kLog);
    window.Show();
    if (row.All() != "nothing") Act(window, row.Lines());
    return Shown(window);
  };
  ExpectTable(shown, R"(
nothing -> UTF-8 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
type txtUnitsLine  -> UTF-8 semicolon Comma 2 - 4 Time Seconds -! / Preamble Titles Preamble Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
type txtTitleLine 1 -> UTF-8 semicolon Comma 1 3 4 made up Seconds -! / Titles Preamble Units Data Data Data / made up Secs  0 Yes / 1: Secs! 1! 0! s! 0! shown
type txtDataLine 5 -> UTF-8 semicolon Comma 2 3 5 No clock -! - / Preamble Titles Units Preamble Data Data / Time Own  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboDelimiter comma -> UTF-8 comma Point - - 4 No clock -! - / Preamble Preamble Preamble Data Data Data / Column 1 Own  0 Yes / Column 2 Own  0 Yes / 2: An item of the log's own 1 0 - 0 shown
choose cboDecimalSign Point -> UTF-8 semicolon Point 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  0 Yes / 2: RPM 1 0 rpm 0 shown
choose cboEncoding WINDOWS-1252 -> WINDOWS-1252 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboTimeForm Days -> UTF-8 semicolon Comma 2 3 4 Time Days -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboTimeColumn No clock -> UTF-8 semicolon Comma 2 3 4 No clock -! - / Preamble Titles Units Data Data Data / Time Own  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboTimeColumn No clock; type txtLineFrequency 25 -> UTF-8 semicolon Comma 2 3 4 No clock -! 25 / Preamble Titles Units Data Data Data / Time Own  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboTimeColumn No clock; type txtLineFrequency 100001 -> UTF-8 semicolon Comma 2 3 4 No clock -! 100000 / Preamble Titles Units Data Data Data / Time Own  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboTimeColumn No clock; type txtLineFrequency 25; type txtLineFrequency 0 -> UTF-8 semicolon Comma 2 3 4 No clock -! - / Preamble Titles Units Data Data Data / Time Own  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: RPM 1 0 rpm 0 shown
choose cboTimeColumn RPM -> UTF-8 semicolon Comma 2 3 4 RPM Seconds -! / Preamble Titles Units Data Data Data / Time Own  0 Yes / RPM Secs  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: Secs! 1! 0! s! 0! shown
# Columns, which keep through choices what was made of them.
row lvwColumns 1 -> UTF-8 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 1: Secs! 1! 0! s! 0! shown
row lvwColumns 3 -> UTF-8 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 3: Speed 0.621371192237334 0 mph 1 shown
row lvwColumns 4; choose cboItem MAP; type txtFactor 100; type txtOffset -2; type txtDecimals 9; type txtUnit psi; click chkShown; choose cboTimeForm Minutes -> UTF-8 semicolon Comma 2 3 4 Time Minutes -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM RPM  0 Yes / Speed Speed x 0.6214 1 Yes / Odd MAP x 100 - 2 5 No / 4: MAP 100 -2 psi 5
row lvwColumns 4; choose cboItem RPM; row lvwColumns 2; type txtDecimals -1; type txtOffset 3 -> UTF-8 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM Own + 3 0 Yes / Speed Speed x 0.6214 1 Yes / Odd RPM  1 Yes / 2: An item of the log's own 1 3 rpm 0 shown
choose cboItem Not read -> UTF-8 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM Not read  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: Not read 1 0 rpm 0 shown
choose cboItem An item of the log's own -> UTF-8 semicolon Comma 2 3 4 Time Seconds -! / Preamble Titles Units Data Data Data / Time Secs  0 Yes / RPM Own  0 Yes / Speed Speed x 0.6214 1 Yes / Odd Own  1 Yes / 2: An item of the log's own 1 0 rpm 0 shown
)");
}

TEST_F(LogDescription, GivesADefinitionAndOpensItAgain) {
  frmLogDescription window = Open(kLog);
  window.Show();
  EXPECT_EQ(window.txtName.Text(), "my run");
  Act(window,
      "choose cboItem Not read\nrow lvwColumns 3\nchoose cboItem An item of the log's own"
      "\nchoose cboTimeForm Minutes\ntype txtName ");
  const clsDataLog made = window.Definition();
  EXPECT_EQ(made.strName + " " + made.strFileExtension + " " + made.strTimeForm,
            "My Logger csv MINUTES");
  std::string columns;
  for (const clsDataLogColumn& column : made.objColumns)
    columns += column.strDescription + "=" + std::to_string(column.lngDataItemID) + " ";
  EXPECT_EQ(columns, "Seconds=63 Speed=101 Odd=102 ");

  frmLogDescription again = Open(kLog, &made);
  EXPECT_EQ(again.Caption() + " " + again.txtName.Text(), "Edit Definition My Logger");
  EXPECT_EQ(Shown(again),
            "UTF-8 semicolon Comma 2 3 4 Time Minutes -! / Preamble Titles Units Data Data Data / "
            "Time Secs  0 Yes / RPM Not read  0 Yes / Speed Own x 0.6214 1 Yes / Odd Own  1 Yes / "
            "2: Not read 1 0 rpm 0 shown");
  EXPECT_EQ(DefinitionFileText(again.Definition()), DefinitionFileText(made));
  Act(window, "choose cboTimeColumn RPM");
  const clsDataLog byRPM = window.Definition();
  EXPECT_EQ(Open(kLog, &byRPM).cboTimeColumn.Text(), "RPM");
  again.Show();
  Act(again, "row lvwColumns 4\ntype txtUnit bar\ntype txtName Mine");
  const clsDataLog edited = again.Definition();
  EXPECT_EQ(edited.strName + edited.objColumns.Item(3).strUnit, "Minebar");
}

TEST_F(LogDescription, OfRubbishCannotBeAccepted) {
  frmLogDescription rubbish = Open("no log\nat all\n"),
                    clockBehind = Open("RPM\tTime\n900\t1\n901\t2\n902\t3\n");
  ExpectWhole(clockBehind, TARNVIEW_TESTS);
  rubbish.Show();
  EXPECT_STORY(story);
  clockBehind.Show();
  EXPECT_STORY(story);
}

TEST_F(LogDescription, ALineFrequencyIsHeldToItsLimits) {
  frmLineFrequency window(host, 12.5);
  window.Show();
  ExpectWhole(window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
  EXPECT_TRUE(window.Accepted());
  EXPECT_EQ(window.LinesASecond(), 20);
}

}  // namespace
}  // namespace tarnview
