#include "app/MapSaving.h"

#include <utility>

#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "desk/SaveDialog.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

std::size_t MarkOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

}  // namespace

MapSaving::MapSaving(Globals& globals, Services& services, StatusArea& status, RecentFiles& recent,
                     std::function<void()> fileChanged)
    : globals_(globals),
      services_(services),
      status_(status),
      recent_(recent),
      fileChanged_(std::move(fileChanged)) {}

void MapSaving::FileOpened(int fileType, std::string_view bytes) {
  if (fileType == kMAPFile) bytesOnDisk_ = MarkOf(bytes);
  failed_ = false;
}

bool MapSaving::MaySave() const {
  return globals_.log.gblnZonesLoaded && globals_.log.gintCurrentFileType == kMAPFile && !failed_;
}

bool MapSaving::MaySaveAs() const {
  return globals_.log.gblnZonesLoaded &&
         globals_.kinds.gcolFileTypes.SaveableFileType(globals_.log.gintCurrentFileType);
}

bool MapSaving::Save() {
  if (!MaySaveTo(services_.host, ToOpenFile())) return SaveAs();
  return MayOverwrite() && Write();
}

bool MapSaving::Write() {
  OpenLog& log = globals_.log;
  const std::string text = MapText(MapOf(log.zones), services_.clock.Now());
  failed_ = !services_.files.Write(log.gstrCurrentFile, text);
  if (failed_) {
    services_.messages.ShowMessage(Message::SomethingWentWrong);
    status_.Say("Problem saving");
  } else {
    bytesOnDisk_ = MarkOf(text);
    recent_.AddRecentlyUsedFile(log.gstrCurrentFile, kMAPFile);
    status_.Say("Saving complete");
    log.gblnZonesDirty = false;
  }
  fileChanged_();
  return !failed_;
}

/// Another program may have written the file since: nobody's work is lost without a question.
bool MapSaving::MayOverwrite() {
  const auto bytes = ReadText(services_.files, globals_.log.gstrCurrentFile);
  if (!bytes || MarkOf(*bytes) == bytesOnDisk_) return true;
  const std::string text =
      globals_.log.gstrCurrentFileTitle +
      " was changed by another program since it was opened.\r\nDo you want to overwrite it?";
  return services_.messages.Tell(text, kBoxYesNo + kBoxQuestion + kBoxSecondIsDefault) ==
         Reply::Yes;
}

/// A map goes over its own file; the log that zones came from does not.
Dialog MapSaving::ToOpenFile() const {
  return {.path = globals_.log.gstrCurrentFile,
          .ofOpenFile = globals_.log.gintCurrentFileType == kMAPFile};
}

bool MapSaving::SaveAs() {
  OpenLog& log = globals_.log;
  Dialog dialog = ToOpenFile();
  dialog.title = "Save As";
  dialog.filter = globals_.kinds.gcolFileTypes.Item(kMAPFile).CommonDialogFilter();
  dialog.initialPath = log.gstrCurrentFile;
  dialog.path = WithoutExtension(log.gstrCurrentFileTitle) + ".map";
  if (!ChooseFileToSave(services_.host, dialog)) return false;
  log.gstrCurrentFile = dialog.path;
  log.gstrCurrentFileTitle = FileTitle(dialog.path);
  log.gintCurrentFileType = kMAPFile;
  return Write();  // the dialog has asked already where the file was there
}

bool MapSaving::SaveChangesPrompt() {
  const OpenLog& log = globals_.log;
  const clsFileTypes& types = globals_.kinds.gcolFileTypes;
  if (!types.SaveableFileType(log.gintCurrentFileType) || !log.gblnZonesDirty) return true;
  const Reply reply = services_.messages.Tell(
      "Do you want to save the changes made to " + log.gstrCurrentFileTitle + "?",
      kBoxYesNoCancel + kBoxExclamation);
  if (reply != Reply::Yes) return reply == Reply::No;
  const bool map =
      SameIgnoringCase(GetExtension(log.gstrCurrentFile), types.Item(kMAPFile).strFileExtension);
  if (map) return Save();
  return SaveAs();
}

}  // namespace tarnview
