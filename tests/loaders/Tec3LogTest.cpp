#include <gtest/gtest.h>

#include "LoadedSampleLog.h"
#include "loaders/Tec3Log.h"

namespace tarnview {
namespace {

TEST(Tec3Log, AWholeLog) {
  // The clock stands still, jumps back, stands at 0 and jumps back again.
  const LoadedSampleLog loaded(LoadTec3Log, R"(
SECONDS   RPM   AD MAP   CLT GAMA MAT TPS  EGO   AF    EGOV  GPO1   BATT  KNK   DUTY  PW     PWOFF
    12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15   0.52   0.00  0.00   0.00 0.51 1.22 2.48 4.97    1.5   7 12   3   33.0
    12.34   850 12  34.5  79 1.10  -5  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05  2.175    0.5  12.50  2.50   1.25 0.51 1.22 2.48 4.97   2.5   8 -1   0
    12.25  6400 -3  75.0  90  0.9  31 99.9     0 12.05    .9    100 13.85   250   101   11.5  0.525   0.00  0.00   0.00 0.51 1.22 2.48 4.97      0   0  0   0   32.5
     0.00  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15   0.52   0.00  0.00   0.00 0.51 1.22 2.48 4.97     0   0  0   0
     0.00  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15   0.52   0.00  0.00   0.00 0.51 1.22 2.48 4.97     0   0  0   0 1
      0.5   850 12  34.5  79 1.10  -5  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05  2.175    0.5   0.00  0.00   0.00 0.51 1.22 2.48 4.97      0   0  0   0      1
)");
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{});
  ExpectTold(loaded.Table(), R"(
Sample: 1 2 3 4 5 | RPM: 3250 850 6400 3250 850 | MAP: 1013 345 750 1013 345 | Inj W: 815 217 1150 815 217
Inj %: 452 40 1010 452 40 | IAC: 33 0 32 0 1 | TPS: 1850 0 9990 1850 0 | Knock: 12 4 250 12 4 | IAdv: 280 120 -30 280 120
Volt: 138 138 138 138 138 | C Temp: 88 79 90 88 79 | A Temp: 250 -50 310 250 -50 | A/F: 14700 13200 12050 14700 13200
Boost: 38 0 0 38 0 | Vacuum: 0 120 0 0 120 | PWOFF: 52 50 52 52 50 | GAMA: 102 110 90 102 110 | CR: 990 1012 1000 990 1012
EGOV: 45 81 90 45 81 | GPO1: 0 1250 10000 0 1250 | TDUTY: 0 1250 0 0 0 | TPWON: 0 250 0 0 0 | TPWOFF: 0 125 0 0 0
AD1: 51 51 51 51 51 | AD2: 122 122 122 122 122 | AD3: 248 248 248 248 248 | AD4: 497 497 497 497 497 | GPO2: 150 250 0 0 0
GFG: 7 8 0 0 0 | SIA: 120 -10 0 0 0 | KNR: 30 0 0 0 0 | Secs: 123400 123401 123402 4505 5000 | Fuel% M: 1000 1000 1000 1000 1000
)");
}

TEST(Tec3Log, BadInputsAndWhatTheyTell) {
  const std::string heading = "\nSECONDS\n", line = "    12.34 " + std::string(146, ' ');
  ExpectBad(LoadTec3Log, {
                             {"empty", "", {55}},
                             {"no seconds", "\n SECONDS\n" + line, {55}},
                             {"a short third line", heading + "          ", {55}},
                             {"no blank at 10", heading + "    12.345 ", {55}},
                             {"two samples", Repeated(heading, line, 2), {}},
                             {"lines of 157", Repeated(heading, line + " ", 9), {}},
                         });
}

TEST(Tec3Log, TheFirstSampleIsNeverCured) {
  const std::string line = "   000.00 " + std::string(146, ' ');
  Settings settings;
  settings.gdblDataLogLineFrequency = 10;
  const LoadedSampleLog loaded(LoadTec3Log, Repeated("\nSECONDS\n", line, 4), settings);
  EXPECT_EQ(loaded.Cells(kSecs), "0 1000 2000 3000");
}

}  // namespace
}  // namespace tarnview
