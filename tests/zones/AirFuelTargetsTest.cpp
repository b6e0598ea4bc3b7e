#include <gtest/gtest.h>

#include "zones/AirFuelTargets.h"
#include "zones/AutoTune.h"
#include "zones/ZoneDefaults.h"

namespace tarnview {
namespace {

constexpr std::int16_t kTuning = 1, kL3Tuning = 1 + 128;

TEST(AutoTune, TypeByFlagsAndDate) {
  const struct {
    int flags, moreFlags, version;
    Date date;
    const char* type;
  } cases[] = {
      {128, 0, 2, MakeDate(2010, 1, 1), "Off"},
      {kTuning, 0, 2, MakeDate(2010, 1, 1), "Lambda"},
      {kL3Tuning, 4, 2, MakeDate(2004, 9, 2), "L3"},
      {kL3Tuning, 0, 2, MakeDate(2004, 9, 2), "L3+L4"},
      {kL3Tuning, 0, 2, MakeDate(2004, 9, 1), "L3"},
      {kL3Tuning, 4, 3, MakeDate(2003, 3, 1), "L3+L4"},
      {kL3Tuning, 0, 1, MakeDate(2000, 6, 21), "L3"},
      {kL3Tuning, 0, 1, MakeDate(2000, 6, 20), "Lambda"},
      {kL3Tuning, 4, 0, kNoDate, "L3"},
  };
  for (const auto& c : cases) {
    ZoneSettings zones{};
    zones[5] = static_cast<std::int16_t>(c.flags);
    zones[240] = static_cast<std::int16_t>(c.moreFlags);
    EXPECT_EQ(RetrieveAutoTuneType(1.8, c.date, c.version, zones), c.type) << DateText(c.date);
  }
}

TEST(AutoTune, SensorByFlagsAndDate) {
  const struct {
    bool bit3, bit4;
    int version;
    Date date;
    const char* text;
    bool EGR, mixture;
  } cases[] = {
      {true, true, 3, MakeDate(2004, 5, 8), "NB+WB", false, false},
      {true, true, 3, MakeDate(2004, 5, 7), "WB", true, false},
      {true, true, 2, MakeDate(2004, 5, 8), "WB", false, false},
      {true, false, 3, MakeDate(2004, 5, 8), "NB", true, false},
      {false, false, 1, MakeDate(2002, 6, 10), "NB", false, false},
      {true, true, 1, MakeDate(2002, 6, 9), "", true, true},
  };
  for (const auto& c : cases) {
    const O2Sensor sensor = GetO2Sensor(c.bit3, c.bit4, c.version, c.date);
    EXPECT_TRUE(sensor.text == c.text && sensor.EGR == c.EGR && sensor.mixtureFuel == c.mixture)
        << DateText(c.date);
  }
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
