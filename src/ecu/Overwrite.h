#pragma once

#include <string>

#include "ecu/EcuWorld.h"

namespace tarnview {

/// Asks before a file that is there already is written over; true where there is none, or on Yes.
/// The log that is open, and a file that its owner protects, are refused in words.
bool MayWrite(const EcuWorld& world, const std::string& path);

}  // namespace tarnview
