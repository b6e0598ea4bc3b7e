#include "fuzz/FuzzSampleLog.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/Tec3Log.h"
#include "loaders/UTECCSVLog.h"
#include "loaders/UTECFixedLog.h"
#include "support/ReplayCorpus.h"

namespace tarnview {
namespace {

template <auto Load>
int Entry(const unsigned char* data, std::size_t size) {
  return FuzzSampleLog(Load, data, size);
}

TEST(Replay, SampleLogs) {
  ReplayCorpus("FuzzTec2Log", Entry<LoadTec2Log>);
  ReplayCorpus("FuzzTec3Log", Entry<LoadTec3Log>);
  ReplayCorpus("FuzzLinkPlusLog", Entry<LoadLinkPlusLog>);
  ReplayCorpus("FuzzUTECCSVLog", Entry<LoadUTECCSVLog>);
  ReplayCorpus("FuzzUTECFixedLog", Entry<LoadUTECFixedLog>);
}

}  // namespace
}  // namespace tarnview
