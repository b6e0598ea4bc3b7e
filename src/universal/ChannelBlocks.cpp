#include "universal/ChannelBlocks.h"

#include "base/Text.h"

namespace tarnview {
namespace {

// Whole numbers: tenths of a kPa, of a kelvin, of a per cent, of a degree, of km/h; thousandths of
// lambda and of a volt.
constexpr ChannelScale kScales[] = {
    {"PRESSURE", 0.1, "kPa"}, {"ABSPRESSURE", 0.1, "kPa"},    {"TEMPERATURE", 0.1, "K"},
    {"AFR", 0.001, "lambda"}, {"PERCENTAGE", 0.1, "%"},       {"ANGLE", 0.1, "deg"},
    {"SPEED", 0.1, "km/h"},   {"BATTERYVOLTAGE", 0.001, "V"}, {"ENGINESPEED", 1, "rpm"},
};

/// "KEY : value" or "KEY=value".
bool SplitPair(std::string_view line, std::string& key, std::string_view& value) {
  const auto sign = line.find_first_of(":=");
  if (sign == std::string_view::npos || sign == 0) return false;
  key = Upper(Trim(line.substr(0, sign)));
  value = Trim(line.substr(sign + 1));
  return true;
}

}  // namespace

std::vector<ChannelBlock> ReadChannelBlocks(const std::vector<std::string_view>& lines,
                                            std::string_view wanted) {
  std::vector<ChannelBlock> channels;
  std::string key;
  std::string_view value;
  for (const std::string_view line : lines) {
    if (!SplitPair(line, key, value)) continue;
    if (SameIgnoringCase(key, wanted))
      channels.push_back({std::string(value), ""});
    else if (key == "TYPE" && !channels.empty())
      channels.back().type = value;
  }
  if (channels.size() < 2) channels.clear();
  return channels;
}

const ChannelScale* ScaleOfChannel(const std::string& type) {
  const std::string wanted = Upper(type);
  for (const ChannelScale& row : kScales)
    if (wanted == row.type) return &row;
  return nullptr;
}

}  // namespace tarnview
