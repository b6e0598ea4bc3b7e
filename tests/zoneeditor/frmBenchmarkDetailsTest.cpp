#include "EditorWorld.h"
#include "model/clsLogFamilies.h"
#include "zoneeditor/frmBenchmarkDetails.h"
#include "zones/MapFile.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

class BenchmarkDetailsTest : public ::testing::Test, protected EditorWorld {
 protected:
  BenchmarkDetailsTest() {
    files.files["/car/a.map"] = MapText(MapWith(Chip("1.8 2004-07-02 3"), 50, 50, 50), {});
    files.files["/car/no.map"] = "none";
    settings.gstrDefaultWorkingDirectory = "/logs";
    story.Fact("edited", [this] { return edited; });
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
  FileKinds kinds = SetUpLogFamilies();
  std::optional<frmBenchmarkDetails> details;
  std::string edited;
  bool changes = true;
};

TEST_F(BenchmarkDetailsTest, ANewOneNeedsANameAndAFileThatLoads) {
  Open({});
  EXPECT_STORY(story);
  EXPECT_NE(files.files["/car/b.map"].find(" 050 050 050 050 050 050 003 050"), std::string::npos);
  EXPECT_TRUE(details->Accepted());
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
  changes = false;
  files.failWrites = true;
  EXPECT_STORY(story);
  EXPECT_TRUE(details->Accepted());
  EXPECT_EQ(details->ColItem().ZoneSettings(6), 0);
  details->Show();
  EXPECT_STORY(story);
  EXPECT_EQ(details->ColItem().ZoneSettings(6), 50);
}

}  // namespace
}  // namespace tarnview
