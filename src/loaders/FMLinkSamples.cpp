#include "loaders/FMLinkSamples.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Units.h"
#include "loaders/LookupCache.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

constexpr std::string_view kZonesFollow = "Initial zone map";

/// How a summary's number is spread over the samples since the summary before: to so many places,
/// then times a factor.
struct Spread {
  Column column;
  int places;
  int factor;
};
constexpr Spread kSpreads[] = {{kVolt, 1, 1},   {kCTemp, 0, 1}, {kSpeed, 1, 10}, {kKnockC, 0, 1},
                               {kATemp, 1, 10}, {kAuxNS, 1, 1}, {kL4, 1, 1}};
constexpr Column kSwitches[] = {kEngFan, kCndFan, kAC, kPRC, kChPurge};

std::int32_t Stored(const Spread& spread, double value) {
  const double rounded = spread.places == 1 ? RoundHalfEven(value * 10) / 10 : RoundHalfEven(value);
  return RoundToLong(rounded * spread.factor);
}

void Interpolate(const Spread& spread, SampleStore& store, int first, int end, double from,
                 double to) {
  if (from == to) return store.Fill(spread.column, first, end, Stored(spread, from));
  const double step = (to - from) / (end - first);
  for (int i = first; i < end; ++i)
    store.Set(spread.column, i, Stored(spread, from + step * (i - first)));
}

}  // namespace

FMLinkSamples::FMLinkSamples(const LoadContext& context)
    : context_(context), log_(context.log), items_(context.items) {
  current_.version18 = EngineSizeText(context.settings.gdblDefaultEngineSize) == "1.8";
}

void FMLinkSamples::Read(TextLines& lines, long lineStep) {
  long line = 0, nextTelling = lineStep;
  while (!lines.AtEnd() && !lines.Current().starts_with(kZonesFollow)) {
    ReadLine(lines.Next());
    if (++line != nextTelling) continue;
    context_.progress.Line(line);
    nextTelling += lineStep;
  }
}

void FMLinkSamples::ReadLine(std::string_view line) {
  switch (KindOfFMLinkLine(line)) {
    case FMLinkLine::Log: {
      if (Full()) {
        log_.blnTooLong = true;
        return;
      }
      const int row = log_.glngDataLog.AddRow();
      ParseLogLine(line, current_.version18, items_, log_.glngDataLog, row);
      lastSample_ = log_.Sample(row);
      return;
    }
    case FMLinkLine::Summary:
      return ReadSummary(line);
    case FMLinkLine::Other:
    case FMLinkLine::Unrecognised:
      return;
  }
}

void FMLinkSamples::ReadSummary(std::string_view line) {
  current_ = ParseSummaryLine(line, log_.glngLowestAirTemp);
  MarkTag(line[0] == '*');
  if (!anySummary_) previous_ = current_.row;
  anySummary_ = true;

  SampleStore& store = log_.glngDataLog;
  const int end = store.Rows();
  if (start_ < end) {
    for (const Spread& spread : kSpreads)
      Interpolate(spread, store, start_, end, previous_[spread.column],
                  current_.row[spread.column]);
    for (const Column column : kSwitches) store.Fill(column, start_, end, current_.row[column]);
    FindFirstPlotSample(start_, end);
  }
  start_ = end;
  previous_ = current_.row;
}

void FMLinkSamples::MarkTag(bool inTag) {
  if (inTag && !tagOpen_) tagFrom_ = lastSample_;
  if (!inTag && tagOpen_) log_.gcolLogTags.Add(tagFrom_, lastSample_);
  tagOpen_ = inTag;
}

void FMLinkSamples::FindFirstPlotSample(int first, int end) {
  for (int i = first; i < end && log_.glngFirstPlotSample == -1; ++i)
    if (log_.glngDataLog(kCTemp, i) >= context_.settings.gintPlotFromTemperature)
      log_.glngFirstPlotSample = i;
}

void FMLinkSamples::Finish() {
  SampleStore& store = log_.glngDataLog;
  const int end = store.Rows();
  for (const Spread& spread : kSpreads)
    store.Fill(spread.column, start_, end,
               RoundToLong(static_cast<double>(spread.factor) * previous_[spread.column]));
  for (const Column column : kSwitches) store.Fill(column, start_, end, previous_[column]);

  store.Fill(kCR, 0, end, items_.CRZero);
  store.Fill(kFuelPercentM, 0, end, items_.fuelPercentMZero);
  LookupCache airFuel(context_.tables.O2, 1000);
  for (int i = 0; i < end; ++i) {
    store.Set(kSecs, i,
              RoundToLong(RoundPlaces(store(kSample, i) * kFMLinkSecondsPerSample, 4) *
                          kStoredPerSecond));
    store.Set(kAF, i, airFuel(store(kO2, i)));
  }
}

void FMLinkSamples::FinishTags() {
  MarkTag(false);
  const SampleStore& store = log_.glngDataLog;
  const int rows = store.Rows();
  if (rows > 0)
    log_.gcolLogTags.Validate(store(kSample, 0), store(kSample, rows - 1));
  else
    log_.gcolLogTags.Validate(0, 0);
}

}  // namespace tarnview
