#include "app/ScatterWindows.h"

#include <memory>

#include "samplegraph/SampleListView.h"

namespace tarnview {

ScatterWindows::ScatterWindows(MainWindowControls& controls, Globals& globals, Services& services,
                               const PlotRange& range, StatusArea& status,
                               SampleGraphWindow& mainWindow)
    : controls_(controls),
      globals_(globals),
      services_(services),
      range_(range),
      status_(status),
      mainWindow_(mainWindow) {}

std::vector<Command> ScatterWindows::Rows() {
  return {
      {&controls_.mnuFileDrawScatter, [this] { mnuFileDrawScatter_Click(); }, {}},
      {&controls_.mnuModulesScatterGraph, [this] { OpenScatterGraph(); },
       [this] { return globals_.log.gblnSamplesLoaded; }},
  };
}

frmScatterGraph& ScatterWindows::NewScatterGraph() {
  const int number = windows_.NextNumber();
  const frmScatterGraph::Surroundings around{globals_.kinds,
                                             globals_.catalogue,
                                             globals_.log,
                                             globals_.settings,
                                             globals_.gcolScatterGraphPresets,
                                             services_.files,
                                             services_.errors,
                                             services_.messages};
  frmScatterGraph::MainWindow& self = *this;
  frmScatterGraph& window =
      windows_.Add(std::make_unique<frmScatterGraph>(services_.host, around, self));
  window.ID = number;
  window.Cascade = windows_.Count() - 1;
  return window;
}

frmScatterGraph& ScatterWindows::OpenScatterGraph() {
  frmScatterGraph& window = NewScatterGraph();
  window.Show();
  return window;
}

void ScatterWindows::mnuFileDrawScatter_Click() {
  MenuItem& item = controls_.mnuFileDrawScatter;
  item.Checked = !item.Checked;
  globals_.settings.gblnScatterGraphAutoDraw = item.Checked;
}

void ScatterWindows::DrawAutoScatterGraphs() {
  const OpenLog& log = globals_.log;
  if (!controls_.mnuFileDrawScatter.Checked || !log.gblnSamplesLoaded) return;
  status_.Say("Drawing Scatter Graphs...");
  const clsScatterGraphPresets& presets = globals_.gcolScatterGraphPresets;
  const int family = globals_.kinds.gcolLogFamilies.FirstLogFamily(log.gintCurrentFileType);
  for (int n = 1; n <= presets.Count(); ++n) {
    if (!presets.Item(n).FileOpenDraw || presets.Item(n).lngLogFamily != family) continue;
    frmScatterGraph& window = NewScatterGraph();
    window.InitialPresetGraph(n);
    window.Show();
    window.DrawTheGraphRemotely();
  }
}

void ScatterWindows::UpdatePresets() {
  windows_.ForEach([](frmScatterGraph& window) { window.PopulatePresets(); });
}

void ScatterWindows::LogIsClosing() {
  windows_.ForEach([](frmScatterGraph& window) { window.LogIsClosing(); });
}

void ScatterWindows::RefreshDataItems() {
  windows_.ForEach([](frmScatterGraph& window) { window.RefreshDataItems(); });
}

void ScatterWindows::OptionsChanged() {
  windows_.ForEach([](frmScatterGraph& window) { window.OptionsChanged(); });
}

std::optional<clsScatterFilter> ScatterWindows::RangeFilter() const {
  if (!globals_.log.gblnSamplesLoaded || range_.IsWholeLog()) return std::nullopt;
  return clsScatterFilter{static_cast<double>(range_.To()), static_cast<double>(range_.From()),
                          ItemOf(kSample)};
}

std::vector<int> ScatterWindows::ListedItems() const {
  return ItemsOfRows(controls_.lvwSampleDetails);
}

void ScatterWindows::ScatterPresetsChanged(bool added) {
  if (added) mainWindow_.WriteINIFile();
  UpdatePresets();
}

}  // namespace tarnview
