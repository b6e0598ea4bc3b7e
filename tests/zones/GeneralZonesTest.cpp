#include "support/Table.h"
#include "zones/GeneralZones.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

TEST(GeneralZones, RawAndShownAndTyped) {
  // chip, zone, a number: raw, shown and raw again; typed, held to range and step, and raw
  ExpectTable(
      [](const TableRow& row) -> std::string {
        const GeneralZone* zone = FindGeneralZone(row.Int(1), Chip(row.Text(0)));
        if (!zone) return "none";
        const int shown = zone->ToShown(row.Int(2)), held = zone->Force(row.Int(2));
        return std::string(zone->label) + " " + zone->Text(shown) + " " +
               std::to_string(zone->ToRaw(shown)) + ", " + std::to_string(held) + " " +
               std::to_string(zone->ToRaw(held));
      },
      R"(
1.6 2000-01-01 1, 0, 20 -> Overrun MAP 23 20, 20 17 | 1.6 2000-01-01 1, 0, 251 -> Overrun MAP 254 251, 85 82 | 1.6 2000-01-01 1, 2, 72 -> Rev Limit (RPM) 7200 72, 5000 50
1.6 2000-01-01 1, 3, 255 -> MAP Limit (kPa) OFF 255, 255 255 | 1.6 2000-01-01 1, 3, 254 -> MAP Limit (kPa) 254 254, 254 254 | 1.6 2000-01-01 1, 4, 30 -> Advance Limit 30 30, 30 30
1.8 2003-02-15 2, 4, 30 -> Intake Limit ('C) 30 30, 30 30 | 1.6 2000-01-01 1, 5, 1 -> none | 1.8 2003-02-15 2, 7, 1 -> Speedo. Calib. 1 1, 1 1
1.6 2000-01-01 1, 8, 17 -> Target RPM 850 17, 500 10 | 1.6 2000-01-01 1, 10, 200 -> TPS Offset -56 200, 127 127 | 1.6 2000-01-01 1, 13, 255 -> Knock Thr. OFF 255, 255 255
1.6 2000-01-01 1, 17, 20 -> Hot Restart 20 20, 20 20 | 1.8 2003-02-15 2, 17, 20 -> Hot Restart -50 20, 20 90 | 1.6 2000-10-31 1, 21, 250 -> Trim (deg.) -6 250, 20 20
1.6 2000-11-01 1, 21, 14 -> Trim (deg.) -6 14, 14 34 | 1.8 2003-02-15 2, 21, 14 -> Trim (deg.) -6 14, 14 34 | 1.6 2000-01-01 1, 225, 180 -> Coolant Limit ('C) 80 180, 140 210
1.8 2003-02-15 2, 225, 80 -> Coolant Limit ('C) 80 80, 80 80 | 1.8 2003-02-15 2, 243, 3 -> VICS Act. (RPM) 187 3, 3 0 | 1.8 2003-02-15 2, 243, 159 -> VICS Act. (RPM) 9937 159, 159 3
1.8 2003-02-15 2, 246, 250 -> Injector Offset -6 250, 120 120 | 1.6 2000-01-01 1, 252, 9 -> Fuel Low Slope 9 9, 9 9 | 1.8 2003-02-15 2, 252, 9 -> L3 Low MAP 9 9, 9 9
1.6 2000-01-01 1, 2, 7250 -> Rev Limit (RPM) 725000 7250, 7300 73 | 1.6 2000-01-01 1, 2, 7249 -> Rev Limit (RPM) 724900 7249, 7200 72 | 1.6 2000-01-01 1, 2, 99999 -> Rev Limit (RPM) 9999900 99999, 9000 90
1.6 2000-01-01 1, 2, -5 -> Rev Limit (RPM) -500 -5, 5000 50 | 1.6 2000-01-01 1, 8, 3000 -> Target RPM 150000 3000, 2500 50 | 1.6 2000-01-01 1, 8, 825 -> Target RPM 41250 825, 850 17
1.6 2000-01-01 1, 15, 2049 -> RPM 204900 2049, 2000 20 | 1.6 2000-01-01 1, 225, 79 -> Coolant Limit ('C) -122 79, 78 179 | 1.8 2003-02-15 2, 225, 79 -> Coolant Limit ('C) 79 79, 79 79
1.6 2000-01-01 1, 10, -500 -> TPS Offset -500 -244, -128 128 | 1.6 2000-01-01 1, 0, 90 -> Overrun MAP 93 90, 85 82 | 1.8 2003-02-15 2, 243, 99999 -> VICS Act. (RPM) 9937 159, 9937 159
1.8 2003-02-15 2, 246, -81 -> Injector Offset -81 175, -80 176 | 1.8 2003-02-15 2, 17, 255 -> Hot Restart 185 255, 185 255 | 1.6 2000-01-01 1, 17, -5 -> Hot Restart -5 -5, 0 0
)");
  EXPECT_EQ(FindGeneralZone(0, Chip("1.6 2000-01-01 1"))->ToRaw(300), 297);
}

TEST(GeneralZones, TrimInQuarterDegrees) {
  EXPECT_EQ(TrimDegreesText(-6), "-1.50");
  ExpectTable([](const TableRow& row) { return std::to_string(TrimQuarters(row.Text(0))); },
              "-1.45 -> -6 | 9 -> 20 | -5.2 -> -20");
}

TEST(ZoneRange, Limits) {
  ExpectTable(
      [](const TableRow& row) {
        const ZoneRange range = ParseZoneRange(row.Text(0));
        return std::to_string(range.low) + " to " + std::to_string(range.high);
      },
      R"(
-70/185 -> -70 to 185 | 015/085 -> 15 to 85 |  -> 0 to 255 | 100 -> 0 to 255 | /9 -> 0 to 255
)");
  EXPECT_EQ(PrimeFactorRange(140) + " " + PrimeFactorRange(50) + " " + PrimeFactorRange(0),
            "000/093 000/255 000/255");
}

TEST(ZoneNames, BothWays) {
  ExpectTable(
      [](const TableRow& row) {
        const int zone = ZoneIndex(row.All());
        if (zone < 0) return std::string("none");
        return std::to_string(zone) + " " + ZoneName(zone) + " " + GridCellName(zone);
      },
      R"(
z0 -> 0 z0  | z31 -> 31 z31  | z32 -> 32 z32 zf100 | zf100 -> 32 z32 zf100 | zf600 -> 112 z112 zf600 | zi605 -> 209 z209 zi605 | zi675 -> 223 z223 zi675 | z223 -> 223 z223 zi675 | z700 -> 224 z700  | z775 -> 239 z775  | z800 -> 240 z800  | z875 -> 255 z875  |  -> none | z224 -> none | z701 -> none | zf000 -> none | zone -> none
)");
}

TEST(ZoneFlags, BitsAndTheirQuirks) {
  EXPECT_TRUE(BitIsSet(-1, 7));
  EXPECT_FALSE(IsNormallyAspirated(-1));
  std::string told;
  for (const int flags : {0, 2, 32, 34}) told += std::string(MAPIDText(flags)) + " ";
  EXPECT_EQ(told, "NA1 T1 NA2 T2 ");
  ZoneSettings zones{};
  SetTPSIdleValue(zones, 1, true);
  EXPECT_EQ(zones[5], 64);
  EXPECT_FALSE(GetTPSIdleValue(zones));
  SetTPSIdleValue(zones, 2, true);
  EXPECT_TRUE(GetTPSIdleValue(zones));
}

}  // namespace
}  // namespace tarnview
