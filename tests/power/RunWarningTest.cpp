#include "power/RunWarning.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(RunWarning, RpmThatFallOrFewLines) {
  const auto warning = [](const TableRow& row) {
    std::vector<RunSample> samples;
    for (const std::string& sample : SplitAt(row.All(), "; "))
      samples.push_back({std::stod(sample), std::stod(sample.substr(sample.find(' ')))});
    return RunWarning(samples);
  };
  // Seconds and rpm; a ten-thousandth longer than a tenth of a second is not slow yet.
  ExpectTable(warning, R"(
0 2000 ->  | 0 2000; 0.1 2000 ->  | 0 2000; 0.1 2000; 0.2 2000 ->  | 5 2000; 5.10001 2000 ->  | 0 2000; 0.1001 2000 -> Fewer than 10 lines a second: the curves are rough | 0 2000; 0.1 2000; 0.3 2000 -> Fewer than 10 lines a second: the curves are rough
0 2000; 0.1 1960 ->  | 0 2000; 0.1 1959 -> RPM falls within the run: wheel spin or a shift | 0 2000; 0.1 1981; 0.2 1959 -> RPM falls within the run: wheel spin or a shift | 0 1900; 0.1 2000; 0.2 1961 ->  | 0 2000; 1 1900 -> RPM falls within the run: wheel spin or a shift
)");
}

}  // namespace
}  // namespace tarnview
