#include "app/CommandLine.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {

CommandLineFile ParseCommandLine(std::string_view text) {
  text = StripQuotes(Trim(text));
  const auto bar = text.rfind('|');
  if (bar == std::string_view::npos) return {std::string(text), std::nullopt};
  return {std::string(text.substr(0, bar)), StringToLong(text.substr(bar + 1))};
}

}  // namespace tarnview
