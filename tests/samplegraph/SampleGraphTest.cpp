#include "WholeGraph.h"
#include "base/Numbers.h"
#include "samplegraph/SampleGraph.h"

namespace tarnview {
namespace {

using SampleGraphTest = WholeGraph;

std::string Told(const ChartDescription& chart) {
  std::string told;
  const auto add = [&](double number) { told += " " + FixedText(number, 3); };
  const auto axis = [&](const char* name, const ChartAxis& one) {
    told += name;
    for (const double number : {one.min, one.max, 1.0 * one.divisions}) add(number);
    told += " " + one.format + "\n";
  };
  for (const ChartSeries& one : chart.Series()) {
    told += std::to_string(one.id) + " " + one.name + ":";
    for (std::size_t i = 0; i < one.x.size(); ++i) {
      add(one.x[i]);
      add(one.y[i]);
    }
    told += "; " + std::to_string(one.pen.style) + " " + std::to_string(one.pen.width) + " " +
            std::to_string(one.pen.colour) + "\n";
  }
  axis("x", chart.x);
  axis("y", chart.y);
  return told;
}

TEST_F(SampleGraphTest, DrawsWhatIsTickedAsItsItemLooks) {
  OpenLog(50);
  catalogue.gcolFixedDataItems.Item(20).lngLineStyle = 2;
  log.glngDataLog.Set(kKnock, 2, 30);
  Draw("2", "4");
  EXPECT_EQ(Told(chSampleGraph.Data()), R"(20 Knock: 0.164 0.000 0.246 30.000 0.328 0.000; 2 30 255
3 RPM: 0.164 10.020 0.246 10.030 0.328 10.040; 1 30 4227072
x 0.164 0.328 10.000 #######0.00
y 0.000 35.000 7.000 #######0
)");
  EXPECT_EQ(chSampleGraph.SelectedPoint() * 10 + chSampleGraph.SelectedSeries(), 23);
  EXPECT_EQ(std::pair(chSampleGraph.Visible(), fraPicture.Visible()), std::pair(true, false));
  graph.Clear();
  EXPECT_EQ(std::pair(chSampleGraph.Visible(), fraPicture.Visible()), std::pair(false, true));
}

TEST_F(SampleGraphTest, TheFixedMaximumStandsOnAStepWithinItsLimits) {
  OpenLog(50);
  Do("click chkFixY");
  EXPECT_EQ(txtYMax.Text(), "250");
  EXPECT_EQ(Enabled(window, "txtYMax updYMax"), "txtYMax updYMax ");
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"90", "step updYMax up", "100"},
      {"15", "step updYMax down", "10"},
      {"2147483647", "step updYMax up", "1000"},
      {"-2147483648", "step updYMax down", "10"},
      {"33", "click chkQuickGraph", "33"}};
  for (const auto& [before, action, after] : rows) {
    txtYMax.Text = before;
    Do(action);
    EXPECT_EQ(txtYMax.Text(), after) << before;
  }
  graph.DrawGraphChecked();
  EXPECT_EQ(txtYMax.Text() + " " + std::to_string(chSampleGraph.Data().y.divisions), "35 7");
  txtYMax.Text = "40";
  Do("click chkFixY");
  EXPECT_EQ(Enabled(window, "txtYMax updYMax"), "");
  Do("click chkFixY");
  EXPECT_EQ(txtYMax.Text(), "40");
}

TEST_F(SampleGraphTest, ChecksTheRangeAsItWasTyped) {
  OpenLog(2000);
  chkQuickGraph.Value = false;
  const struct {
    const char *from, *to, *drawn;
    std::vector<int> messages;
  } kRows[] = {
      {"1", "1001", "1-1001", {}},       {"1", "1002", "2-1002", {1}},
      {"50", "20", "19-21", {}},         {"5000", "20", "19-21", {}},
      {"1900", "9999", "1-2000", {1}},   {"1990", "0", "1-2000", {}},
      {"1990", "1990", "1990-1992", {}}, {"2000", "2000", "1998-2000", {}},
      {"12abc", "40", "12abc-40", {}},
  };
  for (const auto& row : kRows) {
    Draw(row.from, row.to);
    EXPECT_EQ(Range(), row.drawn) << row.from << " " << row.to;
    EXPECT_EQ(Boxes(), row.messages) << row.from << " " << row.to;
  }
}

TEST_F(SampleGraphTest, WithNothingCheckedItSaysSoAndKeepsTheGraph) {
  OpenLog(50);
  graph.DrawGraphChecked();
  for (int row = 1; row <= lvwSampleDetails.Count(); ++row) lvwSampleDetails.SetChecked(row, false);
  graph.DrawGraphChecked();
  EXPECT_EQ(Boxes(), (std::vector<int>{10}));
  EXPECT_EQ(chSampleGraph.Data().Series().at(0).x.size(), 50u);
}

TEST_F(SampleGraphTest, AnUnchangedGraphIsNotBuiltAgain) {
  OpenLog(50);
  int built = 0;
  chSampleGraph.Watch([&](What what) { built += what == What::Content; });
  graph.DrawGraphChecked();
  graph.DrawGraphChecked();
  EXPECT_EQ(built, 1);
  chkFixY.Value = true;
  graph.DrawGraphChecked();
  EXPECT_EQ(built, 2);
  EXPECT_EQ(chSampleGraph.Data().y.max, 240);
  Draw("1", "40");
  EXPECT_EQ(built, 3);
}

TEST_F(SampleGraphTest, AnItemThatIsNotPlottableLosesItsCheck) {
  OpenLog(50);
  lvwSampleDetails.Do({"tick", {"Sample", "on"}});
  EXPECT_FALSE(lvwSampleDetails.At(1).checked);
}

TEST_F(SampleGraphTest, HiddenRowsKeepTheirChecks) {
  catalogue.gcolFixedDataItems.Item(36).blnDisplay = false;
  OpenLog(50);
  EXPECT_EQ(lvwSampleDetails.RowOfTag("36"), 0);
  const auto checked = details.CheckedItems();
  const int all = lvwSampleDetails.Count();
  EXPECT_EQ(ItemsOfRows(lvwSampleDetails).size(), static_cast<std::size_t>(all));
  chkShowCheckedOnly.Value = true;
  EXPECT_EQ(lvwSampleDetails.Count(), static_cast<int>(checked.size()));
  details.SelectItem(20);
  EXPECT_EQ(lvwSampleDetails.SelectedRow(), 1);
  details.SelectItem(5);  // has no row
  EXPECT_EQ(lvwSampleDetails.SelectedRow(), 1);
  lvwSampleDetails.Do({"tick", {"RPM", "off"}});
  chkShowCheckedOnly.Value = false;
  EXPECT_EQ(lvwSampleDetails.Count(), all);
  EXPECT_EQ(details.CheckedItems().size(), checked.size() - 1);
}

}  // namespace
}  // namespace tarnview
