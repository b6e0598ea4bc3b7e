#include <cstdint>

#include "model/ConversionTables.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  const ConversionTable table = ParseConversionTable({reinterpret_cast<const char*>(data), size});
  for (const std::int32_t value : {0, -1, 83, 14700, INT32_MIN, INT32_MAX}) {
    TableLookup(value, table, true, false);
    TableLookup(value, table, false, true);
  }
  return 0;
}
