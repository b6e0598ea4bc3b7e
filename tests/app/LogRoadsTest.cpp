// Files whose kind is not sure: what they look like, the question, and what becomes of the log that
// is open.

#include <algorithm>

#include "app/LogRoads.h"
#include "customise/frmLineFrequency.h"
#include "customise/frmLogDescription.h"
#include "customise/frmOptions.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using Roads = ProgramFixture;

const std::string kStrange =
    "Time (msec);Engine Speed (rpm);Widget "
    "(V)\r\n0;900;1,5\r\n50;950;\r\n100;1000;1,6\r\n150;1050;1,7\r\n";

TEST_F(Roads, AStrangeLogOpensByItsShapeAfterAQuestion) {
  files.files["/run.csv"] = kStrange;
  Start();
  host.messages.clear();
  EXPECT_TRUE(Main().DropFile("/run.csv"));
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(host.messages[0].text,
            "This looks like a log of an unknown logger: 3 of 3 columns. Open it so?");
  EXPECT_EQ(std::count(files.accesses.begin(), files.accesses.end(), "read /run.csv"), 1);
  EXPECT_EQ(Main().Caption(), "Tarnview - run.csv (Universal: by its shape)");
  EXPECT_EQ(Main().staDataLogViewer.Panel(1),
            "Loading complete: Universal: by its shape. Time: \"Time\" rises; milliseconds: its "
            "unit is told");
  EXPECT_EQ(Log().FormatDataItem(63, 3) + " " + Log().FormatDataItem(3, 3) + " " +
                Log().FormatDataItem(101, 3),
            "0.150 1050 1.7");
  EXPECT_GT(Main().lvwSampleDetails.RowOfTag("101"), 0);  // in the list as any other
}

TEST_F(Roads, ALogWithoutAClockIsAskedAboutOnceAndReadOnce) {
  files.files["/run.csv"] = "RPM;MAP\n900;30\n910;31\n930;29\n905;30\n";
  Start();
  std::vector<std::string> offered;
  const auto answer = [&](const char* rate, bool ok) {
    host.work = [&, rate, ok](Form& form) {
      auto& window = dynamic_cast<frmLineFrequency&>(form);
      offered.push_back(window.txtLineFrequency.Text());
      window.txtLineFrequency.Do({"type", {rate}});
      (ok ? window.cmdOK : window.cmdCancel).Do({"click", {}});
    };
  };
  answer("5", false);
  EXPECT_FALSE(Main().Files().OpenFile("/run.csv", kUnknownFile));
  answer("0", true);
  EXPECT_TRUE(Main().DropFile("/run.csv"));
  EXPECT_EQ(Log().FormatDataItem(63, 3), "300.000");  // the least there is
  answer("4", true);
  EXPECT_TRUE(Main().DropFile("/run.csv"));
  EXPECT_EQ(Log().FormatDataItem(63, 3), "0.750");
  EXPECT_EQ(offered, (std::vector<std::string>{"10", "10", "0.01"}));
  Main().Files().OpenByContent("/run.csv");  // with no question, as it was last answered
  EXPECT_EQ(Log().FormatDataItem(63, 3), "0.750");
}

TEST_F(Roads, OwnItemsAreDrawnAsTheirTitlesWere) {
  files.files["/run.csv"] = kStrange;
  files.files["/other.csv"] =
      "Time (s),More,widget (V),RPM\n0,1,1.5,900\n1,2,1.6,910\n2,3,1.7,920\n3,4,1.8,930\n";
  Start();
  ASSERT_TRUE(Main().Files().OpenByContent("/run.csv"));
  const Colour usual = Log().gcolDataItems->Item(101).lngColour;
  host.work = [](Form& form) {
    auto& options = dynamic_cast<frmOptions&>(form);
    clsLogDataItems& items = options.Draft().catalogue.gcolUniversalDataItems;
    items.Item(101).lngColour = 0x123456;
    items.Item(101).blnDisplay = false;
    options.cmdOK.Do({"click", {}});
  };
  Main().mnuCustomiseOptions.Do({"click", {}});
  ASSERT_TRUE(Main().Files().OpenByContent("/other.csv"));
  const clsLogDataItems& items = *Log().gcolDataItems;
  EXPECT_EQ(items.Item(101).strLongName + items.Item(102).strLongName, "Morewidget");
  EXPECT_EQ(items.Item(102).lngColour, 0x123456);
  EXPECT_FALSE(items.Item(102).blnDisplay);
  EXPECT_EQ(items.Item(101).lngColour, usual);
}

