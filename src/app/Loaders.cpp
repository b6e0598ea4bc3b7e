#include "app/Loaders.h"

#include <algorithm>
#include <array>

#include "model/clsFileTypes.h"

namespace tarnview {
namespace {

LoadOutcome FMLinkLog(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, context.settings.gblnSilentDefaults);
}

constexpr std::array kLoaders{
    LoaderRow{kFMLinkLog, FMLinkLog},
};

}  // namespace

const LoaderRow* LoaderFor(int fileType) {
  const auto found =
      std::find_if(kLoaders.begin(), kLoaders.end(), [&](const auto& row) { return row.fileType == fileType; });
  return found == kLoaders.end() ? nullptr : &*found;
}

}  // namespace tarnview
