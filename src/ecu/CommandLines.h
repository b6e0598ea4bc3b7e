#pragma once

#include "base/ProgramCall.h"
#include "ecu/NewFile.h"
#include "ecu/UploadOptions.h"
#include "model/Settings.h"

namespace tarnview {

// What the outside programs are called with, word for word.

/// Captures a log or the zone settings from the ECU.
ProgramCall CaptureCall(const Settings& settings, NewFileType type);
/// Sends TVW.map, which lies in the program's own folder, to the ECU.
ProgramCall UploadCall(const Settings& settings, const UploadOptions& options);
/// Turns miatatmp.bin into miatatmp.txt.
ProgramCall ConversionCall(const Settings& settings);

}  // namespace tarnview
