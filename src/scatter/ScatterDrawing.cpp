#include "scatter/ScatterDrawing.h"

#include <algorithm>

#include "base/Text.h"
#include "desk/ColourScheme.h"
#include "presets/ScatterFilters.h"
#include "scatter/ScatterPoints.h"
#include "scatter/ScatterScale.h"

namespace tarnview {
namespace {

constexpr const char* kWhatHelps =
    "Too many samples for a graph without a filter: add a filter, or choose Draw All";

}  // namespace

ScatterDrawing::ScatterDrawing(Form& window, const Controls& controls,
                               const Surroundings& surroundings)
    : window_(window),
      controls_(controls),
      log_(surroundings.log),
      settings_(surroundings.settings),
      status_(surroundings.status),
      messages_(surroundings.messages),
      errors_(surroundings.errors) {
  Clear();
}

void ScatterDrawing::Clear() {
  controls_.chScatterGraph.SetData({});
  controls_.chScatterGraph.Enabled = controls_.chScatterGraph.Visible = false;
  controls_.fraPicture.Visible = true;
  controls_.lblEmptyPlace.Caption = std::string("Choose two data items and press Draw");
  controls_.fraSampleDetails.Enabled = false;
}

void ScatterDrawing::DrawScatter(const ScatterRequest& request, bool blnQuiet) {
  Clear();
  status_.SayLoaded("");
  TrapEvent(errors_, "frmScatterGraph", "DrawScatter", [&] {
    const AtWork work(window_, status_);
    status_.Say("Preparing to draw graph");
    if (MayBuild(request, blnQuiet)) Build(request, blnQuiet);
  });
  window_.host.DoEvents();
}

/// False: too many samples without a filter, and the user does not want them all.
bool ScatterDrawing::MayBuild(const ScatterRequest& request, bool blnQuiet) {
  if (!RangeOfFilters(log_, request.objFilters).tooWide) return true;
  bool drawAll = false;
  if (!blnQuiet)
    messages_.ShowMessageWithOffer(Message::TooManyScatterSamples, "", "Draw &All",
                                   [&] { drawAll = true; });
  if (drawAll) return true;
  status_.Say(kWhatHelps);
  controls_.lblEmptyPlace.Caption = std::string(kWhatHelps);
  return false;
}

void ScatterDrawing::Build(const ScatterRequest& request, bool blnQuiet) {
  const ScatterRange range = RangeOfFilters(log_, request.objFilters);
  const std::int32_t span = std::max(range.to - range.from, 1);
  status_.ShowProgressInStatusBar(span);
  rows_ = PassingRows(log_, range, request.objFilters, [&](std::int32_t row) {
    status_.Progress("Examining log line " + log_.FormatDataItem(ItemOf(kSample), row),
                     std::clamp(log_.Sample(row) - range.from, 0, span));
  });
  if (rows_.empty()) {
    status_.Say("");
    if (!blnQuiet) messages_.ShowMessage(Message::NothingMatches);
    return;
  }
  status_.ProgressFull();
  status_.Say("Drawing graph - please wait");
  ofOpenLog_ = true;
  strGraphedFile_ = log_.gstrCurrentFile;
  filters_.clear();
  for (const clsScatterFilter& filter : request.objFilters)
    filters_.push_back(FilterPrintString(filter, *log_.gcolDataItems));
  controls_.chScatterGraph.SetData(Describe(request));
  controls_.fraPicture.Visible = false;
  controls_.chScatterGraph.Enabled = controls_.chScatterGraph.Visible = true;
  controls_.fraSampleDetails.Enabled = true;
  status_.Say("Graph draw complete");
  status_.SayLoaded(Counted(rows_.size(), "point"));
}

ChartDescription ScatterDrawing::Describe(const ScatterRequest& request) const {
  const auto title = [&](int item) { return log_.gcolDataItems->Item(item).strLongName; };
  ChartDescription chart;
  PointCloud& cloud = chart.kind.emplace<PointCloud>();
  cloud.xItem = request.xItem;
  cloud.yItem = request.yItem;
  cloud.x = ValuesOf(log_, request.xItem, rows_);
  cloud.y = ValuesOf(log_, request.yItem, rows_);
  cloud.sample.resize(rows_.size());
  std::transform(rows_.begin(), rows_.end(), cloud.sample.begin(),
                 [&](std::int32_t row) { return log_.Sample(row); });
  cloud.shape = static_cast<PointShape>(request.style.lngPointShape);
  cloud.size = request.style.lngPointSize;
  cloud.colour = request.style.lngPointColour;
  Colour(cloud, request);
  chart.x = AutomaticAxis(cloud.x, title(request.xItem));
  chart.y = AutomaticAxis(cloud.y, title(request.yItem));
  SetGraphColourScheme(chart, settings_.gintGraphColourScheme);
  chart.facts = {{"filters", MakeList(filters_)}};
  return chart;
}

void ScatterDrawing::Colour(PointCloud& cloud, const ScatterRequest& request) const {
  cloud.density = request.density;
  cloud.tint.clear();
  if (request.tintItem == 0) return;
  cloud.tint = ValuesOf(log_, request.tintItem, rows_);
  cloud.tintAxis =
      AutomaticAxis(cloud.tint, log_.gcolDataItems->Item(request.tintItem).strLongName);
}

void ScatterDrawing::Recolour(const ScatterRequest& request) {
  if (!OfOpenLog()) return;
  Chart& chart = controls_.chScatterGraph;
  const int point = chart.SelectedPoint();
  ChartDescription data = chart.Data();
  Colour(std::get<PointCloud>(data.kind), request);
  chart.SetData(std::move(data));
  if (point > 0) chart.SelectPoint(1, point);
}

void ScatterDrawing::TakeColourScheme() {
  if (Drawn())
    tarnview::TakeColourScheme(controls_.chScatterGraph, settings_.gintGraphColourScheme);
}

}  // namespace tarnview
