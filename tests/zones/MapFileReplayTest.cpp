#include "fuzz/FuzzMapFile.cpp"
#include "support/ReplayCorpus.h"

TEST(Replay, MapFile) { tarnview::ReplayCorpus("FuzzMapFile", LLVMFuzzerTestOneInput); }
