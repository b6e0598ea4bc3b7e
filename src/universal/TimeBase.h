#pragma once

#include <optional>
#include <string>
#include <vector>

#include "universal/ShapeColumn.h"

namespace tarnview {

/// How the time of a log's lines is written.
enum class TimeForm {
  None,
  Seconds,
  Milliseconds,
  Microseconds,
  Minutes,
  Hours,
  Days,
  Unix,
  UnixMilliseconds,
  Clock,
  DateAndTime
};

/// As definitions name it: "SECONDS", "MILLISECONDS", ..., "CLOCK", "DATE"; "" for None.
std::string_view TimeFormName(TimeForm form);
/// In any case; None for another name.
TimeForm TimeFormOfName(std::string_view name);
/// Seconds of one unit of a form of numbers; 1 for texts.
double SecondsOf(TimeForm form);

/// Seconds between lines that a logger may have: 1 ms to 10 s.
bool IsPlausibleStep(double seconds);

/// Where the time of a log's lines stands.
struct TimeBase {
  int column = -1;  ///< of the columns; -1: no clock
  TimeForm form = TimeForm::None;
  double step = 0;  ///< seconds between lines, the median; 0 where nothing is known
  int score = 0;    ///< 0 to 100
  std::string why;
};

/// The finest of a log's clocks that rises. What its unit is, title or units row tell; without
/// them, what gives a plausible step between lines.
TimeBase FindTimeBase(const std::vector<ShapeColumn>& columns, const ShapeTable& table,
                      char decimalSign);

/// Lines a second that a preamble tells ("Sample Rate","50.000","Hz"); 0 for none.
double RateOfPreamble(const std::vector<std::string_view>& lines, int count);

}  // namespace tarnview
