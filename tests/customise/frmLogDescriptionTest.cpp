#include <gtest/gtest.h>

#include "customise/frmLogDescription.h"
#include "model/Catalogue.h"
#include "ui/RecordingHost.h"
#include "universal/BuiltInTitles.h"
#include "universal/DefinitionWriter.h"

namespace tarnview {
namespace {

class LogDescription : public ::testing::Test {
 protected:
  RecordingHost host;
  const Catalogue catalogue = BuildDataItemCatalogue();
  const TitleDictionary titles{BuiltInTitles()};
  frmLogDescription window{
      host, "made up\nTime;RPM;Speed;Odd\ns;rpm;km/h;\n0;900;30;1,5\n1;950;31;1,6\n2;980;32;1,7\n",
      "/logs/my run.csv", titles, catalogue.gcolFixedDataItems};

  /// Kind of each line of the head, then the item of each column: "Preamble Titles ... | Secs RPM
  /// ..."
  std::string Shown() const {
    std::string text;
    for (const auto& row : window.lvwHead.Rows()) text += row.texts[1] + " ";
    text += "|";
    for (const auto& row : window.lvwColumns.Rows())
      text += " " + row.texts[0] + ":" + row.texts[5];
    return text;
  }
};

TEST_F(LogDescription, ShowsWhatWasFound) {
  EXPECT_EQ(Shown(),
            "Preamble Titles Units Data Data Data | Time:Secs RPM:RPM Speed:Speed Odd:Own");
  EXPECT_EQ(window.cboDelimiter.Text() + window.cboDecimalSign.Text() + window.cboTimeForm.Text(),
            "semicolonCommaSeconds");
  EXPECT_EQ(window.txtTitleLine.Text() + window.txtUnitsLine.Text() + window.txtDataLine.Text(),
            "234");
  EXPECT_EQ(window.cboTimeColumn.Text(), "Time");
  EXPECT_FALSE(window.txtLineFrequency.Enabled());
  EXPECT_EQ(window.txtName.Text(), "my run");
  EXPECT_EQ(window.lvwColumns.SelectedRow(), 2);
  std::string speed;
  for (const std::string& text : window.lvwColumns.Rows()[2].texts) speed += text + "|";
  EXPECT_EQ(speed, "Speed|km/h|30  31  32|30|32|Speed|x 0.6214|1|Yes|");
}

TEST_F(LogDescription, AChoiceIsFollowedAtOnce) {
  window.txtUnitsLine.Do({"type", {""}});
  EXPECT_EQ(Shown(),
            "Preamble Titles Preamble Data Data Data | Time:Secs RPM:RPM Speed:Speed Odd:Own");
  window.cboTimeColumn.SetListIndex(0);
  window.cboTimeColumn.Click();
  EXPECT_EQ(Shown(),
            "Preamble Titles Preamble Data Data Data | Time:Own RPM:RPM Speed:Speed Odd:Own");
  EXPECT_TRUE(window.txtLineFrequency.Enabled());
  window.txtLineFrequency.Do({"type", {"25"}});
  EXPECT_EQ(window.Definition().dblLineFrequency, 25);
}

TEST_F(LogDescription, AColumnIsEditedAndKeptThroughChoices) {
  window.lvwColumns.UserSelects(4);
  EXPECT_EQ(window.cboItem.Text(), "An item of the log's own");
  window.cboItem.Do({"choose", {"MAP"}});
  window.txtFactor.Do({"type", {"100"}});
  window.txtDecimals.Do({"type", {"9"}});
  window.cboTimeForm.Do({"choose", {"Minutes"}});
  EXPECT_EQ(Shown(),
            "Preamble Titles Units Data Data Data | Time:Secs RPM:RPM Speed:Speed Odd:MAP");
  const clsDataLog definition = window.Definition();
  const clsDataLogColumn& column = definition.objColumns.Item(4);
  EXPECT_EQ(column.lngDataItemID, 5);
  EXPECT_EQ(column.dblConversionFactor, 100);
  EXPECT_EQ(column.lngColumnDecimalPlaces, 5);
  EXPECT_EQ(definition.strTimeForm, "MINUTES");
}

TEST_F(LogDescription, TheTimeIsNoItemToChoose) {
  window.lvwColumns.UserSelects(1);
  EXPECT_FALSE(window.cboItem.Enabled());
}

TEST(LogDescriptionOfRubbish, CannotBeAccepted) {
  RecordingHost host;
  const Catalogue catalogue = BuildDataItemCatalogue();
  const TitleDictionary titles;
  const frmLogDescription window(host, "no log\nat all\n", "/x", titles,
                                 catalogue.gcolFixedDataItems);
  EXPECT_FALSE(window.cmdOK.Enabled());
}

}  // namespace
}  // namespace tarnview
