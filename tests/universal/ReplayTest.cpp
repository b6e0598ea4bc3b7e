#include "fuzz/FuzzShape.h"
#include "support/ReplayCorpus.h"

namespace tarnview {
namespace {

TEST(Replay, DefinitionsAndLogs) {
  ReplayCorpus("FuzzDataLogDefinition", FuzzDataLogDefinition);
  ReplayCorpus("FuzzUniversalLog", FuzzUniversalLog);
  ReplayCorpus("FuzzLogShape", FuzzLogShape);
  ReplayCorpus("FuzzLogTitles", FuzzLogTitles);
}

}  // namespace
}  // namespace tarnview
