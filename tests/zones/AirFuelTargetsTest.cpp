#include "support/Table.h"
#include "zones/AirFuelTargets.h"
#include "zones/AutoTune.h"
#include "zones/ChipIdentity.h"
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
  // z5; the usual tables, or tiny ones that leave the range of a ratio
  // 128 - 87 = 41 steps of 5 V / 128 are 1601 mV, between 1560 and 1716.
  ExpectTable(
      [](const TableRow& row) {
        ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
        if (row.Text(1) == "tiny") tables = {{{0, 5}, {1, 6}}, {{0, 99999}}, false, false};
        ZoneSettings zones{};
        zones[5] = static_cast<std::int16_t>(row.Int(0));
        for (std::size_t i = 0; i < 6; ++i) zones[26 + i] = static_cast<std::int16_t>(86 + i);
        const auto targets = CalcAFTargets(zones, {1.8, MakeDate(2004, 5, 8), 3}, tables, 1000);
        std::string told(targets.O2Sensor);
        for (const double target : targets.targets) told += " " + NumberText(target);
        return told;
      },
      R"(
0, usual -> NB 14000 13800 13600 13400 13300 13000
16, usual -> WB 10037 9995 9952 9910 9867 9825
24, usual -> NB+WB 14000 9995 9952 9910 9867 9825
0, tiny -> NB 1000 1000 1000 1000 1000 1000
16, tiny -> WB 40000 40000 40000 40000 40000 40000
)");
}

TEST(ZoneDefaults, FillsWhatIsMissingAndTells) {
  // quiet, silent by the settings, for the second time
  ExpectTable(
      [](const TableRow& row) {
        Settings settings;
        settings.gblnSilentDefaults = row.Yes(1);
        LoadedZones zones;
        if (row.Yes(2)) ApplyZoneDefaults(zones, settings, false);
        std::string told;
        for (const Message message : ApplyZoneDefaults(zones, settings, row.Yes(0)))
          told += std::to_string(static_cast<int>(message)) + " ";
        told += EngineSizeText(zones.chip.dblEngineSize);
        return told + " " + DateText(zones.chip.datChipDate) + " " +
               std::to_string(zones.chip.intChipVersion) + " " +
               std::to_string(zones.intAtmosphericPressure);
      },
      R"(
no, no, no -> 7 8 9 1.6 2000-01-01 2 75 | no, no, yes -> 1.6 2000-01-01 2 75 | yes, no, no -> 1.6 2000-01-01 2 75 | no, yes, no -> 1.6 2000-01-01 2 75
)");
}

}  // namespace
}  // namespace tarnview
