#include "ui/Chart.h"
#include "ui/Steps.h"

namespace tarnview {
namespace {

Surface TwoByThree() {
  Surface surface;
  surface.rows = {"100", "200"};
  surface.columns = {"00", "05", "10"};
  surface.values = {1, 2, 3, 4, 5, 6};
  surface.locked = {false, false, false, true, false, false};
  surface.view = {20, 240, 1};
  return surface;
}

PointCloud TwoPoints() {
  PointCloud cloud;
  cloud.x = cloud.y = cloud.sample = {1, 2};
  return cloud;
}

Curves TwoCurves() {
  return {{{3, "RPM", {0, 1}, {5, 6}, {255, 2, 30}}, {5, "MAP", {0, 1, 2}, {7, 8, 9}, {}}}};
}

class ChartTest : public StepsTest {
 protected:
  ChartTest() {
    const auto note = [this](const char* what) {
      return [this, what](double x, double y) {
        notes += std::string(what) + " " + NumberText(x) + "," + NumberText(y) + " ";
      };
    };
    chart.PointSelected = note("point");
    chart.Wheel = note("wheel");
    chart.Band = note("band");
    chart.Pan = note("pan");
    chart.Turn = note("turn");
    chart.Hover = [note](double x) { note("hover")(x, 0); };
    chart.HoverEnd = [this] { notes += "away "; };
    chart.DblClick = [this] { notes += "double "; };
    chart.RightClick = [this] { notes += "menu "; };
    chart.Watch([this](What what) { notes += what == What::Content ? "* " : ""; });
    const auto show = [this](auto kind) {
      return [this, kind](const Words&) {
        ChartDescription data;
        EXPECT_FALSE(data.colours.systemBackdrop);
        data.kind = kind;
        chart.SetData(data);
      };
    };
    verbs = {{"curves", show(TwoCurves())},
             {"cloud", show(TwoPoints())},
             {"surface", show(TwoByThree())},
             {"nothing", show(Curves())},
             {"view", [this](const Words& words) {
                chart.SetView({std::stoi(words[0]), std::stoi(words[1]), std::stod(words[2])});
              }}};
    state = [this] {
      std::string told = "@" + std::to_string(chart.SelectedSeries()) + "," +
                         std::to_string(chart.SelectedPoint());
      if (const Surface* surface = chart.Data().AsSurface())
        told += " from " + std::to_string(surface->view.rotation) + "," +
                std::to_string(surface->view.elevation) + " x" + NumberText(surface->view.zoom);
      return told;
    };
  }
  Chart chart{form, "chAny"};
};

TEST_F(ChartTest, HandsAndPointsOfEachKind) {
  ExpectSteps(chart, R"(
point 1 1 ->  cannot@0,0
curves; point 1 2; point 3 3 -> * point 1,2 point 3,3 @3,3
# Every other number is the second axis's; a curve ends with its points.
point 1 3; point 2 1; point 5 1; point 0 1; point -1 1; point 1 0 ->  cannot cannot cannot cannot cannot cannot@3,3
cloud; point 1 2; point 1 3; point 2 1; point 3 1 -> * point 1,2  cannot cannot cannot@1,2
surface; point 2 3; point 3 1; point 2 4; point 2 0 -> * point 2,3  cannot cannot cannot@2,3 from 20,240 x1
# A view from elsewhere keeps what is selected.
view 30 130 2; view 30 130 2 -> * @2,3 from 30,130 x2
turn 12.5 -3; wheel 1 2; band 1 2; pan 1 2; hover 3; hover; double; popup -> turn 12.5,-3 wheel 1,2 band 1,2 pan 1,2 hover 3,0 away double menu @2,3 from 30,130 x2
nothing; view 1 1 1 -> * @0,0
)");
}

TEST_F(ChartTest, TellsWhatItShows) {
  state = [this] { return Facts(); };
  ExpectSteps(chart, R"(
curves -> * caption=; chAny series count=2; chAny series[0] item=3; chAny series[0] name=RPM; chAny series[0] x=[0|1]; chAny series[0] y=[5|6]; chAny series[0] colour=255; chAny series[0] style=2; chAny series[0] width=3; chAny series[1] item=5; chAny series[1] name=MAP; chAny series[1] x=[0|1|2]; chAny series[1] y=[7|8|9]; chAny series[1] colour=0; chAny series[1] style=1; chAny series[1] width=1; chAny x_axis min=0; chAny x_axis max=1; chAny x_axis format=; chAny y_axis max=1; chAny y_axis divisions=10; chAny selected=[0|0]; 
cloud -> * caption=; chAny x_item=0; chAny y_item=0; chAny points count=2; chAny points[0]=[1|1|1]; chAny points[1]=[2|2|2]; chAny selected=[0|0]; 
surface -> * caption=; chAny title=; chAny subtitle=; chAny rotation=20; chAny elevation=240; chAny zoom=1; chAny count=2; chAny[1]=100; chAny[2]=200; chAny columns=[00|05|10]; chAny values count=2; chAny values[0]=[1|2|3]; chAny values[1]=[4|5|6]; chAny locked count=1; chAny locked[0]=[2|1]; chAny height_axis min=0; chAny height_axis max=1; chAny height_axis divisions=10; chAny selected=[0|0]; 
)");
}

}  // namespace
}  // namespace tarnview
