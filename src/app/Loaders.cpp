#include "app/Loaders.h"

#include <algorithm>
#include <array>

#include "loaders/LinkPlusLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"
#include "model/clsFileTypes.h"
#include "universal/UniversalLog.h"

namespace tarnview {
namespace {

LoadOutcome FMLinkLog(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, context.settings.gblnSilentDefaults);
}

constexpr std::array kLoaders{
    LoaderRow{kFMLinkLog, FMLinkLog},
    LoaderRow{kTec2Log, LoadTec2Log},
    LoaderRow{kTec3Log, LoadTec3Log},
    LoaderRow{kLinkPlusLog, LoadLinkPlusLog},
    LoaderRow{kUTECCSVLog, LoadUTECCSVLog},
    LoaderRow{kUTECFixedLog, LoadUTECFixedLog},
    LoaderRow{kUniversalLog, LoadGenericDataLog},
};

}  // namespace

const LoaderRow* LoaderFor(int fileType) {
  const auto found =
      std::find_if(kLoaders.begin(), kLoaders.end(), [&](const auto& row) { return row.fileType == fileType; });
  return found == kLoaders.end() ? nullptr : &*found;
}

}  // namespace tarnview
