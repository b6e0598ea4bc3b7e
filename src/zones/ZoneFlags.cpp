#include "zones/ZoneFlags.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tarnview {
namespace {

struct MAPID {
  std::string_view text;
  bool turbo, second;
};
constexpr MAPID kMAPIDs[] = {
    {"NA1", false, false}, {"T1", true, false}, {"NA2", false, true}, {"T2", true, true}};

}  // namespace

std::string_view MAPIDText(int flags) {
  for (const MAPID& id : kMAPIDs)
    if (id.turbo == BitIsSet(flags, z5::kTurboMAP) && id.second == BitIsSet(flags, z5::kSecondMAP))
      return id.text;
  return "";
}

int SetMAPID(int flags, std::string_view text) {
  for (const MAPID& id : kMAPIDs)
    if (id.text == text)
      return SetBit(SetBit(flags, z5::kTurboMAP, id.turbo), z5::kSecondMAP, id.second);
  return flags;
}

std::span<const std::string_view> MAPIDs() {
  static constexpr auto kTexts = [] {
    std::array<std::string_view, std::size(kMAPIDs)> texts;
    std::transform(std::begin(kMAPIDs), std::end(kMAPIDs), texts.begin(),
                   [](const MAPID& id) { return id.text; });
    return texts;
  }();
  return kTexts;
}

bool GetTPSIdleValue(const ZoneSettings& zones) {
  return BitIsSet(zones[zone::kMoreFlags], z800::kTPSIdle);
}

void SetTPSIdleValue(ZoneSettings& zones, int chipVersion, bool on) {
  const auto set = [&](std::size_t zone, int bit) {
    zones[zone] = static_cast<std::int16_t>(SetBit(zones[zone], bit, on));
  };
  if (chipVersion == 1)
    set(zone::kFlags, z5::kByChip);
  else
    set(zone::kMoreFlags, z800::kTPSIdle);
}

}  // namespace tarnview