TEST_F(Roads, ADefinitionIsEditedOverTheOpenLog) {
  files.files["/run.csv"] = kStrange;
  Start();
  ASSERT_TRUE(Main().Files().OpenByContent("/run.csv"));
  files.files["/mine.txt"] =
      "[DATALOGDEFINITION]\nNAME=Mine\nFILEEXTENSION=csv\nDELIMITERASCIICHARACTER=59\n"
      "DATALINESBEFORE=1\nCOMMENTS=kept\n[COLUMN]\nNAME=Secs\nDESCRIPTION=Secs\n"
      "COLUMNTITLE=Time (msec)\nDATAITEMID=63\nTYPE=1\nCOLUMNDECIMALPLACES=3\n"
      "CONVERSIONFACTOR=0.001\n[COLUMN]\nNAME=Rev\nDESCRIPTION=Rev\nTYPE=1\n"
      "COLUMNTITLE=Engine Speed (rpm)\nDATAITEMID=3\nCOLUMNDECIMALPLACES=0\nSMOOTH=Y\n"
      "[COLUMN]\nNAME=Gone\nDESCRIPTION=Gone\nTYPE=1\nCOLUMNTITLE=Gone\nDATAITEMID=5\n"
      "COLUMNDECIMALPLACES=0\n[SAMPLE GRAPH]\nNAME=All\nDATA ITEMS=3,5\n\n";
  host.answers.push_back({Answer::Kind::File, "/mine.txt"});
  std::string shown;
  host.work = [&](Form& form) {
    auto& window = dynamic_cast<frmLogDescription&>(form);
    for (const auto& row : window.lvwColumns.Rows())
      shown += row.texts[0] + ":" + row.texts[5] + " ";
    window.lvwColumns.UserSelects(2);
    window.txtUnit.Do({"type", {"1/min"}});
    window.lvwColumns.UserSelects(3);
    window.cboItem.Do({"choose", {"An item of the log's own"}});
    window.cmdOK.Do({"click", {}});
  };
  Main().mnuFileEditDefinition.Do({"click", {}});
  EXPECT_EQ(shown, "Time:Secs Engine Speed:Rev Widget:Not read ");
  EXPECT_EQ(Main().Caption(), "Tarnview - run.csv (Universal: Mine)");
  const std::string text = files.files["/mine.txt"];
  for (const char* part :
       {"COMMENTS=kept", "SMOOTH=Y", "UNIT=1/min", "COLUMNTITLE=Gone", "DATA ITEMS=3,5",
        "DATAITEMID=101", "OWNDATAITEMS=Y", "CONVERSIONFACTOR=0.001"})
    EXPECT_NE(text.find(part), std::string::npos) << part;
}

TEST_F(Roads, WhoeverChoseAnotherTypeIsToldSo) {
  files.files["/run.csv"] = SmallLog(5);
  Start();
  host.messages.clear();
  EXPECT_TRUE(Main().Files().OpenFile("/run.csv", kLinkPlusLog));
  EXPECT_EQ(host.messages[0].text,
            "run.csv does not load as LinkPlus Data Log.\r\n"
            "This looks like a log of the kind FM Link Data Log. Open it so?");
  EXPECT_EQ(Log().gintCurrentFileType, kFMLinkLog);
  host.messages.clear();
  host.answers.push_back({Answer::Kind::No});
  EXPECT_FALSE(Main().Files().OpenFile("/run.csv", kLinkPlusLog));  // as ever
  EXPECT_EQ(MessageIds(), (std::vector<int>{0, 53, 12}));
}

