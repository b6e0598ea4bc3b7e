#pragma once

#include <functional>
#include <string>

#include "app/Globals.h"
#include "model/IniFile.h"

namespace tarnview {

/// Tarnview.ini whole: what its sections are, in their order, and its road from and to the disk.
class SettingsFile {
 public:
  SettingsFile(Globals& globals, Services& services) : globals_(globals), services_(services) {}

  /// Reads the file that the globals name into them: first all that the definition of Universal logs does not touch. A
  /// missing file gives every default. One that is no settings file at all is told, and kept beside as ".bad" where it
  /// would be written over.
  void LoadINIFileNew();
  /// The rest, when the definition has been loaded: presets and the display of Universal items.
  void LoadPresets();

  /// Writes every section; `say` hears each one's name. False: message 39 was shown, and the old file is as it was.
  bool WriteINIFile(const std::string& path, const std::function<void(const char*)>& say);

 private:
  IniTable ReadTable();
  void SetAside(const std::string& path);
  void FindBackgroundPicture();
  void ValidateWorkingDirectory();

  Globals& globals_;
  Services& services_;
  bool noFile_ = false;
  IniTable table_;  ///< between the two halves of loading
};

}  // namespace tarnview
