#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "universal/ShapeField.h"

namespace tarnview {

/// What a column of a log is.
enum class ColumnContent { Empty, Number, List, Time, Text };

/// One column of a log, as the lines that were looked at show it.
struct ShapeColumn {
  std::string title;   ///< without its unit; "Column 5" where the log has none
  std::string header;  ///< the title as it stands in the log
  std::string unit;    ///< as it stands in the log, with the title or its values; "" for none
  int field = 0;       ///< from 0
  int occurrence = 1;  ///< of that header, from 1
  ColumnContent content = ColumnContent::Empty;
  std::vector<std::string> first;              ///< the first three texts that are a value
  int values = 0, gaps = 0;                    ///< fields with a value, and without
  double lowest = 0, highest = 0, median = 0;  ///< of numbers
  double scale = 1;  ///< a number of the log x scale is in `unit`; lowest, highest and median are
  int places = 0;    ///< behind the decimal sign: the most of a number
  std::vector<std::string> texts;  ///< of a list: each once, in order of appearance
};

/// The fields of the lines of data.
using ShapeTable = std::vector<std::vector<std::string_view>>;

/// What stands in one field of all lines.
void DescribeColumn(ShapeColumn& column, const ShapeTable& table, char decimalSign);

}  // namespace tarnview
