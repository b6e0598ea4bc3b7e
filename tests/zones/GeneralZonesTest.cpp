#include "support/Table.h"
#include "zones/GeneralZones.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

TEST(GeneralZones, RawAndShownAndBack) {
  // chip, zone, raw
  ExpectTable(
      [](const TableRow& row) -> std::string {
        const GeneralZone* zone = FindGeneralZone(row.Int(1), Chip(row.Text(0)));
        if (!zone) return "none";
        const int shown = zone->ToShown(row.Int(2));
        return std::string(zone->label) + " " + zone->Text(shown) + " " +
               std::to_string(zone->ToRaw(shown));
      },
      R"(
1.6 2000-01-01 1, 0, 20 -> Overrun MAP 23 20 | 1.6 2000-01-01 1, 0, 251 -> Overrun MAP 254 251 | 1.6 2000-01-01 1, 2, 72 -> Rev Limit (RPM) 7200 72
1.6 2000-01-01 1, 3, 255 -> MAP Limit (kPa) OFF 255 | 1.6 2000-01-01 1, 3, 254 -> MAP Limit (kPa) 254 254 | 1.6 2000-01-01 1, 4, 30 -> Advance Limit 30 30
1.8 2003-02-15 2, 4, 30 -> Intake Limit ('C) 30 30 | 1.6 2000-01-01 1, 5, 1 -> none | 1.8 2003-02-15 2, 7, 1 -> Speedo. Calib. 1 1
1.6 2000-01-01 1, 8, 17 -> Target RPM 850 17 | 1.6 2000-01-01 1, 10, 200 -> TPS Offset -56 200 | 1.6 2000-01-01 1, 13, 255 -> Knock Thr. OFF 255
1.6 2000-01-01 1, 17, 20 -> Hot Restart 20 20 | 1.8 2003-02-15 2, 17, 20 -> Hot Restart -50 20 | 1.6 2000-10-31 1, 21, 250 -> Trim (deg.) -6 250
1.6 2000-11-01 1, 21, 14 -> Trim (deg.) -6 14 | 1.8 2003-02-15 2, 21, 14 -> Trim (deg.) -6 14 | 1.6 2000-01-01 1, 225, 180 -> Coolant Limit ('C) 80 180
1.8 2003-02-15 2, 225, 80 -> Coolant Limit ('C) 80 80 | 1.8 2003-02-15 2, 243, 3 -> VICS Act. (RPM) 187 3 | 1.8 2003-02-15 2, 243, 159 -> VICS Act. (RPM) 9937 159
1.8 2003-02-15 2, 246, 250 -> Injector Offset -6 250 | 1.6 2000-01-01 1, 252, 9 -> Fuel Low Slope 9 9 | 1.8 2003-02-15 2, 252, 9 -> L3 Low MAP 9 9
)");
}

TEST(GeneralZones, TypedValuesAreHeldToRangeAndStep) {
  // chip, zone, typed
  ExpectTable(
      [](const TableRow& row) {
        const GeneralZone& zone = *FindGeneralZone(row.Int(1), Chip(row.Text(0)));
        const int held = zone.Force(row.Int(2));
        return std::to_string(held) + " raw " + std::to_string(zone.ToRaw(held));
      },
      R"(
1.6 2000-01-01 1, 2, 7250 -> 7300 raw 73 | 1.6 2000-01-01 1, 2, 7249 -> 7200 raw 72 | 1.6 2000-01-01 1, 2, 99999 -> 9000 raw 90
1.6 2000-01-01 1, 2, -5 -> 5000 raw 50 | 1.6 2000-01-01 1, 8, 3000 -> 2500 raw 50 | 1.6 2000-01-01 1, 8, 825 -> 850 raw 17
1.6 2000-01-01 1, 15, 2049 -> 2000 raw 20 | 1.6 2000-01-01 1, 225, 79 -> 78 raw 179 | 1.8 2003-02-15 2, 225, 79 -> 79 raw 79
1.6 2000-01-01 1, 10, -500 -> -128 raw 128 | 1.6 2000-01-01 1, 0, 90 -> 85 raw 82 | 1.8 2003-02-15 2, 243, 99999 -> 9937 raw 159
1.8 2003-02-15 2, 246, -81 -> -80 raw 176 | 1.8 2003-02-15 2, 17, 255 -> 185 raw 255 | 1.6 2000-01-01 1, 17, -5 -> 0 raw 0
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
        const std::string name = ZoneName(row.Int(0)), cell = GridCellName(row.Int(0));
        return name + "=" + std::to_string(ZoneIndex(name)) + " " + cell + "=" +
               std::to_string(ZoneIndex(cell));
      },
      R"(
0 -> z0=0 =-1 | 31 -> z31=31 =-1 | 32 -> z32=32 zf100=32 | 112 -> z112=112 zf600=112 | 209 -> z209=209 zi605=209
223 -> z223=223 zi675=223 | 224 -> z700=224 =-1 | 239 -> z775=239 =-1 | 240 -> z800=240 =-1 | 255 -> z875=255 =-1
)");
  for (const char* text : {"", "z224", "z701", "zf000", "zone"})
    EXPECT_EQ(ZoneIndex(text), -1) << text;
}

TEST(ZoneFlags, BitsAndTheirQuirks) {
  EXPECT_EQ(SetBit(5, 1, true), 7);
  EXPECT_EQ(SetBit(5, 0, true), 5);
  EXPECT_EQ(SetBit(5, 2, false), 1);
  EXPECT_TRUE(BitIsSet(-1, 7));
  EXPECT_FALSE(IsNormallyAspirated(-1));
  for (const char* id : {"NA1", "T1", "NA2", "T2"}) EXPECT_EQ(MAPIDText(SetMAPID(0xff, id)), id);
  EXPECT_EQ(SetMAPID(1, "T2"), 35);
  EXPECT_EQ(SavedZ800(255), 233);
  EXPECT_EQ(SavedZ800(254), 254);

  ZoneSettings zones{};
  SetTPSIdleValue(zones, 1, true);
  EXPECT_EQ(zones[5], 64);
  EXPECT_FALSE(GetTPSIdleValue(zones));
  SetTPSIdleValue(zones, 2, true);
  EXPECT_TRUE(GetTPSIdleValue(zones));
}

}  // namespace
}  // namespace tarnview
