#pragma once

#include <span>
#include <string_view>

#include "model/ZoneSettings.h"

namespace tarnview {

/// Bits count from 0; a negative value (a zone that is not known) counts by two's complement.
constexpr bool BitIsSet(int value, int bit) { return ((value >> bit) & 1) != 0; }
constexpr int SetBit(int value, int bit, bool on) {
  if (BitIsSet(value, bit) == on) return value;
  if (on) return value + (1 << bit);
  return value - (1 << bit);
}

/// Zones that the rules name.
namespace zone {
inline constexpr int kMasterFuel = 1, kIntakeLimit = 4, kFlags = 5, kTrim = 21, kHotRestart = 17,
                     kKnockThreshold = 13, kFirstTarget = 26;
inline constexpr int kCoolantLimit = 225, kPrimeFactor = 227, kFirstBoostTarget = 229,
                     kMoreFlags = 240, kUnnamed = 241, kEGRFlags = 242, kIgnitionStart = 254,
                     kIgnitionSlope = 255;
}  // namespace zone

/// Bits of z5.
namespace z5 {
inline constexpr int kAutoTune = 0, kTurboMAP = 1, kTargetControl = 2, kEGR = 3, kWideBand = 4,
                     kSecondMAP = 5, kByChip = 6, kL3 = 7;
}
/// Bits of z800.
namespace z800 {
inline constexpr int kSecurity = 0, kTPSIdle = 1, kL3Alone = 2, kKnockLightOrIATTarget = 3,
                     kKnockLight = 4;
}

/// The knock light's bit of z800; it is lit by a clear one.
constexpr int KnockLightBit(int chipVersion) {
  if (chipVersion == 1) return z800::kKnockLightOrIATTarget;
  return z800::kKnockLight;
}

constexpr bool IsNormallyAspirated(int flags) { return !BitIsSet(flags, z5::kTurboMAP); }

/// "NA1", "T1", "NA2" or "T2", from bits 1 and 5 of z5.
std::string_view MAPIDText(int flags);
std::span<const std::string_view> MAPIDs();
/// z5 with the two bits of a MAP ID; unchanged for a text that is none.
int SetMAPID(int flags, std::string_view text);

/// The tick is read from bit 1 of z800 on every chip, but written to bit 6 of z5 on Chip Version 1:
/// kept on purpose.
bool GetTPSIdleValue(const ZoneSettings& zones);
void SetTPSIdleValue(ZoneSettings& zones, int chipVersion, bool on);

/// What is saved in z800: 255 becomes 233, a quirk that ECUs in use depend on.
constexpr int SavedZ800(int value) { return value == 255 ? 233 : value; }

}  // namespace tarnview
