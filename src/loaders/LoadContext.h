#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/MessageTable.h"
#include "loaders/LoadProgress.h"
#include "model/ConversionTables.h"
#include "model/OpenLog.h"
#include "model/Settings.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

// A loader answers with a LoadOutcome whatever the bytes are; std::bad_alloc alone leaves it.

/// What a loader needs beside the file's bytes.
struct LoadContext {
  OpenLog& log;
  const clsLogDataItems& items;
  const Settings& settings;
  const ConversionTables& tables;
  LoadProgress& progress;
};

/// A numbered message of a load.
struct LoadMessage {
  LoadMessage(Message itsId, std::string itsExtra = "") : id(itsId), extra(std::move(itsExtra)) {}

  Message id;
  std::string extra;   ///< what it is about, such as the line; may be empty
  std::string report;  ///< path of a file that tells more; may be empty
};

/// What came of a load.
struct LoadOutcome {
  bool loaded = false;  ///< samples, zones or changes
  std::string error;    ///< "9, Subscript out of range", shown before the messages; or empty
  std::vector<LoadMessage> messages;  ///< to be shown in this order
  int columns = 0;                    ///< of a Universal log
  std::vector<std::string>
      unknownColumns;  ///< titles of a Universal log that its definition does not know
};

}  // namespace tarnview
