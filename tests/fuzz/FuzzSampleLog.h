#pragma once

#include "loaders/LoadContext.h"
#include "model/Catalogue.h"

namespace tarnview {

/// One run of a loader, for a target of its own.
inline int FuzzSampleLog(LoadOutcome (*load)(std::string_view, const LoadContext&),
                         const unsigned char* data, std::size_t size) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  static const ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  const Settings settings;
  NoProgress progress;
  OpenLog log;
  load({reinterpret_cast<const char*>(data), size},
       {log, catalogue.gcolFixedDataItems, settings, tables, progress});
  return 0;
}

}  // namespace tarnview
