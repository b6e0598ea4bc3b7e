#include "GraphStandIn.h"
#include "samplegraph/Zoom.h"

namespace tarnview {
namespace {

class ZoomTest : public GraphStandIn, protected Zoom::MainWindow {
 protected:
  void DrawSampleGraph() override { Draw(); }
  void DrawGraphChecked() override { Draw(); }

  ComboBox cboZoomAmount{window, "cboZoomAmount", true};
  CheckBox chkQuickGraph{window, "chkQuickGraph", ""};
  Messages messages{host, {}};
  Zoom zoom{{cboZoomAmount, chkQuickGraph}, drawn, selection, range, log, messages, *this};
};

TEST_F(ZoomTest, ZoomsAboutTheSelectedPointOrTheMiddle) {
  Open(5000);
  const struct {
    std::int64_t from, to;
    int point;
    const char* amount;
    void (Zoom::*press)();
    bool quick;
    const char* range;
    int messages;
  } kRows[] = {
      // The selected point's own number counts, one row further on than its sample.
      {501, 601, 51, "2", &Zoom::cmdZoomIn_Click, true, "527-577", 0},
      {501, 601, 0, "2", &Zoom::cmdZoomIn_Click, true, "526-576", 0},
      {501, 601, 51, "10", &Zoom::cmdZoomIn_Click, true, "547-557", 0},
      {501, 601, 51, "100", &Zoom::cmdZoomIn_Click, true, "552-554", 0},
      {501, 601, 51, "101", &Zoom::cmdZoomIn_Click, true, "527-577", 0},
      {501, 601, 51, "1", &Zoom::cmdZoomIn_Click, true, "527-577", 0},
      {1, 101, 1, "2", &Zoom::cmdZoomIn_Click, true, "1-27", 0},
      {4900, 5000, 101, "2", &Zoom::cmdZoomIn_Click, true, "4975-5000", 0},
      {1, 101, 0, "2", &Zoom::cmdZoomIn_Click, true, "26-76", 0},
      {501, 601, 51, "3", &Zoom::cmdZoomOut_Click, true, "402-702", 0},
      {101, 201, 51, "4", &Zoom::cmdZoomOut_Click, true, "1-352", 0},
      {4800, 4900, 51, "4", &Zoom::cmdZoomOut_Click, true, "4651-5000", 0},
      {2001, 2801, 0, "2", &Zoom::cmdZoomOut_Click, false, "1901-2901", 1},
      {2001, 2101, 0, "2", &Zoom::cmdZoomFull_Click, true, "1-5000", 0},
      {2001, 2101, 0, "2", &Zoom::cmdZoomFull_Click, false, "2001-3000", 1},
  };
  for (const auto& row : kRows) {
    Type(row.from, row.to);
    Draw();
    selection.Select(1, row.point, 3);
    cboZoomAmount.Text = row.amount;
    chkQuickGraph.Value = row.quick;
    host.messages.clear();
    (zoom.*row.press)();
    EXPECT_EQ(Range(), row.range) << row.from << " " << row.point << " x " << row.amount;
    EXPECT_EQ(drawn.lngPlotLastIndex + 1, range.To()) << "drawn";
    EXPECT_EQ(host.messages.size(), static_cast<std::size_t>(row.messages)) << row.range;
  }
}

TEST_F(ZoomTest, MayRunWhereItDoesSomething) {
  Open(5000);
  for (const auto& [from, to, in, out] : {std::tuple{1, 5000, true, false},
                                          {1, 4999, true, true},
                                          {11, 21, true, true},
                                          {11, 20, false, true}}) {
    Type(from, to);
    EXPECT_EQ(zoom.CanZoomIn(), in) << to;
    EXPECT_EQ(zoom.CanZoomOut(), out) << to;
  }
}

TEST_F(ZoomTest, PreviousGraphSwapsTheTwoLast) {
  Open(5000);
  Type(1, 5000);
  Draw();
  EXPECT_FALSE(zoom.HasPrevious());
  zoom.ShowPreviousGraph();
  EXPECT_EQ(draws, 1);
  Type(501, 601);
  Draw();
  selection.Highlight(550);
  for (const char* shown : {"1-5000", "501-601", "1-5000"}) {
    EXPECT_TRUE(zoom.HasPrevious());
    zoom.ShowPreviousGraph();
    EXPECT_EQ(Range(), shown);
    EXPECT_EQ(selection.lngHighlightSample(), 0);
  }
}

TEST_F(ZoomTest, AnAmountOutsideTheBoxBecomesTwo) {
  for (const auto& [typed, taken] :
       {std::pair{"1", "2"}, {"2", "2"}, {"100", "100"}, {"101", "2"}, {"x", "2"}, {"7", "7"}}) {
    cboZoomAmount.Do({"type", {typed}});
    window.SetFocus(nullptr);
    EXPECT_EQ(cboZoomAmount.Text(), taken) << typed;
  }
}

}  // namespace
}  // namespace tarnview
