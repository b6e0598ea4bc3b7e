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
constexpr ZoneConversion kTimes{[](int raw) { return raw * Factor; },
                                [](int shown) { return RoundToLong(shown / static_cast<double>(Factor)); }};
template <int Offset>
constexpr ZoneConversion kPlus{[](int raw) { return raw + Offset; }, [](int shown) { return shown - Offset; }};
constexpr ZoneConversion kPlain = kPlus<0>;
constexpr ZoneConversion kTwosComplement{[](int raw) { return raw >= 128 ? raw - 256 : raw; },
                                         [](int shown) { return shown < 0 ? shown + 256 : shown; }};
constexpr ZoneConversion kCoolantOf16{[](int raw) { return (raw - 140) * 2; },
                                      [](int shown) { return shown / 2 + 140; }};
constexpr ZoneConversion kVICS{
    [](int raw) { return static_cast<int>(std::floor(std::min(raw * kRPMPerVICSStep, kMostVICSRPM))); },
    [](int shown) { return RoundToLong(std::min<double>(shown, kMostVICSRPM) / kRPMPerVICSStep); }};

bool Is18(const ChipIdentity& chip) { return chip.dblEngineSize == 1.8; }
bool AdvanceLimit(const ChipIdentity& chip) { return ChipAllows(ChipRule::AdvanceLimit, chip); }
bool Speedo(const ChipIdentity& chip) { return ChipAllows(ChipRule::SpeedoCalibration, chip); }
bool RunIAC(const ChipIdentity& chip) { return ChipAllows(ChipRule::RunIACLabels, chip); }
bool L3LowMAP(const ChipIdentity& chip) { return ChipAllows(ChipRule::L3LowMAPLabels, chip); }
bool OldTargets(const ChipIdentity& chip) { return ChipAllows(ChipRule::MixtureFuelFlag, chip); }

constexpr int kTrimOffset = 20;
bool TrimIsTwosComplement(const ChipIdentity& chip) {
  return chip.datChipDate < MakeDate(2000, 11, 1) && chip.dblEngineSize == 1.6;
}

