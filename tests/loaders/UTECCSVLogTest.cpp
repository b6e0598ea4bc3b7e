#include <gtest/gtest.h>

#include "LoadedSampleLog.h"
#include "loaders/UTECCSVLog.h"

namespace tarnview {
namespace {

TEST(UTECCSVLog, ThreeHeadingRows) {
  const LoadedSampleLog loaded(LoadUTECCSVLog, R"(UTEC log
    ,    ,      ,   ,MOD,MOD,   ,MOD,   ,    ,   ,   ,      ,      ,MOD,    ,     ,     ,   ,   ,   ,    ,  ,MOD
Time,RPM ,MAP   ,MAF,MAF,MAF,MAF,MAF,TPS,TPS ,Site,Count,AFR ,IGN#1,IGN,INJ#1,FUEL ,BOOST,BOOST,MLP,H2O,AIR,O2,MOD
    ,    ,psig  ,HZ ,hz ,V  ,V  ,DIG,%  ,DIG ,   ,   ,      ,      ,   ,    ,     ,(CL) ,ECU %,   ,   ,   ,  ,
0   ,3250,  -8.5, 42, 44,3.8,3.9, 97,45.5,88 ,  7,  3, 12.52,  22.5,ECU,68.2 , -2.5, 45.5,   66, 12, 79, 25,0.85,1
Time,RPM ,MAP   ,MAF,MAF,MAF,MAF,MAF,TPS,TPS ,Site,Count,AFR ,IGN#1,IGN,INJ#1,FUEL ,BOOST,BOOST,MLP,H2O,AIR,O2,MOD
400 , 850,  12.5, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0,  LEAN,    12,  9,120.5,  1.5,    0,    0, 13, <5,-2.6,.9 ,1
800 , 850,     0, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0, >25:1,    12,  9, 3.25,    0,    0,    0, 13, 85, <1,.9 ,1
1200, 850,     1, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0, rich ,    12,  9, 3.25,    0,    0
1200, 850,     1, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0,  W/B ,    12,  9, 3.25,    0,    0,    0, 13, 85, 30,.9 ,1,more
)");
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{});
  ExpectTold(loaded.Table(), R"(
Sample: 1 2 3 4 | RPM: 3250 850 850 850 | MAP: 164 1612 750 819 | Inj %: 682 1000 32 32 | TPS: 4550 0 0 0 | Knock: 3 0 0 0
IAdv: 225 120 120 120 | C Temp: 79 5 85 85 | A Temp: 250 -26 10 300 | A/F: 12520 24500 25000 24500 | Boost: 0 125 0 10
Vacuum: 173 0 0 0 | CR: 1000 1000 1000 1000 | EGOV: 85 90 90 90 | Secs: 0 2000 4000 6000 | MAF: 39 19 19 19 | MAF M: 38 18 18 18
IAdv M: 225 90 90 90 | Fuel% M: 975 1015 1000 1000 | BCL: 46 0 0 0 | LS: 7 1 1 1 | MLP: 12 13 13 13 | MAF D: 97 27 27 27
TPS D: 88 18 18 18 | MAF Hz: 42 12 12 12 | MAF M Hz: 44 14 14 14
)");
  EXPECT_EQ(loaded.log.glngLowestAirTemp, -3);
}

TEST(UTECCSVLog, TwoHeadingRows) {
  const LoadedSampleLog loaded(LoadUTECCSVLog, R"(a log,of

a run,of one
RPM,MAP,MAP,AFR,BOOST,WG,KNOCK
,,DIG,,(ol),,
3250,8.5,142,1470,45.5,66.5,3
850,-8.5,12,n/a,0,133,0
850,-3.625,12,12.5,0,133,0
850,-3.6,12,900,7,0,0
)");
  ExpectTold(loaded.Table(), R"(
Sample: 1 2 3 4 | RPM: 3250 850 850 850 | MAP: 1586 414 750 752 | WG%: 50 100 100 0 | Knock: 3 0 0 0 | A/F: 14700 0 125 9000
Boost: 121 0 0 0 | Vacuum: 0 99 0 0 | CR: 1000 1000 1000 1000 | Secs: 2000 4000 6000 8000 | Fuel% M: 1000 1000 1000 1000
MAP D: 142 12 12 12
)");
}

TEST(UTECCSVLog, BadInputsAndWhatTheyTell) {
  const std::string two = "RPM,MAP,AFR\n,,\n";
  ExpectBad(LoadUTECCSVLog,
            {
                // clang-format off
                                {"empty", "", {59}},
                                {"no line of three cells", "a,b\nc\n\n", {59}},
                                {"cut in the heading", "RPM,MAP,AFR\n,,", {59}},
                                {"a second row of two cells", Repeated("RPM,MAP,AFR\n,\n", "1,2,3", 9), {59}},
                                {"a second row of four", Repeated("RPM,MAP,AFR\n,,,\n", "1,2,3", 9), {59}},
                                {"a third row of two", Repeated(two, "1,2", 9), {59}},
                                {"three samples", Repeated(two, "1,2,3", 3), {}},
                                {"too few cells", Repeated(two + "1,2,3\n", "1,2", 9), {}},
                                {"a long line", two + "1,2,3\n" + std::string(10'000'000, '1'), {}},
                // clang-format on
            });
}

TEST(UTECCSVLog, StopsAt300000Samples) {
  const LoadedSampleLog loaded(LoadUTECCSVLog, Repeated("RPM,MAP,AFR\n,,\n", "1,2,3", 300001));
  EXPECT_EQ(loaded.log.glngDataLog.Rows(), 300000);
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{51});
}

}  // namespace
}  // namespace tarnview
