#include <cstdlib>

#include "zones/ChipIdentity.h"
#include "zones/MapFile.h"

/// Any bytes are a map or none; a map is of a chip that exists, and what is written of it comes
/// back.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  const MapReading reading =
      ParseMap({reinterpret_cast<const char*>(data), size}, Settings{}, false);
  if (!reading.read) return 0;
  const ZoneMap& map = reading.map;
  if (!IsEngineSize(map.chip.dblEngineSize) || map.chip.intChipVersion < 1 ||
      map.chip.intChipVersion > 3)
    std::abort();
  const MapReading again = ParseMap(MapText(map, {}), Settings{}, true);
  if (!again.read || again.map.chip.intChipVersion != map.chip.intChipVersion) std::abort();
  return 0;
}
