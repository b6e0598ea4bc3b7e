#include "loaders/UTECCSVLog.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "fields/NumberColumn.h"
#include "loaders/SampleLog.h"
#include "loaders/UTECSamples.h"

namespace tarnview {
namespace {

using enum UTECRule;

struct Word {
  std::string_view name, subHeading;
  Column column;
  UTECRule rule;
  Column modified = column;  ///< where the row above the name says "MOD"
};
constexpr std::string_view kAny = "*";

//      ,    ,   ,MOD,    ,     ,      ,   ,     ,      three heading rows: this one, the names, the
//      sub-headings;
// RPM  ,MAP ,MAF,MAF,TPS ,AFR  ,IGN#1 ,IGN,FUEL ,BOOST   or two: the names, the sub-headings
//      ,PSIG,HZ ,HZ ,    ,     ,      ,   ,     ,(OL)
//  3250, 8.5, 42, 44,38.5,11.87,  22.5,ECU, -2.0,  45
constexpr Word kWords[] = {
    {"RPM", kAny, kRPM, Factored},
    {"MAP", "DIG", kMAPD, Factored},
    {"MAP", "PSIG", kMAP, GaugeMAP},
    {"MAP", kAny, kMAP, MAP},
    {"MAF", "DIG", kMAFD, Factored},
    {"MAF", "HZ", kMAFHz, Factored, kMAFMHz},
    {"MAF", kAny, kMAF, Factored, kMAFM},
    {"TPS", "DIG", kTPSD, Factored},
    {"TPS", kAny, kTPS, Factored},
    {"SITE", kAny, kLS, Factored},
    {"COUNT", kAny, kKnock, Factored},
    {"KNOCK", kAny, kKnock, Factored},
    {"AFR", kAny, kAF, AirFuel},
    {"IGN#1", kAny, kIAdv, Factored},
    {"INJ#1", kAny, kInjPercent, InjectorDuty},
    {"IGN", kAny, kIAdvM, ModifiedAdvance},
    {"FUEL", kAny, kFuelPercentM, ModifiedFuel},
    {"BOOST", "(OL)", kWGPercent, Boost},
    {"BOOST", kAny, kBCL, Boost},
    {"TIME", kAny, kSecs, Time},
    {"MLP", kAny, kMLP, Factored},
    {"H2O", kAny, kCTemp, CoolantTemp},
    {"AIR", kAny, kATemp, AirTemp},
    {"O2", kAny, kEGOV, Factored},
    {"WG", kAny, kWGPercent, WastegateDuty},
};
constexpr char kDelimiter = ',';
constexpr double kECUs =
    std::numeric_limits<double>::quiet_NaN();  ///< the ECU's own figure; no text is read as that
constexpr std::size_t kFewestColumns = 3;
constexpr SampleLogKind kUTECCSVLog{.wrongFile = Message::NotAUTECCSVLog, .fewestSamples = 4};

/// nullptr for a column that is passed over; so is the boost that the ECU keeps to itself.
const Word* FindWord(std::string_view name, std::string_view subHeading) {
  if (name == "BOOST" && subHeading.find("ECU") != std::string_view::npos) return nullptr;
  const auto found = std::find_if(std::begin(kWords), std::end(kWords), [&](const Word& word) {
    return word.name == name && (word.subHeading == kAny || word.subHeading == subHeading);
  });
  if (found == std::end(kWords)) return nullptr;
  return found;
}

using Cells = std::vector<std::string>;

Cells SplitRow(std::string_view line) {
  Cells cells = Split(line, kDelimiter);
  for (std::string& cell : cells) cell = Upper(Trim(cell));
  return cells;
}

/// From the first line of enough columns on; nothing where there is none. A large file of another
/// kind is looked at a byte at a time, not a line at a time.
std::string_view FromHeading(std::string_view bytes) {
  std::size_t line = 0, columns = 1;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    if (bytes[at] == '\n') {
      line = at + 1;
      columns = 1;
    } else if (bytes[at] == kDelimiter && ++columns == kFewestColumns) {
      return bytes.substr(line);
    }
  }
  return {};
}

class UTECCSVLog : public SampleLog {
 public:
  UTECCSVLog(std::string_view bytes, const LoadContext& context)
      : bytes_(bytes), lines_(bytes), context_(context), samples_(context) {}

