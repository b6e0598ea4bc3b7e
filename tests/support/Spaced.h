#pragma once

#include <string>
#include <type_traits>

#include "base/Numbers.h"

namespace tarnview {

/// The parts with a blank between: texts as they are, numbers by NumberText.
template <class... Parts>
std::string Spaced(const Parts&... parts) {
  std::string all;
  const auto add = [&all](const auto& part) {
    if constexpr (std::is_arithmetic_v<std::decay_t<decltype(part)>>)
      all += NumberText(static_cast<double>(part));
    else
      all += part;
    all += ' ';
  };
  (add(parts), ...);
  all.pop_back();
  return all;
}

}  // namespace tarnview
