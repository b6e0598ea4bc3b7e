#include "EditorWorld.h"
#include "model/clsLogFamilies.h"
#include "zoneeditor/frmBenchmarkDetails.h"
#include "zones/MapFile.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

class BenchmarkDetailsTest : public EditorWorld {
 protected:
  BenchmarkDetailsTest() {
    // As another editor may leave it: with the mark of UTF-8, and CR alone at the ends of lines.
    std::string map = MapText(MapWith(Chip("1.8 2004-07-02 3"), 50, 50, 50), {});
    std::erase(map, '\n');
    files.files["/car/a.map"] = "\xEF\xBB\xBF" + map;
    files.files["/car/no.map"] = "none";
    settings.gstrDefaultWorkingDirectory = "/logs";
    story.Fact("edited", [this] { return edited; });
    story.Fact("result", [this] {
      const clsBenchmark& mine = details->ColItem();
      return (details->Accepted() ? "accepted " : "") + mine.strName + " " + mine.File +
             " z6=" + std::to_string(mine.ZoneSettings(6)) + " v" +
             std::to_string(mine.ChipVersion);
    });
  }
  void Open(const clsBenchmark& benchmark) {
    const auto edit = [this](ZoneMap& map, const std::string& name) {
      edited += name;
      map.zones[6] = 3;
      return changes;
    };
    details.emplace(host,
                    frmBenchmarkDetails::Surroundings{kinds.gcolFileTypes, settings, files, clock,
                                                      messages, edit},
                    benchmark);
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
}

TEST_F(BenchmarkDetailsTest, OneThatIsThereIsLoadedAgainOnlyFromAnotherFile) {
  clsBenchmark old;
  old.strName = "Old";
  old.File = "/gone/old.map";
  Open(old);
  changes = false;
  files.failWrites = true;
  EXPECT_STORY(story);
  details->Show();
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
