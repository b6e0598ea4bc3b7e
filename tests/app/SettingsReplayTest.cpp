#include "fuzz/FuzzSettings.cpp"
#include "support/ReplayCorpus.h"

TEST(Replay, Settings) { tarnview::ReplayCorpus("FuzzSettings", LLVMFuzzerTestOneInput); }
