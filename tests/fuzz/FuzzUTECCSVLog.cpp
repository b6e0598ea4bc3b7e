#include "FuzzSampleLog.h"
#include "loaders/UTECCSVLog.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzSampleLog(tarnview::LoadUTECCSVLog, data, size);
}
