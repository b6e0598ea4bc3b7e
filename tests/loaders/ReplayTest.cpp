#include "fuzz/FuzzLoaders.h"
#include "support/ReplayCorpus.h"

namespace tarnview {
namespace {

TEST(Replay, Logs) {
  ReplayCorpus("FuzzFMLinkLog", FuzzFMLinkLog);
  ReplayCorpus("FuzzTec2Log", FuzzTec2Log);
  ReplayCorpus("FuzzTec3Log", FuzzTec3Log);
  ReplayCorpus("FuzzLinkPlusLog", FuzzLinkPlusLog);
  ReplayCorpus("FuzzUTECCSVLog", FuzzUTECCSVLog);
  ReplayCorpus("FuzzUTECFixedLog", FuzzUTECFixedLog);
}

}  // namespace
}  // namespace tarnview
