#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "universal/ShapeField.h"

namespace tarnview {

/// How the lines of a log are cut, as its data lines tell.
struct FieldFormGuess {
  FieldForm form;
  int fields = 0;             ///< of most data lines
  double regularity = 0;      ///< 0 to 1: the share of lines with so many fields
  double numeric = 0;         ///< 0 to 1: the share of fields that are numbers, times or empty
  int score = 0;              ///< 0 to 100
  std::vector<bool> numbers;  ///< fields that hold numbers or times in most data lines
};

/// From lines that are, for the most part, data: the first ones may be anything.
/// What is given of the form is taken as it is.
FieldFormGuess GuessFieldForm(const std::vector<std::string_view>& lines,
                              std::optional<char> delimiter = {},
                              std::optional<char> decimalSign = {});

/// "comma", "semicolon", "tab", "bar" or "blanks".
std::string_view DelimiterName(char delimiter);

}  // namespace tarnview
