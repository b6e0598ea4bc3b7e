// The main window's road of one file: choosing it, loading it, what a load clears and what it sets
// up.

#include <algorithm>

#include "app/frmDataLogViewer.h"
#include "base/Paths.h"
#include "samplegraph/GraphScale.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

/// In the error log.
constexpr long kLoadingFailed = -static_cast<long>(Message::TooFewRecords);

}  // namespace

void frmDataLogViewer::mnuFileOpen_Click() {
  if (!SaveChangesPrompt()) return;
  const clsFileTypes& types = globals_.kinds.gcolFileTypes;
  Dialog dialog;
  dialog.title = "Open";
  dialog.filter = types.CommonDialogFilter();
  dialog.filterIndex =
      types.SequenceFromID(log_.gintCurrentFileType > 0 ? log_.gintCurrentFileType
                                                        : globals_.settings.gintDefaultFileType);
  dialog.initialPath = log_.gstrCurrentFile.empty() ? globals_.settings.gstrDefaultWorkingDirectory
                                                    : log_.gstrCurrentFile;
  dialog.path = log_.gstrCurrentFileTitle;
  if (!host.Choose(dialog)) return;
  host.DoEvents();
  OpenFile(dialog.path, types.IDFromSequence(dialog.filterIndex));
}

bool frmDataLogViewer::OpenRecentlyUsedFile(int index, const std::string& path, int fileType) {
  if (!SaveChangesPrompt()) return false;
  if (!path.empty()) recent_.AddRecentlyUsedFile(path, fileType);
  if (index >= recent_.Count()) return false;
  const RecentFiles::Entry entry = recent_.At(index);
  bool loaded = false;
  if (services_.files.FileExists(entry.path))
    loaded = OpenFile(entry.path, entry.fileType);
  else
    services_.messages.ShowMessage(Message::FileNotLoaded);
  recent_.Rewrite();
  return loaded;
}

bool frmDataLogViewer::LoadDataFile(const std::string& path, int fileType) {
  if (definition_.IsOfLog()) HideForLoad();
  definition_.UseDefinitionOfSettings();
  globals_.takenAs.clear();
  return LoadNow(path, fileType);
}

bool frmDataLogViewer::LoadNow(const std::string& path, int fileType) {
  const AtWork work(*this, status_);
  HideForLoad();
  if (fileType == kUnknownFile)
    fileType =
        globals_.kinds.gcolFileTypes.GuessFileType(path, globals_.settings.gintDefaultFileType);
  log_.gstrCurrentFile = path;
  log_.gstrCurrentFileTitle = FileTitle(path);
  log_.gintCurrentFileType = fileType;
  const bool loaded = loading_.Load(path, fileType);
  status_.HideProgress();
  if (loaded) {
    recent_.AddRecentlyUsedFile(path, fileType);
    LoadDatalogFileSuccess(fileType);
    status_.Say("Loading complete");
    if (globals_.settings.beyond.drawAfterOpening && graph_.AnyChecked()) DrawGraph();
    if (fileType != kMAPFile) scatter_.DrawAutoScatterGraphs();
  } else {
    services_.messages.ShowMessage(Message::TooFewRecords);
    status_.Say("Loading failed");
    services_.errors.LogError(name, "LoadDataFile",
                              RuntimeError(kLoadingFailed, "Loading failed: " + path), false);
  }
  return loaded;
}

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

void frmDataLogViewer::CloseDataLogFile() {
  HideForLoad();
  log_.Clear(globals_.catalogue.gcolFixedDataItems, 0);
  log_.gstrCurrentFile.clear();
  log_.gstrCurrentFileTitle.clear();
  log_.gintCurrentFileType = kUnknownFile;
  log_.gblnZonesDirty = false;
  commands_.Update();
}

bool frmDataLogViewer::SaveMapFile(const std::string& path) {
  return WriteMapFile(services_.files, path, MapOf(log_.zones), services_.clock.Now());
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
  const std::string kind =
      globals_.takenAs.empty() ? type.GetSingularDescription() : globals_.takenAs;
  Caption = "Tarnview - " + log_.gstrCurrentFileTitle + " (" + kind + ")";
  status_.SayLoaded(log_.glngLastSampleTime >= 1
                        ? "Sample Load Range " + std::to_string(log_.glngFirstSampleTime) + " - " +
                              std::to_string(log_.glngLastSampleTime)
                        : "");
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
