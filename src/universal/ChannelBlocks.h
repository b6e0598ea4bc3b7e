#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// A channel that a preamble describes, in the order of the fields of the lines behind it.
struct ChannelBlock {
  std::string name;
  std::string type;
};

/// What a type says of the whole numbers that are logged: value x factor is in `unit`.
struct ChannelScale {
  const char* type;
  double factor;
  const char* unit;
};

/// A log without a row of titles: lines of "Channel : NAME" and of what the channel is ("Type :
/// Pressure") name the fields behind a clock. Empty where fewer than two such lines stand in front
/// of the data. `key` is "CHANNEL".
std::vector<ChannelBlock> ReadChannelBlocks(const std::vector<std::string_view>& lines,
                                            std::string_view key);

/// nullptr for a type whose numbers stand as they are.
const ChannelScale* ScaleOfChannel(const std::string& type);

}  // namespace tarnview
