#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "base/Numbers.h"
#include "model/Catalogue.h"
#include "model/clsFileTypes.h"
#include "samplegraph/GraphMouse.h"
#include "samplegraph/PointHighlight.h"
#include "samplegraph/SampleGraph.h"
#include "samplegraph/Scrolling.h"
#include "samplegraph/Zoom.h"
#include "support/AddSample.h"
#include "support/Table.h"
#include "ui/ProgressBar.h"
#include "ui/RecordingHost.h"
#include "ui/Script.h"
#include "ui/ScriptUser.h"

namespace tarnview {

/// The parts of the Sample Graph put together as the main window does it, over samples from 1 that
/// are 81.92 ms apart. RPM is 1000 and the sample's number; RPM and Knock are ticked.
class WholeGraph : public ::testing::Test,
                   protected SampleGraph::MainWindow,
                   protected PointHighlight::MainWindow,
                   protected GraphMouse::MainWindow,
                   protected Zoom::MainWindow,
                   protected Scrolling::MainWindow {
 protected:
  WholeGraph() {
    window.Show();
    chkQuickGraph.Value = true;
    cmdZoomFull.Click = [this] { zoom.cmdZoomFull_Click(); };
  }
  void OpenLog(int samples) {
    details.SetUpSampleGraphSampleListView(kFMLinkLog, catalogue.gcolFixedDataItems);
    details.SetCheckedItems({3, 20});
    log.Clear(catalogue.gcolFixedDataItems, samples);
    for (int n = 1; n <= samples; ++n)
      AddSample(
          log, {{kSample, n}, {kSecs, static_cast<int>(std::lround(n * 819.2))}, {kRPM, 1000 + n}});
    log.gintCurrentFileType = kFMLinkLog;
    log.gstrCurrentFile = "/logs/run.txt";
    range.TakeLog();
    scrolling.TakeLog();
    redraw.Force();
  }
  void Draw(const std::string& from, const std::string& to) {
    PlotRangeFrom.Text = from;
    PlotRangeTo.Text = to;
    graph.DrawGraphChecked();
  }
  /// What a user does, "type txtYMax 7; click chkFixY", and verbs for what buttons call. "@1101" is
  /// the time of that sample.
  void Do(const std::string& steps) {
    for (ScriptLine& line : ParseScript(Join(Split(steps, ';'), "\n"))) {
      for (std::string& word : line.words)
        if (word[0] == '@') word = FixedText(std::stod(word.substr(1)) * 0.08192, 6);
      if (const auto own = verbs.find(line.words[0]); own != verbs.end())
        own->second();
      else if (!user.Do(line.words))
        user.Work(line.words);
    }
  }
  /// Rows of a range to draw, of what is done then, or of both; some facts of what comes of it.
  void ExpectFacts(const std::vector<std::string>& told, const std::string& table,
                   int line = __builtin_LINE(), const char* source = __builtin_FILE()) {
    const auto tell = [&](const TableRow& row) {
      if (row.Count() > 1) Draw(row.Text(0), row.Text(1));
      if (row.Count() != 2) Do(row.Words().back());
      std::string all;
      for (const std::string& fact : told) all += facts.at(fact)();
      return all;
    };
    ExpectTable(tell, table, source, line);
  }
  std::string Range() const { return range.FromText() + "-" + range.ToText(); }
  /// The ids of the boxes since the last call, " [1]" each.
  std::string Boxes() {
    std::string told;
    for (const Box& box : std::exchange(host.messages, {}))
      told += " [" + std::to_string(box.id) + "]";
    return told;
  }
  std::string Shown(const char* item) const {
    return lvwSampleDetails.At(lvwSampleDetails.RowOfTag(item)).texts[1];
  }
  /// The data items ticked in the list, " 3 20".
  std::string Ticked() const {
    std::string items;
    for (const auto& row : lvwSampleDetails.Rows())
      if (row.checked) items += " " + row.tag;
    return items;
  }

  void SetUpScrollBar() override { scrolling.SetUp(); }
  void GraphDrawn() override {}
  void ScrollOneStep(int direction) override { scrolling.ScrollOneStep(direction); }
  void SampleShown(std::int32_t) override {}
  void DrawGraphChecked() override { graph.DrawGraphChecked(); }
  void DrawSampleGraph() override { graph.DrawSampleGraph(); }
  void DrawSampleGraphAfter(const RangeHistory& history) override {
    graph.DrawSampleGraphAfter(history);
  }

  Catalogue catalogue = BuildDataItemCatalogue();
  FileKinds kinds = SetUpLogFamilies();
  RecordingHost host;
  ScriptUser user{host};
  Messages messages{host, [](int) { return ""; }};
  Settings settings;
  tarnview::OpenLog log;
  DrawnGraph drawn;
  Selection selection;
  RedrawRequest redraw;
  Form window{host, "frmStandIn", ""};
  TextBox PlotRangeFrom{window, "PlotRangeFrom"}, PlotRangeTo{window, "PlotRangeTo"};
  UpDown updPlotRangeFrom{window, "updPlotRangeFrom"}, updPlotRangeTo{window, "updPlotRangeTo"};
  ListView lvwSampleDetails{window, "lvwSampleDetails", {{"Item"}, {"Value", true}}, true};
  CheckBox chkShowCheckedOnly{window, "chkShowCheckedOnly", ""};
  CheckBox chkQuickGraph{window, "chkQuickGraph", ""}, chkFixY{window, "chkFixY", ""};
  TextBox txtYMax{window, "txtYMax"};
  UpDown updYMax{window, "updYMax"};
  ComboBox cboZoomAmount{window, "cboZoomAmount", true};
  CommandButton cmdZoomFull{window, "cmdZoomFull", ""};
  Frame fraPicture{window, "fraPicture"};
  Chart chSampleGraph{window, "chSampleGraph"};
  ScrollBar bar{window, "bar"}, longBar{window, "longBar"};
  StatusBar foot{window, "foot", 3};
  ProgressBar progress{window, "progress"};
  StatusArea status{window, foot, progress};
  PlotRange range{
      {PlotRangeFrom, updPlotRangeFrom, PlotRangeTo, updPlotRangeTo}, log, selection, redraw};
  SampleDetails details{{lvwSampleDetails, chkShowCheckedOnly, chSampleGraph},
                        drawn,
                        selection,
                        log,
                        kinds.gcolLogFamilies};
  SampleGraph graph{
      window,
      {lvwSampleDetails, chkQuickGraph, chkFixY, txtYMax, updYMax, chSampleGraph, fraPicture},
      {log, range, drawn, selection, redraw},
      {settings, status, messages},
      *this};
  const Plotted plotted{log, range, drawn, selection};
  PointHighlight highlight{{chSampleGraph}, plotted, details, status, *this};
  Zoom zoom{{cboZoomAmount, chkQuickGraph}, plotted, messages, *this};
  GraphMouse mouse{{chSampleGraph, chkQuickGraph, cmdZoomFull}, plotted, highlight, *this};
  Scrolling scrolling{{bar, longBar}, plotted, *this};

  std::map<std::string, std::function<void()>> verbs = {
      {"draw", [this] { graph.DrawGraphChecked(); }},
      {"in", [this] { zoom.cmdZoomIn_Click(); }},
      {"out", [this] { zoom.cmdZoomOut_Click(); }},
      {"back", [this] { zoom.ShowPreviousGraph(); }},
      {"left", [this] { scrolling.ScrollLeft(); }},
      {"right", [this] { scrolling.ScrollRight(); }},
      {"page_left", [this] { scrolling.PageLeft(); }},
      {"page_right", [this] { scrolling.PageRight(); }},
      {"start", [this] { scrolling.ScrollStart(); }},
      {"finish", [this] { scrolling.ScrollFinish(); }},
      {"point_left", [this] { highlight.cmdDataPointLeft_Click(); }},
      {"point_right", [this] { highlight.cmdDataPointRight_Click(); }},
      {"lower", [this] { highlight.MoveBetweenSeries(-1); }},
      {"higher", [this] { highlight.MoveBetweenSeries(1); }},
      {"no_point", [this] { selection.ForgetPoint(); }},
      {"leave", [this] { window.SetFocus(nullptr); }},
  };
  std::map<std::string, std::function<std::string()>> facts = {
      {"range", [this] { return Range(); }},
      {"boxes", [this] { return Boxes(); }},
      {"sample", [this] { return " sample " + std::to_string(selection.lngHighlightSample()); }},
      {"foot", [this] { return foot.Panel(1); }},
      {"whole", [this] { return TextIf(range.IsWholeLog(), " whole"); }},
      {"edited", [this] { return TextIf(redraw.TakeRangeEdited(), " edited"); }},
      {"ways",
       [this] {
         return TextIf(scrolling.CanGoLeft(), " left") + TextIf(scrolling.CanGoRight(), " right");
       }},
      {"zooms",
       [this] {
         return TextIf(zoom.CanZoomIn(), "in") + TextIf(zoom.CanZoomOut(), " out") +
                TextIf(zoom.HasPrevious(), " back");
       }},
      {"ticked", [this] { return " ticked" + Ticked(); }},
  };
};

}  // namespace tarnview
