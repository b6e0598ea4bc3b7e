#include <gtest/gtest.h>

#include "ui/Chart.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class ChartTest : public testing::Test {
 protected:
  ChartTest() {
    chart.PointSelected = [this](int series, int point) {
      notes += std::to_string(series) + "," + std::to_string(point) + " ";
    };
  }
  /// "yes" for each point that can be selected.
  bool Takes(int series, int point) {
    try {
      chart.Do({"point", {std::to_string(series), std::to_string(point)}});
      return true;
    } catch (const CannotDo&) {
      return false;
    }
  }

  RecordingHost host;
  Form form{host, "frmChart", "Chart"};
  Chart chart{form, "chAny"};
  std::string notes;
};

Surface TwoByThree() {
  Surface surface;
  surface.rows = {"100", "200"};
  surface.columns = {"00", "05", "10"};
  surface.values = {1, 2, 3, 4, 5, 6};
  surface.locked = {false, false, false, true, false, false};
  surface.view = {20, 240, 1};
  return surface;
}

TEST_F(ChartTest, EachKindHasItsOwnSeriesAndPoints) {
  ChartDescription data;
  EXPECT_FALSE(data.colours.systemBackdrop);
  data.kind = Curves{{{3, "RPM", {0, 1}, {5, 6}, {}}, {5, "MAP", {0, 1, 2}, {7, 8, 9}, {}}}};
  chart.SetData(data);
  EXPECT_TRUE(Takes(1, 2) && Takes(3, 3));
  EXPECT_FALSE(Takes(1, 3) || Takes(2, 1) || Takes(5, 1) || Takes(0, 1) || Takes(-1, 1) ||
               Takes(1, 0));
  PointCloud cloud;
  cloud.x = cloud.y = cloud.sample = {1, 2};
  data.kind = cloud;
  chart.SetData(data);
  EXPECT_TRUE(Takes(1, 2));
  EXPECT_FALSE(Takes(1, 3) || Takes(2, 1) || Takes(3, 1));
  data.kind = TwoByThree();
  chart.SetData(data);
  EXPECT_TRUE(Takes(2, 3));
  EXPECT_FALSE(Takes(3, 1) || Takes(2, 4) || Takes(2, 0));
  EXPECT_EQ(notes, "1,2 3,3 1,2 2,3 ");
}

TEST_F(ChartTest, AViewFromElsewhereKeepsWhatIsSelected) {
  ChartDescription data;
  data.kind = TwoByThree();
  chart.SetData(data);
  chart.SelectPoint(2, 1);
  int changes = 0;
  chart.Watch([&](What what) { changes += what == What::Content; });
  chart.SetView({30, 130, 2});
  chart.SetView({30, 130, 2});
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(chart.SelectedSeries(), 2);
  EXPECT_EQ(chart.Data().AsSurface()->view, (SurfaceView{30, 130, 2}));
  std::string turned;
  chart.Turn = [&](double right, double up) {
    turned = std::to_string(right) + " " + std::to_string(up);
  };
  chart.Do({"turn", {"12.5", "-3"}});
  EXPECT_EQ(turned, "12.500000 -3.000000");
  chart.SetData({});
  chart.SetView({1, 1, 1});  // no surface
  EXPECT_TRUE(chart.Data().Series().empty());
}

TEST_F(ChartTest, ASurfaceTellsItsTableItsLabelsAndItsAngles) {
  ChartDescription data;
  data.kind = TwoByThree();
  const Object facts = Describe(data);
  std::string names;
  for (const auto& [name, value] : facts) names += name + " ";
  EXPECT_EQ(names,
            "title subtitle rotation elevation zoom rows columns values locked height_axis ");
  const auto at = [&](std::size_t place) { return std::get<List>(facts[place].second.Get()); };
  const auto rows = at(7);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(std::get<double>(std::get<List>(rows[1].Get())[2].Get()), 6);
  const auto locked = std::get<List>(at(8)[0].Get());
  EXPECT_EQ(std::get<long long>(locked[0].Get()), 2);
  EXPECT_EQ(std::get<long long>(locked[1].Get()), 1);
  EXPECT_EQ(at(8).size(), 1u);
}

}  // namespace
}  // namespace tarnview
