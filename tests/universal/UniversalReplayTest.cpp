#include "fuzz/FuzzUniversal.h"
#include "support/ReplayCorpus.h"

namespace tarnview {
namespace {

TEST(Replay, DefinitionsAndLogs) {
  ReplayCorpus("FuzzDataLogDefinition", FuzzDataLogDefinition);
  ReplayCorpus("FuzzUniversalLog", FuzzUniversalLog);
}

}  // namespace
}  // namespace tarnview
