#include <gtest/gtest.h>

#include "power/PowerLog.h"
#include "power/RunFinder.h"

namespace tarnview {
namespace {

std::string Found(const std::string& lines) {
  const PowerLog made(lines);
  std::string text;
  for (const FoundRun& run : FindRuns(made.log))
    text += std::to_string(run.from) + "-" + std::to_string(run.to) + " " +
            NumberText(run.fromRpm) + "-" + NumberText(run.toRpm) + " " +
            FixedText(run.seconds, 1) + "s\n";
  return text;
}

/// Samples of a tenth of a second each, one behind the other.
class Drive {
 public:
  Drive& Go(int samples, double fromRpm, double toRpm, double throttle, double speedPerRpm = 0) {
    for (int i = 0; i < samples; ++i) {
      const double rpm = fromRpm + (toRpm - fromRpm) * i / std::max(samples - 1, 1);
      lines_ += std::to_string(++sample_) + " " + FixedText(seconds_, 1) + " " + FixedText(rpm, 0) +
                " " + NumberText(throttle) + " " + FixedText(rpm * speedPerRpm, 1) + "\n";
      seconds_ += 0.1;
    }
    return *this;
  }
  Drive& Pause(double seconds) {
    seconds_ += seconds;
    return *this;
  }
  const std::string& Lines() const { return lines_; }

 private:
  std::string lines_;
  int sample_ = 0;
  double seconds_ = 0;
};

TEST(RunFinder, FullThrottleRisingRpmAndNothingElse) {
  EXPECT_EQ(Found(""), "");
  EXPECT_EQ(
      Found(
          Drive().Go(20, 1000, 1000, 0.5).Go(31, 2000, 6500, 4.5).Go(20, 6000, 2000, 0.5).Lines()),
      "21-51 2000-6500 3.0s\n");
  EXPECT_EQ(Found(Drive().Go(31, 2000, 6500, 2).Go(5, 3000, 3000, 4.5).Lines()), "")
      << "half throttle";
  EXPECT_EQ(Found(Drive().Go(10, 2000, 6500, 4.5).Lines()), "") << "too short";
  EXPECT_EQ(Found(Drive().Go(11, 2000, 3001, 4.5).Lines()), "1-11 2000-3001 1.0s\n");
  EXPECT_EQ(Found(Drive().Go(31, 2000, 2990, 4.5).Lines()), "") << "hardly rising";
}

TEST(RunFinder, AShiftEndsARunByItsRpmOrByItsGearing) {
  EXPECT_EQ(Found(Drive().Go(20, 2000, 6500, 4.5).Go(30, 4500, 6500, 4.5).Lines()),
            "1-20 2000-6500 1.9s\n21-50 4500-6500 2.9s\n");
  EXPECT_EQ(Found(Drive().Go(20, 2000, 4000, 4.5, 0.012).Go(30, 4000, 6500, 4.5, 0.016).Lines()),
            "1-20 2000-4000 1.9s\n21-50 4000-6500 2.9s\n");
  EXPECT_EQ(Found(Drive().Go(20, 2000, 4000, 4.5, 0.012).Go(30, 4000, 6500, 4.5, 0.013).Lines()),
            "1-50 2000-6500 4.9s\n");
}

TEST(RunFinder, NoiseDoesNotEndARunAndAPauseDoes) {
  EXPECT_EQ(
      Found(Drive().Go(20, 2000, 4000, 4.5).Go(2, 3930, 3960, 4.4).Go(20, 4100, 6500, 4.5).Lines()),
      "1-42 2000-6500 4.1s\n");
  EXPECT_EQ(Found(Drive().Go(20, 2000, 4000, 4.5).Pause(2).Go(20, 4100, 6500, 4.5).Lines()),
            "1-20 2000-4000 1.9s\n21-40 4100-6500 1.9s\n");
}

TEST(RunFinder, WithoutAThrottleRisingRpmAloneCount) {
  EXPECT_EQ(Found(Drive().Go(20, 900, 900, 0).Go(31, 2000, 6500, 0).Go(30, 6000, 1000, 0).Lines()),
            "20-51 900-6500 3.1s\n");
}

}  // namespace
}  // namespace tarnview
