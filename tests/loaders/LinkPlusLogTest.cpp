#include <gtest/gtest.h>

#include "LoadedSampleLog.h"
#include "loaders/LinkPlusLog.h"

namespace tarnview {
namespace {

/// A log as people see it: bars between the fields stand for tabs.
std::string Tabbed(std::string text) {
  for (char& c : text)
    if (c == '|') c = '\t';
  return text;
}

TEST(LinkPlusLog, NamedColumns) {
  const LoadedSampleLog loaded(LoadLinkPlusLog, Tabbed(R"(Link Plus
Car|mine

Count|RPM|MAP|TPS|OXY|ETEMP|VOLTS|ZONE|%FF|ADV|%WG|KNK|IAT|IDLE|KPH|KNKCNT|CURRFL|CURRIG|ACTTPS|Markers|unheard of
100|3250|101.3|18.25|75|79|13.82|630|45|28|30|12|25.5|33|57.5|3|118|14|9|x|?
101|850|34.55|0|40|80|13.85|205|4|12|0|3|-2.6|40|0|3|49|145|9||
too|few|fields
102|6400|75.0|99.99|99|81.5|14|675|98|-3|45|250|30|33|120|4|127|23|9||?|more
)"));
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{});
  ExpectTold(loaded.Table(), R"(
Sample: 100 101 102 | RPM: 3250 850 6400 | MAP: 1013 346 750 | O2: 75 40 99 | WG%: 30 0 45 | Inj %: 45 4 98 | IAC: 33 40 33
TPS: 1825 0 9999 | Knock: 12 3 250 | IAdv: 28 12 -3 | Volt: 138 138 140 | C Temp: 79 80 82 | Speed: 58 0 120 | Knock C: 3 3 4
A Temp: 255 -26 300 | A/F: 13900 15000 11000 | Boost: 38 0 0 | Vacuum: 0 119 0 | CR: 1000 1000 1000 | Secs: 150150 151652 153153
Zone: 630 205 675 | Fuel ZV: 118 49 127 | Ign ZV: 14 145 23 | Fuel% M: 1000 1000 1000
)");
  EXPECT_EQ(loaded.log.glngLowestAirTemp, -3);
  EXPECT_EQ(loaded.log.glngFirstPlotSample, 0);
}

TEST(LinkPlusLog, NumberedColumnsSwitchesAndMarks) {
  const LoadedSampleLog loaded(
      LoadLinkPlusLog,
      Tabbed(R"(CRNum|1100|1103|LambSt|IDLEST|1131|NeutPk|AIRCON|1136|1137|TGVClsd|TPSCls|1144|Knock
0.5|3250|0.75|=|T|On|On|Off|Off|Off|Off|Closed|On|On
0.25|850|.8||X |on|Off|On|On|On|On|Open|Open|Off
9|6400|70|*|*|Off|Off|Off|Off|Off|Off|On|open|
)"));
  ExpectTold(loaded.Table(), R"(
Sample: 1 2 3 | RPM: 3250 850 6400 | Lambda: 2 4 12 | O2: 75 80 7000 | Throttle: 1 1 0 | Neutral: 1 0 0 | Comp: 0 1 0
Eng Fan: 1 0 0 | A/F: 13900 13600 11000 | Vacuum: 221 221 221 | Knock E: 1 0 0 | MAP Lmt: 0 1 0 | Rev Lmt: 0 1 0 | CR: 1000 1000 1000
Secs: 5000 2500 90000 | Idle Sp: 9 11 0 | Tumble: 0 1 0 | Fuel% M: 1000 1000 1000
)");
  EXPECT_EQ(loaded.log.glngLowestAirTemp, kNoAirTemp);
}

TEST(LinkPlusLog, OfTwoColumnsForOneItemTheLaterCounts) {
  const LoadedSampleLog loaded(LoadLinkPlusLog, Tabbed("COUNT|1100|rpm\n1|10|20\n2|10|\n3||30"));
  EXPECT_EQ(loaded.Cells(kRPM), "20 0 30");
}

TEST(LinkPlusLog, BadInputsAndWhatTheyTell) {
  const std::string heading = "Count\tRPM\n";
  ExpectBad(LoadLinkPlusLog, {
                                 // clang-format off
                {"empty", "", {53}},
                {"five lines without a heading", "\n\n\n\n\n", {53}},
                {"the heading in the seventh line", Repeated(Repeated("", "", 6) + heading, "1\t2", 9), {53}},
                {"another first word", Repeated("Counts\tRPM\n", "1\t2", 9), {53}},
                {"heading alone", heading, {}},
                {"two samples", Repeated(heading, "1\t2", 2), {}},
                {"too few fields", Repeated(heading, "1", 9), {}},
                {"empty lines under one column", Repeated("Count\n", "", 9), {}},
                {"a long line", heading + std::string(10'000'000, '1'), {}},
                                 // clang-format on
                             });
}

TEST(LinkPlusLog, TheHeadingMayStandInTheSixthLineAndBeLong) {
  std::string heading = Repeated("", "", 5) + "Count", line = "7";
  for (int column = 0; column < 10000; ++column)
    heading += "\tRPM", line += "\t" + std::to_string(column);
  const LoadedSampleLog loaded(LoadLinkPlusLog, Repeated(heading + "\n", line, 3));
  EXPECT_EQ(loaded.Cells(kRPM), "9999 9999 9999");
}

TEST(LinkPlusLog, StopsAt300000Samples) {
  const LoadedSampleLog loaded(LoadLinkPlusLog, Repeated("Count\tRPM\n", "1\t2", 300001));
  EXPECT_EQ(loaded.log.glngDataLog.Rows(), 300000);
  EXPECT_EQ(loaded.outcome.messages, std::vector<int>{51});
  const LoadedSampleLog whole(LoadLinkPlusLog, Repeated("Count\tRPM\n", "1\t2", 300000));
  EXPECT_EQ(whole.outcome.messages, std::vector<int>{}) << "every line was taken";
}

}  // namespace
}  // namespace tarnview
