#include "support/Table.h"
#include "zones/AirFuelTargets.h"
#include "zones/AutoTune.h"
#include "zones/ZoneDefaults.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

TEST(AutoTune, TypeByFlagsAndDate) {
  // z5, z800, chip; the type, and which ones there are to choose
  ExpectTable(
      [](const TableRow& row) {
        const ChipIdentity chip = Chip(row.Text(2));
        std::string told(RetrieveAutoTuneType(chip.dblEngineSize, chip.datChipDate,
                                              chip.intChipVersion,
                                              MapWith(chip, row.Int(0), row.Int(1)).zones));
        for (const std::string_view type : AutoTuneTypes(chip)) told += "/" + std::string(type);
        return told;
      },
      R"(
128, 0, 1.8 2010-01-01 2 -> Off/Off/Lambda/L3/L3+L4 | 1, 0, 1.8 2010-01-01 2 -> Lambda/Off/Lambda/L3/L3+L4 | 129, 4, 1.8 2004-09-02 2 -> L3/Off/Lambda/L3/L3+L4
129, 0, 1.8 2004-09-02 2 -> L3+L4/Off/Lambda/L3/L3+L4 | 129, 0, 1.8 2004-09-01 2 -> L3/Off/Lambda/L3 | 129, 4, 1.8 2003-03-01 3 -> L3+L4/Off/Lambda/L3+L4
129, 0, 1.8 2000-06-21 1 -> L3/Off/Lambda/L3 | 129, 0, 1.8 2000-06-20 1 -> Lambda/Off/Lambda | 129, 4, 1.8 no date... 0 -> L3/Off/Lambda/L3/L3+L4
)");
}

TEST(AutoTune, SensorByFlagsAndDate) {
  // bits 3 and 4 of z5, chip
  ExpectTable(
      [](const TableRow& row) {
        const ChipIdentity chip = Chip(row.Text(2));
        const O2Sensor sensor =
            GetO2Sensor(row.Yes(0), row.Yes(1), chip.intChipVersion, chip.datChipDate);
        return std::string(sensor.text) + (sensor.EGR ? " EGR" : "") +
               (sensor.mixtureFuel ? " mixture" : "");
      },
      R"(
yes, yes, 1.8 2004-05-08 3 -> NB+WB | yes, yes, 1.8 2004-05-07 3 -> WB EGR | yes, yes, 1.8 2004-05-08 2 -> WB
yes, no, 1.8 2004-05-08 3 -> NB EGR | no, no, 1.8 2002-06-10 1 -> NB | yes, yes, 1.8 2002-06-09 1 ->  EGR mixture
)");
}

TEST(AirFuelTargets, NarrowWideAndBoth) {
  const ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  const ChipIdentity chip{1.8, MakeDate(2004, 5, 8), 3};
  ZoneSettings zones{};
  for (std::size_t i = 0; i < 6; ++i) zones[26 + i] = static_cast<std::int16_t>(86 + i);
  const auto targets = [&](std::int16_t flags) {
    zones[5] = flags;
    return CalcAFTargets(zones, chip, tables, 1000);
  };
  EXPECT_EQ(targets(0).targets, (std::array<double, 6>{14000, 13800, 13600, 13400, 13300, 13000}));
  // 128 - 87 = 41 steps of 5 V / 128 are 1601 mV, between 1560 and 1716.
  EXPECT_EQ(targets(16).targets, (std::array<double, 6>{10037, 9995, 9952, 9910, 9867, 9825}));
  EXPECT_EQ(targets(24).targets, (std::array<double, 6>{14000, 9995, 9952, 9910, 9867, 9825}));
  EXPECT_EQ(targets(24).O2Sensor, "NB+WB");
  const ConversionTables tiny{{{0, 5}, {1, 6}}, {{0, 99999}}, false, false};
  EXPECT_EQ(CalcAFTargets(zones, {}, tiny, 1000).targets[0], 1000);
  zones[5] = 16;
  EXPECT_EQ(CalcAFTargets(zones, chip, tiny, 1000).targets[0], 40000);
}

TEST(ZoneDefaults, FillsWhatIsMissingAndTells) {
  Settings settings;
  LoadedZones zones;
  EXPECT_EQ(ApplyZoneDefaults(zones, settings, false),
            (std::vector{Message::EngineSizeAssumed, Message::ChipDateAssumed,
                         Message::PressureAssumed}));
  EXPECT_EQ(zones.chip.dblEngineSize, 1.6);
  EXPECT_EQ(zones.chip.datChipDate, MakeDate(2000, 1, 1));
  EXPECT_EQ(zones.chip.intChipVersion, 2);
  EXPECT_EQ(zones.intAtmosphericPressure, 75);
  EXPECT_TRUE(ApplyZoneDefaults(zones, settings, false).empty());

  LoadedZones quiet;
  EXPECT_TRUE(ApplyZoneDefaults(quiet, settings, true).empty());
  settings.gblnSilentDefaults = true;
  LoadedZones silenced;
  EXPECT_TRUE(ApplyZoneDefaults(silenced, settings, false).empty());
  EXPECT_EQ(silenced.intAtmosphericPressure, 75);
}

}  // namespace
}  // namespace tarnview
