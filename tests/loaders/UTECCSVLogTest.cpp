#include "LoadedLog.h"
#include "loaders/UTECCSVLog.h"

namespace tarnview {
namespace {

TEST(UTECCSVLog, ThreeHeadingRows) {
  ExpectTold(LoadedLog(LoadUTECCSVLog, R"(UTEC log
    ,    ,      ,   ,MOD,MOD,   ,MOD,   ,    ,   ,   ,      ,      ,MOD,    ,     ,     ,   ,   ,   ,    ,  ,MOD
Time,RPM ,MAP   ,MAF,MAF,MAF,MAF,MAF,TPS,TPS ,Site,Count,AFR ,IGN#1,IGN,INJ#1,FUEL ,BOOST,BOOST,MLP,H2O,AIR,O2,MOD
    ,    ,psig  ,HZ ,hz ,V  ,V  ,DIG,%  ,DIG ,   ,   ,      ,      ,   ,    ,     ,(CL) ,ECU %,   ,   ,   ,  ,
0   ,3250,  -8.5, 42, 44,3.8,3.9, 97,45.5,88 ,  7,  3, 12.52,  22.5,ECU,68.2 , -2.5, 45.5,   66, 12, 79, 25,0.85,1
Time,RPM ,MAP   ,MAF,MAF,MAF,MAF,MAF,TPS,TPS ,Site,Count,AFR ,IGN#1,IGN,INJ#1,FUEL ,BOOST,BOOST,MLP,H2O,AIR,O2,MOD
400 , 850,  12.5, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0,  LEAN,    12,  9,120.5,  1.5,    0,    0, 13, <5,-2.6,.9 ,1
800 , 850,     0, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0, >25:1,    12,  9, 3.25,    0,    0,    0, 13, 85, <1,.9 ,1
1200, 850,     1, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0, rich ,    12,  9, 3.25,    0,    0
1200, 850,     1, 12, 14,1.8,1.9, 27,0  ,18  ,  1,  0,  W/B ,    12,  9, 3.25,    0,    0,    0, 13, 85, 30,.9 ,1,more
)")
                 .Told(),
             R"(samples, plots from 0, air from -3
Sample   RPM   MAP  Inj %   TPS  Knock  IAdv  C Temp  A Temp    A/F  Boost  Vacuum    CR  EGOV  Secs  MAF  MAF M  IAdv M  Fuel% M  BCL  LS  MLP  MAF D  TPS D
     1  3250   164    682  4550      3   225      79     250  12520      0     173  1000    85     0   39     38     225      975   46   7   12     97     88
     2   850  1612   1000     0      0   120       5     -26  24500    125       0  1000    90  2000   19     18      90     1015    0   1   13     27     18
     3   850   750     32     0      0   120      85      10  25000      0       0  1000    90  4000   19     18      90     1000    0   1   13     27     18
     4   850   819     32     0      0   120      85     300  24500     10       0  1000    90  6000   19     18      90     1000    0   1   13     27     18
MAF Hz  MAF M Hz
    42        44
    12        14
    12        14
    12        14
)");
}

TEST(UTECCSVLog, TwoHeadingRows) {
  ExpectTold(LoadedLog(LoadUTECCSVLog, R"(a log,of

a run,of one
RPM,MAP,MAP,AFR,BOOST,WG,KNOCK
,,DIG,,(ol),,
3250,8.5,142,1470,45.5,66.5,3
850,-8.5,12,n/a,0,133,0
850,-3.625,12,12.5,0,133,0
850,-3.6,12,9.5,7,0,0
)")
                 .Told(),
             R"(samples, plots from 0
Sample   RPM   MAP  WG%  Knock    A/F  Boost  Vacuum    CR  Secs  Fuel% M  MAP D
     1  3250  1586   50      3  14700    121       0  1000  2000     1000    142
     2   850   414  100      0      0      0      99  1000  4000     1000     12
     3   850   750  100      0    125      0       0  1000  6000     1000     12
     4   850   752    0      0     95      0       0  1000  8000     1000     12
)");
}

}  // namespace
}  // namespace tarnview
