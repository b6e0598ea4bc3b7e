#pragma once

#include <optional>
#include <string>

#include "base/ErrorLog.h"
#include "desk/EXEFunctions.h"
#include "desk/Messages.h"
#include "model/Catalogue.h"
#include "model/ConversionTables.h"
#include "model/OpenLog.h"
#include "model/Settings.h"
#include "model/clsLogFamilies.h"
#include "power/clsCarDef.h"
#include "universal/clsDataLog.h"
#include "zones/clsBenchmark.h"

namespace tarnview {

/// What the program keeps for its whole run, grouped by owner; made once, at start, and handed
/// down.
struct Globals {
  FileKinds kinds = SetUpLogFamilies();
  Catalogue catalogue = BuildDataItemCatalogue();
  Settings settings;
  ConversionTables tables;
  OpenLog log;
  clsDataLog gclsDataLogDefinition;  ///< of Universal logs
  /// What the settings name, while a log has a definition of its own in its place.
  struct KeptDefinition {
    clsDataLog definition;
    clsLogDataItems items;
  };
  std::optional<KeptDefinition> definitionOfSettings;
  std::string takenAs;  ///< the kind in words of a log that was opened by its content; else empty
  clsSampleGraphPresets gcolSampleGraphPresets;
  clsScatterGraphPresets gcolScatterGraphPresets;
  clsCarDefs gcolCarDefs;
  clsBenchmarks gcolBenchmarks;
  std::string missingDefinitionFile;  ///< named by the settings and not there; kept in them until
                                      ///< another is chosen
  std::string gstrProgramFolder;      ///< with a separator at its end; empty: there is none, and no
                                      ///< report is written
  std::string dataFolder;             ///< of what is installed, the same way
  std::string gstrINIFile;            ///< full path of Tarnview.ini; empty: no settings file
  std::string gstrInstallINIFile;     ///< Tarnview_Install.ini beside it, else in the data folder
  std::string
      gstrINIFileToWrite;  ///< where the settings are kept; empty: nowhere (the command line)
  /// Of the open log; before a first one, the type that the user opens most.
  int UsualFileType() const {
    if (log.gintCurrentFileType > 0) return log.gintCurrentFileType;
    return settings.gintDefaultFileType;
  }

  bool gblnStarting = false;  ///< until the first activation of the main window is over
};

/// What the program asks of the world, each behind a small interface.
struct Services {
  Host& host;
  FileSystem& files;
  Clock& clock;
  EXEFunctions& programs;
  ErrorLog& errors;
  Messages& messages;
};

}  // namespace tarnview
