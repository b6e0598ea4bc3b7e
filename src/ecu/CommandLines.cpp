#include "ecu/CommandLines.h"

namespace tarnview {
namespace {

/// The port that the programs take by themselves.
constexpr const char* kUsualPort = "1";

std::string PortOption(const Settings& settings) {
  if (settings.gstrSerialComPort == kUsualPort) return "";
  return " -p " + settings.gstrSerialComPort;
}

std::string AutoTuneOption(AutoTuneMode mode) {
  constexpr const char* kModes[] = {"", " -a coarse_no_idle", " -a fine_no_idle",
                                    " -a fine_with_idle"};
  return kModes[static_cast<int>(mode)];
}

std::string OptionIf(bool chosen, const char* option) {
  if (chosen) return option;
  return "";
}

}  // namespace

ProgramCall CaptureCall(const Settings& settings, NewFileType type) {
  return {settings.gstrLogEXE,
          OptionIf(type == NewFileType::ZoneSettings, " -m") + PortOption(settings) + " -t"};
}

ProgramCall UploadCall(const Settings& settings, const UploadOptions& options) {
  const std::string inOrder[] = {
      " -q",
      OptionIf(options.blnPermanentlyStore, " -s"),
      OptionIf(options.blnVerify, " -c"),
      PortOption(settings),
      AutoTuneOption(options.autoTune),
      OptionIf(options.blnVerbose, " -v"),
      " -f TVW.map",
  };
  ProgramCall call{settings.gstrLogEXE};
  for (const std::string& option : inOrder) call.arguments += option;
  return call;
}

ProgramCall ConversionCall(const Settings& settings) { return {settings.gstrConversionEXE}; }

}  // namespace tarnview
