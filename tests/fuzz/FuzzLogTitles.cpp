#include "FuzzShape.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzLogTitles(data, size);
}
