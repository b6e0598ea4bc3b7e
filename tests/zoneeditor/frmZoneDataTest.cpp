#include <random>

#include "base/Numbers.h"
#include "support/Table.h"
#include "support/WholeWindow.h"
#include "zoneeditor/EditorWorld.h"
#include "zoneeditor/frmBenchmarkDetails.h"
#include "zoneeditor/frmCopyBench.h"
#include "zoneeditor/frmGridGraph.h"
#include "zoneeditor/frmOffset.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

const ChipIdentity kThird = Chip("1.8 2005-02-10 3");

/// All in its range.
ZoneMap MapOf(int zones, int flags) {
  ZoneMap map = MapWith(kThird, flags, 0, zones);
  map.zones[4] = 50;
  return map;
}

class frmZoneDataTest : public EditorWorld {
 protected:
  frmZoneDataTest() {
    for (const char* name : {"Street", "Track"}) {
      clsBenchmark benchmark;
      benchmark.strName = name;
      benchmark.ChipDate = kThird.datChipDate;
      ZoneMap map = MapOf(name[0] == 'S' ? 90 : 200, 2);
      map.intAtmosphericPressure = 88;
      SetMap(benchmark, map);
      benchmarks.AddDirect(benchmark);
    }
    settings.gstrDefaultBenchmark = "Track";
    story.Fact("step", [this] { return window ? Told() : ""; });
    story.Fact("own", [this] {
      return settings.gstrDefaultBenchmark + " " + DateText(settings.gdatDefaultChipDate) + " v" +
             std::to_string(settings.gintDefaultChipVersion);
    });
    // Of each graph a cell that is no zone, and one near it that is.
    story.Fact("heights", [this] {
      const auto* graph = dynamic_cast<frmGridGraph*>(host.Front());
      if (!graph) return std::string();
      const Surface& surface = *graph->chGridGraph.Data().AsSurface();
      return surface.subtitle + " " + NumberText(surface.At(5, 0)) + " " +
             NumberText(surface.At(5, 2));
    });
    story.Verb("map", [this](const auto& words) { OpenMap(StringToLong(words[0])); });
    story.Event("popup", [this] { return std::exchange(host.popup, ""); });
    story.Verb("whole", [this](const auto&) { ExpectWhole(*host.Front(), TARNVIEW_TESTS); });
    story.Verb("copied", [this](const auto& words) { host.clipboard = words[0]; });
  }
  void OpenMap(int flags) {
    ZoneEditorParameters parameters;
    parameters.map = MapOf(100, flags);
    parameters.fileName = "a.map";
    parameters.mayUpload = true;
    Open(parameters);
  }
  /// The last step, which raw zones differ from the map that was opened, and the notes.
  std::string Told() const {
    const ZoneMap map = window->Map();
    std::string told = window->History().UndoName() + ":";
    if (!window->IsShown()) told = window->Accepted() ? "accepted" : "closed";
    for (std::size_t zone = 0; zone < 256; ++zone)
      if (map.zones[zone] != MapOf(100, 2).zones[zone])
        told += " " + ZoneName(static_cast<int>(zone)) + "=" + std::to_string(map.zones[zone]);
    if (!map.strNotes.empty()) told += " '" + Join(SplitAt(map.strNotes, "\r\n"), "/") + "'";
    return told + (window->Changed() ? "" : " unchanged");
  }
};

TEST_F(frmZoneDataTest, OpensWithoutAChange) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, FieldsAndBoxesAreSteps) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, GridsAndTheirMenus) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, KeysAndTheClipboard) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, BoostTargets) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, NormallyAspirated) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, GraphsDrawTheNumbersOfTheirOwnGrid) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, ClosingAsksForChanges) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, UploadNeedsTheUsersOwnChip) { EXPECT_STORY(story); }
TEST_F(frmZoneDataTest, CopyAndDetailsOfTheComparison) { EXPECT_STORY(story); }

TEST_F(frmZoneDataTest, TheLogsOwnSetsComeFirst) {
  ZoneEditorParameters parameters;
  parameters.map = MapOf(100, 2);
  parameters.fileName = "a.txt";
  parameters.comparison = ComparisonZones{MapOf(110, 2).zones, MapOf(120, 2).zones};
  settings.gstrDefaultBenchmark = "gone";
  Open(parameters);
  EXPECT_STORY(story);
  parameters.comparison.reset();
  Open(parameters);
  EXPECT_STORY(story);
}

