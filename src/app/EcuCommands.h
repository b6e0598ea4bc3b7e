#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/Globals.h"
#include "app/LogFiles.h"
#include "app/MainWindowControls.h"
#include "desk/Commands.h"
#include "ecu/Capture.h"
#include "ecu/Upload.h"

namespace tarnview {

/// The commands that talk to the ECU through outside programs: capture, conversion, and the upload
/// that the zone editor asks for.
class EcuCommands : private Upload::Editor {
 public:
  EcuCommands(MainWindowControls& controls, Globals& globals, Services& services,
              LogFiles& logFiles);

  /// Loads the zones of a log or MAP file, and tells what goes wrong; nothing then.
  using LoadZones = std::function<std::optional<ZoneMap>(const std::string& path)>;

  std::vector<Command> Rows();
  /// What the zone editor's Upload does.
  void UploadZones(const ZonesToUpload& form, LoadZones loadComparison);

 private:
  void mnuToolsConvert_Click();

  ComparisonChoices ChoicesForComparison() override;
  std::optional<ZoneMap> LoadComparison(const std::string& path) override {
    return loadComparison_(path);
  }

  MainWindowControls& controls_;
  Globals& globals_;
  LogFiles& logFiles_;
  LoadZones loadComparison_;
  EcuWorld world_;
  Capture capture_{world_, logFiles_};
  Upload upload_{world_, *this};
};

}  // namespace tarnview
