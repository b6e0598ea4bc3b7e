#include <gtest/gtest.h>

#include "samplegraph/frmPresetSampleDetails.h"
#include "support/PresetWindows.h"

namespace tarnview {
namespace {

using Items = std::vector<int>;

class PresetDetailsTest : public PresetWindowsTest {
 protected:
  PresetDetailsTest() {
    preset.strName = "Boost";
    preset.lngLogFamily = 1;
    preset.colDataItems = {5, 3};
    preset.lngGraphMax = 10;
    window.emplace(host, Surroundings(), preset);
    window->Show();
  }
  Items Ticked() const {
    Items items;
    for (const auto& row : window->lvwDataItems.Rows())
      if (row.checked) items.push_back(std::stoi(row.tag));
    return items;
  }
  void Load(const std::string& lines) {
    files.files["/p/a.sam"] = "Preset Sample Graph Details:\r\n" + lines;
    host.answers.push_front({Answer::Kind::File, "/p/a.sam"});
    window->cmdLoad.Press();
  }

  clsSampleGraphPreset preset;
  std::optional<frmPresetSampleDetails> window;
};

TEST_F(PresetDetailsTest, EditsAPreset) {
  EXPECT_EQ(Ticked(), (Items{5, 3}));
  EXPECT_FALSE(window->txtYMax.Enabled());
  window->lvwDataItems.Do({"sort", {"Item"}});
  window->lvwDataItems.Do({"double", {std::to_string(window->lvwDataItems.RowOfTag("20"))}});
  window->chkFixY.Do({"click", {}});
  window->txtYMax.Do({"type", {"33"}});
  window->txtName.Do({"type", {"  "}});
  window->cmdOK.Press();
  EXPECT_EQ(Boxes(), (Items{41}));
  EXPECT_TRUE(window->IsShown());
  window->txtName.Do({"type", {"All"}});
  window->cboLogFamily.SetListIndex(5);
  window->cmdOK.Press();
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(window->ColItem().strName, "All");
  EXPECT_EQ(window->ColItem().lngLogFamily, 6);
  EXPECT_EQ(window->ColItem().lngGraphMax, 35);
  EXPECT_TRUE(window->ColItem().blnFixGraphMax);
  for (const int item : window->ColItem().colDataItems)
    EXPECT_TRUE(catalogue.gcolFixedDataItems.Item(item).InFamily(6)) << item;
}

TEST_F(PresetDetailsTest, SavesAndProposesTheSameFileAgain) {
  host.answers.push_back({Answer::Kind::No});
  host.answers.push_back({Answer::Kind::Ok});  // the name proposed
  window->cmdSave.Press();
  ASSERT_TRUE(files.files.contains("/logs/Boost.sam"));
  EXPECT_TRUE(files.files["/logs/Boost.sam"].ends_with(
      "Graph 1 Data Items=5,3\r\nGraph 1 Fix Graph Max=N\r\n"
      "Graph 1 Graph Max=10\r\n"));
  host.answers.push_back({Answer::Kind::Yes});
  host.answers.push_back({Answer::Kind::File, "/p/b.sam"});
  window->cmdSave.Press();
  EXPECT_TRUE(files.files["/p/b.sam"].ends_with("Graph 1 Log Family=1\r\n"));
  window->txtName.Text = std::string("a/b");
  files.failWrites = true;
  host.answers.push_back({Answer::Kind::Yes});
  host.answers.push_back({Answer::Kind::Ok});
  Boxes();
  window->cmdSave.Press();
  EXPECT_EQ(Boxes(), (Items{-1, 19}));
  EXPECT_EQ(files.accesses.back(), "write /p/b.sam");
}

TEST_F(PresetDetailsTest, LoadsExactlyTheItemsOfAFile) {
  Load(
      "Graph 1 Name=Knock\nGraph 1 Data Items=20,99,47,21\nGraph 1 Fix Graph Max=Y\n"
      "Graph 1 Graph Max=120");
  EXPECT_TRUE(host.messages[0].text.ends_with("Data Item(s): 99, 47"));
  EXPECT_EQ(Boxes(), (Items{92}));
  EXPECT_EQ(window->txtName.Text(), "Knock");
  EXPECT_EQ(window->txtYMax.Text(), "120");
  EXPECT_EQ(Ticked(), (Items{21, 20}));

  host.answers.push_back({Answer::Kind::No});
  Load("Graph 1 Name=Other\nGraph 1 Log Family=6");
  EXPECT_EQ(window->txtName.Text(), "Knock");
  Load("Graph 1 Name=Other\nGraph 1 Log Family=6");
  EXPECT_EQ(Boxes(), (Items{-1, -1}));
  EXPECT_EQ(window->txtName.Text(), "Other");
  EXPECT_EQ(window->cboLogFamily.ListIndex(), 0);
  EXPECT_EQ(Ticked(), (Items{}));

  host.answers.push_back({Answer::Kind::File, "/p/none.sam"});
  window->cmdLoad.Press();
  EXPECT_EQ(Boxes(), (Items{58}));
}

}  // namespace
}  // namespace tarnview
