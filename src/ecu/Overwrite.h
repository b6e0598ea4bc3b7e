#pragma once

#include <string>

#include "ecu/EcuWorld.h"

namespace tarnview {

/// Asks before a file that is there already is written over, be it the log that is open; true where
/// there is none, or on Yes. A file that its owner protects is refused in words.
bool MayWrite(const EcuWorld& world, const std::string& path);

}  // namespace tarnview
