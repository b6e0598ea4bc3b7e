#include "presets/ScatterFilters.h"
#include "presets/ScatterGraphPresetFile.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  static const Catalogue kCatalogue = BuildDataItemCatalogue();
  auto preset = ReadScatterGraphPresetFile({reinterpret_cast<const char*>(data), size},
                                           kCatalogue.gcolFixedDataItems);
  if (!preset) return 0;
  for (const auto& filter : preset->objFilters)
    FilterPrintString(filter, kCatalogue.gcolFixedDataItems);
  ScatterGraphPresetFileText(*preset, true, {});
  RemoveNonDisplayFilters(preset->objFilters, kCatalogue, preset->lngLogFamily);
  return 0;
}
