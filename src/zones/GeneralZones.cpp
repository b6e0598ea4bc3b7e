#include "zones/GeneralZones.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/Numbers.h"
#include "zones/ChipRules.h"

namespace tarnview {
namespace {

constexpr double kRPMPerVICSStep = 62.5;
constexpr double kMostVICSRPM = 9937.5;  ///< raw 159

template <int Factor>
constexpr ZoneConversion kTimes{
    [](int raw) { return raw * Factor; },
    [](int shown) { return RoundToLong(shown / static_cast<double>(Factor)); }};
template <int Offset>
constexpr ZoneConversion kPlus{[](int raw) { return raw + Offset; },
                               [](int shown) { return shown - Offset; }};
constexpr ZoneConversion kPlain = kPlus<0>;
constexpr ZoneConversion kTwosComplement{[](int raw) { return raw >= 128 ? raw - 256 : raw; },
                                         [](int shown) { return shown < 0 ? shown + 256 : shown; }};
constexpr ZoneConversion kCoolantOf16{[](int raw) { return (raw - 140) * 2; },
                                      [](int shown) { return shown / 2 + 140; }};
constexpr ZoneConversion kVICS{
    [](int raw) {
      return static_cast<int>(std::floor(std::min(raw * kRPMPerVICSStep, kMostVICSRPM)));
    },
    [](int shown) { return RoundToLong(std::min<double>(shown, kMostVICSRPM) / kRPMPerVICSStep); }};

bool Is18(const ChipIdentity& chip) { return chip.dblEngineSize == 1.8; }
bool AdvanceLimitLabel(const ChipIdentity& chip) {
  return ChipAllows(ChipRule::AdvanceLimit, chip);
}
bool Speedo(const ChipIdentity& chip) { return ChipAllows(ChipRule::SpeedoCalibration, chip); }
bool RunIAC(const ChipIdentity& chip) { return ChipAllows(ChipRule::RunIACLabels, chip); }
bool L3LowMAP(const ChipIdentity& chip) { return ChipAllows(ChipRule::L3LowMAPLabels, chip); }
bool OldTargets(const ChipIdentity& chip) { return ChipAllows(ChipRule::MixtureFuelFlag, chip); }

constexpr int kTrimOffset = 20;
/// z21 is stored in quarter degrees: two's complement on a 1.6 of before November 2000, else with
/// an offset.
bool TrimIsTwosComplement(const ChipIdentity& chip) {
  return chip.datChipDate < MakeDate(2000, 11, 1) && chip.dblEngineSize == 1.6;
}

using Z = GeneralZone;
using enum ChipRule;

/// Of the rows of a zone, the first that fits the chip counts; a row without condition fits all.
constexpr GeneralZone kZones[] = {
    Z{0, "Overrun MAP", "015/085", &kPlus<3>},
    Z{1, "Master Fuel", "001/140", &kPlain},
    Z{2, "Rev Limit (RPM)", "5000/9000", &kTimes<100>}.Steps(100),
    Z{3, "MAP Limit (kPa)", "000/255", &kPlain}.Off().Boost(),
    Z{4, "Advance Limit", "000/050", &kPlain}.If(AdvanceLimitLabel).Exists(AdvanceLimitAvailable),
    Z{4, "Intake Limit ('C)", "025/080", &kPlain},
    Z{6, "Choke Scale", "", &kPlain},
    Z{7, "Speedo. Calib.", "", &kPlain}.If(Speedo),
    Z{7, "Volt. Correction", "", &kPlain},
    Z{8, "Target RPM", "500/2500", &kTimes<50>}.Steps(50),
    Z{9, "Fan Temp ('C)", "070/110", &kPlain}.Exists(FanAndTPS),
    Z{10, "TPS Offset", "-128/127", &kTwosComplement}.Exists(FanAndTPS),
    Z{11, "TPS Scale", "000/255", &kPlain}.Exists(FanAndTPS),
    Z{12, "Sensitivity", "", &kPlain}.Boost(),
    Z{13, "Knock Thr.", "", &kPlain}.Off(),
    Z{14, "Base Pres. (kPa)", "015/100", &kPlain}.Boost(),
    Z{15, "RPM", "2000/7200", &kTimes<100>}.Steps(100).Boost(),
    Z{16, "Cold Fuel", "", &kPlain},
    Z{17, "Hot Restart", "-70/185", &kPlus<-70>}.If(Is18),
    Z{17, "Hot Restart", "000/255", &kPlain},
    Z{18, "Run IAC", "016/085", &kPlain}.If(RunIAC),
    Z{18, "Hot IAC", "016/085", &kPlain},
    Z{19, "Start IAC", "016/085", &kPlain}.If(RunIAC),
    Z{19, "Cold IAC", "016/085", &kPlain},
    Z{20, "A/C Idle %", "000/025", &kPlain},
    Z{21, "Trim (deg.)", "-20/020", &kTwosComplement}.If(TrimIsTwosComplement),
    Z{21, "Trim (deg.)", "-20/020", &kPlus<-kTrimOffset>},
    Z{22, "0-2", "", &kPlain},
    Z{23, "2-4", "", &kPlain},
    Z{24, "4-6", "", &kPlain},
    Z{25, "6-8", "", &kPlain},
    Z{26, "Idle", "070/110", &kPlain}.If(OldTargets),
    Z{26, "Idle", "000/127", &kPlain},
    Z{27, "Cruise", "070/110", &kPlain}.If(OldTargets),
    Z{27, "Cruise", "000/127", &kPlain},
    Z{28, "300", "070/110", &kPlain}.If(OldTargets),
    Z{28, "300", "000/127", &kPlain},
    Z{29, "400", "070/110", &kPlain}.If(OldTargets),
    Z{29, "400", "000/127", &kPlain},
    Z{30, "500", "070/110", &kPlain}.If(OldTargets),
    Z{30, "500", "000/127", &kPlain},
    Z{31, "600", "070/110", &kPlain}.If(OldTargets),
    Z{31, "600", "000/127", &kPlain},
    Z{112, "Closed Lp -ve", "000/040", &kPlain}.Exists(ClosedLoop).Boost(),
    Z{113, "Closed Lp +ve", "000/040", &kPlain}.Exists(ClosedLoop).Boost(),
    Z{208, "Overshoot Supp.", "000/255", &kPlain}.Exists(OvershootAndDroop).Boost(),
    Z{209, "Droop Supp.", "000/255", &kPlain}.Exists(OvershootAndDroop).Boost(),
    Z{224, "MAP Deadband", "", &kPlain},
    Z{225, "Coolant Limit ('C)", "000/140", &kPlain}.If(Is18),
    Z{225, "Coolant Limit ('C)", "000/140", &kCoolantOf16}.EvenOnly(),
    Z{226, "Choke Decay", "", &kPlain},
    Z{227, "Prime Factor", "", &kPlain},
    Z{228, "Def Atmos. (kPa)", "075/115", &kPlain},
    Z{229, "25", kBoostTargetRange, &kPlain}.Boost(),
    Z{230, "30", kBoostTargetRange, &kPlain}.Boost(),
    Z{231, "35", kBoostTargetRange, &kPlain}.Boost(),
    Z{232, "40", kBoostTargetRange, &kPlain}.Boost(),
    Z{233, "45", kBoostTargetRange, &kPlain}.Boost(),
    Z{234, "50", kBoostTargetRange, &kPlain}.Boost(),
    Z{235, "55", kBoostTargetRange, &kPlain}.Boost(),
    Z{236, "60", kBoostTargetRange, &kPlain}.Boost(),
    Z{237, "65", kBoostTargetRange, &kPlain}.Boost(),
    Z{238, "70", kBoostTargetRange, &kPlain}.Boost(),
    Z{239, "75", kBoostTargetRange, &kPlain}.Boost(),
    Z{243, "VICS Act. (RPM)", "0/9937", &kVICS}.Exists(VICSActivation),
    Z{244, "Debug Data", "", &kPlain}.Exists(InjectorOffset),
    Z{245, "Offset Slope", "", &kPlain}.Exists(OffsetSlope),
    Z{246, "Injector Offset", "-80/120", &kTwosComplement}.Exists(InjectorOffset),
    Z{247, "Prime Delay", "", &kPlain}.Exists(ChipRule::EnablePrimeDelay),
    Z{248, "Boost Hysteresis", "000/255", &kPlain}.Exists(BoostHysteresis).Boost(),
    Z{249, "Rise Rate Weight", "000/255", &kPlain}.Exists(BoostHysteresis).Boost(),
    Z{250, "Decel Scale", "000/255", &kPlain}.Exists(DecelScale),
    Z{251, "IAC Rate", "000/255", &kPlain}.Exists(IACRate),
    Z{252, "L3 Low MAP", "000/255", &kPlain}.If(L3LowMAP).Exists(FuelLowSlopeOrL3LowMAP),
    Z{252, "Fuel Low Slope", "000/255", &kPlain}.Exists(FuelLowSlopeOrL3LowMAP),
    Z{253, "Intake Comp.", "000/255", &kPlain}.If(L3LowMAP).Exists(AirTemperature),
    Z{253, "Fuel High Slope", "000/255", &kPlain}.Exists(AirTemperature),
    Z{254, "Ignition Start ('C)", "025/150", &kPlain}.Exists(IgnitionStartAndSlope),
    Z{255, "Ignition Slope", "000/255", &kPlain}.Exists(IgnitionStartAndSlope),
};

}  // namespace

int GeneralZone::Force(int shown, const ZoneRange& limits) const {
  const int held = std::clamp(shown, limits.low, std::max(limits.low, limits.high));
  return static_cast<int>(std::floor((held + roundUp) / static_cast<double>(step))) * step;
}

std::string GeneralZone::Text(int shown) const {
  if (offAt255 && shown == kOffValue) return std::string(kOffText);
  return std::to_string(shown);
}

const GeneralZone* FindGeneralZone(int zone, const ChipIdentity& chip) {
  const auto* found = std::find_if(
      std::begin(kZones), std::end(kZones),
      [&](const GeneralZone& row) { return row.zone == zone && (!row.when || row.when(chip)); });
  if (found == std::end(kZones)) return nullptr;
  return found;
}

std::array<const GeneralZone*, 256> GeneralZonesOf(const ChipIdentity& chip) {
  std::array<const GeneralZone*, 256> found{};
  for (const GeneralZone& row : kZones) {
    const GeneralZone*& place = found[static_cast<std::size_t>(row.zone)];
    if (!place && (!row.when || row.when(chip))) place = &row;
  }
  return found;
}

std::string TrimDegreesText(int quarters) { return FixedText(quarters / 4.0, 2); }

int TrimQuarters(std::string_view degrees) {
  constexpr double kMost = 5;
  return RoundToLong(std::clamp(StringToDouble(degrees), -kMost, kMost) * 4);
}

}  // namespace tarnview
