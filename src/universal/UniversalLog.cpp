#include "universal/UniversalLog.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "base/Numbers.h"
#include "fields/TextLines.h"
#include "model/Column.h"
#include "universal/DataLines.h"
#include "universal/DefinitionFaults.h"
#include "universal/FormedStart.h"
#include "universal/HeaderMap.h"
#include "universal/LogTimes.h"
#include "universal/PlainLog.h"
#include "universal/Smoothing.h"

namespace tarnview {
namespace {

// A line of titles that is missing or too short is told by messages about definitions: kept on
// purpose.
constexpr Message kTooFewFields = Message::ColumnOfOtherType;
constexpr Message kNoHeader = Message::HeaderIncomplete;

/// A log is known by a text that stands at a place of one of its first lines.
void Identify(PlainLog& text, const clsDataLog& definition) {
  if (definition.strFileIDText.empty()) return;
  std::string_view line;
  if (text.Skip(definition.lngFileIDTextLinesBefore)) line = text.Line();
  const std::int32_t before = definition.lngFileIDTextColumnsBefore;
  if (before >= 0 && static_cast<std::size_t>(before) <= line.size() &&
      line.substr(static_cast<std::size_t>(before)).starts_with(definition.strFileIDText))
    return;
  throw DefinitionFault(
      Message::FileIDTextNotFound,
      DetailText({"Lines before: " + std::to_string(definition.lngFileIDTextLinesBefore),
                  "Columns before: " + std::to_string(before),
                  "ID Text: " + definition.strFileIDText,
                  "Line read from data log: ", std::string(line)}));
}

/// The line of the columns' titles.
std::string FindHeader(PlainLog& text, const clsDataLog& definition, const std::string& path) {
  const bool there = text.Skip(definition.lngColumnHeadersLinesBefore);
  if (!there || text.AtEnd()) throw DefinitionFault(kNoHeader, path);
  const std::string_view line = text.Line();
  if (SplitFields(line, definition.lngDelimiterAsciiCharacter).size() < 2)
    throw DefinitionFault(kTooFewFields, std::string(line));
  return std::string(line);
}

/// Rows to expect, if the lines are as long as that of the titles.
long ExpectedRows(std::size_t bytes, std::size_t headerLength) {
  constexpr double kBlock = 128;
  const double length = RoundHalfEven(static_cast<double>(bytes) / kBlock) * kBlock;
  return static_cast<long>(
      std::min(length / static_cast<double>(std::max<std::size_t>(headerLength, 1)), 1e9));
}

/// Rows that the log will have; rather too many than too few, which costs nothing, while a store
/// that must grow moves all its rows.
int RowsToHold(double lines, long expected) {
  return static_cast<int>(std::min(std::max(lines * 1.1, static_cast<double>(expected)), 1e9));
}

/// Tells every fiftieth of the lines to expect.
class ProgressOfLines {
 public:
  ProgressOfLines(LoadProgress& progress, long expected)
      : progress_(progress), step_(std::max(expected / 50, 1L)) {}

  /// One more line was read.
  void Step() {
    if (++line_ != next_) return;
    progress_.Line(line_);
    next_ += step_;
  }

 private:
  LoadProgress& progress_;
  const long step_;
  long line_ = 0, next_ = step_;
};

class Load {
 public:
  Load(std::string_view bytes, const LoadContext& context, const clsDataLog& definition,
       LoadOutcome& outcome)
      : text_(bytes, definition),
        context_(context),
        definition_(definition),
        log_(context.log),
        outcome_(outcome) {}

  void Run() {
    context_.progress.Stage("Preparing to load");
    log_.Clear(context_.items, 0);
    Identify(text_, definition_);
    text_.Restart();
    if (definition_.IsFormed()) {
      const LogStart start = FindFormedStart(text_, definition_, log_.gstrCurrentFile);
      Read(HeaderMap(start.titles, definition_), start.titleLine);
    } else {
      const std::string headerLine = FindHeader(text_, definition_, log_.gstrCurrentFile);
      Read(HeaderMap(headerLine, definition_), headerLine);
    }
  }

 private:
  void Read(const HeaderMap& header, const std::string& headerLine) {
    CheckHeader(header, headerLine);
    if (!definition_.IsFormed()) GoToCountedData();
    ReadData(header, ExpectedRows(text_.Size(), headerLine.size()));
    NoteTemperatures(header);
    FillOffsetItems(header);
    SetTimes(header);
    if (log_.glngDataLog.Rows() >= kFewestSamples) log_.gblnSamplesLoaded = true;
    Smooth(header);
    if (log_.blnTooLong) outcome_.messages.emplace_back(Message::LogTooLong);
  }

  void CheckHeader(const HeaderMap& header, const std::string& line) {
    if (definition_.dblLineFrequency == 0 && !header.Feeds(ItemOf(kSecs)))
      throw DefinitionFault(Message::NoTimeColumn, line);
    outcome_.columns = header.Fields();
    outcome_.unknownColumns = header.Unknown();
    if (!header.AnyKnown()) throw DefinitionFault(Message::NoColumnsRecognised, line);
  }

