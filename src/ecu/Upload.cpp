#include "ecu/Upload.h"

#include "base/Paths.h"
#include "ecu/CommandLines.h"
#include "ecu/EcuFiles.h"
#include "ecu/ExitCodes.h"
#include "ecu/ProgramRun.h"
#include "ecu/SentMaps.h"
#include "ecu/UploadZones.h"
#include "ecu/frmUploadConf.h"
#include "zones/MapFile.h"

namespace tarnview {

ZonesToUpload ZonesOfSheet(const ZoneSheet& sheet, const ZoneMap& source,
                           const Settings& settings) {
  const ChipIdentity own{settings.gdblDefaultEngineSize, settings.gdatDefaultChipDate,
                         sheet.chip.intChipVersion};
  return {sheet.chip.dblEngineSize, sheet.chip.datChipDate, Rebuild(sheet, source, own).zones};
}

ZoneMap MapToSend(const Settings& settings, const ZonesToUpload& form,
                  const Comparison& comparison) {
  ZoneMap map;
  map.zones = form.zones;
  map.chip = {settings.gdblDefaultEngineSize, settings.gdatDefaultChipDate, 0};
  map.intAtmosphericPressure = settings.gintDefaultAtmosphericPressure;
  if (comparison.zones) KeepChangesOnly(map.zones, *comparison.zones);
  if (!AirZonesFit(form.datChipDate, settings.gdatDefaultChipDate)) LeaveAirZonesAlone(map.zones);
  LeaveAtmosphereAlone(map.zones);
  return map;
}

Comparison ComparisonOf(const Settings& settings, const std::optional<ZoneMap>& loaded) {
  if (!loaded) return {{}, Message::ComparisonFileNotLoaded};
  if (loaded->chip.dblEngineSize != settings.gdblDefaultEngineSize ||
      loaded->chip.datChipDate != settings.gdatDefaultChipDate)
    return {{}, Message::ComparisonFileOfOtherChip};
  return {loaded->zones, {}};
}

void Upload::Run(const ZonesToUpload& form) {
  static constexpr bool (Upload::*kSteps[])() = {&Upload::HasUploader, &Upload::IsOwnEngine,
                                                 &Upload::AskHow,      &Upload::MakeMap,
                                                 &Upload::WriteMap,    &Upload::Send};
  form_ = form;
  kept_ = false;
  for (const auto step : kSteps)
    if (!(this->*step)()) return;
}

bool Upload::HasUploader() {
  return HasProgram(world_, world_.settings.gstrLogEXE, Message::UploadProgramNotFound) &&
         !IsStillAtWork(world_);
}

bool Upload::IsOwnEngine() {
  if (form_.dblEngineSize == world_.settings.gdblDefaultEngineSize) return true;
  world_.messages.ShowMessage(Message::OtherEngineSize);
  return false;
}

bool Upload::AskHow() {
  frmUpload window(world_, editor_.ChoicesForComparison());
  window.ShowModal();
  options_ = window.Chosen();
  return window.Accepted();
}

bool Upload::MakeMap() {
  const std::string path = LoggerFiles(world_.settings).upload();
  if (world_.files.FileExists(path)) world_.files.DeleteFile(path);
  Comparison comparison;
  if (options_.blnChangesOnly) comparison = FindComparison();
  if (comparison.fault) world_.messages.ShowMessage(*comparison.fault);
  if (!AirZonesFit(form_.datChipDate, world_.settings.gdatDefaultChipDate))
    world_.messages.ShowMessage(Message::AirTempNotUploaded);
  map_ = MapToSend(world_.settings, form_, comparison);
  return true;
}

/// A comparison that is no good never stops an upload: all zones are sent then.
Comparison Upload::FindComparison() {
  const std::string& path = options_.strComparisonFile;
  if (path.empty() || !world_.files.FileExists(path)) return {{}, Message::ComparisonFileNotFound};
  world_.host.DoEvents();
  return ComparisonOf(world_.settings, editor_.LoadComparison(path));
}

bool Upload::WriteMap() {
  const std::string path = LoggerFiles(world_.settings).upload();
  text_ = MapText(map_, world_.clock.Now());
  if (world_.files.Write(path, text_)) return true;
  world_.messages.Tell("Problem creating temporary MAP file (" + path + ").", kBoxExclamation);
  return false;
}

bool Upload::Send() {
  for (;;) {
    frmUploadConf window(world_.host, world_.settings);
    window.ShowModal();
    if (!window.Accepted() || SendOnce()) return true;
  }
}

/// True where there is nothing to try again: it went well, or nobody knows whether the program is
/// still at it, and nothing may be sent twice.
bool Upload::SendOnce() {
  const ProgramCall call = UploadCall(world_.settings, options_);
  KeepMap();
  world_.files.Write(LoggerFiles(world_.settings).uploadCommand(), UploadCommandRecord(call));
  const RunResult result = RunProgram(world_, call);
  if (result.end == RunResult::End::Exited && result.exitCode != kNormalExit)
    world_.messages.Tell(ExitCodeText(result.exitCode), kBoxExclamation);
  return result.Succeeded() || result.end == RunResult::End::LeftAlone;
}

void Upload::KeepMap() {
  if (kept_) return;
  kept_ = true;
  const std::string& folder = world_.settings.gstrDefaultWorkingDirectory;
  if (KeepSentMap(world_.files, folder, text_, world_.clock.Now())) return;
  world_.messages.Tell(
      "No copy of the map could be kept in:\r\n" + AddBackslash(folder) + "Uploads",
      kBoxExclamation);
}

}  // namespace tarnview
