#include "zones/ChipRules.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace tarnview {
namespace {

constexpr int kAnyVersion = 0;
constexpr double kAnySize = 0;
constexpr Date kAlways = std::numeric_limits<Date>::min();
constexpr Date kForEver = std::numeric_limits<Date>::max();

/// Days since 30 December 1899 of a day in the Gregorian calendar.
constexpr Date On(int year, int month, int day) {
  const int y = month > 2 ? year : year - 1;
  const int m = month > 2 ? month - 3 : month + 9;
  return y * 365 + y / 4 - y / 100 + y / 400 + (m * 153 + 2) / 5 + day - 693900;
}
static_assert(On(2001, 3, 1) == kNewChipDate && On(2000, 1, 1) == 36526);

/// A setting exists where a row of its rule fits: chip version, engine size, date from, date
/// before.
struct Row {
  ChipRule rule;
  int version;
  double size;
  Date from = kAlways;
  Date before = kForEver;
};

using enum ChipRule;
constexpr Row kRows[] = {
    // rule, chip version, engine size, from, before
    {ClosedLoop, kAnyVersion, kAnySize, On(2000, 12, 6)},
    {AdvanceLimit, kAnyVersion, kAnySize, kAlways, On(2001, 3, 1)},
    {AdvanceLimitAvailable, kAnyVersion, kAnySize, kAlways, On(2000, 12, 6)},
    {RunIACLabels, kAnyVersion, kAnySize, On(2001, 3, 1)},
    {AirTemperature, kAnyVersion, kAnySize, On(2001, 3, 1)},
    {SecurityAndName, kAnyVersion, kAnySize, On(2001, 3, 1)},
    {OvershootAndDroop, kAnyVersion, kAnySize, On(2001, 3, 11)},
    {IACRate, 1, kAnySize, On(2003, 6, 9)},
    {IACRate, -1, kAnySize, On(2001, 9, 18)},
    {DecelScale, 1, kAnySize, On(2003, 6, 9)},
    {DecelScale, -1, kAnySize, On(2001, 12, 19)},
    {BoostHysteresis, -1, kAnySize, On(2002, 2, 10)},
    {MixtureFuelFlag, kAnyVersion, kAnySize, kAlways, On(2002, 6, 10)},
    {EnablePrimeDelay, 1, kAnySize, On(2003, 6, 9)},
    {EnablePrimeDelay, 2, 1.8, On(2003, 1, 25)},
    {EnablePrimeDelay, 2, 1.6, On(2005, 2, 20)},
    {EnablePrimeDelay, 3, kAnySize},
    {SpeedoCalibration, kAnyVersion, kAnySize, On(2003, 1, 25)},
    {L3LowMAPLabels, kAnyVersion, kAnySize, On(2003, 2, 15)},
    {FuelLowSlopeOrL3LowMAP, kAnyVersion, kAnySize, On(2001, 3, 1), On(2003, 2, 15)},
    {FuelLowSlopeOrL3LowMAP, -2, kAnySize, On(2003, 2, 15)},
    {InjectorOffset, kAnyVersion, kAnySize, On(2003, 6, 9)},
    {InjectorOffset, 3, kAnySize},
    {VICSActivation, 3, kAnySize, On(2004, 4, 19)},
    {IgnitionStartAndSlope, 1, kAnySize, On(2003, 6, 9)},
    {IgnitionStartAndSlope, -1, kAnySize, On(2001, 3, 1)},
    {Enable18TPSOn16, 2, 1.8, On(2004, 6, 27)},
    {Enable18TPSOn16, 3, 1.8, On(2003, 4, 18)},
    {EnableIdleStabilisation, 1, kAnySize, On(2003, 1, 1)},
    {EnableIdleStabilisation, 3, kAnySize, On(2003, 5, 1)},
    {EnableQuadInjection, 2, 1.6, On(2001, 3, 11)},
    {KnockLight, 1, kAnySize, On(2003, 6, 20)},
    {KnockLight, 3, kAnySize, On(2003, 8, 30)},
    {AltEGRCurve, 3, kAnySize, On(2004, 7, 2)},
    {EnableIATBoostTarget, 3, kAnySize, On(2005, 2, 10)},
    {FanAndTPS, kAnyVersion, 1.8},
    {EGRFlag, kAnyVersion, 1.8},
    {EGRFlag, 1, 1.6},
    {OffsetSlope, 3, kAnySize},
};

/// A negative version stands for every version but that one.
bool Fits(int wanted, int version) {
  return wanted == kAnyVersion || (wanted > 0 ? version == wanted : version != -wanted);
}

}  // namespace

bool ChipAllows(ChipRule rule, double engineSize, Date chipDate, int chipVersion) {
  return std::any_of(std::begin(kRows), std::end(kRows), [&](const Row& row) {
    return row.rule == rule && Fits(row.version, chipVersion) &&
           (row.size == kAnySize || row.size == engineSize) && chipDate >= row.from &&
           chipDate < row.before;
  });
}

bool ChipAllows(ChipRule rule, const ChipIdentity& chip) {
  return ChipAllows(rule, chip.dblEngineSize, chip.datChipDate, chip.intChipVersion);
}

bool EnablePrimeDelay(double engineSize, Date chipDate, int chipVersion) {
  return ChipAllows(ChipRule::EnablePrimeDelay, engineSize, chipDate, chipVersion);
}
bool Enable18TPSOn16(double engineSize, Date chipDate, int chipVersion) {
  return ChipAllows(ChipRule::Enable18TPSOn16, engineSize, chipDate, chipVersion);
}
bool EnableIdleStabilisation(double engineSize, Date chipDate, int chipVersion) {
  return ChipAllows(ChipRule::EnableIdleStabilisation, engineSize, chipDate, chipVersion);
}
bool EnableQuadInjection(double engineSize, Date chipDate, int chipVersion) {
  return ChipAllows(ChipRule::EnableQuadInjection, engineSize, chipDate, chipVersion);
}
bool EnableIATBoostTarget(double engineSize, Date chipDate, int chipVersion) {
  return ChipAllows(ChipRule::EnableIATBoostTarget, engineSize, chipDate, chipVersion);
}

}  // namespace tarnview