/// Of the rows of a zone, the first that fits the chip counts; a row without condition fits all.
constexpr GeneralZone kZones[] = {
    // zone, label, range, conversion, step, range of the shown value, "OFF" at 255, condition
    {0, "Overrun MAP", "015/085", &kPlus<3>},
    {1, "Master Fuel", "001/140", &kPlain},
    {2, "Rev Limit (RPM)", "050/090", &kTimes<100>, 100, "5000/9000"},
    {3, "MAP Limit (kPa)", "000/255", &kPlain, 1, "", true},
    {4, "Advance Limit", "000/050", &kPlain, 1, "", false, AdvanceLimit},
    {4, "Intake Limit ('C)", "025/080", &kPlain},
    {6, "Choke Scale", "", &kPlain},
    {7, "Speedo. Calib.", "", &kPlain, 1, "", false, Speedo},
    {7, "Volt. Correction", "", &kPlain},
    {8, "Target RPM", "005/025", &kTimes<50>, 50, "500/2500"},
    {9, "Fan Temp ('C)", "070/110", &kPlain},
    {10, "TPS Offset", "-128/127", &kTwosComplement},
    {11, "TPS Scale", "000/255", &kPlain},
    {12, "Sensitivity", "", &kPlain},
    {13, "Knock Thr.", "", &kPlain, 1, "", true},
    {14, "Base Pres. (kPa)", "015/100", &kPlain},
    {15, "RPM", "020/072", &kTimes<100>, 100, "2000/7200"},
    {16, "Cold Fuel", "", &kPlain},
    {17, "Hot Restart", "-70/185", &kPlus<-70>, 1, "", false, Is18},
    {17, "Hot Restart", "000/255", &kPlain},
    {18, "Run IAC", "016/085", &kPlain, 1, "", false, RunIAC},
    {18, "Hot IAC", "016/085", &kPlain},
    {19, "Start IAC", "016/085", &kPlain, 1, "", false, RunIAC},
    {19, "Cold IAC", "016/085", &kPlain},
    {20, "A/C Idle %", "000/025", &kPlain},
    {21, "Trim (deg.)", "-20/020", &kTwosComplement, 1, "", false, TrimIsTwosComplement},
    {21, "Trim (deg.)", "-20/020", &kPlus<-kTrimOffset>},
    {22, "0-2", "", &kPlain},
    {23, "2-4", "", &kPlain},
    {24, "4-6", "", &kPlain},
    {25, "6-8", "", &kPlain},
    {26, "Idle", "070/110", &kPlain, 1, "", false, OldTargets},
    {26, "Idle", "000/127", &kPlain},
    {27, "Cruise", "070/110", &kPlain, 1, "", false, OldTargets},
    {27, "Cruise", "000/127", &kPlain},
    {28, "300", "070/110", &kPlain, 1, "", false, OldTargets},
    {28, "300", "000/127", &kPlain},
    {29, "400", "070/110", &kPlain, 1, "", false, OldTargets},
    {29, "400", "000/127", &kPlain},
    {30, "500", "070/110", &kPlain, 1, "", false, OldTargets},
    {30, "500", "000/127", &kPlain},
    {31, "600", "070/110", &kPlain, 1, "", false, OldTargets},
    {31, "600", "000/127", &kPlain},
    {112, "Closed Lp -ve", "000/040", &kPlain},
    {113, "Closed Lp +ve", "000/040", &kPlain},
    {208, "Overshoot Supp.", "000/255", &kPlain},
    {209, "Droop Supp.", "000/255", &kPlain},
    {224, "MAP Deadband", "", &kPlain},
    {225, "Coolant Limit ('C)", "000/140", &kPlain, 1, "", false, Is18},
    {225, "Coolant Limit ('C)", "000/140", &kCoolantOf16, 2},
    {226, "Choke Decay", "", &kPlain},
    {227, "Prime Factor", "", &kPlain},
    {228, "Def Atmos. (kPa)", "075/115", &kPlain},
    {229, "25", kBoostTargetRange, &kPlain},
    {230, "30", kBoostTargetRange, &kPlain},
    {231, "35", kBoostTargetRange, &kPlain},
    {232, "40", kBoostTargetRange, &kPlain},
    {233, "45", kBoostTargetRange, &kPlain},
    {234, "50", kBoostTargetRange, &kPlain},
    {235, "55", kBoostTargetRange, &kPlain},
    {236, "60", kBoostTargetRange, &kPlain},
    {237, "65", kBoostTargetRange, &kPlain},
    {238, "70", kBoostTargetRange, &kPlain},
    {239, "75", kBoostTargetRange, &kPlain},
    {243, "VICS Act. (RPM)", "0/9937", &kVICS},
    {244, "Debug Data", "", &kPlain},
    {245, "Offset Slope", "", &kPlain},
    {246, "Injector Offset", "-80/120", &kTwosComplement},
    {247, "Prime Delay", "", &kPlain},
    {248, "Boost Hysteresis", "000/255", &kPlain},
    {249, "Rise Rate Weight", "000/255", &kPlain},
    {250, "Decel Scale", "000/255", &kPlain},
    {251, "IAC Rate", "000/255", &kPlain},
    {252, "L3 Low MAP", "000/255", &kPlain, 1, "", false, L3LowMAP},
    {252, "Fuel Low Slope", "000/255", &kPlain},
    {253, "Intake Comp.", "000/255", &kPlain, 1, "", false, L3LowMAP},
    {253, "Fuel High Slope", "000/255", &kPlain},
    {254, "Ignition Start ('C)", "025/150", &kPlain},
    {255, "Ignition Slope", "000/255", &kPlain},
};

}  // namespace

int GeneralZone::Force(int shown) const {
  const ZoneRange limits = Range();
  const int held = std::clamp(shown, limits.low, limits.high);
  return static_cast<int>(std::floor((held + step / 2) / static_cast<double>(step))) * step;
}

std::string GeneralZone::Text(int raw) const { return offAt255 && raw == 255 ? "OFF" : std::to_string(ToShown(raw)); }

const GeneralZone* FindGeneralZone(int zone, const ChipIdentity& chip) {
  const auto* found = std::find_if(std::begin(kZones), std::end(kZones), [&](const GeneralZone& row) {
    return row.zone == zone && (!row.when || row.when(chip));
  });
  return found == std::end(kZones) ? nullptr : found;
}

int TrimQuarters(int raw, const ChipIdentity& chip) {
  return TrimIsTwosComplement(chip) ? kTwosComplement.toShown(raw) : raw - kTrimOffset;
}

double TrimDegrees(int raw, const ChipIdentity& chip) { return TrimQuarters(raw, chip) / 4.0; }

int TrimRaw(double degrees, const ChipIdentity& chip) {
  const int quarters = RoundToLong(std::clamp(degrees, -5.0, 5.0) * 4);
  return TrimIsTwosComplement(chip) ? kTwosComplement.toRaw(quarters) : quarters + kTrimOffset;
}

}  // namespace tarnview
