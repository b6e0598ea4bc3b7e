#include <gtest/gtest.h>

#include "customise/frmMaint.h"
#include "presets/clsSampleGraphPreset.h"
#include "support/MemoryFileSystem.h"
#include "ui/RecordingHost.h"

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
  void Add(const char* name, int family) {
    clsSampleGraphPreset preset;
    preset.strName = name;
    preset.lngLogFamily = family;
    kept.AddDirect(preset);
  }
  template <class Collection>
  std::string All(const Collection& col) {
    std::string names;
    for (const auto& one : col) names += one.strName + " ";
    return names;
  }
  std::string Listed(const frmMaint& window) {
    std::string names;
    for (const auto& row : window.lvwNameList.Rows()) names += row.texts[0] + " ";
    return names;
  }
  frmMaint Make(MaintainedList& list) {
    return {host, list, {"Editor", "&Things", "ThingEditor"}, kinds.gcolLogFamilies, 1, messages};
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
};

TEST_F(MaintTest, KeepsTheOrderOfAFamilyAmongOthers) {
  for (const auto& [name, family] : {std::pair{"a", 1}, {"u", 7}, {"b", 1}, {"c", 1}, {"v", 7}})
    Add(name, family);
  MaintainedCollection<clsSampleGraphPresets> copy(kept, edit);
  frmMaint window = Make(copy);
  window.Show();
  EXPECT_EQ(Listed(window), "a b c ");
  EXPECT_EQ(window.lvwNameList.SelectedRow(), 1);
  EXPECT_FALSE(window.cmdPresetUp.Enabled());
  window.lvwNameList.Do({"row", {"c"}});
  EXPECT_FALSE(window.cmdPresetDown.Enabled());
  window.cmdPresetUp.Press();
  EXPECT_EQ(All(copy.Col), "a u c b v ");
  window.Press({"Up", false, true});
  EXPECT_EQ(All(copy.Col), "c a u b v ");
  window.Press({"Down", true, false});
  EXPECT_EQ(All(copy.Col), "a c u b v ");
  window.Press({"Up"});
  window.Press({"Left", true, false});
  EXPECT_EQ(All(copy.Col), "a c u b v ");
  window.Press({"Up", true, false});
  window.Press({"Up", false, true});  // the first row stays
  EXPECT_EQ(window.lvwNameList.SelectedRow(), 1);
  window.lvwNameList.Do({"sort", {"Name"}});
  EXPECT_EQ(Listed(window), "c a b ");
  window.cboLogFamily.SetListIndex(6);
  EXPECT_EQ(Listed(window), "u v ");
  window.cmdPresetDown.Press();
  EXPECT_EQ(All(copy.Col), "c a b v u ") << "past the neighbour in the list";
  window.cboLogFamily.SetListIndex(2);
  EXPECT_EQ(Listed(window), "");
  window.cmdModify.Press();
  window.cmdDelete.Press();
  EXPECT_EQ(host.messages.size(), 2u);
  EXPECT_EQ(host.messages[1].id, 40);
  window.cmdCancel.Press();
  EXPECT_FALSE(window.Accepted());
  EXPECT_EQ(All(kept), "a u b c v ");
}

TEST_F(MaintTest, NewModifyAndDelete) {
  Add("a", 1);
  Add("b", 1);
  Add("c", 1);
  MaintainedCollection<clsSampleGraphPresets> copy(kept, edit);
  frmMaint window = Make(copy);
  window.Show();
  window.cboLogFamily.SetListIndex(1);
  window.cmdNew.Press();
  EXPECT_EQ(copy.Col.Item(4).strName, "x");
  EXPECT_EQ(copy.Col.Item(4).lngLogFamily, 2);
  window.cboLogFamily.SetListIndex(0);
  newName = "y";
  window.lvwNameList.Do({"double", {"b"}});
  EXPECT_EQ(All(copy.Col), "a y c x ");
  EXPECT_EQ(window.lvwNameList.SelectedRow(), 2);
  ok = false;
  window.cmdNew.Press();
  window.cmdModify.Press();
  EXPECT_EQ(All(copy.Col), "a y c x ");
  host.answers.push_back({Answer::Kind::No});
  window.cmdDelete.Press();
  EXPECT_EQ(copy.Count(), 4);
  window.cmdDelete.Press();
  EXPECT_EQ(Listed(window), "a c ");
  EXPECT_EQ(window.lvwNameList.SelectedRow(), 2);
  window.Press({"Enter"});
  EXPECT_TRUE(window.Accepted());
}

TEST_F(MaintTest, AListWithoutFamiliesShowsAllItsRows) {
  Things things;
  for (const char* name : {"a", "b"}) things.AddDirect({name});
  MaintainedCollection<Things> copy(things, [](Thing& thing) {
    thing.strName += "!";
    return true;
  });
  frmMaint window = Make(copy);
  window.Show();
  EXPECT_FALSE(window.cboLogFamily.Visible());
  window.cmdNew.Press();
  EXPECT_EQ(Listed(window), "a b New! ");
  EXPECT_EQ(window.lvwNameList.SelectedRow(), 3);
}

}  // namespace
}  // namespace tarnview
