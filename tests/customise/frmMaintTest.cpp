#include <optional>

#include "customise/frmMaint.h"
#include "presets/clsSampleGraphPreset.h"
#include "support/DeskTest.h"
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

class MaintTest : public DeskTest {
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
};

TEST_F(MaintTest, KeepsTheOrderOfAFamilyAmongOthers) {
  Open("a1 u7 b1 c1 v7 ");
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
  EXPECT_FALSE(window->Accepted());
  EXPECT_EQ(All(kept), "a u b c v ");
}

TEST_F(MaintTest, NewModifyAndDelete) {
  Open("a1 b1 c1 ");
  story.Verb("willName", [this](const auto& words) { newName = words[0]; });
  story.Verb("willCancel", [this](const auto&) { ok = false; });
  EXPECT_STORY(story);
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
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
