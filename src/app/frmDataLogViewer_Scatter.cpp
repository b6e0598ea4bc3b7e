// The main window's side of the scatter windows: opening them, drawing them after a load, what they ask for.

#include "app/frmDataLogViewer.h"
#include "samplegraph/SampleListView.h"

namespace tarnview {

frmScatterGraph& frmDataLogViewer::NewScatterGraph() {
  const int number = scatterGraphs_.NextNumber();
  const frmScatterGraph::Surroundings around{
      globals_.kinds,   globals_.catalogue, log_, globals_.settings, globals_.gcolScatterGraphPresets, services_.files,
      services_.errors, services_.messages};
  frmScatterGraph::MainWindow& self = *this;
  frmScatterGraph& window = scatterGraphs_.Add(std::make_unique<frmScatterGraph>(host, around, self));
  window.ID = number;
  window.Cascade = scatterGraphs_.Count() - 1;
  return window;
}

frmScatterGraph& frmDataLogViewer::OpenScatterGraph() {
  frmScatterGraph& window = NewScatterGraph();
  window.Show();
  return window;
}

void frmDataLogViewer::mnuFileDrawScatter_Click() {
  mnuFileDrawScatter.Checked = !mnuFileDrawScatter.Checked;
  globals_.settings.gblnScatterGraphAutoDraw = mnuFileDrawScatter.Checked;
}

void frmDataLogViewer::DrawAutoScatterGraphs() {
  if (!mnuFileDrawScatter.Checked || !log_.gblnSamplesLoaded) return;
  status_.Say("Drawing Scatter Graphs...");
  const clsScatterGraphPresets& presets = globals_.gcolScatterGraphPresets;
  const int family = globals_.kinds.gcolLogFamilies.FirstLogFamily(log_.gintCurrentFileType);
  for (int n = 1; n <= presets.Count(); ++n) {
    if (!presets.Item(n).FileOpenDraw || presets.Item(n).lngLogFamily != family) continue;
    frmScatterGraph& window = NewScatterGraph();
    window.InitialPresetGraph(n);
    window.Show();
    window.DrawTheGraphRemotely();
  }
}

void frmDataLogViewer::UpdateScatterPresetsOnForms() {
  scatterGraphs_.ForEach([](frmScatterGraph& window) { window.PopulatePresets(); });
}

void frmDataLogViewer::ShowPoint(std::int32_t sample) {
  Show();
  ShowAround(sample, true);
}

std::optional<clsScatterFilter> frmDataLogViewer::RangeFilter() const {
  if (!log_.gblnSamplesLoaded || range_.IsWholeLog()) return std::nullopt;
  return clsScatterFilter{static_cast<double>(range_.To()), static_cast<double>(range_.From()), ItemOf(kSample)};
}

std::vector<int> frmDataLogViewer::ListedItems() const { return ItemsOfRows(lvwSampleDetails); }

void frmDataLogViewer::ScatterPresetsChanged(bool added) {
  if (added) WriteINIFile();
  UpdateScatterPresetsOnForms();
}

}  // namespace tarnview
