#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "model/ConversionTables.h"

namespace tarnview {

/// A conversion table that remembers what it gave for each input of 0 to `inputs` - 1: samples
/// repeat few of them.
class LookupCache {
 public:
  LookupCache(const ConversionTable& table, std::size_t inputs)
      : table_(table), outputs_(inputs, kNotYet) {}

  std::int32_t operator()(std::int32_t input) {
    const auto slot = static_cast<std::size_t>(input);
    if (input < 0 || slot >= outputs_.size()) return TableLookup(input, table_, true, false);
    if (outputs_[slot] == kNotYet) outputs_[slot] = TableLookup(input, table_, true, false);
    return outputs_[slot];
  }

 private:
  static constexpr std::int32_t kNotYet = std::numeric_limits<std::int32_t>::min();
  const ConversionTable& table_;
  std::vector<std::int32_t> outputs_;
};

}  // namespace tarnview
