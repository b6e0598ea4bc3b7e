#include "WholeGraph.h"
#include "samplegraph/PresetGraphs.h"
#include "samplegraph/frmNewPresetName.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class PresetGraphsTest : public WholeGraph, protected PresetGraphs::MainWindow {
 protected:
  PresetGraphsTest() {
    presets.AddDirect({{20, 3}, "Knock", true, 120, {}}).lngLogFamily = 1;
    presets.AddDirect({{1}, "Other", false, 10, {}}).lngLogFamily = 6;
    presets.AddDirect({{}, "None", false, 10, {}}).lngLogFamily = 1;
    OpenLog(50);
    details.SetCheckedItems({3, 5});
    list.PopulatePresetGraphs(false, kFMLinkLog);
    verbs["update"] = [this] { list.UpdatePreset(); };
    facts["presets"] = [this] { return Presets(); };
    verbs["add"] = [this] { list.AddPreset("Mine", kFMLinkLog); };
  }
  void DrawGraphChecked() override { graph.DrawGraphChecked(); }
  std::string Presets() {
    std::string told = TextIf(chkFixY.Value(), " fixed") + " " + txtYMax.Text() + ", " +
                       std::to_string(lvwSampleDetails.Count()) + " rows";
    for (int n = 1; n <= presets.Count(); ++n) {
      const clsSampleGraphPreset& one = presets.Item(n);
      told += "; " + one.strName + " " + std::to_string(one.lngLogFamily) + ":";
      for (const int item : one.colDataItems) told += " " + std::to_string(item);
      told += std::string(one.blnFixGraphMax ? " to " : " not ") + std::to_string(one.lngGraphMax);
    }
    return told;
  }

  clsSampleGraphPresets presets;
  ListView lvwPresets{window, "lvwPresets", {{"Preset Graphs"}}};
  PresetGraphs list{{lvwPresets, lvwSampleDetails, chkShowCheckedOnly, chkFixY, txtYMax},
                    presets,
                    kinds.gcolLogFamilies,
                    *this};
};

TEST_F(PresetGraphsTest, GiveAndTakeWhatIsTicked) {
  ASSERT_EQ(lvwPresets.Count(), 2);
  ExpectFacts({"ticked", "presets"}, R"(
update ->  ticked 5 3 , 53 rows; Knock 1: 20 3 to 120; Other 6: 1 not 10; None 1: not 10
row lvwPresets Knock ->  ticked 20 3 fixed 120, 53 rows; Knock 1: 20 3 to 120; Other 6: 1 not 10; None 1: not 10
click chkShowCheckedOnly ->  ticked 20 3 fixed 120, 2 rows; Knock 1: 20 3 to 120; Other 6: 1 not 10; None 1: not 10
row lvwPresets None ->  ticked 10, 0 rows; Knock 1: 20 3 to 120; Other 6: 1 not 10; None 1: not 10
row lvwPresets Knock; click chkShowCheckedOnly ->  ticked 20 3 fixed 120, 53 rows; Knock 1: 20 3 to 120; Other 6: 1 not 10; None 1: not 10
tick lvwSampleDetails MAP on; type txtYMax 7x5; click chkFixY; update ->  ticked 20 5 3 7x5, 53 rows; Knock 1: 20 5 3 not 75; Other 6: 1 not 10; None 1: not 10
add ->  ticked 20 5 3 7x5, 53 rows; Knock 1: 20 5 3 not 75; Other 6: 1 not 10; None 1: not 10; Mine 1: 20 5 3 not 75
)");
  EXPECT_TRUE(chSampleGraph.Data().Series().empty());
  Do("double lvwPresets Knock");
  EXPECT_EQ(chSampleGraph.Data().Series().size(), 3u);
  EXPECT_TRUE(list.ApplyNamed("None"));
  EXPECT_EQ(Ticked(), "");
  EXPECT_FALSE(list.ApplyNamed("Other")) << "one of another family";
}

TEST_F(PresetGraphsTest, ANewOneIsAskedForItsName) {
  ExpectWhole(frmNewPresetName(host, messages, "New"), TARNVIEW_TESTS);
  const auto asked = [this](const TableRow& row) {
    frmNewPresetName asks(host, messages, "New");
    asks.Show();
    Do(row.Text(0));
    return (asks.Accepted() ? "accepted " + asks.strName() : "no") + Boxes();
  };
  ExpectTable(asked, R"(
type txtName " "; click cmdOK; key Escape -> no [41]
type txtName Mine; key Enter -> accepted Mine
)");
}

}  // namespace
}  // namespace tarnview
