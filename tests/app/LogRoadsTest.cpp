// Files whose kind is not sure: what they look like, the question, and what becomes of the log that
// is open.

#include <algorithm>

#include "app/LogRoads.h"
#include "customise/frmLogDescription.h"
#include "customise/frmOptions.h"
#include "support/ProgramFixture.h"
#include "universal/DefinitionText.h"

namespace tarnview {
namespace {

class Roads : public ProgramFixture {
 protected:
  Roads() {
    story.Verb("content", [this](const auto& words) { Main().Files().OpenByContent(words[0]); });
    story.Fact("as", [this] { return Runs() ? program->Global().takenAs : std::string(); });
    story.Fact("cells", [this] {
      std::string cells;
      if (Runs() && Log().glngDataLog.Rows() > 3)
        for (const int item : {63, 3, 101})
          if (item <= Log().gcolDataItems->Count()) cells += Log().FormatDataItem(item, 3) + " ";
      return cells;
    });
  }
  /// A log that no definition knows: opened by its shape, or by a definition beside the program.
  void StartWith(const std::string& log, const std::string& definition = "") {
    files.files["/run.csv"] = log;
    if (!definition.empty()) files.files["/data/Universal Data Log Formats/Mine.txt"] = definition;
    Start();
    program->Global().dataFolder = "/data/";
    host.messages.clear();
  }
  /// "Universal: Mine", or as what else the log was taken.
  std::string TakenAs() {
    EXPECT_TRUE(Main().Files().OpenByContent("/run.csv"));
    return program->Global().takenAs;
  }
  std::string Cells(std::initializer_list<int> items, int row = 3) {
    std::string cells;
    for (const int item : items) cells += Log().FormatDataItem(item, row) + " ";
    return cells;
  }
};

constexpr const char* kStrange =
    "Time (msec);Engine Speed (rpm);Widget (V)\r\n"
    "0;900;1,5\r\n50;950;\r\n100;1000;1,6\r\n150;1050;1,7\r\n";
constexpr const char* kByShape = "Universal: by its shape";
constexpr const char* kByMine = "Universal: Test Logs";

TEST_F(Roads, AStrangeLogOpensByItsShapeAfterAQuestion) {
  StartWith(kStrange);
  files.files["/good.txt"] = SmallLog(5);
  files.files["/notes.txt"] = "nothing\r\nof a log\r\n";
  files.files["/hydra.csv"] =
      "timestamp,Engine Speed (RPM)\n0,1000\n100,2000\n200,3000\n300,4000\n";
  EXPECT_STORY(story, R"(
drop /run.csv -> [This looks like a log of an unknown logger: 3 of 3 columns. Open it so? yes], as=Universal: by its shape, cells=0.150 1050 1.7 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape. Time: "Time" rises; milliseconds: its unit is told, staDataLogViewer[2]=Sample Load Range 1 - 4
# The definition of the settings is back for the next log.
load /hydra.csv 8 -> as=, cells=0.300 4000 , caption=Tarnview - hydra.csv (Universal - Hydra Nemesis 2.1 (MX-5 Miata)), staDataLogViewer[0]=Loading complete
open /good.txt -> [16 ok], cells=0.328 1000 , caption=Tarnview - good.txt (FM Link Data Log), PlotRangeTo=5, staDataLogViewer[2]=Sample Load Range 1 - 5
# The open log stays where the kind of another was only guessed.
answer no; open /run.csv -> [This looks like a log of an unknown logger: 3 of 3 columns. Open it so? no]
open /notes.txt -> [52 ok], [12 ok], staDataLogViewer[0]=Loading failed
# Whoever chose another type is told so.
open /good.txt 3 -> [good.txt does not load as Tec-2 Data Log.\nThis looks like a log of the kind FM Link Data Log. Open it so? yes], [16 ok], as=FM Link Data Log, staDataLogViewer[0]=Loading complete: FM Link Data Log
answer no; open /good.txt 3 -> [good.txt does not load as Tec-2 Data Log.\nThis looks like a log of the kind FM Link Data Log. Open it so? no], [54 ok], [12 ok], as=, cells=, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
)");
  EXPECT_EQ(std::count(files.accesses.begin(), files.accesses.end(), "read /run.csv"), 2);
}

TEST_F(Roads, ALogWithoutAClockIsAskedAboutOnceAndReadOnce) {
  StartWith("RPM;MAP\n900;30\n910;31\n930;29\n905;30\n");
  EXPECT_STORY(story, R"(
open /run.csv -> [This looks like a log of an unknown logger: 2 of 2 columns. Open it so? yes], +frmLineFrequency
show txtLineFrequency; type txtLineFrequency 5; click cmdCancel -> txtLineFrequency=10, -frmLineFrequency
# The least there is.
open /run.csv -> [This looks like a log of an unknown logger: 2 of 2 columns. Open it so? yes], +frmLineFrequency
type txtLineFrequency 0; click cmdOK -> -frmLineFrequency, as=Universal: by its shape, cells=300.000 905 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape, staDataLogViewer[2]=Sample Load Range 1 - 4
open /run.csv -> [This looks like a log of an unknown logger: 2 of 2 columns. Open it so? yes], +frmLineFrequency
show txtLineFrequency; type txtLineFrequency 4; click cmdOK -> txtLineFrequency=0.01, -frmLineFrequency, cells=0.750 905 
load /none.txt 1 -> [15 ok], [12 ok], as=, cells=, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[0]=Loading failed, staDataLogViewer[2]=
content /run.csv -> as=Universal: by its shape, cells=0.750 905 , caption=Tarnview - run.csv (Universal: by its shape), PlotRangeFrom=1, PlotRangeTo=4, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[0]=Loading complete: Universal: by its shape, staDataLogViewer[2]=Sample Load Range 1 - 4
)");
}

TEST_F(Roads, OwnItemsAreDrawnAsTheirTitlesWere) {
  StartWith(kStrange);
  files.files["/other.csv"] =
      "Time (s),More,widget (V),RPM\n0,1,1.5,900\n1,2,1.6,910\n2,3,1.7,920\n3,4,1.8,930\n";
  TakenAs();
  const Colour usual = Log().gcolDataItems->Item(101).lngColour;
  host.work = [](Form& form) {
    auto& options = dynamic_cast<frmOptions&>(form);
    clsLogDataItems& items = options.Draft().catalogue.gcolUniversalDataItems;
    items.Item(101).lngColour = 0x123456;
    items.Item(101).blnDisplay = false;
    options.cmdOK.Press();
  };
  Do("click mnuCustomiseOptions");
  ASSERT_TRUE(Main().Files().OpenByContent("/other.csv"));
  const clsLogDataItems& items = *Log().gcolDataItems;
  EXPECT_EQ(items.Item(101).strLongName + items.Item(102).strLongName, "Morewidget");
  EXPECT_EQ(items.Item(102).lngColour, 0x123456);
  EXPECT_FALSE(items.Item(102).blnDisplay);
  EXPECT_EQ(items.Item(101).lngColour, usual);
}

TEST_F(Roads, ADefinitionIsEditedOverTheOpenLog) {
  StartWith(kStrange);
  TakenAs();
  files.files["/mine.txt"] =
      DefinitionText{"DELIMITERASCIICHARACTER=59\nCOMMENTS=kept\n",
                     {ColumnText("Time (msec)", 63, 3, "CONVERSIONFACTOR=0.001\n"),
                      ColumnText("Engine Speed (rpm)", 3, 0, "SMOOTH=Y\n"), ColumnText("Gone", 5)},
                     "[SAMPLE GRAPH]\nNAME=All\nDATA ITEMS=3,5\n"}
          .Text();
  host.answers.push_back({Answer::Kind::File, "/mine.txt"});
  std::string shown;
  host.work = [&](Form& form) {
    auto& window = dynamic_cast<frmLogDescription&>(form);
    for (const auto& row : window.lvwColumns.Rows())
      shown += row.texts[0] + ":" + row.texts[5] + " ";
    window.lvwColumns.UserSelects(2);
    window.txtUnit.Do({"type", {"1/min"}});
    window.lvwColumns.UserSelects(3);
    Act(window, "choose cboItem An item of the log's own\nclick cmdOK");
  };
  Do("click mnuFileEditDefinition");
  EXPECT_EQ(shown, "Time:Secs Engine Speed:Engine Speed (rpm) Widget:Not read ");
  EXPECT_EQ(Main().Caption(), "Tarnview - run.csv (Universal: Test Logs)");
  const std::string text = files.files["/mine.txt"];
  for (const char* part :
       {"COMMENTS=kept", "SMOOTH=Y", "UNIT=1/min", "COLUMNTITLE=Gone", "DATA ITEMS=3,5",
        "DATAITEMID=101", "OWNDATAITEMS=Y", "CONVERSIONFACTOR=0.001"})
    EXPECT_NE(text.find(part), std::string::npos) << part;
}

TEST_F(Roads, ADefinitionAtHandIsTakenUnlessItReadsAnotherUnit) {
  for (const auto& [more, taken] :
       {std::pair{"", kByShape}, {"CONVERSIONFACTOR=0.5555556\nCONVERSIONOFFSET=-32\n", kByMine}}) {
    StartWith(
        "Time,CLT\ns,F\n0,180\n1,181\n2,182\n3,183\n",
        DefinitionText{
            "DATALINESBEFORE=2\n", {ColumnText("Time", 63, 1), ColumnText("CLT", 23, 1, more)}, ""}
            .Text());
    EXPECT_EQ(TakenAs(), taken);
    EXPECT_NEAR(Log().gcolDataItems->Item(23).GetRawData(Log().glngDataLog(22, 3)), 83.9, 0.05);
  }
}

TEST_F(Roads, ADefinitionAtHandIsTakenIfItKnowsNineColumnsOfTen) {
  for (const auto& [known, taken] : {std::pair{9, kByMine}, {8, kByShape}}) {
    DefinitionText definition{"", {ColumnText("Time", 63, 1)}, ""};
    std::string titles = "Time";
    for (int n = 1; n < 10; ++n) {
      titles += ",Odd" + std::to_string(n);
      if (n < known) definition.columns.push_back(ColumnText("Odd" + std::to_string(n), 2 + n));
    }
    std::string log = titles + "\n";
    for (const char* time : {"0", "1", "2", "3"}) log += time + std::string(",5,6,7,8,9,8,7,6,5\n");
    StartWith(log, definition.Text());
    EXPECT_EQ(TakenAs(), taken);
  }
}

TEST_F(Roads, FilesOfTheUsersOwnAreTextAsAnyEditorLeavesIt) {
  const std::string definition =
      DefinitionText{"DELIMITERASCIICHARACTER=59\n",
                     {ColumnText("Clock", 63, 3), ColumnText("Widget", 3, 1)},
                     ""}
          .Text();
  for (const auto& [mark, end] : {std::pair{"", '\n'}, {"\xEF\xBB\xBF", '\n'}, {"", '\r'}})
    for (const auto& [path, text, taken] :
         {std::tuple{"Universal Data Log Formats/Mine.txt", definition, kByMine},
          {"Log Titles.txt", std::string("Widget ; RPM ;\n"), kByShape}}) {
      std::string saved = mark + text;
      std::replace(saved.begin(), saved.end(), '\n', end);
      files.files = {{"/data/" + std::string(path), saved}};
      StartWith("Clock;Widget\n0;900\n1;950\n2;990\n3;999\n");
      EXPECT_EQ(TakenAs(), taken) << saved;
      EXPECT_EQ(Cells({3}), "999 ") << saved;
    }
}

TEST_F(Roads, ADefinitionWhoseClockReadsOtherwiseIsPassedOver) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"Time,CLT\n", "0 1 2", kByMine},
      {"Time,CLT\n", "0 50 100", kByShape},
      {"Time,CLT\nms,C\n", "0 5 10", kByShape},
      {"Time,CLT\ns,C\n", "0 50 100", kByMine},
      {"Time,CLT\n", "10:00:01 10:00:02 10:00:03", kByShape},
  };
  for (const auto& [head, stamps, taken] : rows) {
    const bool units = std::string_view(head).size() > 9;
    std::string log = head;
    for (const std::string& stamp : Split(stamps, ' ')) log += stamp + ",80\n";
    StartWith(log, DefinitionText{units ? "DATALINESBEFORE=2\n" : "",
                                  {ColumnText("Time", 63, 3), ColumnText("CLT", 23, 1)},
                                  ""}
                       .Text());
    EXPECT_EQ(TakenAs(), taken) << head << stamps;
  }
}

TEST_F(Roads, TheProgramsOwnFilesAreNoLogs) {
  for (const char* path : {"/run.pow", "/run.CAR", "/run.sam", "/run.sca", "/run.map"}) {
    files.files[path] = kStrange;
    StartWith("");
    EXPECT_FALSE(Main().Files().OpenByContent(path)) << path;
    EXPECT_FALSE(host.messages.empty()) << path;
  }
}

}  // namespace
}  // namespace tarnview
