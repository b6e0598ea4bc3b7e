#include "app/LogFiles.h"

#include <optional>

#include "app/CommandLine.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

/// In the error log.
constexpr long kLoadingFailed = -static_cast<long>(Message::TooFewRecords);

}  // namespace

LogFiles::LogFiles(MainWindowControls& controls, Globals& globals, Services& services,
                   StatusArea& status, SampleGraphWindow& mainWindow)
    : controls_(controls),
      globals_(globals),
      services_(services),
      status_(status),
      mainWindow_(mainWindow),
      saving_(globals, services, status, recent_, [this] { mainWindow_.FileRenamed(); }) {}

std::vector<Command> LogFiles::Rows() {
  std::vector<Command> rows{
      // clang-format off
      {&controls_.mnuFileOpen, [this] { mnuFileOpen_Click(); }, {}},
      {&controls_.mnuFileSave, [this] { saving_.Save(); }, [this] { return saving_.MaySave(); }},
      {&controls_.mnuFileSaveAs, [this] { saving_.SaveAs(); }, [this] { return saving_.MaySaveAs(); }},
      {&controls_.mnuFileNewLogDescription, [this] { mnuFileNewLogDescription_Click(); }, {}},
      {&controls_.mnuFileEditDefinition, [this] { mnuFileEditDefinition_Click(); }, {}},
      // clang-format on
  };
  for (const auto& item : controls_.mnuRecentlyUsed)
    rows.push_back({item.get(), [this, index = item->index] { OpenRecentlyUsedFile(index); }, {}});
  return rows;
}

void LogFiles::TakeRecentFiles() {
  const std::vector<std::string>& tags = globals_.settings.recentFiles;
  for (auto tag = tags.rbegin(); tag != tags.rend(); ++tag) {
    auto [fileType, path] = RecentFiles::ParseTag(*tag);
    if (fileType == kUnknownFile) fileType = Guessed(path);
    recent_.AddRecentlyUsedFile(path, fileType);
  }
}

int LogFiles::Guessed(const std::string& path) const {
  return globals_.kinds.gcolFileTypes.GuessFileType(path, globals_.settings.gintDefaultFileType);
}

/// It begins beside the log that is open.
Dialog LogFiles::OpenDialog() const {
  const OpenLog& log = globals_.log;
  return {.title = "Open",
          .initialPath = OrElse(log.gstrCurrentFile, globals_.settings.gstrDefaultWorkingDirectory),
          .path = log.gstrCurrentFileTitle};
}

void LogFiles::mnuFileOpen_Click() {
  if (!SaveChangesPrompt()) return;
  const clsFileTypes& types = globals_.kinds.gcolFileTypes;
  Dialog dialog = OpenDialog();
  dialog.filter = types.CommonDialogFilter();
  dialog.filterIndex = types.SequenceFromID(globals_.UsualFileType());
  if (!services_.host.Choose(dialog)) return;
  services_.host.DoEvents();
  OpenFile(dialog.path, types.IDFromSequence(dialog.filterIndex));
}

bool LogFiles::OpenRecentlyUsedFile(int index, const std::string& path, int fileType) {
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

bool LogFiles::OpenFromCommandLine(const std::string& commandLine) {
  CommandLineFile file = ParseCommandLine(commandLine);
  if (file.path.empty()) return false;
  file.path = services_.files.Absolute(file.path);  // it outlives the folder it was given in
  if (!services_.files.FileExists(file.path)) {
    services_.messages.ShowMessage(Message::FileNotLoaded);
    return false;
  }
  const clsFileTypes& types = globals_.kinds.gcolFileTypes;
  int fileType = kUnknownFile;
  if (file.fileType) fileType = types.ValidateFileType(*file.fileType);
  return OpenRecentlyUsedFile(0, file.path, fileType);
}

bool LogFiles::LoadDataFile(const std::string& path, int fileType) {
  return LoadAsSettings(path, fileType, std::nullopt);
}

bool LogFiles::LoadAsSettings(const std::string& path, int fileType, Bytes bytes) {
  if (definition_.IsOfLog()) mainWindow_.HideForLoad();
  definition_.UseDefinitionOfSettings();
  globals_.takenAs.clear();
  return LoadNow(path, fileType, std::move(bytes));
}

bool LogFiles::LoadNow(const std::string& path, int fileType, Bytes bytes) {
  const AtWork work(controls_, status_);
  mainWindow_.HideForLoad();
  if (fileType == kUnknownFile) fileType = Guessed(path);
  OpenLog& log = globals_.log;
  log.gstrCurrentFile = path;
  log.gstrCurrentFileTitle = FileTitle(path);
  log.gintCurrentFileType = fileType;
  const bool loaded = loading_.Load(path, fileType, std::move(bytes));
  status_.HideProgress();
  if (loaded) {
    recent_.AddRecentlyUsedFile(path, fileType);
    mainWindow_.LoadDatalogFileSuccess(fileType);
    status_.Say("Loading complete");
    mainWindow_.DrawAfterOpening(fileType);
  } else {
    services_.messages.ShowMessage(Message::TooFewRecords);
    status_.Say("Loading failed");
    services_.errors.LogError(controls_.name, "LoadDataFile",
                              RuntimeError(kLoadingFailed, "Loading failed: " + path), false);
  }
  return loaded;
}

void LogFiles::CloseDataLogFile() {
  mainWindow_.HideForLoad();
  OpenLog& log = globals_.log;
  log.Clear(globals_.catalogue.gcolFixedDataItems, 0);
  log.gstrCurrentFile.clear();
  log.gstrCurrentFileTitle.clear();
  log.gintCurrentFileType = kUnknownFile;
  log.gblnZonesDirty = false;
}

bool LogFiles::SaveMapFile(const std::string& path) {
  return WriteMapFile(services_.files, path, MapOf(globals_.log.zones), services_.clock.Now());
}

}  // namespace tarnview
