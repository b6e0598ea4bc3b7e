#include "power/RunWarning.h"

#include <algorithm>

namespace tarnview {
namespace {

constexpr double kLeastLines = 10;    ///< a second
constexpr double kSensorStep = 0.98;  ///< of the highest rpm so far: a fall to less is no noise
constexpr double kTick =
    0.9999;  ///< times are kept in whole ten-thousandths: ten lines may last a little longer

bool IsSlow(const std::vector<RunSample>& samples) {
  if (samples.size() < 2) return false;
  const double lines = static_cast<double>(samples.size()) - 1;
  return lines < (samples.back().seconds - samples.front().seconds) * kLeastLines * kTick;
}

bool Falls(const std::vector<RunSample>& samples) {
  double highest = 0;
  return std::any_of(samples.begin(), samples.end(), [&](const RunSample& sample) {
    highest = std::max(highest, sample.rpm);
    return sample.rpm < highest * kSensorStep;
  });
}

}  // namespace

std::string RunWarning(const std::vector<RunSample>& samples) {
  if (Falls(samples)) return "RPM falls within the run: wheel spin or a shift";
  if (IsSlow(samples)) return "Fewer than 10 lines a second: the curves are rough";
  return "";
}

}  // namespace tarnview
