#pragma once

#include <cmath>
#include <string>

#include "GraphWithList.h"
#include "samplegraph/GraphMouse.h"
#include "samplegraph/PointHighlight.h"
#include "samplegraph/SampleGraph.h"
#include "samplegraph/Zoom.h"
#include "support/WindowActions.h"

namespace tarnview {

/// The parts of the Sample Graph put together as the main window does it, over samples that are
/// 81.92 ms apart. RPM is 1000 and the sample's number; RPM and Knock are ticked.
class WholeGraph : public GraphWithList,
                   protected SampleGraph::MainWindow,
                   protected PointHighlight::MainWindow,
                   protected GraphMouse::MainWindow,
                   protected Zoom::MainWindow {
 protected:
  WholeGraph() {
    chkQuickGraph.Value = true;
    cmdZoomFull.Click = [this] { zoom.cmdZoomFull_Click(); };
  }
  void OpenLog(int samples) {
    details.SetUpSampleGraphSampleListView(kFMLinkLog, catalogue.gcolFixedDataItems);
    details.SetCheckedItems({3, 20});
    Open(samples);
    for (int row = 0; row < samples; ++row) {
      log.glngDataLog.Set(kSecs, row, static_cast<int>(std::lround((row + 1) * 819.2)));
      log.glngDataLog.Set(kRPM, row, 1001 + row);
    }
    log.gintCurrentFileType = kFMLinkLog;
    log.gstrCurrentFile = "/logs/run.txt";
    redraw.Force();
  }
  void Draw(const std::string& from, const std::string& to) {
    PlotRangeFrom.Text = from;
    PlotRangeTo.Text = to;
    graph.DrawGraphChecked();
  }
  void Do(const std::string& actions) { Act(window, actions); }
  std::string Said() const { return bar.Panel(1); }
  std::string Shown(const char* item) const {
    return lvwSampleDetails.At(lvwSampleDetails.RowOfTag(item)).texts[1];
  }
  /// The ids of the boxes since the last call.
  std::vector<int> Boxes() {
    std::vector<int> ids;
    for (const Box& box : host.messages) ids.push_back(box.id);
    host.messages.clear();
    return ids;
  }

  void SetUpScrollBar() override {}
  void GraphDrawn() override {}
  void ScrollOneStep(int) override {}
  void SampleShown(std::int32_t) override {}
  void DrawGraphChecked() override { graph.DrawGraphChecked(); }
  void DrawSampleGraph() override { graph.DrawSampleGraph(); }
  void DrawSampleGraphAfter(const RangeHistory& history) override {
    graph.DrawSampleGraphAfter(history);
  }

  Settings settings;
  Messages messages{host, [](int) { return ""; }};
  CheckBox chkQuickGraph{window, "chkQuickGraph", ""};
  CheckBox chkFixY{window, "chkFixY", ""};
  TextBox txtYMax{window, "txtYMax"};
  UpDown updYMax{window, "updYMax"};
  ComboBox cboZoomAmount{window, "cboZoomAmount", true};
  CommandButton cmdZoomFull{window, "cmdZoomFull", ""};
  Frame fraPicture{window, "fraPicture"};
  SampleGraph graph{
      window,
      {lvwSampleDetails, chkQuickGraph, chkFixY, txtYMax, updYMax, chSampleGraph, fraPicture},
      range,
      {drawn, selection, redraw},
      log,
      settings,
      status,
      messages,
      *this};
  PointHighlight highlight{{chSampleGraph}, drawn, selection, range, log, details, status, *this};
  Zoom zoom{{cboZoomAmount, chkQuickGraph}, drawn, selection, range, log, messages, *this};
  GraphMouse mouse{
      {chSampleGraph, chkQuickGraph, cmdZoomFull}, drawn, selection, range, log, highlight, *this};
};

}  // namespace tarnview
