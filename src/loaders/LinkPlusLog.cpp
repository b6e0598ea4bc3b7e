#include "loaders/LinkPlusLog.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Units.h"
#include "loaders/DelimitedLine.h"
#include "loaders/SampleFinish.h"
#include "loaders/SampleLog.h"
#include "model/Column.h"
#include "model/ConversionTables.h"

namespace tarnview {
namespace {

enum class Rule {
  Count,       ///< the sample's number; the time follows by the line frequency
  Seconds,     ///< the time; samples are numbered as they come
  Whole,       ///< an integer
  Tenths,      ///< number x 10
  Hundredths,  ///< number x 100
  AirTemp,     ///< number x factor of the item
  Mark,        ///< the place of the first character in the item's list
  Switch,      ///< 1 for "On", else 0
  Throttle,    ///< 1 for "Open" and "On", else 0
};

int ScaleOf(Rule rule) {
  return rule == Rule::Whole ? 0 : rule == Rule::Tenths ? 1 : rule == Rule::Hundredths ? 2 : -1;
}

/// A column of the log, by the name or the number that its heading may bear.
struct Heading {
  std::string_view name, id;
  Column column;
  Rule rule;
};

// Count  RPM   MAP    TPS   OXY  ETEMP  ADV  IAT   LAMBST  RadFan      between tabs, in any number and order
// 1042   3250  101.3  18.5  75   88     28   25.5  +       Off
constexpr Heading kHeadings[] = {
    {"COUNT", "", kSample, Rule::Count},       {"CRNUM", "", kSample, Rule::Seconds},
    {"RPM", "1100", kRPM, Rule::Whole},        {"MAP", "1101", kMAP, Rule::Tenths},
    {"TPS", "1102", kTPS, Rule::Hundredths},   {"OXY", "", kO2, Rule::Whole},
    {"", "1103", kO2, Rule::Hundredths},       {"ETEMP", "1104", kCTemp, Rule::Whole},
    {"VOLTS", "1105", kVolt, Rule::Tenths},    {"ZONE", "1106", kZone, Rule::Whole},
    {"%FF", "1107", kInjPercent, Rule::Whole},  // as it stands, though the item is in tenths: kept on purpose
    {"ADV", "1108", kIAdv, Rule::Whole},        // the same
    {"%WG", "1109", kWGPercent, Rule::Whole},  {"KNK", "1110", kKnock, Rule::Whole},
    {"IAT", "1111", kATemp, Rule::AirTemp},    {"IDLE", "1112", kIAC, Rule::Whole},
    {"KPH", "", kSpeed, Rule::Whole},  // as it stands, though the item is in tenths: kept on purpose
    {"LAMBST", "1116", kLambda, Rule::Mark},   {"IDLEST", "1117", kIdleSp, Rule::Mark},
    {"KNKCNT", "1118", kKnockC, Rule::Whole},  {"CURRFL", "", kFuelZV, Rule::Whole},
    {"CURRIG", "", kIgnZV, Rule::Whole},       {"RADFAN", "1131", kEngFan, Rule::Switch},
    {"NEUTPK", "", kNeutral, Rule::Switch},    {"AIRCON", "1134", kComp, Rule::Switch},
    {"MAPLIM", "1136", kMAPLmt, Rule::Switch}, {"RPMLIM", "1137", kRevLmt, Rule::Switch},
    {"TGVCLSD", "", kTumble, Rule::Switch},    {"TPSCLS", "1144", kThrottle, Rule::Throttle},
    {"KNOCK", "1145", kKnockE, Rule::Switch},
};
constexpr int kHeadingWithinLines = 6;
constexpr std::size_t kUsualLineLength = 90;
constexpr char kDelimiter = '\t';
constexpr SampleLogKind kLinkPlusLog{.wrongFile = 53};

/// nullptr for a heading that is passed over, as "ACTTPS", "FLAGS1", "FLAGS2" and "Markers".
const Heading* FindHeading(std::string_view text) {
  if (text.empty()) return nullptr;
  const auto found = std::find_if(std::begin(kHeadings), std::end(kHeadings), [text](const Heading& heading) {
    return SameIgnoringCase(text, heading.name) || text == heading.id;
  });
  return found == std::end(kHeadings) ? nullptr : found;
}

bool IsHeadingLine(std::string_view line) {
  const std::string_view first = line.substr(0, line.find(kDelimiter));
  return SameIgnoringCase(first, "COUNT") || SameIgnoringCase(first, "CRNUM");
}

/// The place of each character in a list of one-character texts; 0 where it has none.
using Marks = std::array<std::uint8_t, 256>;
Marks MarksOf(const clsLogDataItem& item) {
  Marks marks{};
  for (std::size_t place = item.varDescList.size(); place-- > 0;)
    if (item.varDescList[place].size() == 1)
      marks[static_cast<unsigned char>(item.varDescList[place][0])] = static_cast<std::uint8_t>(place);
  return marks;
}

class LinkPlusLog : public SampleLog {
 public:
  LinkPlusLog(std::string_view bytes, const LoadContext& context)
      : bytes_(bytes),
        lines_(bytes),
        context_(context),
        store_(context.log.glngDataLog),
        airTempFactor_(context.items.Item(ItemOf(kATemp)).Factor()),
        lambda_(MarksOf(context.items.Item(ItemOf(kLambda)))),
        idle_(MarksOf(context.items.Item(ItemOf(kIdleSp)))) {}

