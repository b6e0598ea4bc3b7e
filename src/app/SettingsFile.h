#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/Globals.h"
#include "app/SettingsSections.h"
#include "model/IniFile.h"

namespace tarnview {

/// Tarnview.ini on its road from and to the disk. Two programs may work with one file: a write
/// reads it again, and what this one did not change is as the other left it.
class SettingsFile {
 public:
  SettingsFile(Globals& globals, Services& services) : globals_(globals), services_(services) {}

  /// Reads the file that the globals name into them: first all that the definition of Universal
  /// logs does not touch. A missing file gives every default. Of a damaged one whatever is whole is
  /// read; it is told, and kept beside as
  /// ".bad" where it would be written over.
  void LoadINIFileNew();
  /// The rest, when the definition has been loaded: presets and the display of Universal items.
  void LoadPresets();
  /// What the globals hold now is what was read; what they hold otherwise later is this program's
  /// own change.
  void Remember();

  /// Writes every section; `say` hears each one's name. The file as it was before this run stays
  /// beside as ".old". False: message 39 was shown, and the old file is as it was.
  bool WriteINIFile(const std::string& path, const std::function<void(const char*)>& say);

 private:
  IniTable ReadTable();
  std::optional<IniTable> ReadInstall();
  std::function<void(const std::vector<int>&)> TellUnknownItem();
  void TellDamage(const std::string& path, bool hasSettings);
  std::string SetAside(const std::string& path);
  void FindBackgroundPicture();
  void ValidateWorkingDirectory();
  SettingsBodies BodiesIn(std::string_view text);
  void KeepOlder(const std::string& path, std::string_view older, std::string_view newer);

  Globals& globals_;
  Services& services_;
  IniTable table_;       ///< between the two halves of loading
  std::string seen_;     ///< the file as it was read or written last
  SettingsBodies read_;  ///< what the globals held when it was
  bool noFile_ = false;
  bool keptOlder_ = false;
};

}  // namespace tarnview
