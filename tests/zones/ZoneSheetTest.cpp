#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "support/Table.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneGrid.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneSheet.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

const ChipIdentity kOld16 = Chip("1.6 2000-01-01 1"), kMid16 = Chip("1.6 2001-03-11 2"),
                   kMid18 = Chip("1.8 2002-06-10 2"), kNew18 = Chip("1.8 2005-02-10 3"),
                   kFirst = Chip("1.6 2003-06-20 1");
const ChipIdentity kChips[] = {kOld16, kMid16, kMid18, kNew18, kFirst};

/// "11011": which of the chips have it, turbo and (after the slash) normally aspirated where that
/// differs.
std::string Chips(const std::function<bool(const ZoneSheet&)>& has) {
  std::string turbo, aspirated;
  for (const ChipIdentity& chip : kChips) {
    turbo += has(OpenSheet(MapWith(chip, 2 + 8))) ? '1' : '0';
    aspirated += has(OpenSheet(MapWith(chip, 8))) ? '1' : '0';
  }
  return turbo == aspirated ? turbo : turbo + "/" + aspirated;
}

TEST(ZoneSheet, WhichChipsHaveWhichFields) {
  std::map<std::string, std::string> fieldsOf;
  for (int zone = 0; zone < 256; ++zone)
    fieldsOf[Chips([&](const ZoneSheet& sheet) { return FieldExists(sheet, zone); })] +=
        " " + ZoneName(zone);
  for (int i = 0; i < kTicks; ++i)
    fieldsOf[Chips([&](const ZoneSheet& sheet) { return TickExists(sheet, Tick{i}); })] +=
        " '" + std::string(TickCaption(Tick{i}, kNew18)) + "'";
  std::string told = "\n";
  for (const auto& [chips, fields] : fieldsOf)
    if (chips != "11111" && chips != "00000") told += chips + fields + "\n";
  ExpectTold(told, R"(
00010 z815 z825 '  Alt. EGR Curve' 'TPS Idle Sw.'
00010/00000 ' IAT Target Cont.'
00011 z820 z830 z835 '  Knock Light' ' Idle Stabilise'
00110 z9 z10 z11
00110/00000 z840 z845
00111 z850 z855
01000 '  Quad Inj.'
01111 z860 z865 z870 z875 '  Security Enabled'
01111/00000 z112 z113 z208 z209
10111 '       EGR Enabled'
11000 ' M. Fuel'
11111/00000 z3 z12 z14 z15 z725 z730 z735 z740 z745 z750 z755 z760 z765 z770 z775 ' TPS Target Cont.'
)");
}

