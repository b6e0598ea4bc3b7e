#pragma once

#include "model/Catalogue.h"
#include "model/Settings.h"
#include "model/clsLogFamilies.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// What the Options window works on: copies, which its caller takes back on OK.
struct OptionsDraft {
  Settings settings;
  clsDataLog definition;  ///< of Universal logs; what the settings name, or what was loaded since
  Catalogue catalogue;
  FileKinds kinds;
};

}  // namespace tarnview
