#include "fuzz/FuzzConversionTable.cpp"
#include "support/ReplayCorpus.h"

TEST(Replay, ConversionTable) {
  tarnview::ReplayCorpus("FuzzConversionTable", LLVMFuzzerTestOneInput);
}
