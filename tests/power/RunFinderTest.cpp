#include "power/PowerLog.h"
#include "power/RunFinder.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// A log of stretches "31 2000 6500 4.5", samples of a tenth of a second from one rpm to the other
/// at a throttle, with "0.012" behind them for the road speed of an rpm; "pause 2".
std::string Drive(const std::vector<std::string>& stretches) {
  std::string lines;
  int sample = 0;
  double seconds = 0;
  for (const std::string& stretch : stretches) {
    const auto words = Split(stretch, ' ');
    if (words[0] == "pause") {
      seconds += StringToDouble(words[1]);
      continue;
    }
    const int samples = StringToLong(words[0]);
    const double from = StringToDouble(words[1]), to = StringToDouble(words[2]);
    for (int i = 0; i < samples; ++i, seconds += 0.1) {
      const double rpm = from + (to - from) * i / std::max(samples - 1, 1);
      const double speed = words.size() > 4 ? rpm * StringToDouble(words[4]) : 0;
      lines += std::to_string(++sample) + " " + FixedText(seconds, 1) + " " + FixedText(rpm, 0) +
               " " + words[3] + " " + FixedText(speed, 1) + "\n";
    }
  }
  return lines;
}

TEST(RunFinder, FullThrottleRisingRpmAndNothingElse) {
  const auto found = [](const TableRow& row) {
    const PowerLog made(Drive(SplitAt(row.All(), "; ")));
    std::vector<std::string> runs;
    for (const FoundRun& run : FindRuns(made.log))
      runs.push_back(std::to_string(run.from) + "-" + std::to_string(run.to) + " " +
                     NumberText(run.fromRpm) + "-" + NumberText(run.toRpm) + " " +
                     FixedText(run.seconds, 1) + "s");
    return Join(runs, "; ");
  };
  ExpectTable(found, R"(
pause 1 -> 
20 1000 1000 0.5; 31 2000 6500 4.5; 20 6000 2000 0.5 -> 21-51 2000-6500 3.0s
# Half throttle, too short, just long enough, hardly rising.
31 2000 6500 2; 5 3000 3000 4.5 -> 
10 2000 6500 4.5 -> 
11 2000 3001 4.5 -> 1-11 2000-3001 1.0s
31 2000 2990 4.5 -> 
# A shift ends a run by its rpm or by its gearing.
20 2000 6500 4.5; 30 4500 6500 4.5 -> 1-20 2000-6500 1.9s; 21-50 4500-6500 2.9s
20 2000 4000 4.5 0.012; 30 4000 6500 4.5 0.016 -> 1-20 2000-4000 1.9s; 21-50 4000-6500 2.9s
20 2000 4000 4.5 0.012; 30 4000 6500 4.5 0.013 -> 1-50 2000-6500 4.9s
# Noise does not, a pause does.
20 2000 4000 4.5; 2 3930 3960 4.4; 20 4100 6500 4.5 -> 1-42 2000-6500 4.1s
20 2000 4000 4.5; pause 2; 20 4100 6500 4.5 -> 1-20 2000-4000 1.9s; 21-40 4100-6500 1.9s
# Without a throttle rising rpm alone count.
20 900 900 0; 31 2000 6500 0; 30 6000 1000 0 -> 20-51 900-6500 3.1s
)");
}

}  // namespace
}  // namespace tarnview
