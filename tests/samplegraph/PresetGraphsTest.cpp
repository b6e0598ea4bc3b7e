#include "WholeGraph.h"
#include "samplegraph/PresetGraphs.h"
#include "samplegraph/frmNewPresetName.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;

class PresetGraphsTest : public WholeGraph, protected PresetGraphs::MainWindow {
 protected:
  PresetGraphsTest() {
    presets.AddDirect({{20, 3}, "Knock", true, 120, {}}).lngLogFamily = 1;
    presets.AddDirect({{1}, "Other", false, 10, {}}).lngLogFamily = 6;
    presets.AddDirect({{}, "None", false, 10, {}}).lngLogFamily = 1;
    OpenLog(50);
    details.SetCheckedItems({3, 5});
    list.PopulatePresetGraphs(false, kFMLinkLog);
  }
  Ids Ticked() const {
    Ids items;
    for (const auto& row : lvwSampleDetails.Rows())
      if (row.checked) items.push_back(std::stoi(row.tag));
    return items;
  }
  void DrawGraphChecked() override { graph.DrawGraphChecked(); }

  clsSampleGraphPresets presets;
  ListView lvwPresets{window, "lvwPresets", {{"Preset Graphs"}}};
  PresetGraphs list{{lvwPresets, lvwSampleDetails, chkShowCheckedOnly, chkFixY, txtYMax},
                    presets,
                    kinds.gcolLogFamilies,
                    *this};
};

TEST_F(PresetGraphsTest, OneTicksItsItemsAndIsDrawnByADoubleClick) {
  Do("click chkShowCheckedOnly\nrow lvwPresets Knock");
  ASSERT_EQ(lvwPresets.Count(), 2);
  EXPECT_EQ(Ticked(), (Ids{20, 3}));  // in the order of the list
  EXPECT_EQ(lvwSampleDetails.Count(), 2);
  EXPECT_TRUE(chkFixY.Value() && chkShowCheckedOnly.Value());
  EXPECT_TRUE(chSampleGraph.Data().Series().empty());
  Do("double lvwPresets Knock");
  EXPECT_EQ(chSampleGraph.Data().Series().size(), 2u);
  EXPECT_EQ(chSampleGraph.Data().y.max, 120);
  Do("row lvwPresets None");
  EXPECT_EQ(Ticked(), (Ids{}));
  EXPECT_FALSE(chkFixY.Value());
}

TEST_F(PresetGraphsTest, OneTakesWhatIsTicked) {
  list.UpdatePreset();  // none selected
  EXPECT_EQ(presets.Item(1).colDataItems, (Ids{20, 3}));
  Do("row lvwPresets Knock\ntick lvwSampleDetails MAP on\ntype txtYMax 7x5\nclick chkFixY");
  list.UpdatePreset();
  list.AddPreset("Mine", kFMLinkLog);
  for (const int preset : {1, 4}) {
    EXPECT_EQ(presets.Item(preset).colDataItems, (Ids{20, 5, 3}));
    EXPECT_EQ(presets.Item(preset).lngGraphMax, 75);
    EXPECT_FALSE(presets.Item(preset).blnFixGraphMax);
    EXPECT_EQ(presets.Item(preset).lngLogFamily, 1);
  }
  EXPECT_EQ(presets.Item(4).strName, "Mine");
}

TEST_F(PresetGraphsTest, ANewOneIsAskedForItsName) {
  const std::tuple<const char*, const char*, bool> rows[] = {
      {"type txtName  \nclick cmdOK\nclick cmdCancel", "New", false},
      {"type txtName Mine\nclick cmdOK", "Mine", true}};
  for (const auto& [actions, name, accepted] : rows) {
    frmNewPresetName asked(host, messages, "New");
    asked.Show();
    Act(asked, actions);
    EXPECT_EQ(asked.Accepted(), accepted);
    EXPECT_TRUE(!accepted || asked.strName() == name);
    EXPECT_EQ(Boxes(), accepted ? Ids{} : Ids{41});
  }
}

}  // namespace
}  // namespace tarnview
