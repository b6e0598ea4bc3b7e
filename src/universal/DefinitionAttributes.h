#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "universal/clsDataLog.h"

namespace tarnview {

/// One attribute of a block of the definition file ("KEY=VALUE"): what it sets and the limits that
/// it is held to.
template <class Block>
struct Attribute {
  using Member =
      std::variant<std::string Block::*, std::int32_t Block::*, double Block::*, bool Block::*,
                   Settable<std::int32_t> Block::*, Settable<double> Block::*,
                   Settable<bool> Block::*, Clamped<kPlainNumber, kDateAndTime> Block::*,
                   std::vector<int> Block::*>;

  const char* key;       ///< in capitals
  const char* property;  ///< the member's name
  Member member;
  std::int32_t least = std::numeric_limits<std::int32_t>::min(),
               most = std::numeric_limits<std::int32_t>::max();
  const char* flag = "";  ///< the name under which a Settable tells whether it was written
};

// The attributes of each kind of block, in the order of the model's properties.

std::span<const Attribute<clsDataLog>> HeaderAttributes();
std::span<const Attribute<clsDataLogColumn>> ColumnAttributes();
std::span<const Attribute<clsSampleGraphPreset>> SampleGraphAttributes();
std::span<const Attribute<clsScatterGraphPreset>> ScatterGraphAttributes();
std::span<const Attribute<clsScatterFilter>> FilterAttributes();

/// Sets the attribute of that key (in any case) from a text; a key that is not known is passed
/// over.
void SetAttribute(clsDataLog& block, std::string_view key, std::string_view text);
void SetAttribute(clsDataLogColumn& block, std::string_view key, std::string_view text);
void SetAttribute(clsSampleGraphPreset& block, std::string_view key, std::string_view text);
void SetAttribute(clsScatterGraphPreset& block, std::string_view key, std::string_view text);
void SetAttribute(clsScatterFilter& block, std::string_view key, std::string_view text);

}  // namespace tarnview
