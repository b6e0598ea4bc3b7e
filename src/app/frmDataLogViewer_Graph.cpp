// What the main window offers around the graph: a sample to go to, presets and their list, the
// export, zone influence.

#include "app/frmDataLogViewer.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "samplegraph/ExportRun.h"
#include "samplegraph/frmGoto.h"
#include "samplegraph/frmNewPresetName.h"

namespace tarnview {
namespace {

/// A graph narrower than this gives way to the width of Show Point.
constexpr std::int64_t kNarrowGraph = 10;

}  // namespace

void frmDataLogViewer::GotoSample() {
  frmGoto window(host, log_, selection_.lngHighlightSample(), blnGotoShowPointWidth_);
  window.ShowModal();
  if (!window.Accepted() || window.lngSampleNumber() <= 0) return;
  blnGotoShowPointWidth_ = window.blnShowPointWidth();
  ShowAround(window.lngSampleNumber(), blnGotoShowPointWidth_);
}

void frmDataLogViewer::ShowAround(std::int32_t sample, bool showPointWidth) {
  std::int64_t width = range_.Span();
  if (showPointWidth || width < kNarrowGraph) width = globals_.settings.glngShowPointWidth;
  const double half = static_cast<double>(width) / 2;
  range_.SetFrom(RoundToLong(sample - half));
  range_.SetTo(RoundToLong(sample + half));
  // A range box that loses the focus forgets the highlight, so this comes first.
  chSampleGraph.SetFocus();
  selection_.Highlight(sample);
  redraw_.Force();
  DrawGraph();
}

void frmDataLogViewer::ShowPoint(std::int32_t sample) {
  Show();
  ShowAround(sample, true);
}

DrivenRange frmDataLogViewer::PlottedIndices() const {
  return RangeOfSamples(log_, range_.From(), range_.To());
}

int frmDataLogViewer::SelectedIndex() const {
  const std::int32_t sample = selection_.lngHighlightSample();
  if (sample > 0) return RangeOfSamples(log_, sample, sample).first;
  return -1;
}

/// A thinned graph marks its nearest point; list, status bar and highlight have the sample itself.
void frmDataLogViewer::SelectIndex(int index) {
  const std::int32_t sample = log_.Sample(index);
  selection_.Highlight(sample);
  if (graph_.Drawn() && (sample < range_.From() || sample > range_.To()))
    ShowAround(sample, false);
  else if (graph_.Drawn())
    graph_.SelectAgain();
  selection_.Highlight(sample);
  highlight_.LookAt(index);
  SampleShown(index);
}

void frmDataLogViewer::mnuFileExport_Click() {
  if (export_.gstrExportPathFile.empty())
    export_.gstrExportPathFile = GetExportPathFile(log_.gstrCurrentFile);
  const ExportRun run{*this, status_, services_.messages, services_.errors, "ExportDataLog"};
  exported_ = run.Run(export_.gstrExportPathFile, [this](const std::string& strFile) {
    const auto& type = globals_.kinds.gcolFileTypes.Item(log_.gintCurrentFileType);
    export_.ExportDataLog(strFile, OrElse(globals_.takenAs, type.strDescription));
  });
}

void frmDataLogViewer::mnuEditNewPreset_Click() {
  frmNewPresetName window(host, services_.messages, clsSampleGraphPresets::NEW_NAME);
  window.ShowModal();
  if (!window.Accepted()) return;
  presets_.AddPreset(window.strName(), globals_.UsualFileType());
  WriteINIFile();
  presets_.PopulatePresetGraphs(true, globals_.UsualFileType());
  commands_.Update();
}

void frmDataLogViewer::mnuViewZoneInfl_Click() {
  globals_.settings.gblnDisplayZoneInfluence = !globals_.settings.gblnDisplayZoneInfluence;
  DisplayZoneInfluence();
}

bool frmDataLogViewer::IsLinkLog() const {
  return log_.gintCurrentFileType == kFMLinkLog || log_.gintCurrentFileType == kMAPFile;
}

/// The fuel map is that of the Link ECU: for other logs there is nothing to show, whatever the
/// setting says.
void frmDataLogViewer::DisplayZoneInfluence() {
  const bool link = IsLinkLog();
  fraZoneInfl.Enabled = link;
  zoneInfluence_.gblnDisplayZoneInfluence = link && globals_.settings.gblnDisplayZoneInfluence;
  zoneInfluence_.DisplayZoneInfluence();
}

}  // namespace tarnview
