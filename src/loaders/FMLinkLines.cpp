#include "loaders/FMLinkLines.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Text.h"
#include "fields/FixedLine.h"

namespace tarnview {
namespace {

enum class Rule {
  Whole,      ///< an integer
  Factored,   ///< number x factor of the column's item, rounded
  Tenths,     ///< number x 10, rounded
  Mark,       ///< 1 for the first character, 2 for the second, else 0
  UpperMark,  ///< the same, in either case
  NotMark,    ///< 0 for the character, else 1
};

struct Field {
  Column column;
  int at, length;
  Rule rule;
  char first = 0, second = 0;
};

//   1042   *3250!S 101!+  88a c 25 x1225  98  w 45 nc 12!12.5  1.25
//   1043     850 L  34 =  91    12   250   4  *0.52    3  9.5
//   123456789012345678901234567890123456789012345678901234567890123
constexpr Field kLogLine[] = {
    // clang-format off
    {kSample, 1, 6, Rule::Whole},
    {kCASErr, 8, 1, Rule::Mark, '*'},
    {kRPM, 9, 4, Rule::Whole},
    {kRevLmt, 13, 1, Rule::Mark, '!'},
    {kDwell, 14, 1, Rule::UpperMark, 'S', 'L'},  // the item's texts are crossed: "S" shows as "Long"; kept on purpose
    {kMAP, 16, 3, Rule::Factored},
    {kMAPLmt, 19, 1, Rule::Mark, '!'},
    {kO2, 22, 3, Rule::Whole},
    {kO2A, 25, 1, Rule::Mark, 'a', 'd'},
    {kFuelP, 32, 1, Rule::NotMark, 'x'},
    {kInjPercent, 38, 3, Rule::Factored},
    {kThrottle, 43, 1, Rule::Mark, '*', 'w'},
    {kNeutral, 48, 1, Rule::Mark, 'n'},
    {kComp, 49, 1, Rule::Mark, 'c'},
    {kKnock, 50, 3, Rule::Whole},
    {kKnockE, 53, 1, Rule::Mark, '!'},
    {kIAdv, 54, 4, Rule::Tenths},
    // clang-format on
};
constexpr std::size_t kLogLineReach = 57;
constexpr std::size_t kSecondLayoutFrom =
    63;  ///< a line of this length carries the wastegate, and "Aux NF" at 60

using LogLine = FixedLine<kLogLineReach>;

/// 1 for a field's first mark, 2 for its second where it has one, else 0.
template <Field F>
std::int32_t WhichMark(char c) {
  if (c == F.first) return 1;
  if (F.second && c == F.second) return 2;
  return 0;
}

template <Field F, class Line>
std::int32_t Read(const Line& line, const FMLinkItems& items) {
  switch (F.rule) {
    case Rule::Whole:
      return line.Whole(F.at, F.length);
    case Rule::Factored:
      return RoundToLong(line.Number(F.at, F.length) * items.Factor(F.column));
    case Rule::Tenths:
      return RoundToLong(line.Number(F.at, F.length) * 10);
    case Rule::Mark:
      return WhichMark<F>(line.At(F.at));
    case Rule::UpperMark:
      return WhichMark<F>(AsciiUpper(line.At(F.at)));
    case Rule::NotMark:
      return line.At(F.at) == F.first ? 0 : 1;
  }
  return 0;
}

template <std::size_t... I>
void ReadFields(const LogLine& line, const FMLinkItems& items, SampleStore& store, int row,
                std::index_sequence<I...>) {
  (store.Set(kLogLine[I].column, row, Read<kLogLine[I]>(line, items)), ...);
}

/// At 20: the lambda control's mark, or the L3 correction of a band (a digit) or of idle (a
/// letter).
void ReadLambda(const LogLine& line, const FMLinkItems& items, SampleStore& store, int row) {
  constexpr int kBlankEntry = 4;
  const auto c = static_cast<unsigned char>(line.At(20));
  if (c > '0' && c <= '9') {
    store.Set(kLambda, row, kBlankEntry);
    store.Set(kL3, row, c - '0');
  } else if (c >= 'e' && c <= 'w') {
    store.Set(kLambda, row, kBlankEntry);
    store.Set(kL3Idle, row, RoundToLong(((c - 'e') / 2.0 + 0.5) * 10));
  } else {
    store.Set(kLambda, row, c == ' ' ? kBlankEntry : items.lambda[c]);
  }
}

/// At 27: the wastegate's mode and %, or else the EGR position.
void ReadWastegateOrEGR(const LogLine& line, SampleStore& store, int row) {
  constexpr std::int32_t kWastegateOpensAt = 1160;  // tenths of kPa
  const bool wastegate = line.At(27) != ' ' || line.Length() >= kSecondLayoutFrom;
  const std::int32_t value = line.Whole(28, 3);
  if (!wastegate) return store.Set(kEGR, row, value);
  const std::int32_t byPressure = store(kMAP, row) >= kWastegateOpensAt ? 2 : 0;
  store.Set(kWGCM, row, line.At(27) == 'c' ? 1 : byPressure);
  store.Set(kWGPercent, row, value);
}

/// Without a throttle sensor, the idle and full throttle switches say where the throttle is.
std::int32_t TPSOfSwitches(std::int32_t throttle) {
  if (throttle == 1) return 1000;
  if (throttle == 2) return 10000;
  return 5000;
}

/// At 44: the throttle sensor of a 1.8, else the idle air valve; or, told by a point, the auxiliary
/// input.
void ReadThrottleAndIAC(const LogLine& line, bool version18, SampleStore& store, int row) {
  constexpr std::int32_t kIdle = 1, kIACOffIdle = 40;
  const std::int32_t throttle = store(kThrottle, row);
  if (line.At(45) == '.') {
    store.Set(kAuxNF, row, RoundToLong(line.Number(44, 4) * 1000));
    store.Set(kTPS, row, TPSOfSwitches(throttle));
    return;
  }
  if (line.Length() >= kSecondLayoutFrom && line.At(61) == '.')
    store.Set(kAuxNF, row, RoundToLong(line.Number(60, 4) * 1000));
  if (!version18 || throttle == kIdle) {
    store.Set(kIAC, row, line.Whole(44, 3));
    store.Set(kTPS, row, TPSOfSwitches(throttle));
    return;
  }
  const std::int32_t sensor = RoundToLong(line.Number(44, 3) * 100);
  store.Set(kIAC, row, kIACOffIdle);
  store.Set(kTPS, row, sensor ? sensor : TPSOfSwitches(throttle));
}

/// At 33: 125 counts are a millisecond; kept to two places.
void ReadInjectorWidth(const LogLine& line, const FMLinkItems& items, SampleStore& store, int row) {
  constexpr double kCountsPerMillisecond = 125;
  const double hundredths = RoundToLong(line.Number(33, 4) / kCountsPerMillisecond * 100);
  store.Set(kInjW, row, RoundToLong(hundredths / 100 * items.Factor(kInjW)));
}

constexpr std::size_t kSummaryLineReach = 64;
using SummaryLine = FixedLine<kSummaryLineReach>;

//   *1.8b   13.8     86 AT  25  EF CF AC HR CP        12 S= 57 2.50v
//    1.6    13.9     21     57           PR            0 3
//   1234567890123456789012345678901234567890123456789012345678901234
struct Switch {
  Column column;
  int at;
  std::string_view on, alsoOn;
};
constexpr Switch kSwitches[] = {
    {kEngFan, 29, "EF", ""}, {kCndFan, 32, "CF", ""},  {kAC, 35, "AC", ""},
    {kPRC, 38, "HR", "PR"},  {kChPurge, 41, "CP", ""},
};

struct Version {
  std::string_view text;
  bool version18;
  double engineSize;
  int chipVersion;
};
constexpr Version kVersions[] = {{"1.x ", false, 1.6, 1}, {"1.8b", true, 1.8, 3}};
constexpr Version kAnyOtherVersion = {"", true, 1.8, 2};  // "1.6 " among them: kept on purpose

const Version& VersionOf(const SummaryLine& line) {
  for (const Version& version : kVersions)
    if (line.Has(2, version.text)) return version;
  return kAnyOtherVersion;
}

/// At 24: the air temperature behind "AT", else the speed. -99 is a sensor that is not there.
void ReadAirTempOrSpeed(const SummaryLine& line, SummaryRow& row, std::int32_t& lowestAirTemp) {
  const std::int32_t value = line.Whole(24, 3);
  if (!line.Has(21, "AT")) {
    row[kSpeed] = value;
    return;
  }
  row[kATemp] = value == -99 ? 0 : std::max(value, -30);
  lowestAirTemp = std::min(lowestAirTemp, row[kATemp]);
}

/// From 54 on: a voltage is known by its "v", a speed by "S="; what is neither is the L4
/// correction.
void ReadTail(const SummaryLine& line, SummaryRow& row) {
  const auto volts = [&line](int at) { return RoundToLong(line.Number(at, 4) * 1000); };
  if (line.At(58) == 'v') {
    row[kAuxNS] = volts(54);
  } else if (line.Has(54, "S=")) {
    row[kSpeed] = line.Whole(56, 3);
    if (line.At(64) == 'v')
      row[kAuxNS] = volts(60);
    else
      row[kL4] = line.Whole(60, 1);
  } else {
    if (line.Has(56, "S=")) row[kSpeed] = line.Whole(58, 3);
    row[kL4] = line.Whole(54, 1);
  }
}

bool IsEngine(std::string_view text) { return text == "1.6" || text == "1.8"; }

}  // namespace

FMLinkLine KindOfFMLinkLine(std::string_view line) {
  if (line.empty()) return FMLinkLine::Other;
  if (line[0] >= '0' && line[0] <= '9' && line.size() >= 7 && line[6] == ' ')
    return FMLinkLine::Log;
  const std::string_view engine = line.substr(1, 3);
  if (IsEngine(engine) || engine == "1.x") return FMLinkLine::Summary;
  const double number = StringToDouble(line.substr(0, 6));
  if (number == 1.6 || number == 1.8) return FMLinkLine::Summary;
  return FMLinkLine::Unrecognised;
}

FMLinkItems::FMLinkItems(const clsLogDataItems& items)
    : CRZero(items.Item(ItemOf(kCR)).lngStorageOffset),
      fuelPercentMZero(items.Item(ItemOf(kFuelPercentM)).lngStorageOffset) {
  for (int column = 0; column < kColumnCount; ++column)
    factors_[static_cast<std::size_t>(column)] = items.Item(column + 1).Factor();
  const auto& marks = items.Item(ItemOf(kLambda)).varDescList;
  for (std::size_t index = marks.size(); index-- > 0;)  // backwards, so that the first match stays
    if (marks[index].size() == 1)
      lambda[static_cast<unsigned char>(marks[index][0])] = static_cast<std::uint8_t>(index);
}

void ParseLogLine(std::string_view text, bool version18, const FMLinkItems& items,
                  SampleStore& store, int row) {
  const LogLine line(text);
  ReadFields(line, items, store, row, std::make_index_sequence<std::size(kLogLine)>());
  ReadLambda(line, items, store, row);
  ReadWastegateOrEGR(line, store, row);
  ReadInjectorWidth(line, items, store, row);
  ReadThrottleAndIAC(line, version18, store, row);
}

Summary ParseSummaryLine(std::string_view text, std::int32_t& lowestAirTemp) {
  const SummaryLine line(text);
  const Version& version = VersionOf(line);
  Summary summary;
  summary.version18 = version.version18;
  summary.chip.dblEngineSize = version.engineSize;
  summary.chip.intChipVersion = version.chipVersion;
  SummaryRow& row = summary.row;
  row[kVolt] = RoundToLong(line.Number(9, 4) * 10);
  row[kCTemp] = line.Whole(17, 3);
  ReadAirTempOrSpeed(line, row, lowestAirTemp);
  for (const Switch& s : kSwitches)
    row[s.column] = line.Has(s.at, s.on) || (!s.alsoOn.empty() && line.Has(s.at, s.alsoOn));
  row[kKnockC] = line.Whole(50, 3);
  ReadTail(line, row);
  return summary;
}

}  // namespace tarnview
