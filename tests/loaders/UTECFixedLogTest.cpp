#include <gtest/gtest.h>

#include "LoadedSampleLog.h"
#include "loaders/UTECFixedLog.h"

namespace tarnview {
namespace {

TEST(UTECFixedLog, EachLayout) {
  const auto table = [](const char* log) {
    const LoadedSampleLog loaded(LoadUTECFixedLog, log);
    EXPECT_EQ(loaded.Told(), " samples");
    return loaded.Table();
  };
  ExpectTold(table(R"( RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF
       psig                                                   (OL)
 3250  -8.5  38  45   7     3   12.5  22.5   68.2   ECU  -2.5   45.5  41
 RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF
  850  12.5  38  45   7     3   W/B   22.5  120.0  12.5     0 ECU     41
  850   8.5  38  45   7     3   rich  22.5   68.2   -.5     0    -3   41 1
)"),
             R"(
Sample: 1 2 3 | RPM: 3250 850 850 | MAP: 164 1612 1336 | WG%: 46 0 -3 | Inj %: 682 1000 682 | TPS: 4500 4500 4500 | Knock: 3 3 3
IAdv: 225 225 225 | A/F: 12500 12500 12000 | Boost: 0 125 85 | Vacuum: 173 0 0 | CR: 1000 1000 1000 | Secs: 2000 4000 6000
MAF: 380 380 380 | MAF M: 410 410 410 | IAdv M: 225 125 -5 | Fuel% M: 975 1000 1000 | LS: 7 7 7
)");
  ExpectTold(table(R"(TIME     RPM   MAP  MAF TPS MLP H2O Air   O2
units
    1200  3250   8.5  38  45  12  79  25  0.85
    1400   850  -8.5  38  45  12  80  -3  0.85
    1600   850 -3.63  38  45  12 1e1  30    .9
)"),
             R"(
Sample: 1 2 3 | RPM: 3250 850 850 | MAP: 1586 414 750 | TPS: 4500 4500 4500 | C Temp: 79 80 10 | A Temp: 250 -30 300 | Boost: 121 0 0
Vacuum: 0 99 0 | CR: 1000 1000 1000 | EGOV: 85 85 90 | Secs: 0 1000 2000 | MAF: 380 380 380 | Fuel% M: 1000 1000 1000 | MLP: 12 12 12
)");
  ExpectTold(table(R"(comment
 TIME     RPM   MAP  MAF TPS MLP  Knock  AFR  WG  Boost 
                                                  (OL)
    1200  3250   8.5  38  45  12     3   12.5  66 45.   
    1400  3250   8.5  38  45  12     3   W/B   66 ECU   
    1600  3250   8.5  38  45  12     3   lean 133  7    
)"),
             R"(
Sample: 1 2 3 | RPM: 3250 3250 3250 | MAP: 1586 1586 1586 | WG%: 45 50 7 | TPS: 4500 4500 4500 | Knock: 3 3 3 | A/F: 12500 0 24500
Boost: 121 121 121 | CR: 1000 1000 1000 | Secs: 0 1000 2000 | MAF: 380 380 380 | Fuel% M: 1000 1000 1000 | MLP: 12 12 12
)");
  ExpectTold(table(R"( TIME     RPM  MAP MAF TPS MLP  Knock  O2  IGN#1  INJ#1  IGN   FUEL BOOST 
                                                                    (CL)
       0  3250 142  97  88  12     3  0.85  22.5   68.2   ECU  -2.5   45.0
       2  3250 142  97  88  12     3  0.85  22.5   68.2    12   1.5   45.0
       1  3250 142  97  88  12     3  0.85  22.5   68.2  12.5     0   45.0
)"),
             R"(
Sample: 1 2 3 | RPM: 3250 3250 3250 | Inj %: 682 682 682 | Knock: 3 3 3 | IAdv: 225 225 225 | CR: 1000 1000 1000 | EGOV: 85 85 85
Secs: 0 10 5 | IAdv M: 225 120 125 | Fuel% M: 975 1015 1000 | BCL: 45 45 45 | MLP: 12 12 12 | MAP D: 142 142 142 | MAF D: 97 97 97
TPS D: 88 88 88
)");
  ExpectTold(table(R"( time     rpm   map  maf tps mlp  knock  afr 
                PSIG
    1200  3250   8.5  38  45  12     3   12.5
    1200  3250   8.5  38  45  12     3   W/B
    1200  3250   8.5  38  45  12     3   12.5
)"),
             R"(
Sample: 1 2 3 | RPM: 3250 3250 3250 | MAP: 1336 1336 1336 | TPS: 4500 4500 4500 | Knock: 3 3 3 | A/F: 12500 0 12500 | Boost: 85 85 85
CR: 1000 1000 1000 | MAF: 380 380 380 | Fuel% M: 1000 1000 1000 | MLP: 12 12 12
)");
  ExpectTold(table(R"( RPM TPS  MAP  MLP  MOD  AFR  KNOCK 

3250  45   8.5  12   ECU 12.5     3
 850  45   8.5  12  12.5 RICH     3
 850  45   8.5  12   9.5 LEAN     3
)"),
             R"(
Sample: 1 2 3 | RPM: 3250 850 850 | MAP: 1586 1586 1586 | TPS: 4500 4500 4500 | Knock: 3 3 3 | A/F: 12500 12000 24500
Boost: 121 121 121 | CR: 1000 1000 1000 | Secs: 2000 4000 6000 | IAdv M: 0 125 95 | Fuel% M: 1000 1000 1000 | MLP: 12 12 12
)");
}

const std::string kHeading =
    " RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF";
const std::string kLine =
    " 3250  -8.5  38  45   7     3   12.5  22.5   68.2   ECU  -2.5   45.5  41";

TEST(UTECFixedLog, TheWideBandSensorStandsBehindTheLine) {
  std::string line = kLine;
  line.replace(32, 4, "W/B ");
  const std::string at73 = line + std::string(74 - line.size(), ' ');
  const LoadedSampleLog loaded(LoadUTECFixedLog, kHeading + "   AFR\n\n" + line + "  13.25\n" +
                                                     line + "  9.5\n" + line + "    \n");
  EXPECT_EQ(loaded.Cells(kAF), "13250 9500 0");
  const LoadedSampleLog shorter(LoadUTECFixedLog,
                                kHeading + "\n\n" + kLine + "\n" + at73 + "\n" + at73 + "\n");
  EXPECT_EQ(shorter.Cells(kAF), "12500 12500 12500");
}

TEST(UTECFixedLog, WithoutItsTextAHeadingIsKnownByItsLength) {
  // The first line is then the units line, and the heading's own line a sample.
  const LoadedSampleLog loaded(LoadUTECFixedLog, R"(units
 RPM TPS  MAP  MLP  MOD  AFR  KNOC
3250  45   8.5  12   ECU 12.5     3
3251  45   8.5  12   ECU 12.5     3
)");
  EXPECT_EQ(loaded.Cells(kRPM), "0 3250 3251");
  // Where a line is as long as the headings of two layouts, the later one counts.
  const LoadedSampleLog shorter(LoadUTECFixedLog,
                                Repeated(kHeading.substr(0, 71) + "\n", kLine, 3));
  EXPECT_EQ(shorter.Cells(kMLP), "3 3 3");  // of layout 4, whose lines are two longer
}

TEST(UTECFixedLog, LinesMayDifferFromTheHeadingByTwoCharacters) {
  std::string text = kHeading + "\nunits\n";
  for (const int length : {69, 70, 72, 74, 75})
    text += (kLine + "    ").substr(0, static_cast<std::size_t>(length)) + "\n";
  EXPECT_EQ(LoadedSampleLog(LoadUTECFixedLog, text).log.glngDataLog.Rows(), 3);
}

TEST(UTECFixedLog, BadInputsAndWhatTheyTell) {
  ExpectBad(
      LoadUTECFixedLog,
      {
          // clang-format off
                                  {"empty", "", {60}},
                                  {"no heading", Repeated("", "SECONDS", 9), {60}},
                                  {"heading alone", kHeading, {60}},
                                  {"heading on line 31", Repeated("", "comment", 30) + kHeading + "\n\n" + kLine, {60}},
                                  {"two samples", Repeated(kHeading + "\n\n", kLine, 2), {}},
                                  {"a long line", kHeading + "\n\n" + std::string(10'000'000, '1'), {}},
          // clang-format on
      });
}

TEST(UTECFixedLog, StopsAt300000Samples) {
  const LoadedSampleLog loaded(LoadUTECFixedLog, Repeated(kHeading + "\n\n", kLine, 300001));
  EXPECT_EQ(loaded.log.glngDataLog.Rows(), 300000);
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{51});
}

}  // namespace
}  // namespace tarnview
