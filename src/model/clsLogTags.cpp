#include "model/clsLogTags.h"

#include <algorithm>

namespace tarnview {

void clsLogTags::Validate(std::int32_t first, std::int32_t last) {
  const auto within = [&](std::int32_t sample) { return std::min(std::max(sample, first), last); };
  for (clsLogTag& tag : tags_) {
    if (tag.FromSequence > tag.ToSequence) std::swap(tag.FromSequence, tag.ToSequence);
    tag.FromSequence = within(tag.FromSequence);
    tag.ToSequence = within(tag.ToSequence);
  }
}

}  // namespace tarnview
