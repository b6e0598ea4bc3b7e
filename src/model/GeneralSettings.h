#pragma once

#include "model/IniFile.h"
#include "model/Settings.h"

namespace tarnview {

// Each pair reads and writes one section of the settings file by one table of its keys. A writer writes no heading.

/// `install` is the table of Tarnview_Install.ini: where the user left a path or the checked items empty, its value
/// serves. nullptr: there is none.
void ReadGeneralSettings(const IniTable& table, const IniTable* install, Settings& settings);
void WriteGeneralSettings(const Settings& settings, IniWriter& file);

void ReadGraphAngles(const IniTable& table, GraphAngles& angles);
void WriteGraphAngles(const GraphAngles& angles, IniWriter& file);

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
