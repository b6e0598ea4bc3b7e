#include <gtest/gtest.h>

#include "base/Text.h"
#include "scatter/frmPresetScatterDetails.h"
#include "scatter/frmScatterFilter.h"
#include "support/PresetWindows.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

class ScatterDetailsTest : public PresetWindowsTest {
 protected:
  ScatterDetailsTest() {
    clsScatterGraphPreset preset;
    preset.strName = "Boost";
    preset.lngLogFamily = 1;
    preset.lngXAxisDataItem = 3;
    preset.lngYAxisDataItem = 5;
    preset.lngPointSize = 4;
    preset.FileOpenDraw = true;
    preset.objFilters.AddDirect({.dblFrom = 100, .lngDataItemSeq = 5});
    preset.objFilters.AddDirect({.dblTo = 9, .dblFrom = 1, .lngDataItemSeq = 15});
    Open(preset);
  }
  void Open(const clsScatterGraphPreset& preset) {
    window.emplace(host, Surroundings(), preset);
    window->Show();
  }
  Texts Rows() const {
    Texts rows;
    for (const auto& row : window->lvwFilters.Rows()) rows.push_back(Join(row.texts, " "));
    return rows;
  }
  void Load(const std::string& lines) {
    files.files["/p/a.sca"] = "Preset Scatter Graph Details:\r\n" + lines;
    host.answers.push_front({Answer::Kind::File, "/p/a.sca"});
    window->cmdLoad.Press();
  }

  std::optional<frmPresetScatterDetails> window;
};

TEST_F(ScatterDetailsTest, EditsAPreset) {
  EXPECT_EQ(window->imgcboXAxis.Text(), "RPM");
  window->imgcboYAxis.Do({"choose", {"Seconds"}});
  window->cboPointShape.Do({"choose", {"Up Tri"}});
  window->cboPointSize.Do({"type", {"11"}});
  EXPECT_EQ(window->cboPointSize.Text(), "1");
  window->cboPointSize.Do({"choose", {"10"}});
  host.answers.push_back({Answer::Kind::Colour, "", 0x80FF});
  window->cmdColourSelector.Press();
  window->txtName.Do({"type", {" "}});
  window->cmdOK.Press();
  EXPECT_EQ(Boxes(), (Ids{41}));
  window->txtName.Do({"type", {"All"}});
  window->cmdOK.Press();
  EXPECT_TRUE(window->Accepted());
  const clsScatterGraphPreset& preset = window->ColItem();
  EXPECT_EQ(preset.strName, "All");
  EXPECT_EQ(preset.lngXAxisDataItem, 3);
  EXPECT_EQ(preset.lngYAxisDataItem, 63);
  EXPECT_EQ(preset.lngPointShape, 8);
  EXPECT_EQ(preset.lngPointSize, 10);
  EXPECT_EQ(preset.lngPointColour, 0x80FF);
  EXPECT_TRUE(preset.FileOpenDraw);
  EXPECT_EQ(preset.objFilters.Count(), 2);
}

TEST_F(ScatterDetailsTest, KeepsItsFilters) {
  EXPECT_EQ(Rows(), (Texts{"MAP 100 -", "Throttle Idle -"}));
  const auto answer = [this](const char* item, const char* from) {
    host.work = [=](Form& form) {
      auto& filter = dynamic_cast<frmScatterFilter&>(form);
      if (item) filter.imgcboDataItem.Do({"choose", {item}});
      filter.cboFrom.Text = std::string(from);
      filter.cmdOK.Press();
    };
  };
  answer("Knock Sensor", "3");
  window->cmdFilterNew.Press();
  EXPECT_EQ(window->lvwFilters.SelectedRow(), 3);
  answer(nullptr, "50");
  window->lvwFilters.Do({"double", {"1"}});
  EXPECT_EQ(Rows(), (Texts{"MAP 50 -", "Throttle Idle -", "Knock 3 -"}));
  host.work = nullptr;  // Cancel
  window->cmdFilterNew.Press();

  host.answers.push_back({Answer::Kind::No});
  window->cmdFilterDelete.Press();
  EXPECT_EQ(host.messages.back().text, "Are you sure you want to delete this filter?");
  window->lvwFilters.Do(
      {"sort", {"Item"}});  // Knock, MAP, Throttle: the filters know their places all the same
  window->lvwFilters.Do({"row", {"Knock"}});
  host.answers.push_back({Answer::Kind::Yes});
  window->cmdFilterDelete.Press();
  EXPECT_EQ(Rows(), (Texts{"MAP 50 -", "Throttle Idle -"}));
  EXPECT_EQ(window->ActiveControl(), &window->lvwFilters);
  Boxes();
  window->lvwFilters.Select(0);
  window->cmdFilterMod.Press();
  window->cmdFilterDelete.Press();
  EXPECT_EQ(Boxes(), (Ids{}));
}

