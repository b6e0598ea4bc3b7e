#include "loaders/UTECFixedLog.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "loaders/SampleLog.h"
#include "loaders/UTECSamples.h"

namespace tarnview {
namespace {

using enum UTECRule;

/// A piece of a line, its position counted from 1; length 0 for none.
struct Place {
  int at = 0, length = 0;
};
std::string_view TextAt(std::string_view line, Place place) {
  const auto start = static_cast<std::size_t>(place.at - 1);
  if (place.length > 0 && start < line.size())
    return line.substr(start, static_cast<std::size_t>(place.length));
  return std::string_view();
}

// The maps that a user runs decide which of six column sets the log has.
constexpr std::size_t kLayouts = 6;
struct Heading {
  int layout;
  std::string_view
      text;  ///< its outer blanks count for a line's length, not for what the heading says
};

//  RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF       layout 1
//  3250   8.5  38  45   7     3   12.5  22.5   68.2   ECU  -2.5   45.0  41
//  TIME     RPM   MAP  MAF TPS MLP  Knock  AFR  WG  Boost                         layout 3; 2 and 5
//  are like it
//     1200  3250   8.5  38  45  12     3   12.5  66 45
//  TIME     RPM  MAP MAF TPS MLP  Knock  O2  IGN#1  INJ#1  IGN   FUEL BOOST       layout 4
//     1200  3250 142  97  88  12     3  0.85  22.5   68.2   ECU  -2.5   45.0
//  RPM TPS  MAP  MLP  MOD  AFR  KNOCK                                             layout 6
// 3250  45   8.5  12   ECU 12.5     3
//          1         2         3         4         5         6         7
// 123456789012345678901234567890123456789012345678901234567890123456789012345
constexpr Heading kHeadings[] = {
    {1, " RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF"},
    {1, " RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF   AFR"},
    {2, " TIME     RPM   MAP  MAF TPS MLP H2O Air   O2 "},
    {3, " TIME     RPM   MAP  MAF TPS MLP  Knock  AFR  WG  Boost "},
    {4, " TIME     RPM  MAP MAF TPS MLP  Knock  O2  IGN#1  INJ#1  IGN   FUEL BOOST "},
    {5, " TIME     RPM   MAP  MAF TPS MLP  Knock  AFR "},
    {6, " RPM TPS  MAP  MLP  MOD  AFR  KNOCK "},
};

struct Field {
  Column column;
  UTECRule rule;
  std::array<Place, kLayouts> places;
};
// In this order: "IAdv M" may take "IAdv" over, and in open loop the boost field of layout 3
// overwrites "WG%".
constexpr Field kFields[] = {
    //                        layout 1  2        3        4        5        6
    {kSecs, Time, {{{}, {1, 8}, {1, 8}, {1, 8}, {1, 8}, {}}}},
    {kRPM, Factored, {{{2, 4}, {11, 4}, {11, 4}, {11, 4}, {11, 4}, {1, 4}}}},
    {kMAP, MAP, {{{7, 5}, {16, 5}, {16, 5}, {}, {16, 5}, {10, 5}}}},
    {kMAPD, Factored, {{{}, {}, {}, {16, 3}, {}, {}}}},
    {kMAF, Factored, {{{13, 3}, {22, 3}, {22, 3}, {}, {22, 3}, {}}}},
    {kMAFD, Factored, {{{}, {}, {}, {20, 3}, {}, {}}}},
    {kTPS, Factored, {{{17, 3}, {26, 3}, {26, 3}, {}, {26, 3}, {6, 3}}}},
    {kTPSD, Factored, {{{}, {}, {}, {24, 3}, {}, {}}}},
    {kLS, Factored, {{{21, 3}, {}, {}, {}, {}, {}}}},
    {kMLP, Factored, {{{}, {30, 3}, {30, 3}, {28, 3}, {30, 3}, {16, 3}}}},
    {kKnock, Factored, {{{27, 3}, {}, {36, 3}, {34, 3}, {36, 3}, {31, 5}}}},
    {kAF, AirFuel, {{{33, 4}, {}, {42, 4}, {}, {42, 4}, {26, 4}}}},
    {kCTemp, CoolantTemp, {{{}, {34, 3}, {}, {}, {}, {}}}},
    {kATemp, AirTemp, {{{}, {38, 3}, {}, {}, {}, {}}}},
    {kEGOV, Factored, {{{}, {42, 5}, {}, {38, 5}, {}, {}}}},
    {kWGPercent, WastegateDuty, {{{}, {}, {47, 3}, {}, {}, {}}}},
    {kBCL, Boost, {{{63, 6}, {}, {51, 3}, {69, 6}, {}, {}}}},
    {kIAdv, Factored, {{{38, 5}, {}, {}, {44, 5}, {}, {}}}},
    {kInjPercent, InjectorDuty, {{{45, 5}, {}, {}, {51, 5}, {}, {}}}},
    {kIAdvM, ModifiedAdvance, {{{51, 5}, {}, {}, {57, 5}, {}, {20, 5}}}},
    {kFuelPercentM, ModifiedFuel, {{{57, 5}, {}, {}, {63, 5}, {}, {}}}},
    {kMAFM, Factored, {{{70, 3}, {}, {}, {}, {}, {}}}},
};

// Where the line of units says "(OL)" for open loop and "PSIG" for a gauge pressure.
constexpr std::array<Place, kLayouts> kOpenLoop{{{63, 4}, {}, {51, 4}, {69, 4}, {}, {}}};
constexpr std::array<Place, kLayouts> kGauge{{{8, 4}, {17, 4}, {17, 4}, {}, {17, 4}, {}}};

// A wide band sensor's reading behind the line's own fields.
constexpr Place kWideBand{75, 5};

constexpr int kHeadingWithinLines = 30;
constexpr std::size_t kHeadingMayDiffer =
    2;  ///< so many characters, in a heading and in a line of data
constexpr SampleLogKind kUTECFixedLog{.wrongFile = Message::NotAUTECFixedLog};

std::size_t Apart(std::size_t a, std::size_t b) { return std::max(a, b) - std::min(a, b); }
bool Says(std::string_view line, const Heading& heading) {
  return SameIgnoringCase(Trim(line), Trim(heading.text));
}
bool IsAsLongAs(std::string_view line, const Heading& heading) {
  return Apart(line.size(), heading.text.size()) <= kHeadingMayDiffer;
}

class UTECFixedLog : public SampleLog {
 public:
  UTECFixedLog(std::string_view bytes, const LoadContext& context)
      : lines_(bytes), context_(context), samples_(context) {}

