#include <cstdlib>

#include "presets/SampleGraphPresetFile.h"

/// A preset that was read is written, and what is written is read the same.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarnview;
  const auto preset = ReadSampleGraphPresetFile({reinterpret_cast<const char*>(data), size});
  if (!preset) return 0;
  // A file that names no family is never written with one: 0 is none, and the writer's callers know
  // theirs.
  const bool family = preset->lngLogFamily != 0;
  const std::string once = SampleGraphPresetFileText(*preset, family, {});
  const auto again = ReadSampleGraphPresetFile(once);
  if (!again || SampleGraphPresetFileText(*again, family, {}) != once) std::abort();
  return 0;
}
