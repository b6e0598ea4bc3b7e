#pragma once

#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "model/Column.h"
#include "samplegraph/DrawnGraph.h"
#include "samplegraph/PlotRange.h"
#include "samplegraph/RedrawRequest.h"
#include "samplegraph/Selection.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {

/// A log of samples numbered from 1, its range boxes, and a draw that only notes which rows it
/// would show.
class GraphStandIn : public ::testing::Test {
 protected:
  void Open(int samples) {
    log.Clear(catalogue.gcolFixedDataItems, samples);
    for (int row = 0; row < samples; ++row)
      log.glngDataLog.Set(kSample, log.glngDataLog.AddRow(), row + 1);
    log.glngLastSample = samples - 1;
    log.glngFirstSampleTime = 1;
    log.glngLastSampleTime = samples;
    log.gblnSamplesLoaded = true;
    range.TakeLog();
  }
  void Type(std::int64_t from, std::int64_t to) {
    range.SetFrom(from);
    range.SetTo(to);
  }
  void Draw() {
    drawn.history.strPlotFromHistory = {range.FromText(), drawn.history.strPlotFromHistory[0]};
    drawn.history.strPlotToHistory = {range.ToText(), drawn.history.strPlotToHistory[0]};
    drawn.lngPlotFirstIndex = static_cast<std::int32_t>(range.From()) - 1;
    drawn.lngPlotLastIndex = static_cast<std::int32_t>(range.To()) - 1;
    drawn.lngPlotSpan = drawn.lngPlotLastIndex - drawn.lngPlotFirstIndex + 2;
    ++draws;
  }
  std::string Range() const { return range.FromText() + "-" + range.ToText(); }

  Catalogue catalogue = BuildDataItemCatalogue();
  RecordingHost host;
  Form window{host, "frmStandIn", ""};
  TextBox PlotRangeFrom{window, "PlotRangeFrom"};
  UpDown updPlotRangeFrom{window, "updPlotRangeFrom"};
  TextBox PlotRangeTo{window, "PlotRangeTo"};
  UpDown updPlotRangeTo{window, "updPlotRangeTo"};
  OpenLog log;
  DrawnGraph drawn;
  Selection selection;
  RedrawRequest redraw;
  PlotRange range{
      {PlotRangeFrom, updPlotRangeFrom, PlotRangeTo, updPlotRangeTo}, log, selection, redraw};
  int draws = 0;
};

}  // namespace tarnview
