#include <gtest/gtest.h>

#include "LoadedSampleLog.h"
#include "loaders/Tec2Log.h"

namespace tarnview {
namespace {

constexpr const char* kHeading = "Tec-2\nSECONDS  RPM\n";
const std::string kLine =
    "   12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   "
    "0.52 ";

TEST(Tec2Log, AWholeLog) {
  const LoadedSampleLog loaded(LoadTec2Log, R"(Any first line
SECONDS  RPM   AD MAP   CLT GAMA MAT TPS  EGO   AF    EGOV  GPO1   BATT  KNK   DUTY  PW    PWOFF
         a third line without a point is passed over
   12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 
    12.5   850 12  34.5  79 1.10  -5  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05 2.175    0.5 
    12.6   850 12  34.5  79 1.10  -9  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05 2.175    0.5
  12.625  6400 -3  75.0  90  0.9  31 99.98    0 12.05    .9    100 13.85   250   101  11.5  0.525 
)");
  EXPECT_TRUE(loaded.outcome.loaded);
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{});
  ExpectTold(loaded.Table(), R"(
Sample: 1 2 3 | RPM: 3250 850 6400 | MAP: 1013 345 750 | Inj W: 815 217 1150 | Inj %: 452 40 1010 | TPS: 1850 0 9998
Knock: 12 4 250 | IAdv: 280 120 -30 | Volt: 138 138 138 | C Temp: 88 79 90 | A Temp: 250 -50 310 | A/F: 14700 13200 12050
Boost: 38 0 0 | Vacuum: 0 120 0 | PWOFF: 52 50 52 | GAMA: 102 110 90 | CR: 990 1012 1000 | EGOV: 45 81 90 | GPO1: 0 1250 10000
Secs: 123400 125000 126250 | Fuel% M: 1000 1000 1000
)");
  EXPECT_EQ(loaded.log.glngLowestAirTemp, -5);
  EXPECT_EQ(loaded.log.glngFirstPlotSample, 0);
  EXPECT_FALSE(loaded.log.zones.gblnZoneLayout6);
}

TEST(Tec2Log, BadInputsAndWhatTheyTell) {
  ExpectBad(LoadTec2Log, {
                             {"empty", "", {54}},
                             {"one line", "SECONDS", {54}},
                             {"seconds in small letters", "\nSeconds\n" + kLine, {54}},
                             {"no third line", kHeading, {54}},
                             {"a short third line", std::string(kHeading) + "         ", {54}},
                             {"no blank at 9", std::string(kHeading) + "123456789012", {54}},
                             {"no point at all", std::string(kHeading) + std::string(98, ' '), {}},
                             {"two samples", Repeated(kHeading, kLine, 2), {}},
                             {"lines of 97", Repeated(kHeading, kLine.substr(0, 97), 9), {}},
                             {"NUL bytes", std::string(200, '\0'), {54}},
                             {"a long line", kHeading + std::string(10'000'000, ' '), {}},
                         });
}

TEST(Tec2Log, ThePointIsAskedForOnlyOnceAndMayStandInTheFirstLine) {
  std::string noPoint = kLine;
  noPoint[5] = ' ';
  const LoadedSampleLog loaded(LoadTec2Log, kLine + "\nSECONDS\n" + kLine + "\n" + noPoint);
  EXPECT_EQ(loaded.Cells(kSecs), "123400 123400 120000");
  EXPECT_EQ(loaded.Cells(kSample), "1 2 3");
}

TEST(Tec2Log, TheSettingsCount) {
  Settings settings;
  settings.gintDefaultAtmosphericPressure = 102;
  settings.gintPlotFromTemperature = 89;
  const LoadedSampleLog loaded(LoadTec2Log, Repeated(kHeading, kLine, 3), settings);
  EXPECT_EQ(loaded.Cells(kVacuum), "2 2 2");
  EXPECT_EQ(loaded.log.glngFirstPlotSample, -1);
}

TEST(Tec2Log, StopsAt300000Samples) {
  EXPECT_TRUE(
      LoadedSampleLog(LoadTec2Log, Repeated(kHeading, kLine, 300000)).outcome.messages.empty());
  const LoadedSampleLog loaded(LoadTec2Log, Repeated(kHeading, kLine, 300001));
  EXPECT_EQ(loaded.log.glngDataLog.Rows(), 300000);
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{51});
  EXPECT_NEAR(static_cast<double>(loaded.progress.lines.size()), 50, 1);
}

}  // namespace
}  // namespace tarnview
