#include "FuzzSampleLog.h"
#include "loaders/LinkPlusLog.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::FuzzSampleLog(tarnview::LoadLinkPlusLog, data, size);
}
