#include "LogInWords.h"
#include "loaders/Tec3Log.h"

namespace tarnview {
namespace {

TEST(Tec3Log, AWholeLog) {
  // The clock stands still, jumps back, stands at 0 and jumps back again.
  ExpectTold(LoadedLog(LoadTec3Log, R"(
SECONDS   RPM   AD MAP   CLT GAMA MAT TPS  EGO   AF    EGOV  GPO1   BATT  KNK   DUTY  PW     PWOFF
    12.34  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15   0.52   0.00  0.00   0.00 0.51 1.22 2.48 4.97    1.5   7 12   3   33.0
    12.34   850 12  34.5  79 1.10  -5  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05  2.175    0.5  12.50  2.50   1.25 0.51 1.22 2.48 4.97   2.5   8 -1   0
    12.25  6400 -3  75.0  90  0.9  31 99.9     0 12.05    .9    100 13.85   250   101   11.5  0.525   0.00  0.00   0.00 0.51 1.22 2.48 4.97      0   0  0   0   32.5
     0.00  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15   0.52   0.00  0.00   0.00 0.51 1.22 2.48 4.97     0   0  0   0
     0.00  3250 28 101.3  88 1.02  25 18.5 -0.01 14.70  0.45   0.00 13.82  12.4  45.2   8.15   0.52   0.00  0.00   0.00 0.51 1.22 2.48 4.97     0   0  0   0 1
      0.5   850 12  34.5  79 1.10  -5  0.0 0.012  13.2  0.81  12.50 13.75   3.5  4.05  2.175    0.5   0.00  0.00   0.00 0.51 1.22 2.48 4.97      0   0  0   0      1
)")
                 .Told(),
             R"(samples, plots from 0, air from -5
Sample   RPM   MAP  Inj W  Inj %  IAC   TPS  Knock  IAdv  Volt  C Temp  A Temp    A/F  Boost  Vacuum  PWOFF  GAMA    CR  EGOV   GPO1  TDUTY  TPWON  TPWOFF
     1  3250  1013    815    452   33  1850     12   280   138      88     250  14700     38       0     52   102   990    45      0      0      0       0
     2   850   345    217     40    0     0      4   120   138      79     -50  13200      0     120     50   110  1012    81   1250   1250    250     125
     3  6400   750   1150   1010   32  9990    250   -30   138      90     310  12050      0       0     52    90  1000    90  10000      0      0       0
     4  3250  1013    815    452    0  1850     12   280   138      88     250  14700     38       0     52   102   990    45      0      0      0       0
     5   850   345    217     40    1     0      4   120   138      79     -50  13200      0     120     50   110  1012    81   1250      0      0       0
AD1  AD2  AD3  AD4  GPO2  GFG  SIA  KNR    Secs  Fuel% M
 51  122  248  497   150    7  120   30  123400     1000
 51  122  248  497   250    8  -10    0  123401     1000
 51  122  248  497     0    0    0    0  123402     1000
 51  122  248  497     0    0    0    0    4505     1000
 51  122  248  497     0    0    0    0    5000     1000
)");
}

TEST(Tec3Log, TheFirstSampleIsNeverCured) {
  const auto tell = [](const TableRow& row) { return TellOfLog(LoadTec3Log, row.Words()); };
  ExpectTable(tell,
              ", SECONDS, 4*   000.00 ~156, 10 Hz, ?Secs -> samples, plots from 0, air from 0, "
              "Secs 0 1000 2000 3000");
}

}  // namespace
}  // namespace tarnview
