#include <gtest/gtest.h>

#include "zones/BenchmarkCopy.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"

namespace tarnview {
namespace {

const ChipIdentity kThird{1.8, MakeDate(2005, 2, 10), 3};

ZoneMap MapOf(const ChipIdentity& chip, int zones, int flags, int more) {
  ZoneMap map;
  map.zones.fill(static_cast<std::int16_t>(zones));
  map.chip = chip;
  map.intAtmosphericPressure = zones;
  map.zones[5] = static_cast<std::int16_t>(flags);
  map.zones[240] = static_cast<std::int16_t>(more);
  return map;
}

CopyBoxes Boxes(std::initializer_list<CopyBox> boxes) {
  CopyBoxes ticked{};
  for (const CopyBox box : boxes) ticked[static_cast<std::size_t>(box)] = true;
  return ticked;
}

/// What came over: the zones by name (a grid as its count), the ticks by number, the words.
std::string Copied(CopyBox box, const ZoneMap& source, const ZoneMap& form) {
  const ZoneSheet before = OpenSheet(form);
  const CopiedSheet copied = CopyFromBenchmark(before, source, Boxes({box}));
  const ZoneSheet& after = copied.sheet;
  std::string told;
  int cells = 0;
  for (int zone = 0; zone < 256; ++zone) {
    if (before.Shown(zone) == after.Shown(zone)) continue;
    if (zone >= 32 && zone < 224 &&
        after.Shown(zone) == source.zones[static_cast<std::size_t>(zone)] &&
        box >= CopyBox::FuelZones)
      ++cells;
    else
      told += ZoneName(zone) + " ";
  }
  if (cells) told += std::to_string(cells) + " cells ";
  for (int i = 0; i < kTicks; ++i)
    if (before.Ticked(Tick{i}) != after.Ticked(Tick{i}))
      told += (after.Ticked(Tick{i}) ? "+" : "-") + std::to_string(i) + " ";
  if (before.autoTuneType != after.autoTuneType) told += after.autoTuneType + " ";
  if (before.O2Sensor != after.O2Sensor) told += after.O2Sensor + " ";
  if (before.boostTargets != after.boostTargets) told += after.boostTargets ? "kPa " : "Pct ";
  if (before.chip != after.chip) told += "chip ";
  if (before.intAtmosphericPressure != after.intAtmosphericPressure) told += "pressure ";
  for (const Message message : copied.messages)
    told += "message " + std::to_string(static_cast<int>(message)) + " ";
  return told.empty() ? told : told.substr(0, told.size() - 1);
}

TEST(BenchmarkCopy, WhatEachBoxBrings) {
  // Everything that a box could bring differs: numbers, each bit, type and sensor.
  const ZoneMap source = MapOf(kThird, 77, 0xd7, 0x03), form = MapOf(kThird, 120, 0x02, 0x18);
  const struct {
    CopyBox box;
    const char* told;
  } cases[] = {
      {CopyBox::Everything, ""},
      {CopyBox::Start, "z6 z16 z17 z710 z715 z835"},
      {CopyBox::Idle, "z8 z18 z19 z20 z855 +7 +8"},
      {CopyBox::Wastegate, "z3 z12 z14 z15 z112 z113 z208 z209 z840 z845 +5 +6"},
      {CopyBox::AirTemp, "z4 z860 z865 z870 z875"},
      {CopyBox::BoostTargets, "z725 z730 z735 z740 z745 z750 z755 z760 z765 z770 z775 Pct"},
      {CopyBox::AutoTuning, "z26 z27 z28 z29 z30 z31 L3+L4 WB"},
      {CopyBox::Miscellaneous, "z2 z7 z9 z10 z11 z700 z705 z720 z815 z820 +0 +1 +3"},
      {CopyBox::Ignition, "z13 z21 +4"},
      {CopyBox::Fuel, "z0 z1 z22 z23 z24 z25 z825 z830 z850"},
      {CopyBox::FuelZones, "94 cells"},
      {CopyBox::IgnitionZones, "94 cells"},
      {CopyBox::General, "pressure"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Copied(c.box, source, form), c.told) << CopyBoxCaption(static_cast<int>(c.box));
}

TEST(BenchmarkCopy, BetweenOtherChips) {
  const ZoneMap third = MapOf(kThird, 77, 0xd7, 0x03);
  const auto form = [](double size, Date date, int version, int flags = 2) {
    return MapOf({size, date, version}, 120, flags, 0x18);
  };
  const Date d2002 = MakeDate(2002, 1, 1), d2003 = MakeDate(2003, 6, 9);
  const struct {
    const char* what;
    CopyBox box;
    ZoneMap source, form;
    const char* told;
  } cases[] = {
      // clang-format off
      {"no delay between versions", CopyBox::Start, third, form(1.8, d2003, 2), "z6 z16 z17 z710 z715"},
      {"first chips", CopyBox::Start, form(1.6, d2003, 1), MapOf({1.6, d2003, 1}, 7, 2, 0),
       "z6 z16 z17 z710 z715 z835"},
      {"first chips, a day too old", CopyBox::Start, form(1.6, d2003 - 1, 1), MapOf({1.6, d2003, 1}, 7, 2, 0),
       "z6 z16 z17 z710 z715"},
      {"second chips of two sizes", CopyBox::Start, form(1.6, d2003, 2), MapOf({1.8, d2003, 2}, 7, 2, 0),
       "z6 z16 z17 z710 z715"},
      {"second chips", CopyBox::Start, form(1.8, MakeDate(2003, 1, 25), 2), MapOf({1.8, d2003, 2}, 7, 2, 0),
       "z6 z16 z17 z710 z715 z835"},
      {"no boost", CopyBox::Wastegate, third, form(1.8, d2003, 3, 0), ""},
      {"no boost targets", CopyBox::BoostTargets, third, form(1.8, d2003, 3, 0), ""},
      {"cells of no boost stay, too", CopyBox::FuelZones, third, form(1.8, d2003, 3, 0), "94 cells"},
      {"intake against advance limit", CopyBox::AirTemp, third, form(1.8, kNewChipDate - 1, 3),
       "z860 z865 z870 z875 message 27"},
      {"old numbers", CopyBox::Miscellaneous, third, form(1.6, d2002, 2), "z2 z7 z9 z10 z11 z700 z705 z720 +1"},
      {"new second chips", CopyBox::Miscellaneous, form(1.8, d2003, 2), MapOf({1.8, d2003, 2}, 7, 2, 0),
       "z2 z7 z9 z10 z11 z700 z705 z720 z820"},
      {"EGR by its own bit", CopyBox::Miscellaneous, form(1.8, d2003, 2, 2 + 8), MapOf({1.8, d2003, 3}, 7, 2, 0),
       "z2 z7 z9 z10 z11 z700 z705 z720 z820 +0"},
      {"injectors of new chips", CopyBox::Fuel, form(1.6, d2003, 2, 2 + 64), MapOf({1.6, d2003, 2}, 7, 2, 0),
       "z0 z1 z22 z23 z24 z25 z830 z850 +2"},
      {"type that the form lacks", CopyBox::AutoTuning, third, form(1.8, d2002, 2), "z26 z27 z28 z29 z30 z31"},
      {"EGR comes with its sensor", CopyBox::AutoTuning, form(1.8, d2003, 2, 2 + 8), MapOf({1.8, d2003, 2}, 7, 2 + 16, 0),
       "z26 z27 z28 z29 z30 z31 +0 NB"},
      {"and goes with it", CopyBox::AutoTuning, form(1.8, kThird.datChipDate, 3, 2 + 16), MapOf(kThird, 7, 2 + 8, 0),
       "z26 z27 z28 z29 z30 z31 -0 -3 WB"},
      {"mixture fuel", CopyBox::AutoTuning, form(1.8, d2002, 2, 2 + 16), MapOf({1.8, d2002, 2}, 7, 2, 0),
       "z26 z27 z28 z29 z30 z31 +9"},
      {"the chip", CopyBox::General, third, form(1.6, d2002, 2), "z705 chip pressure"},
      // clang-format on
  };
  for (const auto& c : cases) EXPECT_EQ(Copied(c.box, c.source, c.form), c.told) << c.what;
}

TEST(BenchmarkCopy, NumbersOfAChipOfTheOtherSize) {
  ZoneMap large = MapOf(kThird, 20, 2, 0), small = MapOf({1.6, MakeDate(2000, 1, 1), 1}, 200, 2, 0);
  const CopyBoxes boxes = Boxes({CopyBox::Start, CopyBox::Miscellaneous, CopyBox::Ignition});
  const ZoneSheet toSmall = CopyFromBenchmark(OpenSheet(small), large, boxes).sheet;
  EXPECT_EQ(toSmall.Shown(17), 0);    // -50 at 1.8
  EXPECT_EQ(toSmall.Shown(225), 20);  // degrees
  EXPECT_EQ(toSmall.Shown(21), 0);
  const ZoneSheet toLarge = CopyFromBenchmark(OpenSheet(large), small, boxes).sheet;
  EXPECT_EQ(toLarge.Shown(17), 185);
  EXPECT_EQ(toLarge.Shown(225), 120);
  EXPECT_EQ(toLarge.Shown(21), -56);
}

TEST(BenchmarkCopy, BoxesThatCanBeTicked) {
  std::string told;
  for (int box = 0; box < kCopyBoxes; ++box) {
    told += std::string(CopyBoxCaption(box)) + ":";
    for (const Date form : {kNewChipDate, kNewChipDate + 1})
      for (const bool aspirated : {false, true})
        told += CopyBoxAvailable(CopyBox{box}, kNewChipDate + 1, form, aspirated) ? '1' : '0';
    told += "\n";
  }
  EXPECT_EQ(told,
            "Everything:1111\nStart:1111\nIdle:1111\nWastegate:1010\nAir Temp. "
            "Correction:0011\nBoost Targets:1010\n"
            "Auto Tuning:1111\n:1111\nMiscellaneous:1111\nIgnition:1111\nFuel:1111\n:1111\nFuel "
            "Zones:1111\n"
            "Ignition Zones:1111\nGeneral Information:1111\n");
  EXPECT_FALSE(CopyBoxAvailable(CopyBox::AirTemp, kNewChipDate, kNewChipDate + 1, false));
}

}  // namespace
}  // namespace tarnview
