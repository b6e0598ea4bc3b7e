#include "app/Loaders.h"

#include <algorithm>
#include <array>

#include "loaders/FMLinkLog.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/MapLoader.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"
#include "model/clsFileTypes.h"
#include "universal/UniversalLog.h"

namespace tarnview {
namespace {

template <LoadOutcome (*load)(std::string_view, const LoadContext&)>
LoadOutcome Fixed(std::string_view bytes, const LoadContext& context, const clsDataLog&) {
  return load(bytes, context);
}

LoadOutcome FMLinkLog(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, context.settings.gblnSilentDefaults);
}

constexpr std::array kLoaders{
    LoaderRow{kFMLinkLog, Fixed<FMLinkLog>},
    LoaderRow{kMAPFile, Fixed<LoadMap>},
    LoaderRow{kTec2Log, Fixed<LoadTec2Log>},
    LoaderRow{kTec3Log, Fixed<LoadTec3Log>},
    LoaderRow{kLinkPlusLog, Fixed<LoadLinkPlusLog>},
    LoaderRow{kUTECCSVLog, Fixed<LoadUTECCSVLog>},
    LoaderRow{kUTECFixedLog, Fixed<LoadUTECFixedLog>},
    LoaderRow{kUniversalLog, LoadGenericDataLog},
};

}  // namespace

const LoaderRow* LoaderFor(int fileType) {
  const auto found = std::find_if(kLoaders.begin(), kLoaders.end(),
                                  [&](const auto& row) { return row.fileType == fileType; });
  if (found == kLoaders.end()) return nullptr;
  return &*found;
}

}  // namespace tarnview
