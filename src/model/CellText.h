#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/OpenLog.h"

namespace tarnview {

/// The texts of cells as exports write them, into a line and not as a text each: what
/// clsLogDataItem::GetFormattedData gives, and nothing where the log held no value.
class CellTexts {
 public:
  /// Columns are items (intSeq) of the log, which must stay.
  CellTexts(const OpenLog& log, const std::vector<int>& columns);

  /// The line of a store index, without an end, commas between the cells; it stands until the next
  /// one.
  std::string_view Line(std::int32_t index);

 private:
  static constexpr std::size_t kLongest = 24;  ///< of a number: 19 digits, a sign, a point

  /// A column and the text that it gave last: most quantities change slower than samples come.
  struct Cell {
    const clsLogDataItem* item;
    int column;
    bool plain = false;  ///< `factor` and places put a point into the stored digits, or none
    double factor = 1, shown = 1;
    int places = 0;
    bool gaps = false;  ///< some samples were not logged
    std::int32_t stored = 0;
    bool known = false;  ///< `text` is that of `stored`
    std::size_t length = 0;
    std::array<char, kLongest> text{};
  };

  char* Write(Cell& cell, std::int32_t index, char* to);
  void Format(Cell& cell) const;
  static std::size_t PutNumber(std::int64_t whole, int places, char* text);

  const OpenLog& log_;
  std::vector<Cell> cells_;
  std::string line_;
};

}  // namespace tarnview
