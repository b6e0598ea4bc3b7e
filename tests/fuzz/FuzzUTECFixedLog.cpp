#include "FuzzSampleLog.h"
#include "loaders/UTECFixedLog.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzSampleLog(tarnview::LoadUTECFixedLog, data, size);
}
