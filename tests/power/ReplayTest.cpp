#include "fuzz/FuzzPower.h"
#include "support/ReplayCorpus.h"

namespace tarnview {
namespace {

TEST(Replay, PowerFiles) {
  ReplayCorpus("FuzzPowerFile", FuzzPowerFile);
  ReplayCorpus("FuzzCarFile", FuzzCarFile);
}

}  // namespace
}  // namespace tarnview
