#pragma once

#include <functional>

#include "model/IniFile.h"
#include "model/IniKeys.h"
#include "model/Settings.h"

namespace tarnview {

// Each pair reads and writes one section of the settings file by one table of its keys. A writer
// writes no heading.

/// `install` is the table of Tarnview_Install.ini: where the user left a path or the checked items
/// empty, its value serves. nullptr: there is none.
void ReadGeneralSettings(const IniTable& table, const IniTable* install, Settings& settings);
void WriteGeneralSettings(const Settings& settings, IniWriter& file);

void ReadGraphAngles(const IniTable& table, GraphAngles& angles);
void WriteGraphAngles(const GraphAngles& angles, IniWriter& file);

/// A setting as those see it who are neither reader nor writer: the Options window, lists for
/// people.
struct SettingRow {
  const char* section;
  const char* key;
  SetIn setIn;
  std::string limits;                                ///< in words; "" for any text
  std::function<std::string(const Settings&)> text;  ///< as the file holds it
  std::function<void(Settings&, std::string_view)>
      take;  ///< as the reader takes it: clamped, or left as it is
};

/// Every setting of "General", "3D Graph" and "Beyond" but the windows' placements, in the order of
/// the file.
std::vector<SettingRow> AllSettings();

/// What the humidity may be: per cent, or a wet bulb's degrees C up to those of the air.
Limits HumidityLimits(const Settings& settings);

/// "File 0" is the latest; an entry that is missing or empty is passed over.
std::vector<std::string> ReadFileList(const IniTable& table, const char* section);
void WriteFileList(const std::vector<std::string>& files, IniWriter& file);

/// The placements with the prefixes of their keys ("" for the main window), in the file's order.
struct NamedPlacement {
  const char* prefix;
  std::optional<clsWindowConfig> WindowPlacements::*window;
};
std::vector<NamedPlacement> AllPlacements();

}  // namespace tarnview
