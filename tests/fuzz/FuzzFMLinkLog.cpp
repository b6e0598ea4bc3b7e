#include "loaders/FMLinkLog.h"
#include "model/Catalogue.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  static const Catalogue catalogue = BuildDataItemCatalogue();
  static const ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  NoProgress progress;
  OpenLog log;
  LoadFMLinkLog({reinterpret_cast<const char*>(data), size},
                {log, catalogue.gcolFixedDataItems, Settings{}, tables, progress}, false);
  return 0;
}
