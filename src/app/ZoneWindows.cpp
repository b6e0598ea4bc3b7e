#include "app/ZoneWindows.h"

#include "base/Paths.h"
#include "model/Column.h"
#include "zoneeditor/frmLoadBenchmark.h"
#include "zones/ZoneMap.h"

namespace tarnview {

std::vector<Command> ZoneWindows::Rows() {
  return {{&controls_.mnuModulesZoneData, [this] { EditZones(); },
           [this] { return globals_.log.gblnZonesLoaded; }}};
}

frmZoneData::Surroundings ZoneWindows::AroundEditor() {
  return {globals_.settings, globals_.gcolBenchmarks,
          globals_.tables,   globals_.catalogue.gcolFixedDataItems.Item(ItemOf(kAuxNF)),
          services_.errors,  services_.messages};
}

void ZoneWindows::EditZones(const EditJournal* resumed) {
  OpenLog& log = globals_.log;
  ZoneEditorParameters parameters;
  parameters.map = MapOf(log.zones);
  // A log whose changes could not be read has its own zones twice.
  const LoadedZones& zones = log.zones;
  if (log.gblnSamplesLoaded && log.gblnChangesLoaded)
    parameters.comparison = ComparisonZones{zones.changes, zones.original};
  else if (log.gblnSamplesLoaded)
    parameters.comparison = ComparisonZones{zones.zones, zones.zones};
  parameters.fileName = log.gstrCurrentFileTitle;
  parameters.mayUpload = true;
  EditJournal journal(log.gstrCurrentFile, log.gintCurrentFileType, parameters.map);
  frmZoneData::Surroundings around = AroundEditor();
  around.stepped = [&](const EditHistory& history) {
    journal.history = history;
    WriteJournal(journal);
  };
  around.upload = Upload;
  if (log.gblnSamplesLoaded) around.drive = &drive_;
  frmZoneData window(services_.host, around, parameters);
  if (resumed) window.Resume(resumed->history);
  window.ShowModal();
  if (window.Accepted() && window.Changed()) {
    SetMap(log.zones, window.Map());
    log.gblnZonesDirty = true;
    mainWindow_.ZonesEdited();
  } else if (log.gblnZonesDirty) {
    // What an earlier editor gave is still to be saved.
    WriteJournal(EditJournal(log.gstrCurrentFile, log.gintCurrentFileType, parameters.map));
  }
  ForgetEdits();
}

/// Beside the settings; nowhere where none are kept.
std::string ZoneWindows::JournalPath() const {
  const std::string& settings = globals_.gstrINIFileToWrite;
  if (settings.empty()) return "";
  return GetParentFolder(settings) + "Tarnview_Zones.journal";
}

void ZoneWindows::WriteJournal(const EditJournal& journal) {
  const std::string path = JournalPath();
  if (!path.empty()) services_.files.Write(path, JournalText(journal));
}

void ZoneWindows::ForgetEdits() {
  const std::string path = JournalPath();
  if (!globals_.log.gblnZonesDirty && !path.empty() && services_.files.FileExists(path))
    services_.files.DeleteFile(path);
}

void ZoneWindows::OfferLostEdits() {
  const std::string path = JournalPath();
  if (path.empty() || !services_.files.FileExists(path)) return;
  const auto bytes = services_.files.Read(path);
  services_.files.DeleteFile(path);
  if (!bytes) return;
  const auto journal = ReadJournal(*bytes);
  if (!journal) return;
  const std::string text =
      "Edits of the zones of " + FileTitle(journal->file) +
      " were not saved when Tarnview ended.\r\nDo you want to go on with them?";
  if (services_.messages.Tell(text, kBoxYesNo + kBoxQuestion) == Reply::Yes) Resume(*journal);
}

/// The file first, then what an earlier editor had given of it, then the editor with its steps.
void ZoneWindows::Resume(const EditJournal& journal) {
  OpenLog& log = globals_.log;
  if (!mainWindow_.LoadDataFile(journal.file, journal.fileType) || !log.gblnZonesLoaded) {
    // The file has gone; its zones have not.
    log.gstrCurrentFile = journal.file;
    log.gstrCurrentFileTitle = FileTitle(journal.file);
    log.gintCurrentFileType = kMAPFile;
    log.gblnZonesLoaded = true;
    log.gblnZonesDirty = true;
  }
  if (MapOf(log.zones) != journal.source) log.gblnZonesDirty = true;
  SetMap(log.zones, journal.source);
  mainWindow_.ZonesEdited();
  WriteJournal(journal);
  if (journal.history.CanUndo()) EditZones(&journal);
}

std::optional<ZoneMap> ZoneWindows::LoadZones(const std::string& path) {
  frmLoadBenchmark loading(services_.host, services_.files, globals_.settings, services_.messages);
  loading.FileToLoad = path;
  loading.Run();
  if (!loading.SuccessfulLoad()) return std::nullopt;
  return MapOf(loading.LoadedBenchmark());
}

bool ZoneWindows::EditBenchmarkZones(ZoneMap& map, const std::string& name) {
  ZoneEditorParameters parameters;
  parameters.map = map;
  parameters.fileName = name;
  frmZoneData window(services_.host, AroundEditor(), parameters);
  window.ShowModal();
  if (!window.Accepted() || !window.Changed()) return false;
  map = window.Map();
  return true;
}

bool ZoneWindows::EditBenchmark(clsBenchmark& benchmark) {
  frmBenchmarkDetails window(
      services_.host,
      {globals_.kinds.gcolFileTypes, globals_.settings, services_.files, services_.clock,
       services_.messages,
       [this](ZoneMap& map, const std::string& name) { return EditBenchmarkZones(map, name); }},
      benchmark);
  window.ShowModal();
  if (!window.Accepted()) return false;
  benchmark = window.ColItem();
  return true;
}

}  // namespace tarnview
