#include "power/PowerFile.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "power/PaddedNumber.h"

namespace tarnview {
namespace {

using F = PowerFile;

constexpr const char* kBanner = "Tarnview Power Graph File";
constexpr std::string_view kDetails = "Data Log Details:";
constexpr std::string_view kParameters = "Calculation Parameters:";
constexpr std::string_view kPowerData = "Graph Power & Torque Data (RPM, Power, Torque):";
constexpr std::string_view kOldPowerData = "Graph Data (RPM, Power, Torque):";
constexpr std::string_view kSpeedData = "Graph Speed Data (Time, Speed):";
constexpr const char* kLineEnd = "\r\n";

/// One attribute: its key, the key of the earlier generation, where it is kept and, if not always,
/// when it is written.
struct Attribute {
  const char* key;
  const char* olderKey;
  std::string& (*value)(F&);
  bool (*written)(const F&) = nullptr;
  void (*taken)(F&) = nullptr;       ///< what else the key says
  void (*olderTaken)(F&) = nullptr;  ///< what the older key's value becomes
};

template <std::string F::*member>
std::string& Of(F& file) {
  return file.*member;
}
template <std::array<std::string, kGears> F::*member, std::size_t gear>
std::string& Of(F& file) {
  return (file.*member)[gear];
}

bool UsesDrag(const F& file) { return file.usesDrag; }
bool UsesSetPoint(const F& file) { return !file.usesDrag; }
bool HasWetBulb(const F& file) { return file.wetBulb; }
bool HasHumidity(const F& file) { return !file.wetBulb; }
bool IsCorrected(const F& file) { return !file.correctionFactor.empty(); }
bool Never(const F&) { return false; }
void RaiseDrag(F& file) { file.usesDrag = true; }
void RaiseWetBulb(F& file) { file.wetBulb = true; }
void UnitsOfName(F& file) {
  if (file.units == "hp" || file.units == "lb ft")
    file.units = "Imperial";
  else
    file.units = "Metric";
}
void SayRadius(F& file) { file.driveWheel += " drive wheel radius"; }

constexpr Attribute kDetailRows[] = {
    {"File", "", Of<&F::file>},
    {"Plot Range From", "", Of<&F::plotFrom>},
    {"Plot Range To", "", Of<&F::plotTo>},
    {"Comments", "", Of<&F::comments>},
};

constexpr Attribute kParameterRows[] = {
    // clang-format off
    {"1st Gear Ratio", "Gear Ratio 1", Of<&F::gearRatios, 0>},
    {"2nd Gear Ratio", "Gear Ratio 2", Of<&F::gearRatios, 1>},
    {"3rd Gear Ratio", "Gear Ratio 3", Of<&F::gearRatios, 2>},
    {"4th Gear Ratio", "Gear Ratio 4", Of<&F::gearRatios, 3>},
    {"5th Gear Ratio", "Gear Ratio 5", Of<&F::gearRatios, 4>},
    {"6th Gear Ratio", "Gear Ratio 6", Of<&F::gearRatios, 5>},
    {"Diff Ratio", "Final Drive", Of<&F::finalDrive>},
    {"1st Gear Relative Loss", "Gear Loss 1", Of<&F::gearLosses, 0>},
    {"2nd Gear Relative Loss", "Gear Loss 2", Of<&F::gearLosses, 1>},
    {"3rd Gear Relative Loss", "Gear Loss 3", Of<&F::gearLosses, 2>},
    {"4th Gear Relative Loss", "Gear Loss 4", Of<&F::gearLosses, 3>},
    {"5th Gear Relative Loss", "Gear Loss 5", Of<&F::gearLosses, 4>},
    {"6th Gear Relative Loss", "Gear Loss 6", Of<&F::gearLosses, 5>},
    {"Drive Wheel Dimensions", "Drive Wheel Radius", Of<&F::driveWheel>, nullptr, nullptr, SayRadius},
    {"Drag Coefficient", "", Of<&F::dragCoefficient>, UsesDrag, RaiseDrag},
    {"Frontal Area", "", Of<&F::frontalArea>, UsesDrag, RaiseDrag},
    {"Set Point Power", "Known Set Point Power", Of<&F::setPointPower>, UsesSetPoint},
    {"Set Point Speed", "Known Set Point Speed", Of<&F::setPointSpeed>, UsesSetPoint},
    {"Gear", "", Of<&F::gear>},
    {"Car Weight", "", Of<&F::carWeight>},
    {"Smoothing Factor", "Graph Smoothing Factor", Of<&F::smoothing>},
    {"Dyno Factor", "Dyno Correction Factor", Of<&F::dyno>},
    {"Calculation Units", "Power Units", Of<&F::units>, nullptr, nullptr, UnitsOfName},
    {"", "Torque Units", Of<&F::units>, Never, nullptr, UnitsOfName},
    {"Air Temperature", "", Of<&F::temperature>},
    {"Atmospheric Pressure", "", Of<&F::pressure>},
    {"Relative Humidity", "", Of<&F::humidity>, HasHumidity},
    {"Wet Bulb Air Temperature", "", Of<&F::humidity>, HasWetBulb, RaiseWetBulb},
    {"SAE Correction Factor", "", Of<&F::correctionFactor>, IsCorrected},
    {"", "SAE Correction", Of<&F::correctionSummary>, Never},
    // clang-format on
};

template <std::size_t N>
std::string Lines(const Attribute (&rows)[N], const F& graph) {
  F file = graph;  // the table gives members to write to
  file.points.clear();
  file.speed.clear();
  std::string text;
  for (const Attribute& row : rows)
    if (!row.written || row.written(file))
      text += std::string(row.key) + "=" + row.value(file) + kLineEnd;
  return text;
}

/// Splits a line at its first "="; a line without one has an empty key, which is none's.
template <std::size_t N>
void Take(const Attribute (&rows)[N], std::string_view line, F& file) {
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) return;
  const std::string_view key = line.substr(0, equals);
  if (key.empty()) return;
  for (const Attribute& row : rows) {
    if (key != row.key && key != row.olderKey) continue;
    row.value(file) = line.substr(equals + 1);
    if (row.taken) row.taken(file);
    if (row.olderTaken && key == row.olderKey) row.olderTaken(file);
    return;
  }
}

/// The number in `length` characters from the one at `place`, which counts from 1; 0 where the line
/// ends before.
double FixedNumber(std::string_view line, std::size_t place,
                   std::size_t length = std::string_view::npos) {
  if (place <= line.size()) return StringToDouble(line.substr(place - 1, length));
  return 0;
}

// 6480,141.2,114.4
// 1234567890123456
PowerPoint PointOf(std::string_view line) {
  return {FixedNumber(line, 1, 4), FixedNumber(line, 6, 5), FixedNumber(line, 12, 5)};
}

// 000.08,041.25
// 1234567890123
SpeedPoint SpeedOf(std::string_view line) {
  return {FixedNumber(line, 1, 6), FixedNumber(line, 8)};
}

/// Reads rows up to `end` or the text's; false at the text's. Empty lines are passed over.
template <class Row>
bool TakeRows(std::string_view& text, std::string_view end, std::vector<Row>& rows,
              Row (*rowOf)(std::string_view)) {
  std::string_view line;
  while (TakeLine(text, line)) {
    if (!end.empty() && line == end) return true;
    if (!line.empty() && rows.size() < kMostPowerRows) rows.push_back(rowOf(line));
  }
  return false;
}

/// Reads the attributes of a section up to the line that ends it; false at the text's end.
template <std::size_t N>
bool TakeSection(std::string_view& text, const Attribute (&rows)[N], std::string_view end,
                 std::string_view olderEnd, F& file) {
  std::string_view line;
  while (TakeLine(text, line)) {
    if (line == end || line == olderEnd) return true;
    Take(rows, line, file);
  }
  return false;
}

/// Passes to the first heading. Its line; empty at the text's end.
std::string_view FirstHeading(std::string_view& text) {
  std::string_view line;
  while (TakeLine(text, line))
    if (line == kDetails || line == kParameters) return line;
  return {};
}

void ReadSections(std::string_view text, PowerFile& file,
                  const std::function<void(const char*)>& loading) {
  loading("Loading data log details");
  const std::string_view heading = FirstHeading(text);
  if (heading.empty()) return;
  if (heading == kDetails && !TakeSection(text, kDetailRows, kParameters, kParameters, file))
    return;
  loading("Loading calculation parameters");
  if (!TakeSection(text, kParameterRows, kPowerData, kOldPowerData, file)) return;
  loading("Loading power information");
  if (!TakeRows(text, kSpeedData, file.points, PointOf)) return;
  loading("Loading speed information");
  TakeRows(text, {}, file.speed, SpeedOf);
}

}  // namespace

