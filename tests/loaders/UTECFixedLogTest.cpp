#include "LogInWords.h"
#include "loaders/UTECFixedLog.h"

namespace tarnview {
namespace {

std::string Told(std::string_view log) { return LoadedLog(LoadUTECFixedLog, log).Told(); }

TEST(UTECFixedLog, EachLayout) {
  ExpectTold(Told(R"( RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF
       psig                                                   (OL)
 3250  -8.5  38  45   7     3   12.5  22.5   68.2   ECU  -2.5   45.5  41
 RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF
  850  12.5  38  45   7     3   W/B   22.5  120.0  12.5     0 ECU     41
  850   8.5  38  45   7     3   rich  22.5   68.2   -.5     0    -3   41 1
)"),
             R"(samples, plots from 0
Sample   RPM   MAP  WG%  Inj %   TPS  Knock  IAdv    A/F  Boost  Vacuum    CR  Secs  MAF  MAF M  IAdv M  Fuel% M  LS
     1  3250   164   46    682  4500      3   225  12500      0     173  1000  2000  380    410     225      975   7
     2   850  1612    0   1000  4500      3   225  12500    125       0  1000  4000  380    410     125     1000   7
     3   850  1336   -3    682  4500      3   225  12000     85       0  1000  6000  380    410      -5     1000   7
)");
  ExpectTold(Told(R"(TIME     RPM   MAP  MAF TPS MLP H2O Air   O2
units
    1200  3250   8.5  38  45  12  79  25  0.85
    1400   850  -8.5  38  45  12  80  -3  0.85
    1600   850 -3.63  38  45  12 1e1  30    .9
)"),
             R"(samples, plots from 0, air from -3
Sample   RPM   MAP   TPS  C Temp  A Temp  Boost  Vacuum    CR  EGOV  Secs  MAF  Fuel% M  MLP
     1  3250  1586  4500      79     250    121       0  1000    85     0  380     1000   12
     2   850   414  4500      80     -30      0      99  1000    85  1000  380     1000   12
     3   850   750  4500      10     300      0       0  1000    90  2000  380     1000   12
)");
  ExpectTold(Told(R"(comment
 TIME     RPM   MAP  MAF TPS MLP  Knock  AFR  WG  Boost 
                                                  (OL)
    1200  3250   8.5  38  45  12     3   12.5  66 45.   
    1400  3250   8.5  38  45  12     3   W/B   66 ECU   
    1600  3250   8.5  38  45  12     3   lean 133  7    
)"),
             R"(samples, plots from 0
Sample   RPM   MAP  WG%   TPS  Knock    A/F  Boost    CR  Secs  MAF  Fuel% M  MLP
     1  3250  1586   45  4500      3  12500    121  1000     0  380     1000   12
     2  3250  1586   50  4500      3      0    121  1000  1000  380     1000   12
     3  3250  1586    7  4500      3  24500    121  1000  2000  380     1000   12
)");
  ExpectTold(Told(R"( TIME     RPM  MAP MAF TPS MLP  Knock  O2  IGN#1  INJ#1  IGN   FUEL BOOST 
                                                                    (CL)
       0  3250 142  97  88  12     3  0.85  22.5   68.2   ECU  -2.5   45.0
       2  3250 142  97  88  12     3  0.85  22.5   68.2    12   1.5   45.0
       1  3250 142  97  88  12     3  0.85  22.5   68.2  12.5     0   45.0
)"),
             R"(samples, plots from 0
Sample   RPM  Inj %  Knock  IAdv    CR  EGOV  Secs  IAdv M  Fuel% M  BCL  MLP  MAP D  MAF D  TPS D
     1  3250    682      3   225  1000    85     0     225      975   45   12    142     97     88
     2  3250    682      3   225  1000    85    10     120     1015   45   12    142     97     88
     3  3250    682      3   225  1000    85     5     125     1000   45   12    142     97     88
)");
  ExpectTold(Told(R"( time     rpm   map  maf tps mlp  knock  afr 
                PSIG
    1200  3250   8.5  38  45  12     3   12.5
    1200  3250   8.5  38  45  12     3   W/B
    1200  3250   8.5  38  45  12     3   12.5
)"),
             R"(samples, plots from 0
Sample   RPM   MAP   TPS  Knock    A/F  Boost    CR  MAF  Fuel% M  MLP
     1  3250  1336  4500      3  12500     85  1000  380     1000   12
     2  3250  1336  4500      3      0     85  1000  380     1000   12
     3  3250  1336  4500      3  12500     85  1000  380     1000   12
)");
  ExpectTold(Told(R"( RPM TPS  MAP  MLP  MOD  AFR  KNOCK 

3250  45   8.5  12   ECU 12.5     3
 850  45   8.5  12  12.5 RICH     3
 850  45   8.5  12   9.5 LEAN     3
)"),
             R"(samples, plots from 0
Sample   RPM   MAP   TPS  Knock    A/F  Boost    CR  Secs  IAdv M  Fuel% M  MLP
     1  3250  1586  4500      3  12500    121  1000  2000       0     1000   12
     2   850  1586  4500      3  12000    121  1000  4000     125     1000   12
     3   850  1586  4500      3  24500    121  1000  6000      95     1000   12
)");
}

TEST(UTECFixedLog, PlacesAndLengths) {
  const auto tell = [](const TableRow& row) {
    return TellOfLog(
        LoadUTECFixedLog, row.Words(),
        {{"HEAD", " RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF"},
         {"LINE", " 3250  -8.5  38  45   7     3   12.5  22.5   68.2   ECU  -2.5   45.5  41"}});
  };
  ExpectTable(tell, R"(
# The wide-band sensor stands behind the line, where the heading has a column for it.
 RPM   MAP  MAF TPS Site Count  AFR  Ign#1  Inj#1  Ign   Fuel Boost  MAF   AFR, ,  3250  -8.5  38  45   7     3   W/B   22.5   68.2   ECU  -2.5   45.5  41  13.25,  3250  -8.5  38  45   7     3   W/B   22.5   68.2   ECU  -2.5   45.5  41  9.5,  3250  -8.5  38  45   7     3   W/B   22.5   68.2   ECU  -2.5   45.5  41 ~76, ?A/F -> samples, plots from 0, A/F 13250 9500 0
HEAD, , LINE, 2* 3250  -8.5  38  45   7     3   W/B   22.5   68.2   ECU  -2.5   45.5  41 ~74, ?A/F -> samples, plots from 0, A/F 12500 12500 12500
# Without its text a heading is known by its length: the first line is then the units, the heading itself a sample.
units,  RPM TPS  MAP  MLP  MOD  AFR  KNOC, 3250  45   8.5  12   ECU 12.5     3, 3251  45   8.5  12   ECU 12.5     3, ?RPM -> samples, plots from 0, RPM 0 3250 3251
# Where a line is as long as the headings of two layouts, the later one counts, whose lines are two longer.
HEAD~71, 3*LINE, ?MLP -> samples, plots from 0, MLP 3 3 3
# Lines may differ from the heading by two characters.
HEAD, units, LINE~69, LINE~70, LINE, LINE~74, LINE~75, ?Sample -> samples, plots from 0, Sample 1 2 3
)");
}

}  // namespace
}  // namespace tarnview
