#include "support/Table.h"
#include "zones/BenchmarkCopy.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

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

/// "1.8 2003-06-09 2, 7, 02, 0": chip, every zone, z5 and z800.
ZoneMap MapOf(const TableRow& row, std::size_t from) {
  ZoneMap map = MapWith(Chip(row.Text(from)), std::stoi(row.Text(from + 2), nullptr, 16),
                        row.Int(from + 3), row.Int(from + 1));
  map.intAtmosphericPressure = row.Int(from + 1);
  return map;
}

TEST(BenchmarkCopy, WhatEachBoxBrings) {
  // Everything that a box could bring differs: numbers, each bit, type and sensor.
  const ZoneMap source = MapOf(TableRow("1.8 2005-02-10 3, 77, d7, 3"), 0);
  const ZoneMap form = MapOf(TableRow("1.8 2005-02-10 3, 120, 02, 24"), 0);
  std::string told = "\n";
  for (int box = 0; box < kCopyBoxes; ++box)
    if (!CopyBoxCaption(box).empty())
      told += std::string(CopyBoxCaption(box)) + ": " + Copied(CopyBox{box}, source, form) + "\n";
  ExpectTold(told, R"(
Everything: 
Start: z6 z16 z17 z710 z715 z835
Idle: z8 z18 z19 z20 z855 +7 +8
Wastegate: z3 z12 z14 z15 z112 z113 z208 z209 z840 z845 +5 +6
Air Temp. Correction: z4 z860 z865 z870 z875
Boost Targets: z725 z730 z735 z740 z745 z750 z755 z760 z765 z770 z775 Pct
Auto Tuning: z26 z27 z28 z29 z30 z31 L3+L4 WB
Miscellaneous: z2 z7 z9 z10 z11 z700 z705 z720 z815 z820 +0 +1 +3
Ignition: z13 z21 +4
Fuel: z0 z1 z22 z23 z24 z25 z825 z830 z850
Fuel Zones: 94 cells
Ignition Zones: 94 cells
General Information: pressure
)");
}

TEST(BenchmarkCopy, BetweenOtherChips) {
  // what, box, source, form
  ExpectTable(
      [](const TableRow& row) {
        int box = 0;
        while (row.Text(1) != CopyBoxCaption(box)) ++box;
        return Copied(CopyBox{box}, MapOf(row, 2), MapOf(row, 6));
      },
      R"(
no delay between versions, Start, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 2, 120, 02, 24 -> z6 z16 z17 z710 z715
first chips, Start, 1.6 2003-06-09 1, 120, 02, 24, 1.6 2003-06-09 1, 7, 02, 0 -> z6 z16 z17 z710 z715 z835
first chips and a day too old, Start, 1.6 2003-06-08 1, 120, 02, 24, 1.6 2003-06-09 1, 7, 02, 0 -> z6 z16 z17 z710 z715
second chips of two sizes, Start, 1.6 2003-06-09 2, 120, 02, 24, 1.8 2003-06-09 2, 7, 02, 0 -> z6 z16 z17 z710 z715
second chips, Start, 1.8 2003-01-25 2, 120, 02, 24, 1.8 2003-06-09 2, 7, 02, 0 -> z6 z16 z17 z710 z715 z835
no boost, Wastegate, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 3, 120, 00, 24 -> 
no boost targets, Boost Targets, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 3, 120, 00, 24 -> 
cells of no boost stay too, Fuel Zones, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 3, 120, 00, 24 -> 94 cells
intake against advance limit, Air Temp. Correction, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2001-02-28 3, 120, 02, 24 -> z860 z865 z870 z875 message 27
old numbers, Miscellaneous, 1.8 2005-02-10 3, 77, d7, 3, 1.6 2002-01-01 2, 120, 02, 24 -> z2 z7 z9 z10 z11 z700 z705 z720 +1
new second chips, Miscellaneous, 1.8 2003-06-09 2, 120, 02, 24, 1.8 2003-06-09 2, 7, 02, 0 -> z2 z7 z9 z10 z11 z700 z705 z720 z820
EGR by its own bit, Miscellaneous, 1.8 2003-06-09 2, 120, 0a, 24, 1.8 2003-06-09 3, 7, 02, 0 -> z2 z7 z9 z10 z11 z700 z705 z720 z820 +0
injectors of new chips, Fuel, 1.6 2003-06-09 2, 120, 42, 24, 1.6 2003-06-09 2, 7, 02, 0 -> z0 z1 z22 z23 z24 z25 z830 z850 +2
type that the form lacks, Auto Tuning, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2002-01-01 2, 120, 02, 24 -> z26 z27 z28 z29 z30 z31
EGR comes with its sensor, Auto Tuning, 1.8 2003-06-09 2, 120, 0a, 24, 1.8 2003-06-09 2, 7, 12, 0 -> z26 z27 z28 z29 z30 z31 +0 NB
and goes with it, Auto Tuning, 1.8 2005-02-10 3, 120, 12, 24, 1.8 2005-02-10 3, 7, 0a, 0 -> z26 z27 z28 z29 z30 z31 -0 -3 WB
mixture fuel, Auto Tuning, 1.8 2002-01-01 2, 120, 12, 24, 1.8 2002-01-01 2, 7, 02, 0 -> z26 z27 z28 z29 z30 z31 +9
the chip, General Information, 1.8 2005-02-10 3, 77, d7, 3, 1.6 2002-01-01 2, 120, 02, 24 -> z705 chip pressure
)");
}

TEST(BenchmarkCopy, NumbersOfAChipOfTheOtherSize) {
  const ZoneMap large = MapOf(TableRow("1.8 2005-02-10 3, 20, 02, 0"), 0);
  const ZoneMap small = MapOf(TableRow("1.6 2000-01-01 1, 200, 02, 0"), 0);
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
