#include "fuzz/FuzzScatterGraphPresetFile.cpp"
#include "support/ReplayCorpus.h"

TEST(Replay, ScatterGraphPresetFile) {
  tarnview::ReplayCorpus("FuzzScatterGraphPresetFile", LLVMFuzzerTestOneInput);
}