std::string PowerFileText(const PowerFile& graph, const Moment& now) {
  std::string text =
      std::string(kBanner) + kLineEnd + "File Created: " + LogTime(now) + kLineEnd + kLineEnd;
  const auto heading = [&](std::string_view line) {
    text += std::string(line) + kLineEnd + kLineEnd;
  };
  heading(kDetails);
  text += Lines(kDetailRows, graph) + kLineEnd;
  heading(kParameters);
  text += Lines(kParameterRows, graph) + kLineEnd;
  heading(kPowerData);
  for (const PowerPoint& p : graph.points)
    text += PaddedNumber(p.rpm, 4, 0) + "," + PaddedNumber(p.power, 3, 1) + "," +
            PaddedNumber(p.torque, 3, 1) + kLineEnd;
  text += kLineEnd;
  heading(kSpeedData);
  for (const SpeedPoint& p : graph.speed)
    if (p.seconds > 0)
      text += PaddedNumber(p.seconds, 3, 2) + "," + PaddedNumber(p.speed, 3, 2) + kLineEnd;
  return text;
}

PowerFile ReadPowerFile(std::string_view text, const std::function<void(const char*)>& loading) {
  PowerFile file;
  ReadSections(text, file, loading);
  if (file.temperature == "N/A" && file.pressure == "N/A" && file.humidity == "N/A")
    file.correctionSummary = "N/A";
  return file;
}

}  // namespace tarnview
