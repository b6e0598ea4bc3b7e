#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "universal/FieldFormGuess.h"

namespace tarnview {

/// Which lines of a log's head are what; lines from 0, -1 for none.
struct ShapeRows {
  int titleLine = -1;
  int titleRows = 1;  ///< 2: a part of each title stands in that line, and one in the next
  int unitsLine = -1;
  int dataLine = -1;
  std::vector<std::string>
      titles;  ///< of the columns, as they stand without quotes and blanks at their ends
  std::vector<std::string> firstRow;  ///< the same, of their first row alone
  std::vector<std::string> units;     ///< as many; empty: none is told
  bool quotedTitles = false;
  std::string commentPrefix;  ///< of lines among the data that are none; empty for none
  double dataShare = 0;       ///< of the lines from the first of data on: those that are data
};

/// How many of some titles are known ones.
using CountKnown = std::function<int(const std::vector<std::string>& titles)>;

/// Finds the first row of data, the titles above it and their units.
ShapeRows FindRows(const std::vector<std::string_view>& lines, const FieldFormGuess& guess,
                   const CountKnown& known);

/// Where titles and units stand; -1 for none.
struct TitleLines {
  int titles = -1, rows = 1, units = -1;
};

/// Takes titles and units from other lines.
void SetTitleLines(ShapeRows& rows, const std::vector<std::string_view>& lines,
                   const FieldFormGuess& guess, const TitleLines& settled);

/// A line of samples: as many fields as most have, or nearly; where the others have numbers it has
/// hardly a text, and none in the first of them.
bool IsDataLine(std::string_view line, const FieldFormGuess& guess);

}  // namespace tarnview
