#include "loaders/LinkPlusLog.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Units.h"
#include "fields/NumberColumn.h"
#include "loaders/SampleFinish.h"
#include "loaders/SampleLog.h"
#include "model/Column.h"
#include "model/ConversionTables.h"

namespace tarnview {
namespace {

enum class Rule {
  Count,       ///< the sample's number; the time follows by the line frequency
  Seconds,     ///< number x 10000: the time; samples are numbered as they come
  Whole,       ///< an integer
  Tenths,      ///< number x 10
  Hundredths,  ///< number x 100
  AirTemp,     ///< number x factor of the item
  Mark,        ///< the place of the first character in the item's list
  Switch,      ///< 1 for "On", else 0
  Throttle,    ///< 1 for "Open" and "On", else 0
};

/// The power of ten that a rule stores a number with; -1 for any other rule.
int ScaleOf(Rule rule) {
  switch (rule) {
    case Rule::Count:
    case Rule::Whole:
      return 0;
    case Rule::Tenths:
      return 1;
    case Rule::Hundredths:
      return 2;
    case Rule::Seconds:
      return 4;
    default:
      return -1;
  }
}

/// A column of the log, by the name or the number that its heading may bear.
struct Heading {
  std::string_view name, id;
  Column column;
  Rule rule;
};

// Count  RPM   MAP    TPS   OXY  ETEMP  ADV  IAT   LAMBST  RadFan      between tabs, in any number
// and order 1042   3250  101.3  18.5  75   88     28   25.5  +       Off
constexpr Heading kHeadings[] = {
    // clang-format off
    {"COUNT", "", kSample, Rule::Count},       {"CRNUM", "", kSecs, Rule::Seconds},
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
    // clang-format on
};
constexpr int kHeadingWithinLines = 6;
constexpr std::size_t kUsualLineLength = 90;
constexpr char kDelimiter = '\t';
constexpr SampleLogKind kLinkPlusLog{.wrongFile = Message::NotALinkPlusLog};

/// nullptr for a heading that is passed over, as "ACTTPS", "FLAGS1", "FLAGS2" and "Markers".
const Heading* FindHeading(std::string_view text) {
  if (text.empty()) return nullptr;
  const auto found =
      std::find_if(std::begin(kHeadings), std::end(kHeadings), [text](const Heading& heading) {
        return SameIgnoringCase(text, heading.name) || text == heading.id;
      });
  if (found == std::end(kHeadings)) return nullptr;
  return found;
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
      marks[static_cast<unsigned char>(item.varDescList[place][0])] =
          static_cast<std::uint8_t>(place);
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
  void StoreBlock(FieldIndex& block);
  void StoreColumn(FieldIndex& block, std::size_t field, const Heading& heading, int first);
  std::int32_t Stored(const Heading& heading, std::string_view text) const;
  void StoreTime(Rule rule, int first);
  void FillAirFuel(int first);

  const std::string_view bytes_;
  TextLines lines_;
  const LoadContext& context_;
  SampleStore& store_;
  const double airTempFactor_;
  const Marks lambda_, idle_;
  NumberColumn numbers_;                ///< of the field that is read
  std::vector<const Heading*> fields_;  ///< nullptr for a field that is passed over
};

std::size_t LinkPlusLog::ReadHeading() {
  for (int line = 0; !IsHeadingLine(lines_.Next()); ++line)
    if (line + 1 == kHeadingWithinLines) throw RuntimeError(5, "Not a Link Plus log");
  for (const std::string& text : Split(lines_.Current(), kDelimiter))
    fields_.push_back(FindHeading(text));
  TextLines behind = lines_;
  if (behind.AtEnd() || behind.Next().empty()) return kUsualLineLength;
  return behind.Current().size();
}

void LinkPlusLog::ReadSamples(long lineStep) {
  FieldIndex block(bytes_, kDelimiter, fields_.size());
  SampleLines lines(lines_, context_, lineStep);
  for (std::string_view line; lines.Next(line);) {
    if (block.Add(line) < fields_.size()) {
      block.DropLast();
      continue;
    }
    store_.AddRow();
    if (block.Full()) StoreBlock(block);
  }
  StoreBlock(block);
  FillWithZero(kCR, context_);
  FillWithZero(kFuelPercentM, context_);
  FindFirstPlotSample(context_);
}

void LinkPlusLog::StoreBlock(FieldIndex& block) {
  const int first = store_.Rows() - static_cast<int>(block.Lines());
  for (std::size_t field = 0; field < fields_.size(); ++field)
    if (fields_[field]) StoreColumn(block, field, *fields_[field], first);
  FillBoostAndVacuum(context_, first);
  FillAirFuel(first);
  block.Clear();
}

/// `first`: the row of the block's first line.
void LinkPlusLog::StoreColumn(FieldIndex& block, std::size_t field, const Heading& heading,
                              int first) {
  BlockOf<std::int32_t> cells;
  if (const int scale = ScaleOf(heading.rule); scale >= 0) {
    numbers_.Read(block, field,
                  [&](std::size_t line) { return StringToDouble(block.Field(line, field)); });
    numbers_.Stored(scale, cells);
  } else {
    ReadColumn(block, field, cells,
               [&](std::size_t line) { return Stored(heading, block.Field(line, field)); });
  }
  store_.SetRows(heading.column, first, {cells.data(), block.Lines()});
  if (heading.rule == Rule::Count || heading.rule == Rule::Seconds) StoreTime(heading.rule, first);
}

/// By a rule that does not scale a number.
std::int32_t LinkPlusLog::Stored(const Heading& heading, std::string_view text) const {
  switch (heading.rule) {
    case Rule::AirTemp: {
      const std::int32_t stored = RoundToLong(StringToDouble(text) * airTempFactor_);
      LowerAirTemp(stored, airTempFactor_, context_.log);
      return stored;
    }
    case Rule::Mark: {
      const char first = text.empty() ? ' ' : text[0];
      return (heading.column == kLambda ? lambda_ : idle_)[static_cast<unsigned char>(first)];
    }
    case Rule::Switch:
      return text == "On";
    case Rule::Throttle:
      return text == "On" || text == "Open";
    default:
      return 0;
  }
}

/// What the samples from `first` on still lack of number and time.
void LinkPlusLog::StoreTime(Rule rule, int first) {
  for (int row = first; row < store_.Rows(); ++row) {
    if (rule == Rule::Seconds)
      store_.Set(kSample, row, row + 1);
    else
      store_.Set(kSecs, row,
                 RoundToLong(store_(kSample, row) / context_.settings.gdblDataLogLineFrequency *
                             kStoredPerSecond));
  }
}

void LinkPlusLog::FillAirFuel(int first) {
  for (int row = first; row < store_.Rows(); ++row)
    store_.Set(kAF, row, OxygenTableOutput(store_(kO2, row)));
}

}  // namespace

LoadOutcome LoadLinkPlusLog(std::string_view bytes, const LoadContext& context) {
  LinkPlusLog log(bytes, context);
  return LoadSampleLog(log, bytes, context, kLinkPlusLog);
}

}  // namespace tarnview
