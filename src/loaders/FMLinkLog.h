#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "loaders/LoadProgress.h"
#include "model/Catalogue.h"
#include "model/ConversionTables.h"
#include "model/OpenLog.h"
#include "model/Settings.h"

namespace tarnview {

class clsDataLog;

/// What a loader needs beside the file's bytes.
struct LoadContext {
  OpenLog& log;
  const clsLogDataItems& items;
  const Settings& settings;
  const ConversionTables& tables;
  LoadProgress& progress;
  const clsDataLog* definition = nullptr;  ///< of Universal logs alone
};

/// A numbered message of a load.
struct LoadMessage {
  LoadMessage(int itsId, std::string itsExtra = "") : id(itsId), extra(std::move(itsExtra)) {}

  int id;
  std::string extra;   ///< what it is about, such as the line; may be empty
  std::string report;  ///< path of a file that tells more; may be empty
};

/// What came of a load.
struct LoadOutcome {
  bool loaded = false;                      ///< samples, zones or changes
  std::vector<LoadMessage> messages;        ///< to be shown in this order
  std::vector<std::string> unknownColumns;  ///< titles of a Universal log that its definition does not know
};

/// Reads the text log of the FM Link logging program: samples, zone settings, lambda/knock changes, data tags. `silent`
/// keeps back the messages about defaults. Never throws; any bytes are a log or a message.
LoadOutcome LoadFMLinkLog(std::string_view bytes, const LoadContext& context, bool silent);

}  // namespace tarnview
