#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "universal/ShapeItems.h"
#include "universal/ShapeRows.h"
#include "universal/ShapeText.h"

namespace tarnview {

/// What a user has settled of a log's shape; the rest is found.
struct ShapeChoices {
  std::optional<TextEncoding> encoding;
  std::optional<char> delimiter, decimalSign;
  std::optional<int> titleLine, unitsLine, dataLine;  ///< from 0; -1: there is none
  std::optional<int> titleRows;                       ///< 1 or 2
  std::optional<int> timeColumn;                      ///< from 0; -1: there is none
  std::optional<TimeForm> timeForm;
  std::optional<double> lineFrequency;  ///< lines a second, for a log without a clock
};

/// What a log's text is taken to be, found from its two ends.
struct LogShape {
  TextEncoding encoding = TextEncoding::Windows1252;
  FieldForm form;
  ShapeRows rows;
  bool channelTitles = false;  ///< a preamble of channels names the columns
  std::vector<ShapeColumn> columns;
  std::vector<ShapeItem> items;  ///< one a column
  TimeBase time;
  std::vector<std::string> noValueTexts;  ///< beside NoValueTexts, those that stand in the log
  double lineFrequency = 0;      ///< lines a second where the log has no clock; 0: it tells none
  std::vector<std::string> why;  ///< what was decided, and by what, a sentence each
  int score = 0;                 ///< 0 to 100

  bool Found() const { return score >= kLeastScore; }
  bool HasClock() const { return time.column >= 0; }

  static constexpr int kLeastScore = 60;
};

/// `bytes`: the whole file, of which both ends are looked at (ShapeText).
LogShape ReadLogShape(std::string_view bytes, const TitleDictionary& dictionary,
                      const clsLogDataItems& catalogue, const ShapeChoices& choices = {});

}  // namespace tarnview
