#pragma once

#include "universal/clsDataLog.h"

namespace tarnview {

/// The built-in definition, of Hydra Nemesis logs; it serves where no definition file is set or the
/// one set is bad.
clsDataLog DefaultDataLogDefinition();

}  // namespace tarnview
