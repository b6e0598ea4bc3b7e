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

const Date kFirstL3 = MakeDate(2000, 6, 21);

bool IsL3(std::string_view type) { return type == "L3" || type == "L3+L4"; }

}  // namespace

Date GetL4EnableDate(int chipVersion) { return DatesOf(chipVersion).enable; }
Date GetL4DisableDate(int chipVersion) { return DatesOf(chipVersion).disable; }

std::string_view RetrieveAutoTuneType(double, Date chipDate, int chipVersion,
                                      const ZoneSettings& zones) {
  const int flags = zones[zone::kFlags];
  if (!BitIsSet(flags, z5::kAutoTune)) return "Off";
  if (!BitIsSet(flags, z5::kL3)) return "Lambda";
  const bool chooses = chipDate >= GetL4DisableDate(chipVersion);
  if (chooses && BitIsSet(zones[zone::kMoreFlags], z800::kL3Alone)) return "L3";
  if (chooses || chipDate >= GetL4EnableDate(chipVersion)) return "L3+L4";
  if (chipDate >= kFirstL3) return "L3";
  return "Lambda";
}

std::vector<std::string_view> AutoTuneTypes(const ChipIdentity& chip) {
  const Date date = chip.datChipDate, enable = GetL4EnableDate(chip.intChipVersion);
  std::vector<std::string_view> types{"Off", "Lambda"};
  if ((date >= kFirstL3 && date < enable) || date >= GetL4DisableDate(chip.intChipVersion))
    types.push_back("L3");
  if (date >= enable) types.push_back("L3+L4");
  return types;
}

void SetAutoTuneType(std::string_view type, const ChipIdentity& chip, int& flags, int& moreFlags) {
  if (!IsL3(type) && type != "Off" && type != "Lambda") return;
  flags = SetBit(flags, z5::kAutoTune, type != "Off");
  // Firmware from before L3 has this bit set whatever the type.
  flags = SetBit(flags, z5::kL3, IsL3(type) || chip.datChipDate < kFirstL3);
  if (IsL3(type) && chip.datChipDate >= GetL4DisableDate(chip.intChipVersion))
    moreFlags = SetBit(moreFlags, z800::kL3Alone, type == "L3");
}

std::vector<std::string_view> O2Sensors(const ChipIdentity& chip, bool EGRInUse,
                                        std::string_view autoTuneType) {
  const bool first = chip.intChipVersion == 1;
  Date firstWideBand = MakeDate(2002, 6, 10);
  if (first) firstWideBand = MakeDate(2003, 3, 15);
  const bool wideBand = chip.datChipDate >= firstWideBand;
  std::vector<std::string_view> sensors{"NB"};
  if (!wideBand || (EGRInUse && !first)) return sensors;
  sensors.push_back("WB");
  if (chip.intChipVersion == 3 && chip.datChipDate >= MakeDate(2004, 5, 8) && IsL3(autoTuneType))
    sensors.push_back("NB+WB");
  return sensors;
}

O2Sensor GetO2Sensor(bool bit3, bool bit4, int chipVersion, Date chipDate) {
  if (chipDate < MakeDate(2002, 6, 10)) return {"", bit3, bit4};
  if (!bit4) return {"NB", bit3};
  if (chipDate < MakeDate(2004, 5, 8)) return {"WB", bit3};
  if (bit3 && chipVersion == 3) return {"NB+WB", false};
  return {"WB", false};
}

}  // namespace tarnview
