// The main window's road of one file: choosing it, loading it, what a load clears and what it sets
// up.

#include <algorithm>
#include <new>

#include "app/Loaders.h"
#include "app/frmDataLogViewer.h"
#include "base/Paths.h"
#include "base/TextFile.h"
#include "samplegraph/GraphScale.h"
#include "universal/UnknownColumns.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

/// In the error log.
constexpr long kLoadingFailed = -static_cast<long>(Message::TooFewRecords);

/// A loader's progress in the status bar.
class StatusProgress : public LoadProgress {
 public:
  explicit StatusProgress(StatusArea& status) : status_(status) {}
  void Stage(std::string_view text, long expectedRows) override {
    status_.Say(std::string(text));
    if (expectedRows <= 0) return;
    expected_ = expectedRows;
    status_.ShowProgressInStatusBar(expectedRows);
  }
  void Line(long line) override {
    status_.Progress("Loading line " + std::to_string(line), std::min(line, expected_));
  }

 private:
  StatusArea& status_;
  long expected_ = 0;
};

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
  const bool loaded = Load(path, fileType);
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

bool frmDataLogViewer::Load(const std::string& path, int fileType) {
  const clsLogDataItems& items = definition_.ItemsOf(fileType);
  log_.Clear(items, 0);
  const LoaderRow* loader = LoaderFor(fileType);
  if (!loader) {
    services_.messages.ShowMessage(Message::OddKindOfFile);
    return false;
  }
  const auto bytes = ReadText(services_.files, path);
  if (!bytes || !HasLines(*bytes)) {
    TellNotRead(path, bytes.has_value());
    return false;
  }
  saving_.FileOpened(*bytes);
  LoadConversionFiles();
  StatusProgress progress(status_);
  LoadOutcome outcome;
  try {
    outcome = loader->load(*bytes, {log_, items, globals_.settings, globals_.tables, progress},
                           globals_.gclsDataLogDefinition);
  } catch (const std::bad_alloc&) {
    log_.Clear(items, 0);
    services_.messages.Tell(kShortOfMemory, kBoxExclamation);
    return false;
  }
  if (!outcome.error.empty()) services_.messages.Tell(outcome.error, kBoxExclamation);
  if (fileType == kUniversalLog) TellUniversalOutcome(path, outcome);
  TellMessages(outcome);
  return outcome.loaded;
}

/// Writes the report of unknown columns, which the message about a log with no known one offers to
/// open, and logs the faults.
void frmDataLogViewer::TellUniversalOutcome(const std::string& path, LoadOutcome& outcome) {
  std::string report;
  if (!outcome.unknownColumns.empty() && !globals_.gstrProgramFolder.empty())
    report = WriteUnknownUniversalColumns(
        services_.files, services_.clock.Now(), globals_.gstrProgramFolder,
        globals_.settings.gstrGenericDefinitionFile, path, outcome.unknownColumns);
  if (outcome.loaded) return;
  for (LoadMessage& message : outcome.messages) {
    services_.errors.LogError("modUniversal", "LoadGenericDataLog",
                              RuntimeError(-static_cast<int>(message.id), message.extra), false);
    if (message.id != Message::NoColumnsRecognised || report.empty()) continue;
    message.extra += "\r\n\r\nThe columns are listed in the report:\r\n" + report;
    message.report = report;
  }
}

void frmDataLogViewer::TellMessages(const LoadOutcome& outcome) {
  for (const LoadMessage& message : outcome.messages) {
    if (message.report.empty())
      services_.messages.ShowMessage(message.id, false, message.extra);
    else
      services_.messages.ShowMessageWithOffer(
          message.id, message.extra, "&Open Report",
          [&programs = services_.programs, report = message.report] {
            programs.ShellOpen(report);
          });
  }
}

/// A file that is just not there needs no reason.
void frmDataLogViewer::TellNotRead(const std::string& path, bool read) {
  if (log_.gintCurrentFileType == kMAPFile && !read) {
    services_.messages.Tell(UnreadFileError(services_.files, path), kBoxExclamation);
    return services_.messages.ShowMessage(Message::NotAMapFile);
  }
  std::string why = read ? "It has a line of more than 16 MB." : services_.files.WhyNotRead(path);
  if (why != kTooLargeToRead && why != kNoMemoryToRead && !read) why.clear();
  services_.messages.ShowMessage(Message::FileNotLoaded, false, why);
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