TEST_F(ScatterDetailsTest, AnotherFamilyHasOtherItems) {
  window->cboLogFamily.SetListIndex(2);
  EXPECT_EQ(window->imgcboXAxis.Text(), "RPM");
  EXPECT_EQ(Rows(), (Texts{"MAP 100 -"}));
  clsScatterGraphPreset other;
  other.lngXAxisDataItem = 47;
  other.lngYAxisDataItem = 3;
  Open(other);
  EXPECT_EQ(Boxes(), (Ids{43}));
  EXPECT_EQ(window->imgcboXAxis.Text(), "Sample No.");
  Open(clsScatterGraphPresets::BlankPreset());
  EXPECT_EQ(Boxes(), (Ids{}));
  EXPECT_EQ(window->imgcboXAxis.Text(), "RPM");
  EXPECT_EQ(window->cboPointSize.Text(), "1");
}

TEST_F(ScatterDetailsTest, SavesAndLoads) {
  host.answers.push_back({Answer::Kind::No});
  host.answers.push_back({Answer::Kind::Ok});  // the name proposed
  window->cmdSave.Press();
  EXPECT_TRUE(files.files["/logs/Boost.sca"].ends_with(
      "Graph 1 Filter 2 Data Item=15\r\nGraph 1 Filter 2 From=1\r\n"
      "Graph 1 Filter 2 To=9\r\n"));
  files.failWrites = true;
  host.answers.push_back({Answer::Kind::Yes});
  host.answers.push_back({Answer::Kind::Ok});
  window->cmdSave.Press();
  EXPECT_EQ(Boxes(), (Ids{-1, -1, 19}));

  Load(
      "Graph 1 Name=Knock\nGraph 1 X Axis=47\nGraph 1 Y Axis=20\nGraph 1 Filter 1 Data Item=48\n"
      "Graph 1 Filter 2 Data Item=3\nGraph 1 Filter 2 To=900\nGraph 1 Filter 3 Data Item=49");
  EXPECT_TRUE(host.messages.back().text.ends_with("\r\n\r\nX Axis: 47, Filters: 48, 49"));
  EXPECT_EQ(Boxes(), (Ids{92}));
  EXPECT_EQ(window->txtName.Text(), "Knock");
  EXPECT_EQ(window->imgcboXAxis.Text(), "Sample No.");
  EXPECT_EQ(window->imgcboYAxis.Text(), "Knock Sensor");
  EXPECT_EQ(Rows(), (Texts{"RPM - 900"}));
  EXPECT_TRUE(window->chkFileOpenDraw.Value());

  const std::string other =
      "Graph 1 Name=Other\nGraph 1 X Axis=3\nGraph 1 Y Axis=5\nGraph 1 Log Family=6";
  host.answers.push_back({Answer::Kind::No});
  Load(other);
  EXPECT_EQ(window->txtName.Text(), "Knock");
  host.answers.push_back({Answer::Kind::Yes});
  Load(other);
  EXPECT_EQ(Boxes(), (Ids{-1, -1}));
  EXPECT_EQ(window->txtName.Text(), "Other");
  EXPECT_EQ(window->cboLogFamily.ListIndex(), 0);
  host.answers.push_back({Answer::Kind::File, "/p/none.sca"});
  window->cmdLoad.Press();
  EXPECT_EQ(Boxes(), (Ids{58}));
}

}  // namespace
}  // namespace tarnview
