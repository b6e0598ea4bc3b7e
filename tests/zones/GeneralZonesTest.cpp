#include <gtest/gtest.h>

#include "zones/GeneralZones.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"

namespace tarnview {
namespace {

constexpr ChipIdentity kOld16{1.6, 36526, 1};  // 1 January 2000
const ChipIdentity kNew18{1.8, MakeDate(2003, 2, 15), 2};

TEST(GeneralZones, RawAndShownAndBack) {
  const struct {
    int zone, raw;
    ChipIdentity chip;
    const char* label;
    const char* text;
  } cases[] = {
      {0, 20, kOld16, "Overrun MAP", "23"},
      {2, 72, kOld16, "Rev Limit (RPM)", "7200"},
      {3, 255, kOld16, "MAP Limit (kPa)", "OFF"},
      {3, 254, kOld16, "MAP Limit (kPa)", "254"},
      {4, 30, kOld16, "Advance Limit", "30"},
      {4, 30, kNew18, "Intake Limit ('C)", "30"},
      {7, 1, kNew18, "Speedo. Calib.", "1"},
      {8, 17, kOld16, "Target RPM", "850"},
      {10, 200, kOld16, "TPS Offset", "-56"},
      {13, 255, kOld16, "Knock Thr.", "OFF"},
      {17, 20, kOld16, "Hot Restart", "20"},
      {17, 20, kNew18, "Hot Restart", "-50"},
      {225, 180, kOld16, "Coolant Limit ('C)", "80"},
      {225, 80, kNew18, "Coolant Limit ('C)", "80"},
      {243, 3, kNew18, "VICS Act. (RPM)", "187"},
      {243, 159, kNew18, "VICS Act. (RPM)", "9937"},
      {246, 250, kNew18, "Injector Offset", "-6"},
      {252, 9, kOld16, "Fuel Low Slope", "9"},
      {252, 9, kNew18, "L3 Low MAP", "9"},
  };
  for (const auto& c : cases) {
    const GeneralZone* zone = FindGeneralZone(c.zone, c.chip);
    ASSERT_TRUE(zone) << c.zone;
    EXPECT_EQ(zone->label, c.label);
    EXPECT_EQ(zone->Text(zone->ToShown(c.raw)), c.text) << c.label;
    EXPECT_EQ(zone->ToRaw(zone->ToShown(c.raw)), c.raw) << c.label;
  }
  EXPECT_EQ(FindGeneralZone(5, kOld16), nullptr);
}

TEST(GeneralZones, TypedValuesAreHeldToRangeAndStep) {
  const struct {
    int zone;
    ChipIdentity chip;
    int typed, held, raw;
  } cases[] = {
      {2, kOld16, 7250, 7300, 73},   {2, kOld16, 7249, 7200, 72}, {2, kOld16, 99999, 9000, 90},
      {2, kOld16, -5, 5000, 50},     {8, kOld16, 3000, 2500, 50}, {8, kOld16, 825, 850, 17},
      {15, kOld16, 2049, 2000, 20},  {225, kOld16, 79, 78, 179},  {225, kNew18, 79, 79, 79},
      {10, kOld16, -500, -128, 128}, {0, kOld16, 90, 85, 82},     {243, kNew18, 99999, 9937, 159},
      {246, kNew18, -81, -80, 176},  {17, kNew18, 255, 185, 255}, {17, kOld16, -5, 0, 0},
  };
  for (const auto& c : cases) {
    const GeneralZone& zone = *FindGeneralZone(c.zone, c.chip);
    EXPECT_EQ(zone.Force(c.typed), c.held) << c.zone << " " << c.typed;
    EXPECT_EQ(zone.ToRaw(c.held), c.raw) << c.zone << " " << c.typed;
  }
  EXPECT_EQ(FindGeneralZone(0, kOld16)->ToRaw(300), 297);
}

TEST(GeneralZones, TrimInQuarterDegrees) {
  const ChipIdentity edge{1.6, MakeDate(2000, 10, 31), 1}, after{1.6, MakeDate(2000, 11, 1), 1};
  EXPECT_EQ(FindGeneralZone(21, edge)->ToShown(250), -6);
  EXPECT_EQ(FindGeneralZone(21, edge)->ToRaw(-6), 250);
  EXPECT_EQ(FindGeneralZone(21, after)->ToShown(14), -6);
  EXPECT_EQ(FindGeneralZone(21, kNew18)->ToRaw(-6), 14);
  EXPECT_EQ(TrimDegreesText(-6), "-1.50");
  EXPECT_EQ(TrimQuarters("-1.45"), -6);
  EXPECT_EQ(TrimQuarters("9"), 20);
  EXPECT_EQ(TrimQuarters("-5.2"), -20);
}

TEST(ZoneRange, Limits) {
  const struct {
    const char* text;
    int low, high;
  } cases[] = {
      {"-70/185", -70, 185}, {"015/085", 15, 85}, {"", 0, 255}, {"100", 0, 255}, {"/9", 0, 255}};
  for (const auto& c : cases) {
    EXPECT_EQ(ParseZoneRange(c.text).low, c.low) << c.text;
    EXPECT_EQ(ParseZoneRange(c.text).high, c.high) << c.text;
  }
  EXPECT_EQ(PrimeFactorRange(140), "000/093");
  EXPECT_EQ(PrimeFactorRange(50), "000/255");
  EXPECT_EQ(PrimeFactorRange(0), "000/255");
}

TEST(ZoneNames, BothWays) {
  const struct {
    int index;
    const char* name;
    const char* cell;
  } cases[] = {{0, "z0", ""},          {31, "z31", ""},        {32, "z32", "zf100"},
               {112, "z112", "zf600"}, {209, "z209", "zi605"}, {223, "z223", "zi675"},
               {224, "z700", ""},      {239, "z775", ""},      {240, "z800", ""},
               {255, "z875", ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(ZoneName(c.index), c.name);
    EXPECT_EQ(GridCellName(c.index), c.cell);
    EXPECT_EQ(ZoneIndex(c.name), c.index);
    if (*c.cell) {
      EXPECT_EQ(ZoneIndex(c.cell), c.index);
    }
  }
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
