#include "zones/AutoTune.h"

#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

struct L4Dates {
  int chipVersion;
  Date enable, disable;
};

L4Dates DatesOf(int chipVersion) {
  static const L4Dates kDates[] = {{1, MakeDate(2003, 1, 1), MakeDate(2004, 6, 27)},
                                   {2, MakeDate(2004, 9, 2), MakeDate(2004, 9, 2)},
                                   {3, MakeDate(2003, 1, 1), MakeDate(2003, 6, 10)}};
  for (const L4Dates& dates : kDates)
    if (dates.chipVersion == chipVersion) return dates;
  return {chipVersion, kNoDate, kNoDate};
}

}  // namespace

Date GetL4EnableDate(int chipVersion) { return DatesOf(chipVersion).enable; }
Date GetL4DisableDate(int chipVersion) { return DatesOf(chipVersion).disable; }

std::string_view RetrieveAutoTuneType(double, Date chipDate, int chipVersion, const ZoneSettings& zones) {
  const int flags = zones[zone::kFlags];
  if (!BitIsSet(flags, z5::kAutoTune)) return "Off";
  if (!BitIsSet(flags, z5::kL3)) return "Lambda";
  if (chipDate >= GetL4DisableDate(chipVersion))
    return BitIsSet(zones[zone::kMoreFlags], z800::kL3Alone) ? "L3" : "L3+L4";
  if (chipDate >= GetL4EnableDate(chipVersion)) return "L3+L4";
  return chipDate >= MakeDate(2000, 6, 21) ? "L3" : "Lambda";
}

O2Sensor GetO2Sensor(bool bit3, bool bit4, int chipVersion, Date chipDate) {
  if (chipDate < MakeDate(2002, 6, 10)) return {"", bit3, bit4};
  if (chipDate < MakeDate(2004, 5, 8)) return {bit4 ? "WB" : "NB", bit3};
  if (!bit4) return {"NB", bit3};
  return {bit3 && chipVersion == 3 ? "NB+WB" : "WB", false};
}

}  // namespace tarnview
