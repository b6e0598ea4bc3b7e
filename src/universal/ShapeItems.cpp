#include "universal/ShapeItems.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

/// How an item of the catalogue is kept.
struct KeptItem {
  int item;
  const char* name;
  const char* description;
  const char* unit;
  int places;
  double displayFactor;
};

constexpr KeptItem kKept[] = {
    {ItemOf(kRPM), "RPM", "Engine Speed", "rpm", 0, 0.01},
    {ItemOf(kMAP), "MAP", "Manifold Air Pressure", "kPa", 1, 1},
    {ItemOf(kBoost), "Boost", "Boost", "psi", 2, 10},
    {ItemOf(kTPS), "TPS", "Throttle Position", "%", 1, 1},
    {ItemOf(kCTemp), "C Temp", "Coolant Temperature", "C", 1, 1},
    {ItemOf(kATemp), "A Temp", "Air Temperature", "C", 1, 1},
    {ItemOf(kSpeed), "Speed", "Vehicle Speed", "mph", 1, 1},
    {ItemOf(kAF), "A/F", "Air/Fuel Ratio", "AFR", 2, 10},
    {ItemOf(kAFTgt), "A/F Tgt", "Air/Fuel Ratio Target", "AFR", 2, 10},
    {ItemOf(kIAdv), "IAdv", "Ignition Advance", "deg", 1, 1},
    {ItemOf(kKNR), "KNR", "Knock Retard", "deg", 2, 10},
    {ItemOf(kKnock), "Knock", "Knock Level", "", 2, 10},
    {ItemOf(kKnockC), "Knock C", "Knock Count", "", 0, 1},
    {ItemOf(kInjW), "Inj W", "Injector Pulse Width", "ms", 3, 10},
    {ItemOf(kInjPercent), "Inj %", "Injector Duty", "%", 1, 1},
    {ItemOf(kVolt), "Volt", "Battery Voltage", "V", 2, 1},
    {ItemOf(kMAF), "MAF", "Mass Airflow", "g/s", 2, 1},
    {ItemOf(kWGPercent), "WG%", "Wastegate Duty", "%", 1, 1},
    {ItemOf(kCR), "CR", "Fuel Correction", "%", 1, 1},
    {ItemOf(kEGOV), "EGOV", "O2 Sensor Voltage", "V", 3, 10},
    {ItemOf(kIAC), "IAC", "IAC Position", "", 1, 1},
    {ItemOf(kSecs), "Secs", "Seconds", "s", 3, 1},
};

constexpr int kMostPlaces = 5;
constexpr double kMostStored = 2147483647.0;

const KeptItem* KeptOf(int item) {
  const auto found = std::find_if(std::begin(kKept), std::end(kKept),
                                  [&](const KeptItem& row) { return row.item == item; });
  if (found == std::end(kKept)) return nullptr;
  return &*found;
}

/// What a column might be.
struct Match {
  const KeptItem* kept = nullptr;
  UnitConversion conversion;
  int score = 0;
  std::string why;
};

/// Of a pressure of the manifold, where the log tells none: no engine has 5 bar, and hardly one
/// less than 5 kPa.
std::string PressureUnitByValues(const std::string& assumed, const ShapeColumn& column) {
  if (column.highest > 500) return "hPa";
  if (assumed == "psi" && column.highest > 75) return "kPa";
  if (assumed == "kPa" && column.highest < 5) return "bar";
  return assumed;
}

/// The unit of the values, where the log tells none: lambda is about 1, an air/fuel ratio about 15;
/// no coolant is at more than 130 degrees C.
std::string UnitByValues(const std::string& assumed, const ShapeColumn& column) {
  const Unit* unit = FindUnit(assumed);
  if (!unit) return assumed;
  if (unit->quantity == Quantity::AirFuel && column.median < 3) return "lambda";
  if (unit->quantity == Quantity::AirFuel) return "AFR";
  if (unit->quantity == Quantity::Temperature && column.highest > 130) return "F";
  if (unit->quantity == Quantity::Pressure) return PressureUnitByValues(assumed, column);
  return assumed;
}

/// Pressure of the manifold against a vacuum or against the air around: below 0.05 bar it cannot be
/// the first, and no engine idles above the second by 0.15 bar.
int PressureItem(int item, const ShapeColumn& column, const Unit& unit, std::string& why) {
  const double lowest = column.lowest * unit.factor;
  if (item == ItemOf(kMAP) && lowest < 0) {
    why = "below zero: against the air";
    return ItemOf(kBoost);
  }
  if (item == ItemOf(kBoost) && lowest > 15 && column.highest * unit.factor > 60) {
    why = "never near zero: against a vacuum";
    return ItemOf(kMAP);
  }
  return item;
}

Match MatchOf(const ShapeColumn& column, const TitleDictionary& dictionary,
              const clsLogDataItems& catalogue) {
  Match match;
  const KnownTitle known = dictionary.Find(column.title);
  const clsLogDataItem* item = nullptr;
  if (known.score > 0) item = catalogue.ByShortName(known.item);
  if (!item || item->intSeq == ItemOf(kSecs) || column.content != ColumnContent::Number)
    return match;
  std::string unitText = column.unit;
  if (!IsUnit(unitText)) unitText = UnitByValues(known.unit, column);
  const Unit* unit = FindUnit(unitText);
  int seq = item->intSeq;
  if (unit && unit->quantity == Quantity::Pressure)
    seq = PressureItem(seq, column, *unit, match.why);
  const KeptItem* kept = KeptOf(seq);
  if (!kept) return match;
  const Unit* wanted = FindUnit(kept->unit);
  if (wanted && unit) {
    // Degrees of the crankshaft may be told by its German initials, which are kilowatts as well.
    const bool crank = wanted->quantity == Quantity::Angle && SameIgnoringCase(unit->name, "kW");
    const auto conversion = crank ? UnitConversion{} : ConversionOf(*unit, *wanted);
    if (!conversion) return match;
    match.conversion = *conversion;
  }
  // Some loggers tell a retard as an advance below zero.
  if (seq == ItemOf(kKNR) && column.highest <= 0 && column.lowest < 0) {
    match.conversion.factor *= -1;
    match.why = "never above zero: turned over";
  }
  match.conversion.factor *= column.scale;
  match.kept = kept;
  match.score = known.score;
  if (column.gaps <= 0) match.score += 2;
  return match;
}

