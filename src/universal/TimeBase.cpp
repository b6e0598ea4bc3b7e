#include "universal/TimeBase.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/Numbers.h"
#include "base/Text.h"
#include "universal/TimeText.h"
#include "universal/TitleDictionary.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

struct Form {
  TimeForm form;
  std::string_view name, words;
  double seconds;
};

constexpr Form kForms[] = {
    {TimeForm::None, "", "", 1},
    {TimeForm::Seconds, "SECONDS", "seconds", 1},
    {TimeForm::Milliseconds, "MILLISECONDS", "milliseconds", 1e-3},
    {TimeForm::Microseconds, "MICROSECONDS", "microseconds", 1e-6},
    {TimeForm::Minutes, "MINUTES", "minutes", 60},
    {TimeForm::Hours, "HOURS", "hours", 3600},
    {TimeForm::Days, "DAYS", "days", 86400},
    {TimeForm::Unix, "UNIX", "Unix time in seconds", 1},
    {TimeForm::UnixMilliseconds, "UNIXMILLISECONDS", "Unix time in milliseconds", 1e-3},
    {TimeForm::Clock, "CLOCK", "a clock", 1},
    {TimeForm::DateAndTime, "DATE", "date and time", 1},
};

constexpr double kLeastStep = 0.001,
                 kMostStep = 10;  // seconds between lines that a logger may have

const Form& RowOf(TimeForm form) { return kForms[static_cast<std::size_t>(form)]; }

/// The unit that title or units row name; None where they name none.
TimeForm NamedForm(const ShapeColumn& column) {
  struct Named {
    const char* unit;
    TimeForm form;
  };
  constexpr Named kNamed[] = {{"s", TimeForm::Seconds},       {"ms", TimeForm::Milliseconds},
                              {"us", TimeForm::Microseconds}, {"min", TimeForm::Minutes},
                              {"h", TimeForm::Hours},         {"d", TimeForm::Days},
                              {"unix time", TimeForm::Unix}};
  const Unit* unit = FindUnit(column.unit);
  for (const Named& row : kNamed)
    if (unit && std::string_view(unit->name) == row.unit) return row.form;
  const auto words = WordsOf(column.title);
  for (const auto& [word, form] : {std::pair{"ms", TimeForm::Milliseconds},
                                   {"msec", TimeForm::Milliseconds},
                                   {"millis", TimeForm::Milliseconds},
                                   {"micros", TimeForm::Microseconds},
                                   {"seconds", TimeForm::Seconds},
                                   {"secs", TimeForm::Seconds},
                                   {"sec", TimeForm::Seconds},
                                   {"minutes", TimeForm::Minutes}})
    if (std::find(words.begin(), words.end(), word) != words.end()) return form;
  return TimeForm::None;
}

/// 0 for a title that has nothing of a time; the more, the likelier it is the log's clock.
int NameWorth(const ShapeColumn& column) {
  struct Word {
    std::string_view word;
    int worth;
  };
  constexpr Word kWords[] = {{"time", 10},
                             {"timestamp", 9},
                             {"elapsed", 12},
                             {"offset", 8},
                             {"runtime", 9},
                             // clang-format off
                             {"zeit", 10},    {"zeitstempel", 9}, {"seconds", 9},  {"secs", 8},     {"sec", 6},
                             {"sekunden", 8}, {"ms", 6},          {"msec", 7},     {"clock", 8},    {"start", 4},
                             {"date", 4},     {"datetime", 8},    {"uhrzeit", 8},  {"log", 2},      {"session", 3},
                             {"device", 2},   {"laufzeit", 9},    {"t", 3},        {"messzeit", 9}, {"stamp", 3},
                             {"secl", 6},     {"datum", 4},       {"timer", 8},    {"temps", 8},    {"hora", 8}};
  // clang-format on
  constexpr std::string_view kNoClock[] = {
      "lap",  "injection", "injector", "delay", "dwell", "on",   "off", "response", "remaining",
      "last", "sector",    "split",    "fuel",  "since", "trip", "gps", "utc"};
  int worth = 0;
  for (const std::string& word : WordsOf(column.header)) {
    for (const Word& row : kWords)
      if (row.word == word) worth += row.worth;
    if (std::find(std::begin(kNoClock), std::end(kNoClock), word) != std::end(kNoClock)) worth -= 6;
  }
  return worth;
}

