#pragma once

#include "app/Globals.h"

namespace tarnview {

/// Which definition reads Universal logs, with the items that come of it: the one that the settings
/// name, or for a while the one that a log was opened with.
class DefinitionInUse {
 public:
  DefinitionInUse(Globals& globals, Services& services) : globals_(globals), services_(services) {}

  /// Loads the definition that the settings name, else the built-in one.
  void LoadDataLogDefinitionLocal();
  /// The settings have come to name this one.
  void Take(clsDataLog definition);

  /// What the items of a log of that file type are.
  const clsLogDataItems& ItemsOf(int fileType) const;
  const clsDataLog& SettingsDefinition() const;
  /// The open log has brought its own.
  bool IsOfLog() const { return globals_.definitionOfSettings.has_value(); }

  // The items of the open log go: nothing may show it any more.
  void UseDefinitionOfLog(clsDataLog definition);
  void UseDefinitionOfSettings();

 private:
  Globals& globals_;
  Services& services_;
};

}  // namespace tarnview
