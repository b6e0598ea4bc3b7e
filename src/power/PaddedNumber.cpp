#include "power/PaddedNumber.h"

#include <cmath>

#include "base/Numbers.h"

namespace tarnview {

std::string PaddedNumber(double value, int digits, int places) {
  const std::string text = FixedText(std::fabs(value), places);
  const auto width = static_cast<std::size_t>(digits + (places > 0 ? places + 1 : 0));
  const std::string zeros(text.size() < width ? width - text.size() : 0, '0');
  const bool negative = value < 0 && StringToDouble(text) != 0;
  return (negative ? "-" : "") + zeros + text;
}

}  // namespace tarnview
