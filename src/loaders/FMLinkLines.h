#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/Column.h"
#include "model/SampleStore.h"
#include "model/ZoneSettings.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

enum class FMLinkLine { Other, Log, Summary, Unrecognised };
FMLinkLine KindOfFMLinkLine(std::string_view line);

/// What the data items say about the fields of a line.
class FMLinkItems {
 public:
  explicit FMLinkItems(const clsLogDataItems& items);

  double Factor(Column column) const { return factors_[static_cast<std::size_t>(column)]; }
  std::array<std::uint8_t, 256>
      lambda{};  ///< index of a character in the list of "Lambda"; 0 where it has none
  std::int32_t CRZero = 0, fuelPercentMZero = 0;

 private:
  std::array<double, kColumnCount> factors_{};
};

/// Parses a LOG LINE into a row of the store. `version18`: the last summary said that the engine is
/// a 1.8.
void ParseLogLine(std::string_view line, bool version18, const FMLinkItems& items,
                  SampleStore& store, int row);

/// The slow data of a SUMMARY LINE, by column.
class SummaryRow {
 public:
  std::int32_t& operator[](Column column) { return cells_[static_cast<std::size_t>(column)]; }
  std::int32_t operator[](Column column) const { return cells_[static_cast<std::size_t>(column)]; }

 private:
  std::array<std::int32_t, kColumnCount> cells_{};
};
struct Summary {
  SummaryRow row;
  bool version18 = false;
  ChipIdentity chip;  ///< no date
};
/// `lowestAirTemp` is brought down to the line's air temperature.
Summary ParseSummaryLine(std::string_view line, std::int32_t& lowestAirTemp);

}  // namespace tarnview
