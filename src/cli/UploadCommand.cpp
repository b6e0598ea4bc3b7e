#include <cstdio>
#include <memory>
#include <optional>

#include "app/Program.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConsoleHost.h"
#include "ecu/CommandLines.h"
#include "ecu/Upload.h"
#include "ecu/UploadZones.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

struct UploadCommandOptions {
  std::string map;
  std::string settings;
  std::optional<std::string> compare;
  std::string autoTune;
  bool dryRun = false;
};

/// In the order of AutoTuneMode.
const std::vector<std::string> kAutoTuneModes{"none", "coarse_no_idle", "fine_no_idle",
                                              "fine_with_idle"};

AutoTuneMode ModeOf(const std::string& name) {
  for (std::size_t mode = 0; mode < kAutoTuneModes.size(); ++mode)
    if (kAutoTuneModes[mode] == name) return static_cast<AutoTuneMode>(mode);
  return AutoTuneMode::None;
}

/// A program with no window on show, for its settings and messages.
class DryRun {
 public:
  explicit DryRun(const UploadCommandOptions& options)
      : options_(options), program_(host_, files_, clock_, processes_, {}, options.settings) {
    program_.Start("", false);
  }

  int Run() {
    const Settings& settings = program_.Global().settings;
    const auto map = ReadMap(options_.map);
    if (!map) return kFailed;
    const ZonesToUpload form = ZonesOfSheet(OpenSheet(*map), *map, settings);
    if (form.dblEngineSize != settings.gdblDefaultEngineSize) {
      program_.TellMessage(Message::OtherEngineSize);
      return kFailed;
    }
    const UploadOptions upload = Chosen();
    Comparison comparison;
    if (upload.blnChangesOnly) comparison = Compared(upload.strComparisonFile);
    if (comparison.fault) program_.TellMessage(*comparison.fault);
    if (!AirZonesFit(form.datChipDate, settings.gdatDefaultChipDate))
      program_.TellMessage(Message::AirTempNotUploaded);
    const std::string text = MapText(MapToSend(settings, form, comparison), clock_.Now());
    std::printf("%s%s\n", ToUtf8(text).c_str(),
                ShownAsUtf8(UploadCall(settings, upload).Text()).c_str());
    return kDone;
  }

 private:
  UploadOptions Chosen() const {
    const auto& defaults = program_.Global().settings.gblnUploadDefaults;
    return {.blnPermanentlyStore = defaults[0],
            .blnVerify = defaults[1],
            .blnChangesOnly = defaults[2] || options_.compare,
            .blnVerbose = defaults[3],
            .strComparisonFile = options_.compare.value_or(""),
            .autoTune = ModeOf(options_.autoTune)};
  }

  std::optional<ZoneMap> ReadMap(const std::string& path) {
    const MapReading reading = ReadMapFile(files_, path, program_.Global().settings, false);
    if (!reading.error.empty()) host_.Ask({0, reading.error, kBoxExclamation, ""});
    for (const Message message : reading.messages) program_.TellMessage(message);
    if (reading.read) return reading.map;
    program_.TellMessage(Message::NotAMapFile);
    return std::nullopt;
  }

  Comparison Compared(const std::string& path) {
    if (path.empty() || !files_.FileExists(path)) return {{}, Message::ComparisonFileNotFound};
    const Globals& globals = program_.Global();
    if (SameIgnoringCase(GetExtension(path), "map"))
      return ComparisonOf(globals.settings, ReadMap(path));
    program_.MainWindow().LoadDataFile(path, kFMLinkLog);
    if (!globals.log.gblnZonesLoaded) return ComparisonOf(globals.settings, std::nullopt);
    return ComparisonOf(globals.settings, MapOf(globals.log.zones));
  }

  const UploadCommandOptions& options_;
  ConsoleHost host_;
  RealFileSystem files_;
  RealClock clock_;
  RealProcesses processes_;
  Program program_;
};

}  // namespace

void AddUploadCommand(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand(
      "upload", "Prints the map that an upload would send, and its command line");
  command->footer("Example:\n  tarnview-cli upload turbo.map --dry-run --settings Tarnview.ini");
  auto options = std::make_shared<UploadCommandOptions>();
  command->add_option("MAP", options->map, "The MAP file")->required()->check(CLI::ExistingFile);
  command
      ->add_flag("--dry-run", options->dryRun,
                 "There is no upload from here: it only shows what would be sent")
      ->required();
  command
      ->add_option("--settings", options->settings,
                   "Read this Tarnview.ini: chip, programs, port, upload defaults")
      ->check(CLI::ExistingFile);
  command->add_option("--compare", options->compare, "Only what differs from this log or MAP file");
  command->add_option("--auto-tune", options->autoTune, "How the ECU tunes itself afterwards")
      ->check(CLI::IsMember(kAutoTuneModes));
  command->callback([options, &status] { status = DryRun(*options).Run(); });
}

}  // namespace tarnview
