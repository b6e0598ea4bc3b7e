#include "LogInWords.h"
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
  ExpectTold(LoadedLog(LoadLinkPlusLog, Tabbed(R"(Link Plus
Car|mine

Count|RPM|MAP|TPS|OXY|ETEMP|VOLTS|ZONE|%FF|ADV|%WG|KNK|IAT|IDLE|KPH|KNKCNT|CURRFL|CURRIG|ACTTPS|Markers|unheard of
100|3250|101.3|18.25|75|79|13.82|630|45|28|30|12|25.5|33|57.5|3|118|14|9|x|?
101|850|34.55|0|40|80|13.85|205|4|12|0|3|-2.6|40|0|3|49|145|9||
too|few|fields
102|6400|75.0|99.99|99|81.5|14|675|98|-3|45|250|30|33|120|4|127|23|9||?|more
)"))
                 .Told(),
             R"(samples, plots from 0, air from -3
Sample   RPM   MAP  O2  WG%  Inj %  IAC   TPS  Knock  IAdv  Volt  C Temp  Speed  Knock C  A Temp    A/F  Boost  Vacuum    CR    Secs  Zone  Fuel ZV  Ign ZV
   100  3250  1013  75   30     45   33  1825     12    28   138      79     58        3     255  13900     38       0  1000  150150   630      118      14
   101   850   346  40    0      4   40     0      3    12   138      80      0        3     -26  15000      0     119  1000  151652   205       49     145
   102  6400   750  99   45     98   33  9999    250    -3   140      82    120        4     300  11000      0       0  1000  153153   675      127      23
Fuel% M
   1000
   1000
   1000
)");
}

TEST(LinkPlusLog, NumberedColumnsSwitchesAndMarks) {
  ExpectTold(
      LoadedLog(
          LoadLinkPlusLog,
          Tabbed(
              R"(CRNum|1100|1103|LambSt|IDLEST|1131|NeutPk|AIRCON|1136|1137|TGVClsd|TPSCls|1144|Knock
0.5|3250|0.75|=|T|On|On|Off|Off|Off|Off|Closed|On|On
0.25|850|.8||X |on|Off|On|On|On|On|Open|Open|Off
9|6400|70|*|*|Off|Off|Off|Off|Off|Off|On|open|
)"))
          .Told(),
      R"(samples, plots from 0
Sample   RPM  Lambda    O2  Throttle  Neutral  Comp  Eng Fan    A/F  Vacuum  Knock E  MAP Lmt  Rev Lmt    CR   Secs  Idle Sp  Tumble  Fuel% M
     1  3250       2    75         1        1     0        1  13900     221        1        0        0  1000   5000        9       0     1000
     2   850       4    80         1        0     1        0  13600     221        0        1        1  1000   2500       11       1     1000
     3  6400      12  7000         0        0     0        0  11000     221        0        0        0  1000  90000        0       0     1000
)");
}

TEST(LinkPlusLog, OfTwoColumnsForOneItemTheLaterCountsAndTheHeadingMayStandInTheSixthLine) {
  const auto tell = [](const TableRow& row) { return TellOfLog(LoadLinkPlusLog, row.Words()); };
  ExpectTable(tell, R"(
COUNT|1100|rpm, 1|10|20, 2|10|, 3||30, ?RPM -> samples, plots from 0, RPM 20 0 30
5*, COUNT|1100|rpm, 3*1|10|20, ?RPM -> samples, plots from 0, RPM 20 20 20
)");
  const std::string heading = Repeated("COUNT", "|RPM", 10000, ""),
                    line = Repeated("3*7", "|1", 9999, "") + "|9";
  EXPECT_TRUE(TellOfLog(LoadLinkPlusLog, {heading, line, "?RPM"}).ends_with("RPM 9 9 9"));
}

}  // namespace
}  // namespace tarnview