/// Every field, its number for 100 and its range; of a second chip only what differs. Eight to
/// a line.
TEST(ZoneSheet, LabelsNumbersAndRanges) {
  std::set<std::string> seen;
  std::string told;
  int count = 0;
  for (const ChipIdentity& chip : {kNew18, kOld16}) {
    const ZoneSheet sheet = OpenSheet(MapWith(chip, 2));
    for (int zone = 0; zone < 256; ++zone) {
      const std::string row = std::string(FieldLabel(sheet, zone)) + "=" + FieldText(sheet, zone) +
                              "[" + RangeText(sheet, zone) + "]";
      if (!FieldLabel(sheet, zone).empty() && seen.insert(std::to_string(zone) + row).second)
        told += row + (++count % 8 ? " " : "\n");
    }
  }
  ExpectTold("\n" + told, R"(
Overrun MAP=103[015/085] Master Fuel=100[001/140] Rev Limit (RPM)=10000[5000/9000] MAP Limit (kPa)=100[000/255] Intake Limit ('C)=80[025/080] Choke Scale=100[] Speedo. Calib.=100[] Target RPM=5000[500/2500]
Fan Temp ('C)=100[070/110] TPS Offset=100[-128/127] TPS Scale=100[000/255] Sensitivity=100[] Knock Thr.=100[] Base Pres. (kPa)=100[015/100] RPM=10000[2000/7200] Cold Fuel=100[]
Hot Restart=30[-70/185] Run IAC=100[016/085] Start IAC=100[016/085] A/C Idle %=100[000/025] Trim (deg.)=80[-20/020] 0-2=100[] 2-4=100[] 4-6=100[]
6-8=100[] Idle=100[000/127] Cruise=100[000/127] 300=100[000/127] 400=100[000/127] 500=100[000/127] 600=100[000/127] Closed Lp -ve=100[000/040]
Closed Lp +ve=100[000/040] Overshoot Supp.=100[000/255] Droop Supp.=100[000/255] MAP Deadband=100[] Coolant Limit ('C)=100[000/140] Choke Decay=100[] Prime Factor=100[] Def Atmos. (kPa)=100[075/115]
25=100[100/255] 30=100[100/255] 35=100[100/255] 40=100[100/255] 45=100[100/255] 50=100[100/255] 55=100[100/255] 60=100[100/255]
65=100[100/255] 70=100[100/255] 75=100[100/255] VICS Act. (RPM)=6250[0/9937] Debug Data=100[] Offset Slope=100[] Injector Offset=100[-80/120] Prime Delay=100[]
Boost Hysteresis=100[000/255] Rise Rate Weight=100[000/255] Decel Scale=100[000/255] IAC Rate=100[000/255] L3 Low MAP=100[000/255] Intake Comp.=100[000/255] Ignition Start ('C)=100[025/150] Ignition Slope=100[000/255]
Advance Limit=50[000/050] Volt. Correction=100[] Hot Restart=100[000/255] Hot IAC=100[016/085] Cold IAC=100[016/085] Trim (deg.)=100[-20/020] Idle=100[070/110] Cruise=100[070/110]
300=100[070/110] 400=100[070/110] 500=100[070/110] 600=100[070/110] Coolant Limit ('C)=-80[000/140] Fuel Low Slope=100[000/255] Fuel High Slope=100[000/255] )");
}

TEST(ZoneSheet, FlagsComeBackAsTheBoxesStand) {
  // what, chip, z5, z800
  ExpectTable(
      [](const TableRow& row) {
        const int flags = std::stoi(row.Text(2), nullptr, 16);
        const ZoneMap map = MapWith(Chip(row.Text(1)), flags, row.Int(3));
        const ZoneSheet sheet = OpenSheet(map);
        std::ostringstream told;
        told << sheet.O2Sensor << ", " << sheet.autoTuneType << ", " << std::hex
             << Rebuild(sheet, map).zones[5] << ", " << std::dec << Rebuild(sheet, map).zones[240];
        return told.str();
      },
      R"(
both sensors, 1.8 2004-05-08 3, 99, 0 -> NB+WB, L3+L4, 99, 0 | both sensors without L3, 1.8 2004-05-08 3, 19, 0 -> NB, Lambda, 1, 0 | wide band alone, 1.8 2004-05-08 3, 13, 0 -> WB, Lambda, 13, 0 | L3 alone, 1.8 2004-05-08 3, 81, 4 -> NB, L3, 81, 4
a day earlier: EGR and no wide band, 1.8 2004-05-07 3, 99, 0 -> NB, L3+L4, 89, 0 | wide band of the first chips beside EGR, 1.8 2003-03-15 1, 19, 0 -> WB, Lambda, 11, 0
mixture fuel and EGR of old chips, 1.6 2000-01-01 1, 1a, 0 -> NB, Off, 9a, 0 | EGR that a chip lacks is lost, 1.6 2001-03-11 2, 0a, 0 -> NB, Off, 2, 0
bit 6 of a chip without a box for it, 1.8 2002-06-10 2, 42, 0 -> NB, Off, 42, 0 | bit 6 as quad injection, 1.6 2001-03-11 2, 42, 0 -> NB, Off, 42, 0
mixture fuel on its last day, 1.8 2002-06-09 2, 12, 0 -> NB, Off, 12, 0 | a sensor in its place, 1.8 2002-06-10 2, 12, 0 -> WB, Off, 12, 0
the day that L3 came, 1.6 2000-06-21 1, 01, 0 -> NB, Lambda, 1, 0 | the day before, 1.6 2000-06-20 1, 01, 0 -> NB, Lambda, 81, 0
255 in z800, 1.8 2005-02-10 3, 02, 255 -> NB, Off, 2, 233 | z800 of a chip without boxes, 1.6 2000-01-01 1, 02, 90 -> NB, Off, 82, 90
)");
}

TEST(ZoneSheet, EachBoxHasItsBit) {
  std::string told;
  for (const ChipIdentity& chip : {kNew18, kFirst, kMid16}) {
    const ZoneMap map = MapWith(chip, 2 + 8);
    const ZoneSheet sheet = OpenSheet(map);
    for (int i = 0; i < kTicks; ++i) {
      const ZoneMap other = Rebuild(WithTick(sheet, Tick{i}, !sheet.Ticked(Tick{i})), map);
      for (const std::size_t zone : {5u, 240u, 242u})
        if (const int bits = other.zones[zone] ^ Rebuild(sheet, map).zones[zone])
          told += std::to_string(i) + ":" + ZoneName(static_cast<int>(zone)) + "^" +
                  std::to_string(bits) + " ";
    }
    told += "\n";
  }
  ExpectTold(told, R"(0:z5^8 1:z800^1 3:z810^1 4:z800^16 5:z5^4 6:z800^8 7:z800^2 8:z5^64 
0:z5^8 1:z800^1 4:z800^8 5:z5^4 8:z5^64 
1:z800^1 2:z5^64 5:z5^4 9:z5^16 
)");
}

/// What is in range and has its boxes comes back as it was, whatever the numbers.
TEST(ZoneSheet, MapsComeBackWhole) {
  std::mt19937 random(7);
  const auto below = [&](unsigned end) { return static_cast<std::int16_t>(random() % end); };
  for (int round = 0; round < 300; ++round) {
    ZoneMap map = MapWith(kChips[below(5)], 0);
    for (auto& zone : map.zones) zone = below(256);
    map.zones[4] = 30;
    map.zones[243] = below(160);
    const int off = map.chip == kOld16 ? 128 : 0;
    map.zones[5] = static_cast<std::int16_t>(below(2) * 2 + below(2) * 32 + off);
    if (map.zones[240] == 255) map.zones[240] = 254;
    map.strNotes = std::to_string(round);
    ASSERT_EQ(Rebuild(OpenSheet(map), map), map) << round;
  }
}

/// Out of range, off, and what one number does to another one's range: the prime factor follows
/// master fuel on chip version 2, the boost targets' unit their mean.
TEST(ZoneSheet, NumbersInTheirRanges) {
  // chip, zone, raw; the zone that is looked at
  ExpectTable(
      [](const TableRow& row) {
        ZoneMap map = MapWith(Chip(row.Text(0)), 2);
        map.zones.at(static_cast<std::size_t>(row.Int(1))) = static_cast<std::int16_t>(row.Int(2));
        const ZoneSheet sheet = OpenSheet(map);
        const int zone = row.Int(3),
                  raw = Rebuild(sheet, map).zones[static_cast<std::size_t>(zone)];
        return FieldText(sheet, zone) + " of " + RangeText(sheet, zone) + ", raw " +
               std::to_string(raw) + ", 200 as " + std::to_string(Forced(sheet, zone, 200)) +
               (sheet.boostTargets ? "" : ", Pct");
      },
      R"(
1.8 2005-02-10 3, 4, 90, 4 -> 80 of 025/080, raw 80, 200 as 80 | 1.8 2005-02-10 3, 243, 200, 243 -> 9937 of 0/9937, raw 159, 200 as 200 | 1.8 2005-02-10 3, 10, -1, 10 -> -1 of -128/127, raw 255, 200 as 127 | 1.8 2005-02-10 3, 3, 255, 3 -> OFF of 000/255, raw 255, 200 as 200
1.8 2002-06-10 2, 1, 140, 227 -> 100 of 000/093, raw 100, 200 as 93 | 1.8 2005-02-10 3, 1, 140, 227 -> 100 of , raw 100, 200 as 200 | 1.8 2005-02-10 3, 239, 100, 229 -> 100 of 100/255, raw 100, 200 as 200 | 1.8 2005-02-10 3, 239, 99, 229 -> 100 of 000/099, raw 100, 200 as 99, Pct
)");
}

}  // namespace
}  // namespace tarnview
