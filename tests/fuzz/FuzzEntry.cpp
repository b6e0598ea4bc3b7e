// The entry of a fuzz target whose function, named as the target, stands in a header.

#include TARNVIEW_FUZZ_HEADER

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  return tarnview::TARNVIEW_FUZZ_NAME(data, size);
}