  std::size_t ReadHeading() override;
  void ReadSamples(long lineStep) override;

 private:
  struct Known {
    const Word* word;  ///< nullptr for a column that is passed over
    Column column = {};
    int scale = -1;  ///< stored as the number x 10^scale; -1 for a rule of its own
  };

  Cells ReadRow();
  void FindColumns(const Cells& names, const Cells& subHeadings, const Cells& above);
  bool RepeatsHeading(std::string_view line) const;
  void StoreBlock(FieldIndex& block);
  void StoreColumn(FieldIndex& block, std::size_t field, int first);
  void StoreEachSample(FieldIndex& block, std::size_t field, int first);
  void FindHundredths(const FieldIndex& block);
  double NumberOf(UTECRule rule, std::string_view text) const;
  double AirFuelOf(std::string_view text) const;
  bool InHundredths(std::size_t field) const {
    return fields_[field].word->rule == AirFuel && hundredths_.value_or(false);
  }
  void Read(FieldIndex& block, std::size_t field);
  void ReadNumbers(FieldIndex& block, std::size_t field, BlockOf<double>& numbers);

  const std::string_view bytes_;
  TextLines lines_;
  const LoadContext& context_;
  UTECSamples samples_;
  NumberColumn numbers_;  ///< of the field that is read
  std::vector<std::string_view> headingRows_;
  std::vector<Known> fields_;
  std::optional<bool> hundredths_;  ///< how ratios are given; the first one tells
};

Cells UTECCSVLog::ReadRow() {
  Cells cells = SplitRow(lines_.Next());
  headingRows_.push_back(Trim(lines_.Current()));
  return cells;
}

std::size_t UTECCSVLog::ReadHeading() {
  const std::size_t lineLength = TextLines(lines_).Next().size();
  lines_ = TextLines(FromHeading(bytes_));
  Cells rows[3];
  rows[0] = ReadRow();
  rows[1] = ReadRow();
  const TextLines behindTwo = lines_;
  rows[2] = ReadRow();
  if (rows[1].size() != rows[0].size() || rows[2].size() < rows[0].size())
    throw RuntimeError(1, "Not a UTEC log");

  if (IsNumeric(rows[2][0])) {  // the first sample
    lines_ = behindTwo;
    headingRows_.pop_back();
    FindColumns(rows[0], rows[1], Cells(rows[0].size()));
  } else {
    FindColumns(rows[1], rows[2], rows[0]);
  }
  return std::max(lineLength, std::size_t{1});
}

void UTECCSVLog::FindColumns(const Cells& names, const Cells& subHeadings, const Cells& above) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    Known field{FindWord(names[i], subHeadings[i])};
    if (field.word) {
      field.column = above[i] == "MOD" ? field.word->modified : field.word->column;
      field.scale = samples_.ScaleOf(field.word->rule, field.column);
    }
    fields_.push_back(field);
  }
}

bool UTECCSVLog::RepeatsHeading(std::string_view line) const {
  return std::any_of(
      headingRows_.begin(), headingRows_.end(),
      [text = Trim(line)](std::string_view row) { return SameIgnoringCase(text, row); });
}

void UTECCSVLog::ReadSamples(long lineStep) {
  FieldIndex block(bytes_, kDelimiter, fields_.size());
  SampleLines lines(lines_, context_, lineStep);
  for (std::string_view line; lines.Next(line);) {
    if (block.Add(line) < fields_.size() || RepeatsHeading(line)) {
      block.DropLast();
      continue;
    }
    samples_.Add();
    if (block.Full()) StoreBlock(block);
  }
  StoreBlock(block);
  const auto has = [this](Column column) {
    return std::any_of(fields_.begin(), fields_.end(),
                       [=](const Known& field) { return field.word && field.column == column; });
  };
  samples_.Finish(has(kSecs), has(kFuelPercentM));
}

