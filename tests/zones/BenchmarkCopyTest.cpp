#include "support/Table.h"
#include "zones/BenchmarkCopy.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

std::string Copied(CopyBox box, const ZoneMap& source, const ZoneMap& form) {
  CopyBoxes ticked{};
  ticked[static_cast<std::size_t>(box)] = true;
  const ZoneSheet before = OpenSheet(form);
  const CopiedSheet copied = CopyFromBenchmark(before, source, ticked);
  std::string told = Changes(before, copied.sheet);
  for (const Message message : copied.messages)
    told += " message " + std::to_string(static_cast<int>(message));
  return told;
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
  // Of each box whether it can be ticked for an old chip and a new one, turbo and not; the source
  // is new.
  std::string told = "\n";
  for (int box = 0; box < kCopyBoxes; ++box) {
    if (CopyBoxCaption(box).empty()) continue;
    told += std::string(CopyBoxCaption(box)) + " ";
    for (const Date date : {kNewChipDate, kNewChipDate + 1})
      for (const bool aspirated : {false, true})
        told += CopyBoxAvailable(CopyBox{box}, kNewChipDate + 1, date, aspirated) ? '1' : '0';
    told += ": " + Copied(CopyBox{box}, source, form) + "\n";
  }
  EXPECT_FALSE(CopyBoxAvailable(CopyBox::AirTemp, kNewChipDate, kNewChipDate + 1, false));
  ExpectTold(told, R"(
Everything 1111: 
Start 1111: z6 120>77 z16 120>77 z17 50>7 z710 120>77 z715 120>77 z835 120>77
Idle 1111: z8 6000>3850 z18 120>77 z19 120>77 z20 120>77 z855 120>77 +7 +8
Wastegate 1010: z3 120>77 z12 120>77 z14 120>77 z15 12000>7700 z840 120>77 z845 120>77 z112 120>77 z113 120>77 z208 120>77 z209 120>77 +5 +6
Air Temp. Correction 0011: z4 80>77 z860 120>77 z865 120>77 z870 120>77 z875 120>77
Boost Targets 1010: z725 120>77 z730 120>77 z735 120>77 z740 120>77 z745 120>77 z750 120>77 z755 120>77 z760 120>77 z765 120>77 z770 120>77 z775 120>77 Pct
Auto Tuning 1111: z26 120>77 z27 120>77 z28 120>77 z29 120>77 z30 120>77 z31 120>77 type 'L3+L4' sensor WB
Miscellaneous 1111: z2 12000>7700 z7 120>77 z9 120>77 z10 120>77 z11 120>77 z700 120>77 z705 120>77 z720 120>77 z815 7500>4812 z820 120>77 +0 +1 +3
Ignition 1111: z13 120>77 z21 100>57 +4
Fuel 1111: z0 123>80 z1 120>77 z22 120>77 z23 120>77 z24 120>77 z25 120>77 z825 120>77 z830 120>77 z850 120>77
Fuel Zones 1111: 94 cells such as z32 120>77
Ignition Zones 1111: 94 cells such as z128 120>77
General Information 1111: pressure
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
no delay between versions, Start, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 2, 120, 02, 24 -> z6 120>77 z16 120>77 z17 50>7 z710 120>77 z715 120>77
first chips, Start, 1.6 2003-06-09 1, 120, 02, 24, 1.6 2003-06-09 1, 7, 02, 0 -> z6 7>120 z16 7>120 z17 7>120 z710 7>120 z715 7>120 z835 7>120 | first chips and a day too old, Start, 1.6 2003-06-08 1, 120, 02, 24, 1.6 2003-06-09 1, 7, 02, 0 -> z6 7>120 z16 7>120 z17 7>120 z710 7>120 z715 7>120
second chips of two sizes, Start, 1.6 2003-06-09 2, 120, 02, 24, 1.8 2003-06-09 2, 7, 02, 0 -> z6 7>120 z16 7>120 z17 -63>120 z710 7>120 z715 7>120 | second chips, Start, 1.8 2003-01-25 2, 120, 02, 24, 1.8 2003-06-09 2, 7, 02, 0 -> z6 7>120 z16 7>120 z17 -63>50 z710 7>120 z715 7>120 z835 7>120
no boost, Wastegate, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 3, 120, 00, 24 ->  | no boost targets, Boost Targets, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 3, 120, 00, 24 -> 
cells of no boost stay too, Fuel Zones, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2003-06-09 3, 120, 00, 24 -> 94 cells such as z32 120>77
intake against advance limit, Air Temp. Correction, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2001-02-28 3, 120, 02, 24 -> z860 120>77 z865 120>77 z870 120>77 z875 120>77 message 27
old numbers, Miscellaneous, 1.8 2005-02-10 3, 77, d7, 3, 1.6 2002-01-01 2, 120, 02, 24 -> z2 12000>7700 z7 120>77 z9 120>77 z10 120>77 z11 120>77 z700 120>77 z705 -40>76 z720 120>77 +1
new second chips, Miscellaneous, 1.8 2003-06-09 2, 120, 02, 24, 1.8 2003-06-09 2, 7, 02, 0 -> z2 700>12000 z7 7>120 z9 7>120 z10 7>120 z11 7>120 z700 7>120 z705 7>120 z720 7>120 z820 7>120 | EGR by its own bit, Miscellaneous, 1.8 2003-06-09 2, 120, 0a, 24, 1.8 2003-06-09 3, 7, 02, 0 -> z2 700>12000 z7 7>120 z9 7>120 z10 7>120 z11 7>120 z700 7>120 z705 7>120 z720 7>120 z820 7>120 +0
injectors of new chips, Fuel, 1.6 2003-06-09 2, 120, 42, 24, 1.6 2003-06-09 2, 7, 02, 0 -> z0 10>123 z1 7>120 z22 7>120 z23 7>120 z24 7>120 z25 7>120 z830 7>120 z850 7>120 +2
type that the form lacks, Auto Tuning, 1.8 2005-02-10 3, 77, d7, 3, 1.8 2002-01-01 2, 120, 02, 24 -> z26 120>77 z27 120>77 z28 120>77 z29 120>77 z30 120>77 z31 120>77
EGR comes with its sensor, Auto Tuning, 1.8 2003-06-09 2, 120, 0a, 24, 1.8 2003-06-09 2, 7, 12, 0 -> z26 7>120 z27 7>120 z28 7>120 z29 7>120 z30 7>120 z31 7>120 +0 sensor NB | and goes with it, Auto Tuning, 1.8 2005-02-10 3, 120, 12, 24, 1.8 2005-02-10 3, 7, 0a, 0 -> z26 7>120 z27 7>120 z28 7>120 z29 7>120 z30 7>120 z31 7>120 -0 -3 sensor WB
mixture fuel, Auto Tuning, 1.8 2002-01-01 2, 120, 12, 24, 1.8 2002-01-01 2, 7, 02, 0 -> z26 7>120 z27 7>120 z28 7>120 z29 7>120 z30 7>120 z31 7>120 +9
the chip, General Information, 1.8 2005-02-10 3, 77, d7, 3, 1.6 2002-01-01 2, 120, 02, 24 -> z705 -40>0 chip pressure
knock light by another bit, Ignition, 1.8 2005-02-10 3, 20, 02, 0, 1.8 2005-02-10 3, 20, 02, 0 -> -4
# Numbers of a chip of the other size.
to small, Start, 1.8 2005-02-10 3, 20, 02, 0, 1.6 2000-01-01 1, 200, 02, 0 -> z6 200>20 z16 200>20 z17 200>0 z710 200>20 z715 200>20 | to large, Start, 1.6 2000-01-01 1, 200, 02, 0, 1.8 2005-02-10 3, 20, 02, 0 -> z6 20>200 z16 20>200 z17 -50>185 z710 20>200 z715 20>200
to small, Miscellaneous, 1.8 2005-02-10 3, 20, 02, 0, 1.6 2000-01-01 1, 200, 02, 0 -> z2 20000>2000 z7 200>20 z9 200>20 z10 -56>20 z11 200>20 z700 200>20 z705 120>20 z720 200>20 | to large, Miscellaneous, 1.6 2000-01-01 1, 200, 02, 0, 1.8 2005-02-10 3, 20, 02, 0 -> z2 2000>20000 z7 20>200 z9 20>200 z10 20>-56 z11 20>200 z700 20>200 z705 20>120 z720 20>200
to small, Ignition, 1.8 2005-02-10 3, 20, 02, 0, 1.6 2000-01-01 1, 200, 02, 0 -> z13 200>20 z21 -56>0 | to large, Ignition, 1.6 2000-01-01 1, 200, 02, 0, 1.8 2005-02-10 3, 20, 02, 0 -> z13 20>200 z21 0>-56
)");
}

}  // namespace
}  // namespace tarnview