/// The values of a column in the order of its lines, in its own unit; a clock that passes midnight
/// goes on.
std::vector<double> ReadStamps(const ShapeColumn& column, const ShapeTable& table, char decimalSign,
                               bool& dates) {
  std::vector<double> stamps;
  std::optional<FieldMoment> first;
  constexpr double kDay = 86400;
  double days = 0;
  for (const auto& line : table) {
    if (static_cast<std::size_t>(column.field) >= line.size()) continue;
    const std::string_view field = line[static_cast<std::size_t>(column.field)];
    if (column.content != ColumnContent::Time) {
      if (const auto number = ReadShapeNumber(field, decimalSign)) stamps.push_back(number->value);
      continue;
    }
    const auto text = ReadTimeText(field);
    if (!text) continue;
    dates = dates || text->date;
    if (!first) first = text->moment;
    double since = text->moment.Since(*first) + days;
    if (!text->date && !stamps.empty() && since < stamps.back() - kDay / 2) {
      since += kDay;
      days += kDay;
    }
    stamps.push_back(since);
  }
  return stamps;
}

/// What a column would be worth as the log's clock.
struct Candidate {
  int column = -1;
  std::vector<double> stamps;
  bool dates = false;
  std::size_t distinct = 0;  ///< stamps that rise above the one before
  int worth = 0;             ///< by its name, its place and its unit
};

double MedianStep(const std::vector<double>& stamps) {
  std::vector<double> steps;
  for (std::size_t at = 1; at < stamps.size(); ++at)
    if (stamps[at] > stamps[at - 1]) steps.push_back(stamps[at] - stamps[at - 1]);
  if (steps.empty()) return 0;
  const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
  std::nth_element(steps.begin(), middle, steps.end());
  return *middle;
}

/// Hardly ever falls, and does not stand still.
bool Rises(Candidate& candidate) {
  std::size_t falls = 0;
  const auto& stamps = candidate.stamps;
  for (std::size_t at = 1; at < stamps.size(); ++at) {
    falls += stamps[at] < stamps[at - 1];
    candidate.distinct += stamps[at] > stamps[at - 1];
  }
  return stamps.size() >= 3 && candidate.distinct >= 1 && falls * 50 <= stamps.size();
}

/// Numbers about 1.5 thousand million are seconds since 1970, a thousand times that milliseconds.
TimeForm UnixForm(double value) {
  if (value > 9e8 && value < 2.3e9) return TimeForm::Unix;
  if (value > 9e11 && value < 2.3e12) return TimeForm::UnixMilliseconds;
  return TimeForm::None;
}

/// By the step between lines: the form that makes it likeliest, a tenth of a second being the
/// likeliest of all.
TimeForm PlausibleForm(double step) {
  TimeForm best = TimeForm::None;
  double least = 1e9;
  for (const TimeForm form :
       {TimeForm::Seconds, TimeForm::Milliseconds, TimeForm::Microseconds, TimeForm::Days}) {
    const double seconds = step * SecondsOf(form);
    const double far = std::fabs(std::log10(seconds / 0.1));
    if (!IsPlausibleStep(seconds) || far >= least) continue;
    best = form;
    least = far;
  }
  return best;
}

TimeForm FormOf(const ShapeColumn& column, const Candidate& candidate, double step,
                std::string& why) {
  const bool times = column.content == ColumnContent::Time;
  if (times && candidate.dates) return TimeForm::DateAndTime;
  if (times) return TimeForm::Clock;
  const TimeForm unix = UnixForm(candidate.stamps.front());
  if (unix != TimeForm::None) return unix;
  const TimeForm named = NamedForm(column);
  if (named != TimeForm::None) {
    why = "its unit is told";
    return named;
  }
  why = "no unit is told; it gives a plausible step";
  return PlausibleForm(step);
}

