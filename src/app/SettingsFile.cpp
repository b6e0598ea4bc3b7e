#include "app/SettingsFile.h"

#include "base/Text.h"
#include "base/TextFile.h"
#include "model/IniRepair.h"

namespace tarnview {
namespace {

constexpr const char* kOlder = ".old";  ///< behind the file's name: as it was before this run

/// A NUL in it, or the last line end gone of what this program wrote.
bool IsDamaged(std::string_view text) {
  const bool isCut = text.find("\r\n") != std::string_view::npos && !text.ends_with('\n');
  return isCut || text.find('\0') != std::string_view::npos;
}

std::string Repaired(std::string_view text) {
  FileBytes settled(text);
  SettleText(settled);
  return WithoutDamage(settled, SettingsHeadings());
}

}  // namespace

void SettingsFile::LoadINIFileNew() {
  table_ = ReadTable();
  const auto install = ReadInstall();
  ReadSettings(SettingsHalf::BeforeDefinition,
               {globals_, table_, install ? &*install : nullptr, TellUnknownItem()});
  globals_.settings.firstRun = globals_.settings.firstRun || noFile_;
  FindBackgroundPicture();
  ValidateWorkingDirectory();
}

void SettingsFile::LoadPresets() {
  ReadSettings(SettingsHalf::BehindDefinition, {globals_, table_, nullptr, TellUnknownItem()});
  table_ = {};
}

void SettingsFile::Remember() {
  read_ = WriteSettings(globals_, [](const char*) {});
}

std::function<void(const std::vector<int>&)> SettingsFile::TellUnknownItem() {
  return [this](const std::vector<int>&) {
    services_.messages.ShowMessage(Message::DataItemNotFound);
  };
}

std::optional<IniTable> SettingsFile::ReadInstall() {
  const auto text = ReadText(services_.files, globals_.gstrInstallINIFile);
  if (text) return std::optional(ReadINIFileToArray(*text));
  return std::nullopt;
}

IniTable SettingsFile::ReadTable() {
  const std::string& path = globals_.gstrINIFile;
  noFile_ = path.empty() || !services_.files.FileExists(path);
  if (noFile_) return {};
  const auto text = services_.files.Read(path);
  if (!text) {
    services_.messages.Tell(
        "The settings file cannot be read. Every setting has its default, and nothing is kept from "
        "this run:\r\n" +
            path,
        kBoxExclamation);
    globals_.gstrINIFileToWrite.clear();
    return {};
  }
  seen_ = std::string_view(*text);
  const std::string repaired = Repaired(seen_);
  const bool hasSettings = IsIniText(repaired);
  if (!hasSettings || IsDamaged(seen_)) TellDamage(path, hasSettings);
  if (hasSettings) return ReadINIFileToArray(repaired);
  return IniTable();
}

/// What is about to be written over is kept. A file that was but cut, or whose last line somebody
/// wrote without its end, is no news.
void SettingsFile::TellDamage(const std::string& path, bool hasSettings) {
  std::string told = "This is no settings file, so every setting has its default:\r\n";
  if (hasSettings) told = "The settings file is damaged. What can be read of it holds:\r\n";
  told += path;
  if (globals_.gstrINIFileToWrite == path) {
    const std::string kept = SetAside(path);
    if (kept.empty())
      globals_.gstrINIFileToWrite.clear();
    else
      told += "\r\n\r\nIt is kept as:\r\n" + kept;
    if (services_.files.FileExists(path + kOlder))
      told += "\r\nThe last good settings are:\r\n" + path + kOlder;
  }
  if (!hasSettings || seen_.find('\0') != std::string::npos)
    services_.messages.Tell(told, kBoxExclamation);
}

/// Under a name that no earlier one has, unless it is there already; "" if it cannot be kept.
std::string SettingsFile::SetAside(const std::string& path) {
  for (int n = 1;; ++n) {
    const std::string kept = path + ".bad" + TextIf(n > 1, std::to_string(n));
    if (const auto there = services_.files.Read(kept); there && *there == seen_) return kept;
    if (services_.files.FileExists(kept)) continue;
    if (!services_.files.Write(kept, seen_)) return {};
    return kept;
  }
}

void SettingsFile::FindBackgroundPicture() {
  const std::string& picture = globals_.settings.gstrAlternativeBackgroundPicture;
  if (!picture.empty() && !services_.files.IsFile(picture))
    services_.messages.ShowMessage(Message::BackgroundPictureNotFound);
}

void SettingsFile::ValidateWorkingDirectory() {
  const std::string& folder = globals_.settings.gstrDefaultWorkingDirectory;
  if (!folder.empty() && !services_.files.FolderExists(folder))
    services_.messages.ShowMessage(Message::WorkingDirectoryNotFound);
}

SettingsBodies SettingsFile::BodiesIn(std::string_view text) {
  Globals other;
  other.catalogue.gcolUniversalDataItems = globals_.catalogue.gcolUniversalDataItems.Duplicate();
  const IniTable table = ReadINIFileToArray(Repaired(text));
  const auto install = ReadInstall();
  const SettingsSource from{other, table, install ? &*install : nullptr,
                            [](const std::vector<int>&) {}};
  ReadSettings(SettingsHalf::BeforeDefinition, from);
  ReadSettings(SettingsHalf::BehindDefinition, from);
  return WriteSettings(other, [](const char*) {});
}

bool SettingsFile::WriteINIFile(const std::string& path,
                                const std::function<void(const char*)>& say) {
  SettingsBodies held = WriteSettings(globals_, say);
  std::string text = SettingsText(held);
  const bool itsOwn = path == globals_.gstrINIFile;
  const auto there = itsOwn ? services_.files.Read(path) : std::nullopt;
  if (there && !read_.empty() && *there != seen_)
    text = SettingsText(MergeSettings(read_, held, BodiesIn(*there)));
  if (there) KeepOlder(path, *there, text);
  if (!services_.files.Write(path, text)) {
    services_.messages.ShowMessage(Message::SettingsNotWritten);
    return false;
  }
  if (itsOwn) {
    seen_ = std::move(text);
    read_ = std::move(held);
  }
  say("Done");
  return true;
}

/// Once a run, so that a user who broke something can go back to before it.
void SettingsFile::KeepOlder(const std::string& path, std::string_view older,
                             std::string_view newer) {
  if (keptOlder_ || older == newer || IsDamaged(older) || !IsIniText(Repaired(older))) return;
  keptOlder_ = services_.files.Write(path + kOlder, older);
}

}  // namespace tarnview
