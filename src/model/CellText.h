#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/DigitText.h"
#include "model/OpenLog.h"

namespace tarnview {

/// The texts of cells as exports write them, into a line and not as a text each: what
/// clsLogDataItem::GetFormattedData gives, and nothing where the log held no value.
class CellTexts {
 public:
  /// Columns are items (intSeq) of the log, which must stay as it is.
  CellTexts(const OpenLog& log, const std::vector<int>& columns);

  /// The line of a store index, without an end, commas between the cells; it stands until the next
  /// one.
  std::string_view Line(std::int32_t index);

 private:
  static constexpr std::size_t kLongest = 24;  ///< of a number: 19 digits, a sign, a point

  /// A column and the text that it gave last: most quantities change slower than samples come.
  struct Cell {
    const clsLogDataItem* item = nullptr;
    int column = 0;
    const std::int32_t* rows = nullptr;  ///< of the store; nullptr: all are 0
    bool plain = false;  ///< `factor` and places put a point into the stored digits, or none
    double factor = 1, shown = 1;
    int places = 0;
    bool gaps = false;  ///< some samples were not logged
    std::int32_t stored = 0;
    bool known = false;  ///< the text is that of `stored`
    ShortNumberText text;
    std::string longText;  ///< in its place; with a comma
  };

  char* Write(Cell& cell, std::int32_t index, char* to);
  static void Format(Cell& cell);
  static void PutNumber(Cell& cell, std::int64_t whole);
  static void PutText(Cell& cell, std::string_view text);

  const OpenLog& log_;
  std::vector<Cell> cells_;
  std::string line_;
};

}  // namespace tarnview
