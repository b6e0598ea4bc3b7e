#pragma once

#include <string>

#include "base/EXEFunctions.h"
#include "base/ErrorLog.h"
#include "base/Help.h"
#include "base/Messages.h"
#include "model/Catalogue.h"
#include "model/ConversionTables.h"
#include "model/OpenLog.h"
#include "model/Settings.h"
#include "model/clsLogFamilies.h"

namespace tarnview {

/// What the program keeps for its whole run, grouped by owner; made once, at start, and handed down.
struct Globals {
  FileKinds kinds = SetUpLogFamilies();
  Catalogue catalogue = BuildDataItemCatalogue();
  Settings settings;
  ConversionTables tables;
  OpenLog log;
  std::string gstrINIFile;         ///< full path of Tarnview.ini; empty: no settings file
  std::string gstrInstallINIFile;  ///< Tarnview_Install.ini beside it
  bool gblnStarting = false;       ///< until the first activation of the main window is over
};

/// What the program asks of the world, each behind a small interface.
struct Services {
  Host& host;
  FileSystem& files;
  Clock& clock;
  EXEFunctions& programs;
  ErrorLog& errors;
  Messages& messages;
  Help& help;
};

}  // namespace tarnview
