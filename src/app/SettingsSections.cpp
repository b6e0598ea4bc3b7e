#include "app/SettingsSections.h"

#include "model/GeneralSettings.h"
#include "model/IniMerge.h"
#include "model/ItemDisplaySettings.h"
#include "power/CarDefSettings.h"
#include "presets/PresetSettings.h"
#include "zones/BenchmarkSettings.h"

namespace tarnview {
namespace {

constexpr const char* kRecentFiles = "Recently Used Files";
constexpr const char* kRecentPowerGraphFiles = "Recently Used Power Graph Files";

/// A definition on a disk that is not there today is not forgotten.
void WriteGeneral(const Globals& globals, IniWriter& file) {
  Settings settings = globals.settings;
  if (settings.gstrGenericDefinitionFile.empty())
    settings.gstrGenericDefinitionFile = globals.missingDefinitionFile;
  WriteGeneralSettings(settings, file);
}

void ReadSamples(const SettingsSource& from) {
  ReadSamplePresets(from.table, from.tell, from.globals.gcolSampleGraphPresets);
}
void ReadScatters(const SettingsSource& from) {
  const Catalogue& catalogue = from.globals.catalogue;
  ReadScatterPresets(from.table, catalogue.gcolFixedDataItems, catalogue.gcolUniversalDataItems,
                     from.tell, from.globals.gcolScatterGraphPresets);
}
/// On a first run Universal items look as their definition says; later as the built-in ones do, but
/// for what the file says about them.
void ReadUniversalDisplay(const SettingsSource& from) {
  if (from.globals.settings.firstRun) return;
  Catalogue& catalogue = from.globals.catalogue;
  CopyItemDisplay(catalogue.gcolFixedDataItems, catalogue.gcolUniversalDataItems);
  ReadItemDisplay(from.table, kGenericItemDisplaySection, catalogue.gcolUniversalDataItems);
}

/// How a section of two programs' file is brought together; the last also has its heading only over
/// lines.
enum class Held { ByKey, Whole, ByKeyIfAny };

struct Section {
  const char* heading;
  const char* status;  ///< what the status bar says while it is written; nullptr: nothing new
  SettingsHalf half;
  Held held;
  void (*read)(const SettingsSource& from);
  void (*write)(const Globals& globals, IniWriter& file);
};

/// In the order of the file.
const Section kSections[] = {
    {"General", "General", SettingsHalf::BeforeDefinition, Held::ByKey,
     [](const SettingsSource& from) {
       ReadGeneralSettings(from.table, from.install, from.globals.settings);
     },
     WriteGeneral},
    {"Power Graph", "Power Graph", SettingsHalf::BeforeDefinition, Held::Whole,
     [](const SettingsSource& from) { ReadCarDefs(from.table, from.globals.gcolCarDefs); },
     [](const Globals& globals, IniWriter& file) { WriteCarDefs(globals.gcolCarDefs, file); }},
    {"3D Graph", "3D Graph Defaults", SettingsHalf::BeforeDefinition, Held::ByKey,
     [](const SettingsSource& from) { ReadGraphAngles(from.table, from.globals.settings.angles); },
     [](const Globals& globals, IniWriter& file) {
       WriteGraphAngles(globals.settings.angles, file);
     }},
    {"New Preset Sample Graphs", "Preset Sample Graphs", SettingsHalf::BehindDefinition,
     Held::Whole, ReadSamples,
     [](const Globals& globals, IniWriter& file) {
       WriteSamplePresets(globals.gcolSampleGraphPresets, file);
     }},
    {"New Preset Scatter Graphs", "Preset Scatter Graphs", SettingsHalf::BehindDefinition,
     Held::Whole, ReadScatters,
     [](const Globals& globals, IniWriter& file) {
       WriteScatterPresets(globals.gcolScatterGraphPresets, file);
     }},
    {"Benchmarks", "Benchmarks", SettingsHalf::BeforeDefinition, Held::Whole,
     [](const SettingsSource& from) {
       ReadBenchmarks(from.table, from.globals.settings, from.globals.gcolBenchmarks);
     },
     [](const Globals& globals, IniWriter& file) {
       WriteBenchmarks(globals.gcolBenchmarks, file);
     }},
    {kRecentFiles, "Recently Used Files", SettingsHalf::BeforeDefinition, Held::Whole,
     [](const SettingsSource& from) {
       from.globals.settings.recentFiles = ReadFileList(from.table, kRecentFiles);
     },
     [](const Globals& globals, IniWriter& file) {
       WriteFileList(globals.settings.recentFiles, file);
     }},
    {kRecentPowerGraphFiles, nullptr, SettingsHalf::BeforeDefinition, Held::Whole,
     [](const SettingsSource& from) {
       from.globals.settings.recentPowerGraphFiles =
           ReadFileList(from.table, kRecentPowerGraphFiles);
     },
     [](const Globals& globals, IniWriter& file) {
       WriteFileList(globals.settings.recentPowerGraphFiles, file);
     }},
    {kItemDisplaySection, "Data Item Display Properties", SettingsHalf::BeforeDefinition,
     Held::ByKey,
     [](const SettingsSource& from) {
       ReadItemDisplay(from.table, kItemDisplaySection, from.globals.catalogue.gcolFixedDataItems);
     },
     [](const Globals& globals, IniWriter& file) {
       WriteItemDisplay(globals.catalogue.gcolFixedDataItems, file);
     }},
    {kGenericItemDisplaySection, nullptr, SettingsHalf::BehindDefinition, Held::ByKey,
     ReadUniversalDisplay,
     [](const Globals& globals, IniWriter& file) {
       WriteItemDisplay(globals.catalogue.gcolUniversalDataItems, file);
     }},
    {kBeyondSection, nullptr, SettingsHalf::BeforeDefinition, Held::ByKeyIfAny,
     [](const SettingsSource& from) {
       ReadBeyondSettings(from.table, from.globals.settings.beyond);
     },
     [](const Globals& globals, IniWriter& file) {
       WriteBeyondSettings(globals.settings.beyond, file);
     }},
};

constexpr std::size_t kCount = std::size(kSections);

}  // namespace

void ReadSettings(SettingsHalf half, const SettingsSource& from) {
  for (const Section& section : kSections)
    if (section.half == half) section.read(from);
}

SettingsBodies WriteSettings(const Globals& globals, const std::function<void(const char*)>& say) {
  SettingsBodies bodies;
  for (const Section& section : kSections) {
    if (section.status) say(section.status);
    IniWriter body;
    section.write(globals, body);
    bodies.push_back(body.Text());
  }
  return bodies;
}

SettingsBodies MergeSettings(const SettingsBodies& read, const SettingsBodies& held,
                             const SettingsBodies& inFile) {
  SettingsBodies merged;
  for (std::size_t n = 0; n < kCount; ++n) {
    const SectionVersions versions{read[n], held[n], inFile[n]};
    if (kSections[n].held == Held::Whole)
      merged.push_back(MergeWhole(versions));
    else
      merged.push_back(MergeKeys(versions));
  }
  return merged;
}

std::string SettingsText(const SettingsBodies& bodies) {
  std::string text;
  for (std::size_t n = 0; n < kCount; ++n) {
    if (kSections[n].held == Held::ByKeyIfAny && bodies[n].empty()) continue;
    text += "[" + std::string(kSections[n].heading) + "]\r\n" + bodies[n];
  }
  return text;
}

std::vector<std::string> SettingsHeadings() {
  std::vector<std::string> headings;
  for (const Section& section : kSections) headings.emplace_back(section.heading);
  return headings;
}

}  // namespace tarnview
