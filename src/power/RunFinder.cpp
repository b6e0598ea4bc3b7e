#include "power/RunFinder.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/Column.h"
#include "power/PowerRun.h"

namespace tarnview {
namespace {

constexpr double kFullThrottle = 0.9;  ///< of the widest that the log knows
constexpr double kSensorStep =
    0.98;  ///< of the highest rpm so far: a fall to less is no more noise
constexpr double kLeavesLowest = 0.99;  ///< of rpm that have left the lowest of a stretch
constexpr double kLeastRise = 1000;     ///< rpm
constexpr double kSameGear = 0.12;      ///< gears lie further apart than this part of a ratio
constexpr double kReliableSpeed =
    10;  ///< below it, a speed sensor is too coarse to tell gears apart
constexpr double kLongestInterval = 1.0;  ///< seconds; a longer one is a pause of the logger
constexpr int kLongestPlateau =
    200;  ///< rows without a new highest rpm: the car no longer gathers speed

class Finder {
 public:
  explicit Finder(const OpenLog& log)
      : log_(log), fullThrottle_(Widest(kTPS) * kFullThrottle), last_(log.glngLastSample) {}

  std::vector<FoundRun> Runs() const {
    std::vector<FoundRun> runs;
    for (std::int32_t row = log_.glngFirstSample; row < last_;) {
      const std::int32_t end = EndOfRise(row);
      if (const FoundRun run = Between(StartOfRise(row, end), end); IsRun(run)) runs.push_back(run);
      row = std::max(end, row + 1);
    }
    return runs;
  }

 private:
  double Value(Column column, std::int32_t row) const {
    return log_.gcolDataItems->Item(ItemOf(column)).GetRawData(log_.glngDataLog(column, row));
  }

  /// The highest value of an item; 0 where the log does not deliver it.
  double Widest(Column column) const {
    double widest = 0;
    if (log_.glngDataLog.Column(column).empty()) return widest;
    for (std::int32_t row = log_.glngFirstSample; row <= log_.glngLastSample; ++row)
      widest = std::max(widest, Value(column, row));
    return widest;
  }

  bool Open(std::int32_t row) const {
    return Value(kTPS, row) >= fullThrottle_ && Value(kRPM, row) > 0;
  }

  /// rpm for each unit of road speed; 0 where the log cannot tell.
  double Gearing(std::int32_t row) const {
    const double speed = Value(kSpeed, row);
    if (speed >= kReliableSpeed) return Value(kRPM, row) / speed;
    return 0;
  }

  bool SameGear(double gearing, std::int32_t row) const {
    const double other = Gearing(row);
    return gearing == 0 || other == 0 || std::fabs(other - gearing) <= gearing * kSameGear;
  }

  /// The row of the highest rpm that are reached from `start` without lifting, shifting or falling
  /// back; `start` itself where nothing rises.
  std::int32_t EndOfRise(std::int32_t start) const {
    std::int32_t highest = start;
    double gearing = Gearing(start);
    for (std::int32_t row = start; row <= last_ && row - highest <= kLongestPlateau && Open(row);
         ++row) {
      const bool pause =
          row > start && Value(kSecs, row) - Value(kSecs, row - 1) > kLongestInterval;
      if (pause || Value(kRPM, row) < Value(kRPM, highest) * kSensorStep || !SameGear(gearing, row))
        break;
      if (Value(kRPM, row) > Value(kRPM, highest)) highest = row;
      if (gearing == 0) gearing = Gearing(row);
    }
    return highest;
  }

  /// The last row of a stretch before the rpm leave their lowest.
  std::int32_t StartOfRise(std::int32_t start, std::int32_t end) const {
    double lowest = Value(kRPM, start);
    for (std::int32_t row = start; row <= end; ++row) lowest = std::min(lowest, Value(kRPM, row));
    std::int32_t last = end;
    while (last > start && Value(kRPM, last) * kLeavesLowest > lowest) --last;
    return last;
  }

  FoundRun Between(std::int32_t from, std::int32_t to) const {
    return {log_.Sample(from), log_.Sample(to), Value(kRPM, from), Value(kRPM, to),
            Value(kSecs, to) - Value(kSecs, from)};
  }

  static bool IsRun(const FoundRun& run) {
    return run.to - run.from >= kShortestRun && run.toRpm - run.fromRpm >= kLeastRise &&
           run.seconds > 0;
  }

  const OpenLog& log_;
  double fullThrottle_;
  std::int32_t last_;
};

}  // namespace

std::vector<FoundRun> FindRuns(const OpenLog& log) {
  if (log.glngDataLog.Rows() == 0) return {};
  return Finder(log).Runs();
}

}  // namespace tarnview