/// A user who does lines of a script at random: "{a|b}" is one of these, "{1..16}" a number. What
/// cannot be done just now is left.
class RandomHand {
 public:
  RandomHand(RecordingHost& host, const std::string& lines)
      : host_(host), user_(host), lines_(Split(lines, '\n')) {
    host.work = [this](const Form&) { DoTheRest(); };
  }
  void Try() {
    std::string line = OneOf(lines_);
    for (std::size_t from = 0; (from = line.find('{')) != std::string::npos;) {
      const std::size_t length = line.find('}') + 1 - from;
      line.replace(from, length, Chosen(line.substr(from + 1, length - 2)));
    }
    steps_ = SplitAt(line, "; ");
    host_.answers.clear();
    DoTheRest();
  }

 private:
  std::string OneOf(const std::vector<std::string>& all) { return all[random_() % all.size()]; }
  std::string Chosen(const std::string& choice) {
    const std::vector<std::string> ends = SplitAt(choice, "..");
    if (ends.size() == 1) return OneOf(Split(choice, '|'));
    const int low = StringToLong(ends[0]), count = StringToLong(ends[1]) - low + 1;
    return std::to_string(low + static_cast<int>(random_() % static_cast<unsigned>(count)));
  }
  void DoTheRest() {
    try {
      while (!steps_.empty()) {
        const ScriptUser::Words words = ParseScript(steps_.front())[0].words;
        steps_.erase(steps_.begin());
        if (words[0] == "copied")
          host_.clipboard = Join({words.begin() + 1, words.end()}, "\t") + "\n";
        else if (!user_.Do(words))
          user_.Work(words);
      }
    } catch (const CannotDo&) {
      steps_.clear();
    }
  }

  RecordingHost& host_;
  ScriptUser user_;
  std::vector<std::string> lines_, steps_;
  std::mt19937 random_{11};
};

TEST_F(frmZoneDataTest, TenThousandRandomEditsAreUndoneAndRedone) {
  OpenMap(2 + 0x91);
  const ZoneMap opened = window->Map();
  RandomHand hand(host, R"(step updZone({0|1|2|3|4|6|8|10|13|17|21|112|225|243|246|255}) {up|down}
type txtZone({0|1|2|3|4|6|8|10|13|17|21|112|225|243|246|255}) {-300..399}
cell grdData({0|3}) {1..6} {1..16} {-300..399}
cell grdData({6..7}) {1..2} {1..11} {-300..399}
range grdData({0|3}) {1..6} {1..16} {1..6} {1..16}; key {Plus|Shift+Minus|Ctrl+I|Ctrl+M}
cell grdData({0|3}) {1..6} {1..16}; copied {-300..399} {-300..399}; key Ctrl+V
range grdData({0..5}) {1..6} {1..16} {1..6} {1..16}; click {mnuCopytoDatalog|mnuCopyOffset|mnuEditReset}
range grdData({0|3}) {1..6} {1..16} {1..6} {1..16}; click mnuApplyOffset; type txtOffset {-300..399}; click cmdOK
click cmdCopyBenchmark; click chkOptions({0..6}); click cmdOK
click cmdGraph({0|3}); choose cboRow #{0..5}; choose cboColumn #{0..15}; type txtValue {-300..399}; click cmdOK
type txtChipDate {2001..2005}-{1..12}-01
type {txtTrim|txtNotes} {-300..399}
click {chkMisc(0)|chkMisc(3)|chkMisc(4)|chkBoost(0)|chkBoost(1)|chkIdle(1)}
choose {cboEngineSize|cboMAPID|cboAutoTune(0)|cboAutoTune(1)} #{0..2}
answer {yes|no}; click radBoost({0|1}))");
  constexpr std::size_t kEdits = 10000;
  while (window->History().Done() < kEdits) hand.Try();
  const ZoneMap last = window->Map();
  ASSERT_NE(last, opened);
  while (window->mnuEditUndo.Enabled()) window->mnuEditUndo.Do({"click", {}});
  EXPECT_EQ(window->Map(), opened);
  EXPECT_EQ(window->History().Done(), 0u);
  while (window->mnuEditRedo.Enabled()) window->mnuEditRedo.Do({"click", {}});
  EXPECT_EQ(window->Map(), last);
  EXPECT_EQ(window->History().Done(), kEdits);
}

TEST(frmCopyBench, EverythingTicksWhatThereIs) {
  RecordingHost host;
  Story story(host);
  frmCopyBench window(host, kThird.datChipDate, MakeDate(2001, 3, 1), true);
  story.Fact("names", [&] { return window.Names(); });
  window.Show();
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
