#include "FuzzSampleLog.h"
#include "loaders/Tec2Log.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzSampleLog(tarnview::LoadTec2Log, data, size);
}
