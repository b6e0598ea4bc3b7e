// What a load clears in the main window, and what it sets up.

#include <algorithm>

#include "app/frmDataLogViewer.h"
#include "base/Text.h"
#include "samplegraph/GraphScale.h"

namespace tarnview {

void frmDataLogViewer::HideForLoad() {
  exported_ = false;
  log_.gblnSamplesLoaded = log_.gblnZonesLoaded = log_.gblnChangesLoaded = false;
  log_.gblnZonesDirty = false;
  log_.glngFirstSampleTime = log_.glngLastSampleTime = 0;
  log_.glngLowestAirTemp = kNoAirTemp;
  tags_.LogIsClosing();
  log_.gcolLogTags.RemoveAll();
  range_.Clear();
  graph_.Clear();
  scatter_.LogIsClosing();
  power_.LogIsClosing();
  scrolling_.Disable();
  fraGraphSeriesFrame.Enabled = false;
  Caption = std::string("Tarnview");
  status_.SayLoaded("");
  details_.ClearValues();
  zoneInfluence_.ClearZoneInfluence();
  fraZoneInfl.Enabled = false;
  lblEmptyPlace.Caption = std::string("Open a log, or drop one here");
  commands_.Update();
  host.DoEvents();
}

void frmDataLogViewer::LoadDatalogFileSuccess(int fileType) {
  details_.SetUpSampleGraphSampleListView(fileType, *log_.gcolDataItems);
  if (log_.gblnSamplesLoaded) {
    log_.glngFirstSample = 0;
    log_.glngLastSample = log_.glngDataLog.Rows() - 1;
    log_.glngFirstSampleTime = log_.Sample(log_.glngFirstSample);
    log_.glngLastSampleTime = log_.Sample(log_.glngLastSample);
    range_.TakeLog();
    SetFirstRange();
    scrolling_.TakeLog();
    fraGraphSeriesFrame.Enabled = true;
    lblEmptyPlace.Caption = std::string("Press Draw, or Enter");
  }
  export_.gstrExportPathFile = GetExportPathFile(log_.gstrCurrentFile);
  presets_.PopulatePresetGraphs(false, fileType);
  SetDataLogViewerCaption();
  log_.gblnZonesDirty = false;
  zones_.ForgetEdits();
  commands_.Update();
  DisplayZoneInfluence();
  RefreshDataTags();
  scatter_.RefreshDataItems();
  power_.LogIsOpen();
}

void frmDataLogViewer::DrawAfterOpening(int fileType) {
  if (globals_.settings.beyond.drawAfterOpening && graph_.AnyChecked()) DrawGraph();
  if (fileType != kMAPFile) scatter_.DrawAutoScatterGraphs();
}

void frmDataLogViewer::SetFirstRange() {
  const std::int32_t start = std::max(log_.glngFirstPlotSample, 0);
  const std::int64_t width = globals_.settings.glngInitialPlotWidth;
  const std::int64_t end = start + width;
  range_.SetFrom(log_.Sample(start));
  if (width < 2 || end > log_.glngLastSample)
    range_.SetToToLast();
  else
    range_.SetTo(log_.Sample(static_cast<std::int32_t>(end)));
  // One sample tighter than the check on Draw, and silent: kept on purpose.
  if (!chkQuickGraph.Value && range_.Span() > kWidestFullRange)
    range_.SetTo(range_.From() + kWidestFullRange - 1);
}

void frmDataLogViewer::SetDataLogViewerCaption() {
  const auto& type = globals_.kinds.gcolFileTypes.Item(log_.gintCurrentFileType);
  const std::string kind = OrElse(globals_.takenAs, type.GetSingularDescription());
  Caption = "Tarnview - " + log_.gstrCurrentFileTitle + " (" + kind + ")";
  const std::string range =
      std::to_string(log_.glngFirstSampleTime) + " - " + std::to_string(log_.glngLastSampleTime);
  status_.SayLoaded(TextIf(log_.glngLastSampleTime >= 1, "Sample Load Range " + range));
}

bool frmDataLogViewer::CanShowDataTags() const {
  const bool loaded = log_.gblnSamplesLoaded || log_.gblnZonesLoaded;
  return loaded && (IsLinkLog() || log_.gcolLogTags.Count() > 0);
}

void frmDataLogViewer::ShowDataTags() {
  tags_.Show();
  tags_.FollowOpenLog();
}

void frmDataLogViewer::FileRenamed() {
  SetDataLogViewerCaption();
  zones_.ForgetEdits();
  commands_.Update();
}

void frmDataLogViewer::RefreshDataTags() {
  if (log_.gintCurrentFileType != kFMLinkLog && log_.gintCurrentFileType != kMAPFile) return;
  if (tags_.IsShown())
    tags_.PopulateList(1);
  else if (log_.gcolLogTags.Count() > 0 && globals_.settings.gblnAutoOpenDataTags)
    tags_.Show();
}

}  // namespace tarnview
