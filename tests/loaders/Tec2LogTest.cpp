#include "LogInWords.h"
#include "loaders/Tec2Log.h"

namespace tarnview {
namespace {

TEST(Tec2Log, AWholeLog) {
  ExpectTold(LoadedLog(LoadTec2Log, R"(Any first line
SECONDS  RPM   AD MAP   CLT GAMA MAT TPS  EGO   AF    EGOV  GPO1   BATT  KNK   DUTY  PW    PWOFF
         a third line without a point is passed over
   12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 
    12.5   850 12  34.5  79 1.10  -5  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05 2.175    0.5 
    12.6   850 12  34.5  79 1.10  -9  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05 2.175    0.5
  12.625  6400 -3  75.0  90  0.9  31 99.98    0 12.05    .9    100 13.85   250   101  11.5  0.525 
)")
                 .Told(),
             R"(samples, plots from 0, air from -5
Sample   RPM   MAP  Inj W  Inj %   TPS  Knock  IAdv  Volt  C Temp  A Temp    A/F  Boost  Vacuum  PWOFF  GAMA    CR  EGOV   GPO1    Secs  Fuel% M
     1  3250  1013    815    452  1850     12   280   138      88     250  14700     38       0     52   102   990    45      0  123400     1000
     2   850   345    217     40     0      4   120   138      79     -50  13200      0     120     50   110  1012    81   1250  125000     1000
     3  6400   750   1150   1010  9998    250   -30   138      90     310  12050      0       0     52    90  1000    90  10000  126250     1000
)");
}

TEST(Tec2Log, ThePointIsAskedForOnceAndMayStandInTheFirstLineAndSettingsCount) {
  const auto tell = [](const TableRow& row) { return TellOfLog(LoadTec2Log, row.Words()); };
  ExpectTable(tell, R"(
   12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 , SECONDS,    12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 ,    12 34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 , ?Sample, ?Secs -> samples, plots from 0, air from 25, Sample 1 2 3, Secs 123400 123400 120000
Tec-2, SECONDS  RPM, 3*   12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 , 102 kPa, plot from 89, ?Vacuum -> samples, air from 25, Vacuum 2 2 2
Tec-2, SECONDS  RPM, 3*   12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2  8.15   0.52 , 102 kPa, plot from 88, ?Vacuum -> samples, plots from 0, air from 25, Vacuum 2 2 2
)");
}

}  // namespace
}  // namespace tarnview