void UTECCSVLog::StoreBlock(FieldIndex& block) {
  if (!hundredths_) FindHundredths(block);
  const int first = context_.log.glngDataLog.Rows() - static_cast<int>(block.Lines());
  for (std::size_t field = 0; field < fields_.size(); ++field) {
    if (!fields_[field].word) continue;
    const UTECRule rule = fields_[field].word->rule;
    if (rule == GaugeMAP || rule == MAP || rule == ModifiedAdvance)
      StoreEachSample(block, field, first);
    else
      StoreColumn(block, field, first);
  }
  block.Clear();
}

/// `first`: the row of the block's first line.
void UTECCSVLog::StoreColumn(FieldIndex& block, std::size_t field, int first) {
  const Known& known = fields_[field];
  BlockOf<std::int32_t> cells;
  if (known.scale >= 0 && !InHundredths(field)) {
    Read(block, field);
    numbers_.Stored(known.scale, cells);
  } else {
    BlockOf<double> numbers;
    ReadNumbers(block, field, numbers);
    samples_.Stored(known.word->rule, known.column, {numbers.data(), block.Lines()}, cells.data());
  }
  context_.log.glngDataLog.SetRows(known.column, first, {cells.data(), block.Lines()});
}

/// For a rule that looks at the sample's other columns.
void UTECCSVLog::StoreEachSample(FieldIndex& block, std::size_t field, int first) {
  const Known& known = fields_[field];
  BlockOf<double> numbers;
  ReadNumbers(block, field, numbers);
  for (std::size_t line = 0; line < block.Lines(); ++line) {
    samples_.Use(first + static_cast<int>(line));
    if (std::isnan(numbers[line]))
      samples_.KeepAdvance();
    else
      samples_.Set(known.word->rule, known.column, numbers[line]);
  }
}

void UTECCSVLog::Read(FieldIndex& block, std::size_t field) {
  const UTECRule rule = fields_[field].word->rule;
  numbers_.Read(block, field,
                [&](std::size_t line) { return NumberOf(rule, block.Field(line, field)); });
}

void UTECCSVLog::ReadNumbers(FieldIndex& block, std::size_t field, BlockOf<double>& numbers) {
  const UTECRule rule = fields_[field].word->rule;
  if (InHundredths(field)) {
    ReadColumn(block, field, numbers,
               [&](std::size_t line) { return NumberOf(rule, block.Field(line, field)); });
  } else {
    Read(block, field);
    numbers_.Values(block.Lines(), numbers);
  }
}

/// Ratios may be given as hundredths, without a point; the first number decides for the whole file.
void UTECCSVLog::FindHundredths(const FieldIndex& block) {
  for (std::size_t line = 0; line < block.Lines(); ++line)
    for (std::size_t field = 0; field < fields_.size(); ++field) {
      const std::string_view text = block.Field(line, field);
      if (hundredths_ || !fields_[field].word || fields_[field].word->rule != AirFuel ||
          !IsNumeric(text))
        continue;
      hundredths_ = text.find('.') == std::string_view::npos;
    }
}

double UTECCSVLog::NumberOf(UTECRule rule, std::string_view text) const {
  if (rule == AirFuel) return AirFuelOf(Trim(text));
  if (rule == ModifiedAdvance && IsECUs(text)) return kECUs;
  if (rule == CoolantTemp && Trim(text) == "<5") return 5;  // colder than it can tell
  if (rule == AirTemp && Trim(text) == "<1") return 1;
  return StringToDouble(text);
}

double UTECCSVLog::AirFuelOf(std::string_view text) const {
  if (const auto ratio = AirFuelOfWord(text)) return *ratio;
  if (SameIgnoringCase(text, "W/B")) return 24.5;
  if (text == ">25:1") return 25;
  const double number = StringToDouble(text);
  if (hundredths_.value_or(false) && IsNumeric(text)) return number / 100;
  return number;
}

}  // namespace

LoadOutcome LoadUTECCSVLog(std::string_view bytes, const LoadContext& context) {
  UTECCSVLog log(bytes, context);
  return LoadSampleLog(log, bytes, context, kUTECCSVLog);
}

}  // namespace tarnview