  void GoToCountedData() {
    text_.Restart();
    if (!text_.Skip(definition_.lngDataLinesBefore))
      throw DefinitionFault(Message::FileNotLoaded, log_.gstrCurrentFile);
  }

  void ReadData(const HeaderMap& header, long expected) {
    context_.progress.Stage("Preparing to load", expected);
    log_.Clear(context_.items, RowsToHold(text_.ExpectedLines(), expected));
    DataLines data(header, definition_, log_.glngDataLog);
    ProgressOfLines progress(context_.progress, expected);
    for (; !text_.AtEnd() && !log_.blnTooLong; text_.NextBlock()) {
      data.Begin(text_.Block());
      TextLines lines(text_.Block());
      while (!lines.AtEnd() && data.Rows() < kMostSamples) {
        data.Read(lines.Next());
        progress.Step();
      }
      log_.blnTooLong = !lines.AtEnd();
      data.Flush();
    }
    stamps_ = data.Stamps();
  }

  /// The lowest air temperature, and the first sample with a warm engine.
  void NoteTemperatures(const HeaderMap& header) {
    const SampleStore& store = log_.glngDataLog;
    const clsLogDataItem& air = context_.items.Item(ItemOf(kATemp));
    const clsLogDataItem& coolant = context_.items.Item(ItemOf(kCTemp));
    if (header.Feeds(ItemOf(kATemp)) && store.Rows() > 0) {
      const auto stored = store.Column(kATemp);
      std::int32_t lowest = 0;
      if (!stored.empty()) lowest = *std::min_element(stored.begin(), stored.end());
      log_.glngLowestAirTemp =
          std::min(log_.glngLowestAirTemp, RoundToLong(air.GetRawData(lowest)));
    }
    if (!header.Feeds(ItemOf(kCTemp))) return;
    for (int row = 0; row < store.Rows() && log_.glngFirstPlotSample == -1; ++row)
      if (coolant.GetRawData(store(kCTemp, row)) >= context_.settings.gintPlotFromTemperature)
        log_.glngFirstPlotSample = row;
  }

  /// Items with an offset that this log lacks read as zero, not as the offset's negative.
  void FillOffsetItems(const HeaderMap& header) {
    for (const int item : definition_.objColumns.OffsetDataItems())
      if (!header.Feeds(item))
        log_.glngDataLog.Fill(item - 1, 0, log_.glngDataLog.Rows(),
                              context_.items.Item(item).SetRawData(0));
  }

  void SetTimes(const HeaderMap& header) {
    SampleStore& store = log_.glngDataLog;
    if (!header.Feeds(ItemOf(kSecs))) {
      const double factor = context_.items.Item(ItemOf(kSecs)).dblFactor;
      for (int row = 0; row < store.Rows(); ++row)
        store.Set(kSecs, row,
                  RoundToLong(RoundPlaces(1 / definition_.dblLineFrequency * row, 4) * factor));
      return;
    }
    if (!stamps_.empty()) return SetStampedTimes();
    // Times never fall: one that would is a stored unit behind the one before.
    std::int32_t previous = 0;
    if (store.Column(kSecs).empty()) return;
    for (std::int32_t& time : store.Writable(kSecs)) {
      if (time < previous) time = previous + (previous < std::numeric_limits<std::int32_t>::max());
      previous = time;
    }
  }

  /// From a clock whose form is told.
  void SetStampedTimes() {
    const double factor = context_.items.Item(ItemOf(kSecs)).dblFactor;
    const auto times = TimesOfLines(stamps_, TimeFormOfName(definition_.strTimeForm));
    const std::span<std::int32_t> cells = log_.glngDataLog.Writable(kSecs);
    for (std::size_t row = 0; row < cells.size(); ++row)
      cells[row] = StoredTime(times[row] * factor);
  }

  /// The last that a stored integer holds, for a clock that goes wild.
  static std::int32_t StoredTime(double stored) {
    constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
    if (stored < kMost) return RoundToLong(stored);
    return kMost;
  }

  void Smooth(const HeaderMap& header) {
    if (header.Smoothed().empty()) return;
    context_.progress.Stage("Smoothing data...");
    for (const int item : header.Smoothed())
      SmoothColumn(log_.glngDataLog, item - 1, context_.items.Item(item).LeastStored());
  }

  PlainLog text_;
  std::vector<double> stamps_;  ///< of a clock whose form is told, in seconds
  const LoadContext& context_;
  const clsDataLog& definition_;
  OpenLog& log_;
  LoadOutcome& outcome_;
};

}  // namespace

LoadOutcome LoadGenericDataLog(std::string_view bytes, const LoadContext& context,
                               const clsDataLog& definition) {
  LoadOutcome outcome;
  try {
    Load(bytes, context, definition, outcome).Run();
  } catch (const DefinitionFault& fault) {
    outcome.messages.emplace_back(fault.Told(), fault.what());
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    context.log.Clear(context.items, 0);
    outcome.messages.emplace_back(Message::FileNotLoaded);
  }
  outcome.loaded = context.log.gblnSamplesLoaded;
  return outcome;
}

}  // namespace tarnview
