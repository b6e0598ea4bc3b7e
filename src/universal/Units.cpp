#include "universal/Units.h"

#include <string_view>
#include <unordered_map>

#include "base/Text.h"

namespace tarnview {
namespace {

// The pressures are the standard's: 1 psi = 6.894757 kPa, 1 inHg at 0 C = 3.386389 kPa, 1 mmHg =
// 0.1333224 kPa. An air/fuel ratio is lambda x 14.7, petrol's. 1 lb = 453.59237 g, 1 mile
// = 1.609344 km.
// clang-format off
constexpr Unit kUnits[] = {
    {"s",      Quantity::Time, 1, 0,              " sec secs second seconds sek sekunden stamp "},
    {"ms",     Quantity::Time, 0.001, 0,          " msec msecs millis milliseconds millisecond millisekunden "},
    {"us",     Quantity::Time, 0.000001, 0,       " \xB5s usec micros microseconds "},
    {"min",    Quantity::Time, 60, 0,             " mins minutes minute minuten "},
    {"h",      Quantity::Time, 3600, 0,           " hour hours "},
    {"d",      Quantity::Time, 86400, 0,          " day days "},
    {"unix time", Quantity::Time, 1, 0,           " unixtime epoch "},
    {"kPa",    Quantity::Pressure, 1, 0,          " kpaa kpa(abs) kpag "},
    {"hPa",    Quantity::Pressure, 0.1, 0,        " mbar mbara millibar "},
    {"Pa",     Quantity::Pressure, 0.001, 0,      ""},
    {"bar",    Quantity::Pressure, 100, 0,        " bara barg bar(g) "},
    {"psi",    Quantity::Pressure, 6.894757, 0,   " psia psig lb/in2 psi(g) lbf/in2 "},
    {"inHg",   Quantity::Pressure, 3.386389, 0,   " in.hg inhg in-hg in/hg "},
    {"mmHg",   Quantity::Pressure, 0.1333224, 0,  " torr mm-hg "},
    {"kg/cm2", Quantity::Pressure, 98.0665, 0,    " kgf/cm2 "},
    {"C",      Quantity::Temperature, 1, 0,       " degc celsius deg.c degreesc gradc "},
    {"F",      Quantity::Temperature, 5.0 / 9, -160.0 / 9, " degf fahrenheit deg.f degreesf "},
    {"K",      Quantity::Temperature, 1, -273.15, " kelvin degk "},
    {"km/h",   Quantity::Speed, 1, 0,             " kph kmh kmph kp/h "},
    {"mph",    Quantity::Speed, 1.609344, 0,      " mi/h miles/h mp/h "},
    {"m/s",    Quantity::Speed, 3.6, 0,           " m/sec meters/second metres/second "},
    {"kn",     Quantity::Speed, 1.852, 0,         " knots kts "},
    {"AFR",    Quantity::AirFuel, 1, 0,           " :1 afr(gas) afrgas af a/f ratio "},
    {"lambda", Quantity::AirFuel, 14.7, 0,        " la lam "},
    {"g/s",    Quantity::Flow, 1, 0,              " g/sec gm/s gm/sec grams/sec gps "},
    {"kg/h",   Quantity::Flow, 1000.0 / 3600, 0,  " kg/hr kg/hour "},
    {"lb/min", Quantity::Flow, 7.559873, 0,       " lbs/min lb/m "},
    {"lb/h",   Quantity::Flow, 0.1259979, 0,      " lb/hr lbs/hr "},
    {"deg",    Quantity::Angle, 1, 0,             " degree degrees \xB0 \xBA grad btdc degbtdc degatdc \xB0""btdc degcrk \xB0kw kw\xB0 \xB0""ca degca \xB0""crk crk\xB0 \xB0""crank "},
    {"%",      Quantity::Share, 1, 0,             " percent pct prozent %dc "},
    {"V",      Quantity::Voltage, 1, 0,           " volt volts vdc "},
    {"mV",     Quantity::Voltage, 0.001, 0,       " millivolt millivolts "},
    {"rpm",    Quantity::EngineSpeed, 1, 0,       " upm tr/min 1/min u/min r/min rev/min revs/min min-1 /min "},
    {"g/rev",  Quantity::Other, 1, 0, ""}, {"mg", Quantity::Other, 1, 0, " mg/stroke mg/hub mg/cyl mg/str "},
    {"Nm",     Quantity::Other, 1, 0, " n.m n-m "}, {"ft-lb", Quantity::Other, 1, 0, " ftlb lb-ft lbft ft.lb ft-lbs lbf-ft "},
    {"hp",     Quantity::Other, 1, 0, " bhp whp "}, {"kW", Quantity::Other, 1, 0, ""}, {"PS", Quantity::Other, 1, 0, ""},
    {"m",      Quantity::Other, 1, 0, " metres meters "}, {"km", Quantity::Other, 1, 0, ""}, {"mm", Quantity::Other, 1, 0, ""},
    {"mi",     Quantity::Other, 1, 0, " miles mile "}, {"ft", Quantity::Other, 1, 0, " feet "}, {"in", Quantity::Other, 1, 0, ""},
    {"kg",     Quantity::Other, 1, 0, ""}, {"g", Quantity::Other, 1, 0, " gees g-force "}, {"lb", Quantity::Other, 1, 0, " lbs "},
    {"l",      Quantity::Other, 1, 0, " litre litres liter "}, {"gal", Quantity::Other, 1, 0, ""}, {"mpg", Quantity::Other, 1, 0, " mpg(us) mpg(uk) "},
    {"l/h",    Quantity::Other, 1, 0, " l/hr "}, {"l/100km", Quantity::Other, 1, 0, " l/100 "}, {"cc/min", Quantity::Other, 1, 0, " cc cm3/min ml/min "},
    {"Hz",     Quantity::Other, 1, 0, " hertz "}, {"kHz", Quantity::Other, 1, 0, ""}, {"A", Quantity::Other, 1, 0, " amp amps "}, {"mA", Quantity::Other, 1, 0, ""},
    {"deg/s",  Quantity::Other, 1, 0, " \xB0/s degrees/s "}, {"%/s", Quantity::Other, 1, 0, ""}, {"m/s2", Quantity::Other, 1, 0, " m/s/s m/s^2 "}, {"rpm/s", Quantity::Other, 1, 0, ""},
    {"ohm",    Quantity::Other, 1, 0, " ohms "}, {"count", Quantity::Other, 1, 0, " counts steps step bit bits bool on/off onoff raw gear index number "},
};
// clang-format on

/// Small letters without blanks; "degC" where a degree sign stands.
std::string Simple(std::string_view text) {
  std::string simple;
  for (const char c : text)
    if (c != ' ' && c != '\xC2')
      simple += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  if (simple.size() >= 2 && (simple.front() == '[' || simple.front() == '('))
    simple = simple.substr(1, simple.size() - 2);
  constexpr std::string_view kDegreeSigns = "\xB0\xBA*.?";  // the last ones stand in for it
  if (simple.size() == 2 && kDegreeSigns.find(simple[0]) != std::string_view::npos)
    simple.erase(0, 1);
  return simple;
}

std::unordered_map<std::string, const Unit*> ByText() {
  std::unordered_map<std::string, const Unit*> units;
  for (const Unit& unit : kUnits) {
    units.emplace(Simple(unit.name), &unit);
    for (const std::string& other : Split(unit.others, ' '))
      if (!other.empty()) units.emplace(other, &unit);
  }
  return units;
}

/// Where the brackets begin that a text ends in; npos where it does not.
std::size_t LastBrackets(std::string_view text) {
  if (text.size() < 3 || (text.back() != ')' && text.back() != ']')) return std::string_view::npos;
  const char opening = text.back() == ')' ? '(' : '[';
  int depth = 0;
  for (std::size_t at = text.size(); at-- > 0;) {
    depth += (text[at] == text.back()) - (text[at] == opening);
    if (depth == 0) return at;
  }
  return std::string_view::npos;
}

}  // namespace

const Unit* FindUnit(std::string_view text) {
  static const auto units = ByText();
  if (text.empty() || text.size() > 20) return nullptr;
  const auto found = units.find(Simple(text));
  if (found == units.end()) return nullptr;
  return found->second;
}

std::optional<UnitConversion> ConversionOf(const Unit& from, const Unit& to) {
  if (&from == &to) return UnitConversion{};
  if (from.quantity != to.quantity || from.quantity == Quantity::Other) return std::nullopt;
  return UnitConversion{from.factor / to.factor, (from.offset - to.offset) / to.factor};
}

std::string TakeUnit(std::string& title) {
  const auto at = LastBrackets(title);
  if (at == std::string::npos || at == 0) return "";
  std::string unit(Trim(std::string_view(title).substr(at + 1, title.size() - at - 2)));
  const bool known = IsUnit(unit);
  if (!known) return "";
  title = Trim(std::string_view(title).substr(0, at));
  return unit;
}

}  // namespace tarnview
