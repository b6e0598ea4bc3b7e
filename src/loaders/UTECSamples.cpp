#include "loaders/UTECSamples.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Units.h"
#include "loaders/SampleFinish.h"

namespace tarnview {

UTECSamples::UTECSamples(const LoadContext& context)
    : context_(context),
      store_(context.log.glngDataLog),
      atmosphere_(AtmosphereAsMAP(context)),
      noModifiedFuel_(context.items.Item(ItemOf(kFuelPercentM)).lngStorageOffset) {
  for (int column = 0; column < kColumnCount; ++column)
    factor_[column] = context.items.Item(column + 1).Factor();
}

void UTECSamples::Add() {
  row_ = store_.AddRow();
  store_.Set(kSample, row_, row_ + 1);
}

int UTECSamples::ScaleOf(UTECRule rule, Column column) const {
  if (rule == UTECRule::Boost) return 0;
  if (rule != UTECRule::Factored && rule != UTECRule::CoolantTemp && rule != UTECRule::AirFuel)
    return -1;
  constexpr double kPowersOfTen[] = {1, 10, 100, 1000};
  const auto found = std::find(std::begin(kPowersOfTen), std::end(kPowersOfTen), factor_[column]);
  if (found == std::end(kPowersOfTen)) return -1;
  return static_cast<int>(found - std::begin(kPowersOfTen));
}

inline std::int32_t UTECSamples::StoredOne(UTECRule rule, Column column, double number) {
  constexpr double kFullDuty = 133;
  constexpr double kCountsFrom =
      100;  // kPa, whatever the atmosphere of the settings: kept on purpose
  switch (rule) {
    case UTECRule::Factored:
    case UTECRule::CoolantTemp:
    case UTECRule::AirFuel:
    case UTECRule::ModifiedAdvance:
      return Factored(column, number);
    case UTECRule::Boost:
      return RoundToLong(number);
    case UTECRule::Time:
      return Time(number);
    case UTECRule::GaugeMAP:
      return Factored(column,
                      number / kPsiPerKPa + context_.settings.gintDefaultAtmosphericPressure);
    case UTECRule::MAP:
      return Factored(column, number / kPsiPerKPa + kCountsFrom);
    case UTECRule::AirTemp:
      return AirTemp(number);
    case UTECRule::WastegateDuty:
      return Factored(column, number / kFullDuty * 100);
    case UTECRule::InjectorDuty:
      return Factored(column, std::min(number, 100.0));
    case UTECRule::ModifiedFuel:
      return RoundToLong(factor_[column] * number + noModifiedFuel_);
  }
  return 0;
}

std::int32_t UTECSamples::Stored(UTECRule rule, Column column, double number) {
  return StoredOne(rule, column, number);
}

void UTECSamples::Stored(UTECRule rule, Column column, std::span<const double> numbers,
                         std::int32_t* stored) {
  for (const double number : numbers) *stored++ = StoredOne(rule, column, number);
}

void UTECSamples::Set(UTECRule rule, Column column, double number) {
  const std::int32_t stored = StoredOne(rule, column, number);
  store_.Set(column, row_, stored);
  BoostOrVacuum found;
  if (rule == UTECRule::MAP)
    found = BoostOrVacuumOf(stored, atmosphere_);
  else if (rule == UTECRule::GaugeMAP && number < 0)
    found.vacuum = Factored(kVacuum, std::fabs(number) / kPsiPerKPa * kInHgPerKPa);
  else if (rule == UTECRule::GaugeMAP)
    found.boost = Factored(kBoost, number);
  else
    return;
  store_.Set(kBoost, row_, found.boost);
  store_.Set(kVacuum, row_, found.vacuum);
}

void UTECSamples::KeepAirFuel() { store_.Set(kAF, row_, row_ > 0 ? store_(kAF, row_ - 1) : 0); }

void UTECSamples::KeepAdvance() { store_.Set(kIAdvM, row_, store_(kIAdv, row_)); }

std::int32_t UTECSamples::AirTemp(double degrees) {
  std::int32_t& lowest = context_.log.glngLowestAirTemp;
  if (degrees < lowest) lowest = RoundToLong(degrees);
  return Factored(kATemp, degrees);
}

std::int32_t UTECSamples::Time(double count) {
  constexpr double kMicrosecondsPerCount = 500, kMicroseconds = 1000000;
  if (!firstTime_) firstTime_ = count;
  return RoundToLong(factor_[kSecs] * (count - *firstTime_) * kMicrosecondsPerCount /
                     kMicroseconds);
}

void UTECSamples::Finish(bool hasTime, bool hasModifiedFuel) {
  constexpr double kSecondsPerLine = 0.2;
  if (!hasTime)
    for (int row = 0; row < store_.Rows(); ++row)
      store_.Set(kSecs, row,
                 RoundToLong(factor_[kSecs] * RoundPlaces((row + 1) * kSecondsPerLine, 4)));
  if (!hasModifiedFuel) FillWithZero(kFuelPercentM, context_);
  FillWithZero(kCR, context_);
  FindFirstPlotSample(context_);
}

std::optional<double> AirFuelOfWord(std::string_view text) {
  if (SameIgnoringCase(text, "RICH")) return 12.0;
  if (SameIgnoringCase(text, "LEAN")) return 24.5;
  return std::nullopt;
}

}  // namespace tarnview
