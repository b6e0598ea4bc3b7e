#pragma once

#include <string>

#include "app/Globals.h"

namespace tarnview {

/// Makes the settings file of a user who has none yet: asks for the kind of log and copies that
/// kind's template.
class FirstRun {
 public:
  /// Templates, definitions and conversion tables that do not lie beside the program lie in
  /// `dataFolder`. Folders end with a separator. `logFolder` is where a user's logs may lie; empty:
  /// the folder above the program's.
  FirstRun(Globals& globals, Services& services, std::string programFolder, std::string dataFolder,
           std::string logFolder = "")
      : globals_(globals),
        services_(services),
        programFolder_(std::move(programFolder)),
        dataFolder_(std::move(dataFolder)),
        logFolder_(std::move(logFolder)) {}

  /// False: the user cancelled, and no file was written. Without a template, message 29 is shown
  /// and every setting will have its default.
  bool GenerateINIFile(const std::string& path);

 private:
  struct Choice {
    int fileType;
    std::string definition;
  };
  bool Ask(Choice& choice);
  std::string TemplateOf(const std::string& path, int fileType);
  void FillIn(std::string& text, const Choice& choice);

  Globals& globals_;
  Services& services_;
  std::string programFolder_, dataFolder_, logFolder_;
};

}  // namespace tarnview
