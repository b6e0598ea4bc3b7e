#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/Globals.h"
#include "model/IniFile.h"
#include "presets/PresetSettings.h"

namespace tarnview {

// What the sections of Tarnview.ini are, in the order of the file.

struct SettingsSource {
  Globals& globals;
  const IniTable& table;
  const IniTable* install;  ///< of Tarnview_Install.ini; nullptr if there is none
  TellUnknownItems tell;
};

/// Presets and the display of Universal items need the definition of Universal logs; all else comes
/// ahead of it.
enum class SettingsHalf { BeforeDefinition, BehindDefinition };

void ReadSettings(SettingsHalf half, const SettingsSource& from);

/// The lines of each section.
using SettingsBodies = std::vector<std::string>;

/// `say` hears the name of each section.
SettingsBodies WriteSettings(const Globals& globals, const std::function<void(const char*)>& say);
/// Of two programs with one file: what each section becomes.
SettingsBodies MergeSettings(const SettingsBodies& read, const SettingsBodies& held,
                             const SettingsBodies& inFile);
/// The file's text.
std::string SettingsText(const SettingsBodies& bodies);

std::vector<std::string> SettingsHeadings();

}  // namespace tarnview