std::vector<Candidate> Candidates(const std::vector<ShapeColumn>& columns, const ShapeTable& table,
                                  char decimalSign) {
  std::vector<Candidate> found;
  for (std::size_t at = 0; at < columns.size(); ++at) {
    const ShapeColumn& column = columns[at];
    if (column.content != ColumnContent::Number && column.content != ColumnContent::Time) continue;
    const bool timed = column.content == ColumnContent::Time;
    Candidate candidate{static_cast<int>(at), {}, false, 0, NameWorth(column)};
    const Unit* unit = FindUnit(column.unit);
    if (unit && unit->quantity != Quantity::Time) continue;
    if (unit) candidate.worth += 3;
    if (candidate.worth <= 0 && !timed && (at > 0 || !column.title.starts_with("Column ")))
      continue;
    candidate.worth -= timed * 2;
    candidate.stamps = ReadStamps(column, table, decimalSign, candidate.dates);
    if (Rises(candidate)) found.push_back(std::move(candidate));
  }
  return found;
}

/// Of the finest clocks the one that is worth most; the first of equals.
const Candidate* Best(const std::vector<Candidate>& candidates) {
  std::size_t finest = 0;
  for (const Candidate& candidate : candidates) finest = std::max(finest, candidate.distinct);
  const Candidate* best = nullptr;
  for (const Candidate& candidate : candidates) {
    if (candidate.distinct * 10 < finest * 9) continue;
    if (!best || candidate.worth > best->worth) best = &candidate;
  }
  return best;
}

}  // namespace

std::string_view TimeFormName(TimeForm form) { return RowOf(form).name; }

TimeForm TimeFormOfName(std::string_view name) {
  for (const Form& row : kForms)
    if (SameIgnoringCase(row.name, name)) return row.form;
  return TimeForm::None;
}

double SecondsOf(TimeForm form) { return RowOf(form).seconds; }

bool IsPlausibleStep(double seconds) {
  return seconds >= kLeastStep * 0.999 && seconds <= kMostStep * 1.001;
}

TimeBase FindTimeBase(const std::vector<ShapeColumn>& columns, const ShapeTable& table,
                      char decimalSign) {
  TimeBase base;
  const auto candidates = Candidates(columns, table, decimalSign);
  const Candidate* best = Best(candidates);
  if (!best) {
    base.why = "no column of times that rise";
    return base;
  }
  const ShapeColumn& column = columns[static_cast<std::size_t>(best->column)];
  const double step = MedianStep(best->stamps);
  std::string why;
  base.form = FormOf(column, *best, step, why);
  if (base.form == TimeForm::None) {
    base.why = "\"" + column.title + "\" rises, but by no plausible step";
    return base;
  }
  base.column = best->column;
  base.step = step * SecondsOf(base.form);
  base.score = 50 + std::min(best->worth, 20);
  if (IsPlausibleStep(base.step)) base.score += 30;
  base.why = "\"" + column.title + "\" rises; " + std::string(RowOf(base.form).words) +
             WithLead(": ", why);
  return base;
}

double RateOfPreamble(const std::vector<std::string_view>& lines, int count) {
  for (int at = 0; at < std::min(count, static_cast<int>(lines.size())); ++at) {
    const std::string line = Upper(lines[static_cast<std::size_t>(at)]);
    const auto named = std::min(line.find("SAMPLE RATE"), line.find("FREQUENCY"));
    if (named == std::string::npos) continue;
    const auto digit = line.find_first_of("0123456789", named);
    if (digit == std::string::npos) continue;
    const double rate = ValDouble(std::string_view(line).substr(digit));
    if (rate >= 0.1 && rate <= 1000) return rate;
  }
  return 0;
}

}  // namespace tarnview
