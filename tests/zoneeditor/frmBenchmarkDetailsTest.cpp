#include "EditorWorld.h"
#include "model/clsLogFamilies.h"
#include "support/WindowActions.h"
#include "zoneeditor/frmBenchmarkDetails.h"

namespace tarnview {
namespace {

class BenchmarkDetailsTest : public ::testing::Test, protected EditorWorld {
 protected:
  BenchmarkDetailsTest() {
    std::string line;
    for (int c = 0; c < 16; ++c) line += " 050";
    for (int n = 0; n < 15; ++n) files.files["/car/a.map"] += line + "\r\n";
    files.files["/car/a.map"] +=
        " Engine Size: 1.8\r\n Chip Date: 2004-07-02\r\n Chip Version: 3\r\n"
        " Atmospheric Pressure: 101\r\n";
    files.files["/car/no.map"] = "none";
    settings.gstrDefaultWorkingDirectory = "/logs";
  }
  void Open(const clsBenchmark& benchmark) {
    const frmBenchmarkDetails::Surroundings around{kinds.gcolFileTypes,
                                                   settings,
                                                   files,
                                                   clock,
                                                   messages,
                                                   [this](ZoneMap& map, const std::string& name) {
                                                     edited += name;
                                                     map.zones[6] = 3;
                                                     return changes;
                                                   }};
    details.emplace(host, around, benchmark);
    details->Show();
  }
  /// The boxes that came, whether it is open still, which buttons may be pressed, what has the
  /// focus.
  std::string Do(const std::string& actions) {
    host.messages.clear();
    Act(*details, actions);
    std::string told;
    for (const Box& box : host.messages) told += std::to_string(box.id) + " ";
    if (!details->IsShown()) return told + (details->Accepted() ? "accepted" : "left");
    return told + Enabled(*details, "cmdSave cmdZones");
  }
  void WillChoose(const char* path) { host.nextFile = Answer{Answer::Kind::File, path}; }

  FileKinds kinds = SetUpLogFamilies();
  std::optional<frmBenchmarkDetails> details;
  std::string edited;
  bool changes = true;
};

TEST_F(BenchmarkDetailsTest, ANewOneNeedsANameAndAFileThatLoads) {
  Open({});
  EXPECT_EQ(Do("type txtName  \nclick cmdOK"), "47 ");
  EXPECT_EQ(details->ActiveControl(), &details->txtName);
  EXPECT_EQ(Do("type txtName Mine\nclick cmdOK"), "15 ");
  WillChoose("/car/no.map");
  EXPECT_EQ(Do("click cmdBrowse\nclick cmdOK"), "16 ");
  WillChoose("/car/a.map");
  EXPECT_EQ(Do("click cmdBrowse"), "");
  EXPECT_EQ(Do("click cmdLoad"), "cmdSave cmdZones ");
  WillChoose("/car/b.map");
  EXPECT_EQ(Do("click cmdZones\nclick cmdSave"), "cmdSave cmdZones ");
  EXPECT_NE(files.files["/car/b.map"].find(" 050 050 050 050 050 050 003 050"), std::string::npos);
  EXPECT_EQ(edited, "Mine (benchmark)");
  EXPECT_EQ(Do("click cmdOK"), "accepted");
  const clsBenchmark& mine = details->ColItem();
  EXPECT_EQ(mine.strName + " " + mine.File, "Mine /car/a.map");
  EXPECT_EQ(mine.ZoneSettings(6), 3);
  EXPECT_EQ(mine.ChipVersion, 3);
}

TEST_F(BenchmarkDetailsTest, OneThatIsThereIsLoadedAgainOnlyFromAnotherFile) {
  clsBenchmark old;
  old.strName = "Old";
  old.File = "/gone/old.map";
  Open(old);
  EXPECT_EQ(Texts(*details, "txtName txtFile"), "Old|/gone/old.map");
  changes = false;
  EXPECT_EQ(Do("click cmdZones"), "cmdSave cmdZones ");
  EXPECT_EQ(details->ColItem().ZoneSettings(6), 0);
  files.failWrites = true;
  WillChoose("/car/b.map");
  EXPECT_EQ(Do("click cmdSave"), "19 cmdSave cmdZones ");
  EXPECT_EQ(Do("click cmdOK"), "accepted");
  details->Show();
  WillChoose("/car/a.map");
  EXPECT_EQ(Do("click cmdBrowse\nclick cmdOK"), "accepted");
  EXPECT_EQ(details->ColItem().ZoneSettings(6), 50);
  for (const char* path : {"", "/gone/a.map"}) {
    Open(old);
    EXPECT_EQ(Do(std::string("type txtFile ") + path + "\nclick cmdLoad"), "15 cmdSave cmdZones ");
  }
}

}  // namespace
}  // namespace tarnview
