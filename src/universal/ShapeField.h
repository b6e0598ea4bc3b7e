#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace tarnview {

/// How the lines of a log are cut into fields and its numbers are written.
struct FieldForm {
  char delimiter = ',';  ///< ' ' stands for runs of blanks
  bool quoted = false;   ///< fields, or some of them, stand between double quotes, and a delimiter
                         ///< may stand in them
  char decimalSign = '.';
};

/// The fields of a line, without blanks at their ends and without their quotes. An empty line has
/// none.
std::vector<std::string_view> SplitShapeLine(std::string_view line, const FieldForm& form);

/// A number in a field, all of which is one.
struct FieldNumber {
  double value = 0;
  int places = 0;         ///< digits behind the decimal sign
  std::string_view unit;  ///< behind it in the field; empty for none
};

/// Digits with a sign, an exponent, a unit behind them ("900 rpm"); with thousands of three digits
/// set off by the other of "." and ",".
std::optional<FieldNumber> ReadShapeNumber(std::string_view text, char decimalSign);

/// "-", "NaN", "N/A", "null" and their like, in any case; strokes and points, as "--.-".
bool IsNoValue(std::string_view text);
/// Those that have a name, as a definition keeps them.
std::vector<std::string_view> NoValueTexts();

/// What a field looks like.
enum class FieldKind { Empty, NoValue, Number, Time, Text };
FieldKind KindOfField(std::string_view field, char decimalSign);

}  // namespace tarnview