/// As many places as are wanted, while a hundred times the greatest value can be kept.
int PlacesOf(double lowest, double highest, int wanted) {
  const double most = std::max(std::fabs(lowest), std::fabs(highest));
  int places = std::clamp(wanted, 0, kMostPlaces);
  while (places > 0 && most * 100 * PowerOfTen(places) > kMostStored) --places;
  return places;
}

double DisplayFactorOf(double lowest, double highest) {
  const double most = std::max(std::fabs(lowest), std::fabs(highest));
  if (most <= 0) return 1;
  return std::pow(10.0, std::clamp(std::floor(std::log10(100 / most)), -4.0, 3.0));
}

ShapeItem KnownItem(const ShapeColumn& column, const Match& match) {
  ShapeItem item;
  item.item = match.kept->item;
  item.name = match.kept->name;
  item.description = match.kept->description;
  item.unit = match.kept->unit;
  if (item.unit.empty()) item.unit = column.unit;
  item.factor = match.conversion.factor;
  item.offset = match.conversion.offset;
  const bool converted = item.factor != column.scale || item.offset != 0;
  const double factor = item.factor / column.scale;
  int places = match.kept->places;
  if (!converted) places = std::max(places, column.places);
  item.places =
      PlacesOf(column.lowest * factor + item.offset, column.highest * factor + item.offset, places);
  item.displayFactor = match.kept->displayFactor;
  item.why = "known by its title" + WithLead("; ", match.why);
  return item;
}

ShapeItem OwnItem(const ShapeColumn& column, int number) {
  ShapeItem item;
  item.item = number;
  item.name = item.description = column.title;
  if (column.occurrence > 1) item.name += " " + std::to_string(column.occurrence);
  item.unit = column.unit;
  item.list = column.content == ColumnContent::List || column.content == ColumnContent::Text;
  // What is too large for a stored integer is kept in thousands, millions, ...
  double large = 1;
  while (std::max(std::fabs(column.lowest), std::fabs(column.highest)) * large > kMostStored)
    large /= 1000;
  item.factor = column.scale * large;
  const double lowest = column.lowest * large, highest = column.highest * large;
  const bool thousandths = large < 1 || column.content == ColumnContent::Time;
  if (!item.list) {
    item.places = PlacesOf(lowest, highest, thousandths ? 3 : column.places);
    item.displayFactor = DisplayFactorOf(lowest, highest);
  }
  item.why = "an item of its own";
  return item;
}

ShapeItem TimeItem() {
  ShapeItem item;
  item.item = ItemOf(kSecs);
  item.name = "Secs";
  item.description = "Seconds";
  item.unit = "s";
  item.why = "the time of the lines";
  return item;
}

/// For each item the column that matches best; the first of equals.
std::map<int, std::size_t> BestColumns(const std::vector<Match>& matches, int timeColumn) {
  std::map<int, std::size_t> best;
  for (std::size_t at = 0; at < matches.size(); ++at) {
    if (!matches[at].kept || static_cast<int>(at) == timeColumn) continue;
    const auto [found, added] = best.emplace(matches[at].kept->item, at);
    if (!added && matches[at].score > matches[found->second].score) found->second = at;
  }
  return best;
}

}  // namespace

std::vector<ShapeItem> ChooseItems(const std::vector<ShapeColumn>& columns, const TimeBase& time,
                                   const TitleDictionary& dictionary,
                                   const clsLogDataItems& catalogue) {
  std::vector<Match> matches;
  for (const ShapeColumn& column : columns)
    matches.push_back(MatchOf(column, dictionary, catalogue));
  const auto best = BestColumns(matches, time.column);
  std::vector<ShapeItem> items;
  int next = kFirstOwnItem;
  for (std::size_t at = 0; at < columns.size(); ++at) {
    const bool known = matches[at].kept && best.contains(matches[at].kept->item) &&
                       best.at(matches[at].kept->item) == at;
    if (static_cast<int>(at) == time.column)
      items.push_back(TimeItem());
    else if (known)
      items.push_back(KnownItem(columns[at], matches[at]));
    else
      items.push_back(OwnItem(columns[at], next++));
  }
  return items;
}

std::string_view UnitOfItem(int item) {
  const KeptItem* kept = KeptOf(item);
  if (kept) return kept->unit;
  return "";
}

int ColourOfOwnItem(int item) {
  // Hues a golden angle apart, dark enough to stand out on white and light enough on black.
  const double hue = std::fmod(item * 0.618034, 1.0) * 6, low = 40, high = 200;
  const double part = low + (high - low) * (1 - std::fabs(std::fmod(hue, 2.0) - 1));
  // Red, green and blue in each sixth of the circle.
  const double sixths[6][3] = {{high, part, low}, {part, high, low}, {low, high, part},
                               {low, part, high}, {part, low, high}, {high, low, part}};
  const auto& [red, green, blue] = sixths[static_cast<int>(hue)];
  return static_cast<int>(blue) << 16 | static_cast<int>(green) << 8 | static_cast<int>(red);
}

}  // namespace tarnview
