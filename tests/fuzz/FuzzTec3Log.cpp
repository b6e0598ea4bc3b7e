#include "FuzzSampleLog.h"
#include "loaders/Tec3Log.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzSampleLog(tarnview::LoadTec3Log, data, size);
}
