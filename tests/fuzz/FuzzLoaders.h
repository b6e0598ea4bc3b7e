#pragma once

#include "loaders/FMLinkLog.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"
#include "model/Catalogue.h"

namespace tarnview {

/// The bytes are a log of that loader; `more` is what else it takes.
template <auto Load, auto... more>
int FuzzLog(const unsigned char* data, std::size_t size) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  static const ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  const Settings settings;
  NoProgress progress;
  OpenLog log;
  Load({reinterpret_cast<const char*>(data), size},
       {log, catalogue.gcolFixedDataItems, settings, tables, progress}, more...);
  return 0;
}

inline constexpr auto FuzzFMLinkLog = FuzzLog<LoadFMLinkLog, false>;
inline constexpr auto FuzzTec2Log = FuzzLog<LoadTec2Log>;
inline constexpr auto FuzzTec3Log = FuzzLog<LoadTec3Log>;
inline constexpr auto FuzzLinkPlusLog = FuzzLog<LoadLinkPlusLog>;
inline constexpr auto FuzzUTECCSVLog = FuzzLog<LoadUTECCSVLog>;
inline constexpr auto FuzzUTECFixedLog = FuzzLog<LoadUTECFixedLog>;

}  // namespace tarnview
