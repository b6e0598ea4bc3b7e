#pragma once

#include <string>

#include "ecu/EcuWorld.h"

namespace tarnview {

/// How far the conversion of a binary log came. What went wrong has been told.
enum class Converted {
  Done,
  Nothing,  ///< the program ran, and there is no text log
  NotRun    ///< it was not started
};

/// Has the conversion program turn `binary` into the text log `text`, through the files of fixed
/// names in its folder. Its exit code says nothing.
Converted ConvertBinary(const EcuWorld& world, const std::string& binary, const std::string& text);

/// Message 11 and false where there is no conversion program.
bool HasConverter(const EcuWorld& world);

}  // namespace tarnview
