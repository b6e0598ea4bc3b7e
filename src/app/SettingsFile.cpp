#include "app/SettingsFile.h"

#include "model/GeneralSettings.h"
#include "model/ItemDisplaySettings.h"
#include "power/CarDefSettings.h"
#include "presets/PresetSettings.h"
#include "zones/BenchmarkSettings.h"

namespace tarnview {
namespace {

constexpr const char* kRecentFiles = "Recently Used Files";
constexpr const char* kRecentPowerGraphFiles = "Recently Used Power Graph Files";

struct Reading {
  Globals& globals;
  const IniTable& table;
  const IniTable* install;  ///< of Tarnview_Install.ini; nullptr if there is none
  Messages& messages;

  TellUnknownItems TellUnknown() const {
    return [this](const std::vector<int>&) { messages.ShowMessage(Message::DataItemNotFound); };
  }
};

/// A definition on a disk that is not there today is not forgotten.
void WriteGeneral(const Globals& globals, IniWriter& file) {
  Settings settings = globals.settings;
  if (settings.gstrGenericDefinitionFile.empty()) settings.gstrGenericDefinitionFile = globals.missingDefinitionFile;
  WriteGeneralSettings(settings, file);
}

void ReadSamples(const Reading& from) {
  ReadSamplePresets(from.table, from.TellUnknown(), from.globals.gcolSampleGraphPresets);
}
void ReadScatters(const Reading& from) {
  const Catalogue& catalogue = from.globals.catalogue;
  ReadScatterPresets(from.table, catalogue.gcolFixedDataItems, catalogue.gcolUniversalDataItems, from.TellUnknown(),
                     from.globals.gcolScatterGraphPresets);
}
/// On a first run Universal items look as their definition says; later as the built-in ones do, but for what the file
/// says about them.
void ReadUniversalDisplay(const Reading& from) {
  if (from.globals.settings.firstRun) return;
  Catalogue& catalogue = from.globals.catalogue;
  CopyItemDisplay(catalogue.gcolFixedDataItems, catalogue.gcolUniversalDataItems);
  ReadItemDisplay(from.table, kGenericItemDisplaySection, catalogue.gcolUniversalDataItems);
}

enum class Half { BeforeDefinition, BehindDefinition };

struct Section {
  const char* heading;
  const char* status;  ///< what the status bar says while it is written; nullptr: nothing new
  Half half;
  void (*read)(const Reading& from);
  void (*write)(const Globals& globals, IniWriter& file);
  bool mayBeMissing = false;  ///< its heading stands only over lines
};

/// In the order of the file.
const Section kSections[] = {
    {"General", "General", Half::BeforeDefinition,
     [](const Reading& from) { ReadGeneralSettings(from.table, from.install, from.globals.settings); }, WriteGeneral},
    {"Power Graph", "Power Graph", Half::BeforeDefinition,
     [](const Reading& from) { ReadCarDefs(from.table, from.globals.gcolCarDefs); },
     [](const Globals& globals, IniWriter& file) { WriteCarDefs(globals.gcolCarDefs, file); }},
    {"3D Graph", "3D Graph Defaults", Half::BeforeDefinition,
     [](const Reading& from) { ReadGraphAngles(from.table, from.globals.settings.angles); },
     [](const Globals& globals, IniWriter& file) { WriteGraphAngles(globals.settings.angles, file); }},
    {"New Preset Sample Graphs", "Preset Sample Graphs", Half::BehindDefinition, ReadSamples,
     [](const Globals& globals, IniWriter& file) { WriteSamplePresets(globals.gcolSampleGraphPresets, file); }},
    {"New Preset Scatter Graphs", "Preset Scatter Graphs", Half::BehindDefinition, ReadScatters,
     [](const Globals& globals, IniWriter& file) { WriteScatterPresets(globals.gcolScatterGraphPresets, file); }},
    {"Benchmarks", "Benchmarks", Half::BeforeDefinition,
     [](const Reading& from) { ReadBenchmarks(from.table, from.globals.settings, from.globals.gcolBenchmarks); },
     [](const Globals& globals, IniWriter& file) { WriteBenchmarks(globals.gcolBenchmarks, file); }},
    {kRecentFiles, "Recently Used Files", Half::BeforeDefinition,
     [](const Reading& from) { from.globals.settings.recentFiles = ReadFileList(from.table, kRecentFiles); },
     [](const Globals& globals, IniWriter& file) { WriteFileList(globals.settings.recentFiles, file); }},
    {kRecentPowerGraphFiles, nullptr, Half::BeforeDefinition,
     [](const Reading& from) {
       from.globals.settings.recentPowerGraphFiles = ReadFileList(from.table, kRecentPowerGraphFiles);
     },
     [](const Globals& globals, IniWriter& file) { WriteFileList(globals.settings.recentPowerGraphFiles, file); }},
    {kItemDisplaySection, "Data Item Display Properties", Half::BeforeDefinition,
     [](const Reading& from) {
       ReadItemDisplay(from.table, kItemDisplaySection, from.globals.catalogue.gcolFixedDataItems);
     },
     [](const Globals& globals, IniWriter& file) { WriteItemDisplay(globals.catalogue.gcolFixedDataItems, file); }},
    {kGenericItemDisplaySection, nullptr, Half::BehindDefinition, ReadUniversalDisplay,
     [](const Globals& globals, IniWriter& file) { WriteItemDisplay(globals.catalogue.gcolUniversalDataItems, file); }},
    {kBeyondSection, nullptr, Half::BeforeDefinition,
     [](const Reading& from) { ReadBeyondSettings(from.table, from.globals.settings.beyond); },
     [](const Globals& globals, IniWriter& file) { WriteBeyondSettings(globals.settings.beyond, file); }, true},
};

void ReadHalf(Half half, const Reading& from) {
  for (const Section& section : kSections)
    if (section.half == half) section.read(from);
}

}  // namespace

void SettingsFile::LoadINIFileNew() {
  table_ = ReadTable();
  const auto text = services_.files.Read(globals_.gstrInstallINIFile);
  const IniTable install = text ? ReadINIFileToArray(*text) : IniTable();
  ReadHalf(Half::BeforeDefinition, {globals_, table_, text ? &install : nullptr, services_.messages});
  globals_.settings.firstRun = globals_.settings.firstRun || noFile_;
  FindBackgroundPicture();
  ValidateWorkingDirectory();
}

void SettingsFile::LoadPresets() {
  ReadHalf(Half::BehindDefinition, {globals_, table_, nullptr, services_.messages});
  table_ = {};
}

IniTable SettingsFile::ReadTable() {
  const std::string& path = globals_.gstrINIFile;
  noFile_ = path.empty() || !services_.files.FileExists(path);
  if (noFile_) return {};
  const auto text = services_.files.Read(path);
  if (!text) {
    services_.messages.Tell(
        "The settings file cannot be read. Every setting has its default, and nothing is kept from this run:\r\n" +
            path,
        kBoxExclamation);
    globals_.gstrINIFileToWrite.clear();
    return {};
  }
  constexpr std::string_view kMark = "\xEF\xBB\xBF";  // of UTF-8, as some editors put it in front
  std::string_view lines = *text;
  if (lines.starts_with(kMark)) lines.remove_prefix(kMark.size());
  if (IsIniText(lines)) return ReadINIFileToArray(lines);
  SetAside(path);
  return {};
}

void SettingsFile::SetAside(const std::string& path) {
  const std::string kept = path + ".bad";
  std::string told = "This is no settings file, so every setting has its default:\r\n" + path;
  if (globals_.gstrINIFileToWrite == path) {
    if (services_.files.RenameFile(path, kept))
      told += "\r\n\r\nIt is kept as:\r\n" + kept;
    else
      globals_.gstrINIFileToWrite.clear();
  }
  services_.messages.Tell(told, kBoxExclamation);
}

void SettingsFile::FindBackgroundPicture() {
  const std::string& picture = globals_.settings.gstrAlternativeBackgroundPicture;
  if (!picture.empty() && !services_.files.FileExists(picture))
    services_.messages.ShowMessage(Message::BackgroundPictureNotFound);
}

void SettingsFile::ValidateWorkingDirectory() {
  const std::string& folder = globals_.settings.gstrDefaultWorkingDirectory;
  if (!folder.empty() && !services_.files.FolderExists(folder))
    services_.messages.ShowMessage(Message::WorkingDirectoryNotFound);
}

bool SettingsFile::WriteINIFile(const std::string& path, const std::function<void(const char*)>& say) {
  IniWriter file;
  for (const Section& section : kSections) {
    if (section.status) say(section.status);
    IniWriter body;
    section.write(globals_, body);
    if (section.mayBeMissing && body.Text().empty()) continue;
    file.Section(section.heading);
    file.Lines(body);
  }
  if (!services_.files.Write(path, file.Text())) {
    services_.messages.ShowMessage(Message::SettingsNotWritten);
    return false;
  }
  say("Done");
  return true;
}

}  // namespace tarnview