  std::size_t ReadHeading() override;
  void ReadSamples(long lineStep) override;

 private:
  struct Known {
    const Heading* heading;  ///< nullptr for a field that is passed over
    int scale = -1;          ///< stored as the number x 10^scale; -1 for a rule of its own
  };

  void Store(const Heading& heading, std::string_view text, int row);
  void StoreNumberAndTime(Rule rule, std::string_view text, int row);
  void FillAirFuel();

  const std::string_view bytes_;
  TextLines lines_;
  const LoadContext& context_;
  SampleStore& store_;
  const double airTempFactor_;
  const Marks lambda_, idle_;
  std::vector<Known> fields_;
};

std::size_t LinkPlusLog::ReadHeading() {
  for (int line = 0; !IsHeadingLine(lines_.Next()); ++line)
    if (line + 1 == kHeadingWithinLines) throw RuntimeError(5, "Not a Link Plus log");
  for (const std::string& text : Split(lines_.Current(), kDelimiter)) {
    const Heading* heading = FindHeading(text);
    fields_.push_back({heading, heading ? ScaleOf(heading->rule) : -1});
  }
  TextLines behind = lines_;
  const std::size_t length = behind.AtEnd() ? 0 : behind.Next().size();
  return length > 0 ? length : kUsualLineLength;
}

void LinkPlusLog::ReadSamples(long lineStep) {
  EndedLine ended(bytes_);
  SampleLines lines(lines_, context_, lineStep);
  for (std::string_view line; lines.Next(line);) {
    if (!HasFields(line, kDelimiter, fields_.size())) continue;
    const int row = store_.AddRow();
    DelimitedLine fields(ended(line), kDelimiter);
    for (const Known& field : fields_) {
      if (ShortNumber number; field.scale >= 0 && fields.TakeNumber(number))
        store_.Set(field.heading->column, row, number.Stored(field.scale));
      else if (const std::string_view text = fields.TakeText(); field.heading)
        Store(*field.heading, text, row);
    }
  }
  FillBoostAndVacuum(context_);
  FillAirFuel();
  FillWithZero(kCR, context_);
  FillWithZero(kFuelPercentM, context_);
  FindFirstPlotSample(context_);
}

void LinkPlusLog::Store(const Heading& heading, std::string_view text, int row) {
  const auto set = [&](std::int32_t value) { store_.Set(heading.column, row, value); };
  switch (heading.rule) {
    case Rule::Count:
    case Rule::Seconds:
      return StoreNumberAndTime(heading.rule, text, row);
    case Rule::Whole:
      return set(StringToLong(text));
    case Rule::Tenths:
      return set(RoundToLong(StringToDouble(text) * 10));
    case Rule::Hundredths:
      return set(RoundToLong(StringToDouble(text) * 100));
    case Rule::AirTemp:
      set(RoundToLong(StringToDouble(text) * airTempFactor_));
      return LowerAirTemp(store_(kATemp, row), airTempFactor_, context_.log);
    case Rule::Mark: {
      const char first = text.empty() ? ' ' : text[0];
      return set((heading.column == kLambda ? lambda_ : idle_)[static_cast<unsigned char>(first)]);
    }
    case Rule::Switch:
      return set(text == "On");
    case Rule::Throttle:
      return set(text == "On" || text == "Open");
  }
}

void LinkPlusLog::StoreNumberAndTime(Rule rule, std::string_view text, int row) {
  if (rule == Rule::Seconds) {
    store_.Set(kSample, row, row + 1);
    store_.Set(kSecs, row, RoundToLong(StringToDouble(text) * kStoredPerSecond));
    return;
  }
  const std::int32_t sample = StringToLong(text);
  store_.Set(kSample, row, sample);
  const double seconds = RoundPlaces(sample / context_.settings.gdblDataLogLineFrequency, 4);
  store_.Set(kSecs, row, RoundToLong(seconds * kStoredPerSecond));
}

void LinkPlusLog::FillAirFuel() {
  for (int row = 0; row < store_.Rows(); ++row) store_.Set(kAF, row, OxygenTableOutput(store_(kO2, row)));
}

}  // namespace

LoadOutcome LoadLinkPlusLog(std::string_view bytes, const LoadContext& context) {
  LinkPlusLog log(bytes, context);
  return LoadSampleLog(log, bytes, context, kLinkPlusLog);
}

}  // namespace tarnview
