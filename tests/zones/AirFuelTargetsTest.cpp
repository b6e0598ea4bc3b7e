#include "support/Table.h"
#include "zones/AirFuelTargets.h"
#include "zones/AutoTune.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

TEST(AutoTune, TypeAndSensorByFlagsAndDate) {
  // z5, z800, chip; the type, which ones there are to choose, what bits 3 and 4 of z5 mean
  ExpectTable(
      [](const TableRow& row) {
        const ChipIdentity chip = Chip(row.Text(2));
        const ZoneMap map = MapWith(chip, row.Int(0), row.Int(1));
        std::string told(RetrieveAutoTuneType(chip.dblEngineSize, chip.datChipDate,
                                              chip.intChipVersion, map.zones));
        for (const std::string_view type : AutoTuneTypes(chip)) told += "/" + std::string(type);
        const int flags = row.Int(0);
        const O2Sensor sensor =
            GetO2Sensor(BitIsSet(flags, z5::kEGR), BitIsSet(flags, z5::kWideBand),
                        chip.intChipVersion, chip.datChipDate);
        return told + " " + std::string(sensor.text) + (sensor.EGR ? " EGR" : "") +
               (sensor.mixtureFuel ? " mixture" : "");
      },
      R"(
128, 0, 1.8 2010-01-01 2 -> Off/Off/Lambda/L3/L3+L4 NB | 1, 0, 1.8 2010-01-01 2 -> Lambda/Off/Lambda/L3/L3+L4 NB | 129, 4, 1.8 2004-09-02 2 -> L3/Off/Lambda/L3/L3+L4 NB | 129, 0, 1.8 2004-09-02 2 -> L3+L4/Off/Lambda/L3/L3+L4 NB | 129, 0, 1.8 2004-09-01 2 -> L3/Off/Lambda/L3 NB
129, 4, 1.8 2003-03-01 3 -> L3+L4/Off/Lambda/L3+L4 NB | 129, 0, 1.8 2000-06-21 1 -> L3/Off/Lambda/L3  | 129, 0, 1.8 2000-06-20 1 -> Lambda/Off/Lambda  | 129, 4, 1.8 no date... 0 -> L3/Off/Lambda/L3/L3+L4  | 24, 0, 1.8 2004-05-08 3 -> Off/Off/Lambda/L3/L3+L4 NB+WB
24, 0, 1.8 2004-05-07 3 -> Off/Off/Lambda/L3/L3+L4 WB EGR | 24, 0, 1.8 2004-05-08 2 -> Off/Off/Lambda/L3 WB | 8, 0, 1.8 2004-05-08 3 -> Off/Off/Lambda/L3/L3+L4 NB EGR | 0, 0, 1.8 2002-06-10 1 -> Off/Off/Lambda/L3 NB | 24, 0, 1.8 2002-06-09 1 -> Off/Off/Lambda/L3  EGR mixture
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

}  // namespace
}  // namespace tarnview