TEST_F(Roads, TheOpenLogStaysWhereTheKindWasOnlyGuessed) {
  files.files["/good.txt"] = SmallLog(5);
  files.files["/run.csv"] = kStrange;
  files.files["/notes.txt"] = "nothing\r\nof a log\r\n";
  Start();
  ASSERT_TRUE(Main().Files().OpenFile("/good.txt", kUnknownFile));
  host.answers.push_back({Answer::Kind::No});
  Main().Files().OpenFile("/run.csv", kUnknownFile);
  EXPECT_EQ(Main().Caption(), "Tarnview - good.txt (FM Link Data Log)");
  host.messages.clear();
  EXPECT_FALSE(Main().Files().OpenFile("/notes.txt", kUnknownFile));
  EXPECT_EQ(MessageIds().back(), 12);
  EXPECT_EQ(Main().Caption(), "Tarnview - good.txt (FM Link Data Log)");
  EXPECT_EQ(Log().glngDataLog.Rows(), 5);
  EXPECT_TRUE(Main().cmdDrawGraph.Enabled());
}

TEST_F(Roads, TheDefinitionOfTheSettingsIsBackForTheNextLog) {
  files.files["/run.csv"] = kStrange;
  files.files["/hydra.csv"] = "timestamp,Engine Speed (RPM)\n0,1000\n100,2000\n200,3000\n";
  Start();
  ASSERT_TRUE(Main().Files().OpenByContent("/run.csv"));
  const std::string settings = program->Global().gclsDataLogDefinition.strName;
  ASSERT_TRUE(Main().LoadDataFile("/hydra.csv", kUniversalLog));
  EXPECT_EQ(settings, "run.csv");
  EXPECT_EQ(program->Global().gclsDataLogDefinition.strName, "Hydra Nemesis 2.1 (MX-5 Miata)");
  EXPECT_EQ(Main().Caption(), "Tarnview - hydra.csv (Universal - Hydra Nemesis 2.1 (MX-5 Miata))");
  EXPECT_EQ(Log().FormatDataItem(3, 2), "3000");
}

TEST_F(Roads, ADefinitionAtHandIsTakenUnlessItReadsAnotherUnit) {
  const auto column = [](const char* title, int item, const char* more) {
    return std::string(
               "[COLUMN]\nNAME=x\nDESCRIPTION=x\nTYPE=1\nCOLUMNDECIMALPLACES=1\nCOLUMNTITLE=") +
           title + "\nDATAITEMID=" + std::to_string(item) + "\n" + more;
  };
  const std::string head =
      "[DATALOGDEFINITION]\nNAME=Mine\nFILEEXTENSION=csv\nDELIMITERASCIICHARACTER="
      "44\nDATALINESBEFORE=2\n";
  const std::string log = "Time,CLT\ns,F\n0,180\n1,181\n2,182\n3,183\n";
  for (const auto& [more, taken] :
       {std::pair{"", "Universal: by its shape"},
        {"CONVERSIONFACTOR=0.5555556\nCONVERSIONOFFSET=-32\n", "Universal: Mine"}}) {
    files.files["/data/Universal Data Log Formats/Mine.txt"] =
        head + column("Time", 63, "") + column("CLT", 23, more) + "\n";
    files.files["/run.csv"] = log;
    Start();
    program->Global().dataFolder = "/data/";
    Main().Files().OpenByContent("/run.csv");
    EXPECT_EQ(program->Global().takenAs, taken);
    EXPECT_NEAR(Log().gcolDataItems->Item(23).GetRawData(Log().glngDataLog(22, 3)), 83.9, 0.05);
  }
}