  std::size_t ReadHeading() override;
  void ReadSamples(long lineStep) override;

 private:
  struct Known {
    Place place;
    Column column;
    UTECRule rule;
  };

  const Heading* FindHeading();
  void ReadUnits(std::string_view line);
  void Store(const Known& known, std::string_view line);
  void StoreAirFuel(std::string_view text, std::string_view line);

  TextLines lines_;
  const LoadContext& context_;
  UTECSamples samples_;
  const Heading* heading_ = nullptr;
  std::vector<Known> known_;
};

/// The heading of the first lines, with the lines read up to it. Without one, a heading as long as
/// one of the lines, the last such, and no line read: its text may be cut or changed.
const Heading* UTECFixedLog::FindHeading() {
  const Heading* candidate = nullptr;
  TextLines lines = lines_;
  for (int line = 0; line < kHeadingWithinLines && !lines.AtEnd(); ++line) {
    const std::string_view text = lines.Next();
    for (const Heading& heading : kHeadings) {
      if (Says(text, heading)) {
        lines_ = lines;
        return &heading;
      }
      if (IsAsLongAs(text, heading)) candidate = &heading;
    }
  }
  return candidate;
}

std::size_t UTECFixedLog::ReadHeading() {
  heading_ = FindHeading();
  if (!heading_) throw RuntimeError(1, "Not a UTEC log");
  ReadUnits(lines_.Next());
  return heading_->text.size();
}

void UTECFixedLog::ReadUnits(std::string_view line) {
  const auto layout = static_cast<std::size_t>(heading_->layout - 1);
  const bool openLoop = SameIgnoringCase(TextAt(line, kOpenLoop[layout]), "(OL)");
  const bool gauge = SameIgnoringCase(TextAt(line, kGauge[layout]), "PSIG");
  for (const Field& field : kFields) {
    Known known{field.places[layout], field.column, field.rule};
    if (known.place.length == 0) continue;
    if (known.rule == MAP && gauge) known.rule = GaugeMAP;
    if (known.rule == Boost && openLoop) known.column = kWGPercent;
    known_.push_back(known);
  }
}

void UTECFixedLog::ReadSamples(long lineStep) {
  SampleLines lines(lines_, context_, lineStep);
  for (std::string_view line; lines.Next(line);) {
    if (!IsAsLongAs(line, *heading_) || Says(line, *heading_)) continue;
    samples_.Add();
    for (const Known& known : known_) Store(known, line);
  }
  const auto has = [this](Column column) {
    return std::any_of(known_.begin(), known_.end(),
                       [=](const Known& known) { return known.column == column; });
  };
  samples_.Finish(has(kSecs), has(kFuelPercentM));
}

void UTECFixedLog::Store(const Known& known, std::string_view line) {
  const std::string_view text = TextAt(line, known.place);
  switch (known.rule) {
    case AirFuel:
      return StoreAirFuel(text, line);
    case ModifiedAdvance:
      if (IsECUs(text)) return samples_.KeepAdvance();
      return samples_.Set(known.rule, known.column, StringToDouble(text));
    case CoolantTemp:
    case AirTemp:
      return samples_.Set(known.rule, known.column, StringToLong(text));
    case Boost:
      if (text.starts_with("ECU")) return;
      [[fallthrough]];
    default:
      return samples_.Set(known.rule, known.column, StringToDouble(text));
  }
}

/// "W/B" sends to the wide band sensor at the line's end; a line too short for one repeats the
/// sample before.
void UTECFixedLog::StoreAirFuel(std::string_view text, std::string_view line) {
  text = Trim(text);
  if (const auto ratio = AirFuelOfWord(text)) return samples_.SetAirFuel(*ratio);
  if (heading_->layout != 1 || !SameIgnoringCase(text, "W/B"))
    return samples_.SetAirFuel(StringToDouble(text));
  if (line.size() < static_cast<std::size_t>(kWideBand.at)) return samples_.KeepAirFuel();
  samples_.SetAirFuel(StringToDouble(TextAt(line, kWideBand)));
}

}  // namespace

LoadOutcome LoadUTECFixedLog(std::string_view bytes, const LoadContext& context) {
  UTECFixedLog log(bytes, context);
  return LoadSampleLog(log, bytes, context, kUTECFixedLog);
}

}  // namespace tarnview
