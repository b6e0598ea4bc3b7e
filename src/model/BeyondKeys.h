#pragma once

#include <span>

#include "model/BeyondSettings.h"
#include "model/IniKeys.h"

namespace tarnview {

/// The rows of the section "Beyond".
std::span<const IniKey<BeyondSettings>> BeyondKeys();

}  // namespace tarnview
