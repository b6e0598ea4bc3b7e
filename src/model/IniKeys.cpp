#include "model/IniKeys.h"

#include <charconv>
#include <cmath>
#include <set>

#include "base/Text.h"

namespace tarnview {

std::string ShortestText(double value) {
  if (value == 0 || !std::isfinite(value)) return "0";
  char buffer[400];  // the largest double has 309 digits, the smallest 324 places
  const auto written = std::to_chars(buffer, std::end(buffer), value, std::chars_format::fixed);
  return {buffer, written.ptr};
}

std::vector<int> ReadItemNumbers(std::string_view text) {
  std::vector<int> items;
  std::set<int> seen;
  for (const std::string& part : Split(text, ','))
    if (const int item = StringToLong(part); seen.insert(item).second) items.push_back(item);
  return items;
}

std::string ItemNumbersText(const std::vector<int>& items) {
  std::vector<std::string> texts;
  for (const int item : items) texts.push_back(std::to_string(item));
  return Join(texts, ",");
}

std::string detail::LimitsText(Limits limits) {
  if (limits == kAnyWhole) return "a whole number";
  return std::to_string(limits.least) + " to " + std::to_string(limits.most);
}

std::string FlagText(bool value, IniFlagForm form) {
  struct Texts {
    const char *off, *on;
  };
  constexpr Texts kTexts[] = {{"0", "1"}, {"N", "Y"}, {"N", "Y"}, {"False", "True"}};
  const Texts& texts = kTexts[static_cast<std::size_t>(form)];
  if (value) return texts.on;
  return texts.off;
}

bool detail::ReadFlag(std::string_view text, IniFlagForm form) {
  switch (form) {
    case IniFlagForm::Number:
      return StringToDouble(text) != 0;
    case IniFlagForm::OnUnlessN:
      return text != "N";
    case IniFlagForm::OffUnlessY:
      return text == "Y";
    default:
      return text == "True";
  }
}

}  // namespace tarnview