TEST_F(Roads, FilesOfTheUsersOwnAreTextAsAnyEditorLeavesIt) {
  const std::string definition =
      "[DATALOGDEFINITION]\nNAME=Mine\nFILEEXTENSION=csv\nDELIMITERASCIICHARACTER=59\n"
      "DATALINESBEFORE=1\n[COLUMN]\nNAME=Secs\nDESCRIPTION=x\nTYPE=1\nCOLUMNDECIMALPLACES="
      "3\nCOLUMNTITLE=Clock\n"
      "DATAITEMID=63\n[COLUMN]\nNAME=W\nDESCRIPTION=x\nTYPE=1\nCOLUMNDECIMALPLACES=1\n"
      "COLUMNTITLE=Widget\nDATAITEMID=3\n\n";
  for (const auto& [mark, end] : {std::pair{"", '\n'}, {"\xEF\xBB\xBF", '\n'}, {"", '\r'}})
    for (const auto& [path, text, taken] :
         {std::tuple{"Universal Data Log Formats/Mine.txt", definition, "Universal: Mine"},
          {"Log Titles.txt", std::string("Widget ; RPM ;\n"), "Universal: by its shape"}}) {
      std::string saved = mark + text;
      std::replace(saved.begin(), saved.end(), '\n', end);
      files.files = {{"/data/" + std::string(path), saved},
                     {"/run.csv", "Clock;Widget\n0;900\n1;950\n2;990\n3;999\n"}};
      Start();
      program->Global().dataFolder = "/data/";
      EXPECT_TRUE(Main().Files().OpenByContent("/run.csv"));
      EXPECT_EQ(program->Global().takenAs, taken) << saved;
      EXPECT_EQ(Log().FormatDataItem(3, 3), "999") << saved;
    }
}

TEST_F(Roads, ADefinitionWhoseClockReadsOtherwiseIsPassedOver) {
  const struct {
    const char* head;
    const char* stamps[3];
    const char* taken;
  } kRows[] = {
      {"Time,CLT\n", {"0", "1", "2"}, "Universal: Mine"},
      {"Time,CLT\n", {"0", "50", "100"}, "Universal: by its shape"},
      {"Time,CLT\nms,C\n", {"0", "5", "10"}, "Universal: by its shape"},
      {"Time,CLT\ns,C\n", {"0", "50", "100"}, "Universal: Mine"},
      {"Time,CLT\n", {"10:00:01", "10:00:02", "10:00:03"}, "Universal: by its shape"},
  };
  for (const auto& row : kRows) {
    const std::string head = row.head;
    const auto lines = std::to_string(std::count(head.begin(), head.end(), '\n'));
    files.files["/data/Universal Data Log Formats/Mine.txt"] =
        "[DATALOGDEFINITION]\nNAME=Mine\nFILEEXTENSION=csv\nDELIMITERASCIICHARACTER=44\n"
        "DATALINESBEFORE=" +
        lines +
        "\n[COLUMN]\nNAME=Secs\nDESCRIPTION=x\nTYPE=1\nCOLUMNDECIMALPLACES=3\nCOLUMNTITLE=Time\n"
        "DATAITEMID=63\n[COLUMN]\nNAME=C\nDESCRIPTION=x\nTYPE=1\nCOLUMNDECIMALPLACES=1\n"
        "COLUMNTITLE=CLT\nDATAITEMID=23\n\n";
    files.files["/run.csv"] = head;
    for (const char* stamp : row.stamps) files.files["/run.csv"] += std::string(stamp) + ",80\n";
    Start();
    program->Global().dataFolder = "/data/";
    Main().Files().OpenByContent("/run.csv");
    EXPECT_EQ(program->Global().takenAs, row.taken) << head << row.stamps[1];
  }
}

TEST_F(Roads, TheProgramsOwnFilesAreNoLogs) {
  for (const char* path : {"/run.pow", "/run.CAR", "/run.sam", "/run.sca", "/run.map"}) {
    files.files[path] = kStrange;
    Start();
    host.messages.clear();
    EXPECT_FALSE(Main().Files().OpenByContent(path)) << path;
    EXPECT_FALSE(host.messages.empty()) << path;
  }
}

}  // namespace
}  // namespace tarnview
