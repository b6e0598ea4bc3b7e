#include "fuzz/FuzzFMLinkLog.cpp"
#include "support/ReplayCorpus.h"

TEST(Replay, FMLinkLog) { tarnview::ReplayCorpus("FuzzFMLinkLog", LLVMFuzzerTestOneInput); }
