// Files whose kind is not sure: what they look like, the question, and what becomes of the log that
// is open.

#include <algorithm>

#include "app/LogRoads.h"
#include "support/ProgramFixture.h"
#include "support/Table.h"
#include "universal/DefinitionText.h"

namespace tarnview {
namespace {

class Roads : public ProgramFixture {
 protected:
  Roads() {
    story.Verb("content",
               [this](const auto& words) { Opened(Main().Files().OpenByContent(words[0])); });
    story.Verb("offers", [this](const auto& words) { host.takesOffers = words[0] == "yes"; });
    Fact("as", [this] { return program->Global().takenAs; });
    story.Fact("reads", [this] {
      return std::to_string(std::ranges::count(files.accesses, "read /run.csv"));
    });
    Fact("cells", [this] {
      std::string cells;
      if (Log().glngDataLog.Rows() > 3)
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
};

constexpr const char* kStrange =
    "Time (msec);Engine Speed (rpm);Widget (V)\r\n"
    "0;900;1,5\r\n50;950;\r\n100;1000;1,6\r\n150;1050;1,7\r\n";

TEST_F(Roads, AStrangeLogOpensByItsShapeAfterAQuestion) {
  StartWith(kStrange);
  files.files["/good.txt"] = SmallLog(5);
  files.files["/notes.txt"] = "nothing\r\nof a log\r\n";
  files.files["/half.csv"] =
      "timestamp,Engine Speed (RPM),Widget,Gadget\n0,1000,1,1\n100,2000,1,1\n200,3000,1,2\n";
  files.files["/hydra.csv"] =
      "timestamp,Engine Speed (RPM)\n0,1000\n100,2000\n200,3000\n300,4000\n";
  EXPECT_STORY(story);
}

TEST_F(Roads, ALogWithoutAClockIsAskedAboutOnceAndReadOnce) {
  StartWith("RPM;MAP\n900;30\n910;31\n930;29\n905;30\n");
  EXPECT_STORY(story);
}

TEST_F(Roads, OwnItemsAreDrawnAsTheirTitlesWere) {
  StartWith(kStrange);
  files.files["/other.csv"] =
      "Time (s),More,widget (V),RPM\n0,1,1.5,900\n1,2,1.6,910\n2,3,1.7,920\n3,4,1.8,930\n";
  story.Fact("own", [this] {
    std::string told;
    for (int item = 3; Log().gcolDataItems && item <= Log().gcolDataItems->Count(); ++item) {
      if (item == 4) item = 101;
      const clsLogDataItem& one = Log().gcolDataItems->Item(item);
      if (!one.strLongName.empty())
        told += one.strLongName + " " + std::to_string(one.lngColour) +
                (one.blnDisplay ? "; " : " not drawn; ");
    }
    return told;
  });
  EXPECT_STORY(story);
}

TEST_F(Roads, ADefinitionIsEditedOverTheOpenLog) {
  StartWith(kStrange);
  files.files["/mine.txt"] =
      DefinitionText{"DELIMITERASCIICHARACTER=59\nCOMMENTS=kept\n",
                     {ColumnText("Time (msec)", 63, 3, "CONVERSIONFACTOR=0.001\n"),
                      ColumnText("Engine Speed (rpm)", 3, 0, "SMOOTH=Y\n"), ColumnText("Gone", 5)},
                     "[SAMPLE GRAPH]\nNAME=All\nDATA ITEMS=3,5\n"}
          .Text();
  story.Fact("saved", [this] { return files.files["/mine.txt"]; });
  EXPECT_STORY(story);
}

/// Of each definition its columns (title, item and lines of its own) and a line of its head,
/// then the log: how that opens, and the last item of the definition in its last line.
TEST_F(Roads, ADefinitionAtHandIsTakenWhereItKnowsTheColumnsAsTheLogTellsThem) {
  ExpectTable(
      [this](const TableRow& row) {
        DefinitionText definition{row.Text(1).empty() ? "" : row.Text(1) + "\n", {}, ""};
        int item = 0;
        for (const std::string& column : SplitAt(row.Text(0), "; ")) {
          const std::vector<std::string> parts = SplitAt(column, ":");
          definition.columns.push_back(ColumnText(parts.at(0), StringToLong(parts.at(1)), 1));
          item = StringToLong(parts[1]);
          for (std::size_t n = 2; n < parts.size(); ++n)
            definition.columns.back() += parts[n] + "\n";
        }
        StartWith(Join(SplitAt(row.Text(2), "; "), "\n") + "\n", definition.Text());
        const std::string taken = TakenAs();
        return taken + " " + Log().FormatDataItem(item, 3);
      },
      R"(
# The log tells its unit.
Time:63; CLT:23, DATALINESBEFORE=2, Time,CLT; s,F; 0,180; 1,181; 2,182; 3,183 -> Universal: by its shape 83.9
Time:63; CLT:23:CONVERSIONFACTOR=0.5555556:CONVERSIONOFFSET=-32, DATALINESBEFORE=2, Time,CLT; s,F; 0,180; 1,181; 2,182; 3,183 -> Universal: Test Logs 84
# Nine columns of ten, and eight.
Time:63; Odd1:3; Odd2:4; Odd3:5; Odd4:6; Odd5:7; Odd6:8; Odd7:9; Odd8:10, , Time,Odd1,Odd2,Odd3,Odd4,Odd5,Odd6,Odd7,Odd8,Odd9; 0,5,6,7,8,9,8,7,6,5; 1,5,6,7,8,9,8,7,6,5; 2,5,6,7,8,9,8,7,6,5; 3,5,6,7,8,9,8,7,6,5 -> Universal: Test Logs 6
Time:63; Odd1:3; Odd2:4; Odd3:5; Odd4:6; Odd5:7; Odd6:8; Odd7:9, , Time,Odd1,Odd2,Odd3,Odd4,Odd5,Odd6,Odd7,Odd8,Odd9; 0,5,6,7,8,9,8,7,6,5; 1,5,6,7,8,9,8,7,6,5; 2,5,6,7,8,9,8,7,6,5; 3,5,6,7,8,9,8,7,6,5 -> Universal: by its shape N/A
# Clocks that read alike and otherwise, with a unit and without.
Time:63; CLT:23, , Time,CLT; 0,80; 1,80; 2,80; 3,80 -> Universal: Test Logs 80
Time:63; CLT:23, , Time,CLT; 0,80; 50,80; 100,80; 150,80 -> Universal: by its shape 80.0
Time:63; CLT:23, DATALINESBEFORE=2, Time,CLT; ms,C; 0,80; 5,80; 10,80; 15,80 -> Universal: by its shape 80.0
Time:63; CLT:23, DATALINESBEFORE=2, Time,CLT; s,C; 0,80; 50,80; 100,80; 150,80 -> Universal: Test Logs 80
Time:63:CONVERSIONFACTOR=0.001; CLT:23, DATALINESBEFORE=2, Time,CLT; ms,C; 0,80; 5,80; 10,80; 15,80 -> Universal: Test Logs 80
Time:63; CLT:23, , Time,CLT; 10:00:01,80; 10:00:02,80; 10:00:03,80; 10:00:04,80 -> Universal: by its shape 80.0
# The definition tells how its clock is written.
Time:63; CLT:23, TIMEFORM=seconds, Time,CLT; 0,80; 1,80; 2,80; 3,80 -> Universal: Test Logs 80
Time:63; CLT:23, TIMEFORM=milliseconds, Time,CLT; 0,80; 1,80; 2,80; 3,80 -> Universal: by its shape 80.0
)");
}

TEST_F(Roads, FilesOfTheUsersOwnAreTextAsAnyEditorLeavesIt) {
  const std::string definition =
      DefinitionText{"DELIMITERASCIICHARACTER=59\n",
                     {ColumnText("Clock", 63, 3), ColumnText("Widget", 3, 1)},
                     ""}
          .Text();
  std::string told;
  for (const auto& [mark, end] : {std::pair{"", '\n'}, {"\xEF\xBB\xBF", '\n'}, {"", '\r'}})
    for (const auto& [path, text] : {std::pair{"Universal Data Log Formats/Mine.txt", definition},
                                     {"Log Titles.txt", std::string("Widget ; RPM ;\n")}}) {
      std::string saved = mark + text;
      std::replace(saved.begin(), saved.end(), '\n', end);
      files.files = {{"/data/" + std::string(path), saved}};
      StartWith("Clock;Widget\n0;900\n1;950\n2;990\n3;999\n");
      told += TakenAs() + " ";
      told += Log().FormatDataItem(3, 3) + "; ";
    }
  const std::string both = "Universal: Test Logs 999; Universal: by its shape 999; ";
  EXPECT_EQ(told, both + both + both);
}

TEST_F(Roads, TheProgramsOwnFilesAreNoLogs) {
  StartWith(kStrange);
  story.Verb("take", [this](const auto& words) {
    files.files[words[0]] = kStrange;
    EXPECT_FALSE(Main().Files().OpenByContent(words[0]));
  });
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
