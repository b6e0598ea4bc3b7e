#include <optional>

#include "customise/frmMaint.h"
#include "presets/clsSampleGraphPreset.h"
#include "support/MemoryFileSystem.h"
#include "support/Story.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

/// Records with a name alone, as those of the lists that know no families.
struct Thing {
  std::string strName;
  Thing Duplicate() const { return *this; }
};
struct Things : Records<Thing> {
  static Thing BlankPreset() { return {"New"}; }
  Things Duplicate() const { return *this; }
};

class MaintTest : public ::testing::Test {
 protected:
  void Add(const std::string& name, int family) {
    clsSampleGraphPreset preset;
    preset.strName = name;
    preset.lngLogFamily = family;
    kept.AddDirect(preset);
  }
  template <class Collection>
  static std::string All(const Collection& col) {
    std::string names;
    for (const auto& one : col) names += one.strName + " ";
    return names;
  }
  /// The list of the presets so far, and what becomes of it.
  void Open(const std::string& namesAndFamilies) {
    for (std::size_t at = 0; at < namesAndFamilies.size(); at += 3)
      Add(namesAndFamilies.substr(at, 1), namesAndFamilies[at + 1] - '0');
    copy.emplace(kept, edit);
    Open(*copy);
    story.Fact("all", [this] { return All(copy->Col); });
  }
  void Open(MaintainedList& list) {
    window.emplace(host, list, frmMaint::Texts{"Editor", "&Things", "ThingEditor"},
                   kinds.gcolLogFamilies, 1, messages);
    window->Show();
  }

  RecordingHost host;
  MemoryFileSystem files;
  Messages messages{host, [](int) { return ""; }};
  FileKinds kinds = SetUpLogFamilies();
  clsSampleGraphPresets kept;
  bool ok = true;             ///< how the detail window is closed
  std::string newName = "x";  ///< what is typed in it
  MaintainedCollection<clsSampleGraphPresets>::DetailWindow edit =
      [this](clsSampleGraphPreset& preset) {
        preset.strName = newName;
        return ok;
      };
  std::optional<MaintainedCollection<clsSampleGraphPresets>> copy;
  std::optional<frmMaint> window;
  Story story{host};
};

TEST_F(MaintTest, KeepsTheOrderOfAFamilyAmongOthers) {
  Open("a1 u7 b1 c1 v7 ");
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story, R"(
show lvwNameList cmdPresetUp -> lvwNameList columns=[Name], lvwNameList count=3, lvwNameList[1]=[a], lvwNameList[1] selected, lvwNameList[2]=[b], lvwNameList[2] unselected, lvwNameList[3]=[c], lvwNameList[3] unselected, cmdPresetUp off, cmdPresetUp=Move &Up
row lvwNameList c -> lvwNameList[1] unselected, lvwNameList[3] selected, cmdPresetUp on, cmdPresetDown off
click cmdPresetUp -> all=a u c b v , lvwNameList[2]=[c], lvwNameList[2] selected, lvwNameList[3]=[b], lvwNameList[3] unselected, cmdPresetDown on
row lvwNameList c; key Ctrl+Up -> all=c a u b v , lvwNameList[1]=[c], lvwNameList[1] selected, lvwNameList[2]=[a], lvwNameList[2] unselected, cmdPresetUp off
key Shift+Down -> all=a c u b v , lvwNameList[1]=[a], lvwNameList[1] unselected, lvwNameList[2]=[c], lvwNameList[2] selected, cmdPresetUp on
key Up; key Shift+Left -> not taken, not taken
key Shift+Up -> all=c a u b v , lvwNameList[1]=[c], lvwNameList[1] selected, lvwNameList[2]=[a], lvwNameList[2] unselected, cmdPresetUp off
# The first row stays.
key Ctrl+Up
sort lvwNameList Name
choose cboLogFamily #6 -> cboLogFamily=Universal Data Log, lvwNameList count=2, lvwNameList[1]=[u], lvwNameList[2]=[v], lvwNameList[3] selected gone
# Past the neighbour in the list.
click cmdPresetDown -> all=c a b v u , lvwNameList[1]=[v], lvwNameList[1] unselected, lvwNameList[2]=[u], lvwNameList[2] selected, cmdPresetUp on, cmdPresetDown off
choose cboLogFamily #2 -> cboLogFamily=Electromotive Tec-2 Data Log, lvwNameList count=0, cmdPresetUp off, lvwNameList[1] selected gone, lvwNameList[2] selected gone
click cmdModify -> [40 ok]
click cmdDelete -> [40 ok]
click cmdCancel -> -frmMaint
)");
  EXPECT_FALSE(window->Accepted());
  EXPECT_EQ(All(kept), "a u b c v ");
}

TEST_F(MaintTest, NewModifyAndDelete) {
  Open("a1 b1 c1 ");
  story.Verb("willName", [this](const auto& words) { newName = words[0]; });
  story.Verb("willCancel", [this](const auto&) { ok = false; });
  EXPECT_STORY(story, R"(
choose cboLogFamily #1; click cmdNew -> all=a b c x , cboLogFamily=Flyin' Miata Link Data Log, lvwNameList count=1, lvwNameList[1]=[x], cmdPresetDown off, lvwNameList[2] selected gone, lvwNameList[3] selected gone
choose cboLogFamily #0 -> cboLogFamily=Flyin' Miata Link Full, lvwNameList count=3, lvwNameList[1]=[a], lvwNameList[2]=[b], lvwNameList[2] unselected, lvwNameList[3]=[c], lvwNameList[3] unselected, cmdPresetDown on
willName y; double lvwNameList b -> all=a y c x , lvwNameList[1] unselected, lvwNameList[2]=[y], lvwNameList[2] selected, cmdPresetUp on
willCancel; click cmdNew; click cmdModify
answer no; click cmdDelete -> [Are you sure you want to delete this item? no]
click cmdDelete -> [Are you sure you want to delete this item? yes], all=a c x , lvwNameList count=2, lvwNameList[2]=[c], cmdPresetDown off, lvwNameList[3] selected gone
click cmdOK -> -frmMaint
)");
  EXPECT_TRUE(window->Accepted());
}

TEST_F(MaintTest, AListWithoutFamiliesShowsAllItsRows) {
  Things things;
  for (const char* name : {"a", "b"}) things.AddDirect({name});
  MaintainedCollection<Things> list(things, [](Thing& thing) {
    thing.strName += "!";
    return true;
  });
  Open(list);
  EXPECT_STORY(story, R"(
show cboLogFamily -> cboLogFamily hidden, cboLogFamily list=[Flyin' Miata Link Full|Flyin' Miata Link Data Log|Electromotive Tec-2 Data Log|Electromotive Tec-3 Data Log|Link Plus Data Log|TurboXS UTEC Data Log|Universal Data Log], cboLogFamily=Flyin' Miata Link Full
click cmdNew -> lvwNameList count=3, lvwNameList[1] unselected, lvwNameList[3]=[New!], lvwNameList[3] selected, cmdPresetUp on, cmdPresetDown off
)");
}

}  // namespace
}  // namespace tarnview
