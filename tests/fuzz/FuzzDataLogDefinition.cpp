#include "FuzzUniversal.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzDataLogDefinition(data, size);
}
