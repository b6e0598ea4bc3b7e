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
  for (int column = 0; column < kColumnCount; ++column) factor_[column] = context.items.Item(column + 1).Factor();
}

void UTECSamples::Add() {
  row_ = store_.AddRow();
  store_.Set(kSample, row_, row_ + 1);
}

int UTECSamples::ScaleOf(UTECRule rule, Column column) const {
  if (rule == UTECRule::Boost) return 0;
  if (rule != UTECRule::Factored && rule != UTECRule::CoolantTemp) return -1;
  const double factor = factor_[column];
  return factor == 1 ? 0 : factor == 10 ? 1 : factor == 100 ? 2 : factor == 1000 ? 3 : -1;
}

void UTECSamples::Set(UTECRule rule, Column column, double number) {
  constexpr double kFullDuty = 133;
  switch (rule) {
    case UTECRule::Factored:
    case UTECRule::CoolantTemp:
    case UTECRule::AirFuel:
    case UTECRule::ModifiedAdvance:
      return SetFactored(column, number);
    case UTECRule::Boost:
      return store_.Set(column, row_, RoundToLong(number));
    case UTECRule::Time:
      return SetTime(number);
    case UTECRule::GaugeMAP:
      return SetGaugeMAP(number);
    case UTECRule::MAP:
      return SetMAP(number);
    case UTECRule::AirTemp:
      return SetAirTemp(number);
    case UTECRule::WastegateDuty:
      return SetFactored(column, number / kFullDuty * 100);
    case UTECRule::InjectorDuty:
      return SetFactored(column, std::min(number, 100.0));
    case UTECRule::ModifiedFuel:
      return store_.Set(column, row_, RoundToLong(factor_[column] * number + noModifiedFuel_));
  }
}

void UTECSamples::SetBoostAndVacuum(std::int32_t boost, std::int32_t vacuum) {
  store_.Set(kBoost, row_, boost);
  store_.Set(kVacuum, row_, vacuum);
}

void UTECSamples::SetGaugeMAP(double psi) {
  if (psi < 0)
    SetBoostAndVacuum(0, RoundToLong(factor_[kVacuum] * std::fabs(psi) / kPsiPerKPa * kInHgPerKPa));
  else
    SetBoostAndVacuum(RoundToLong(factor_[kBoost] * psi), 0);
  SetFactored(kMAP, psi / kPsiPerKPa + context_.settings.gintDefaultAtmosphericPressure);
}

/// Such a log counts from 100 kPa, whatever the atmosphere of the settings: kept on purpose.
void UTECSamples::SetMAP(double psi) {
  constexpr double kCountsFrom = 100;
  SetFactored(kMAP, psi / kPsiPerKPa + kCountsFrom);
  const BoostOrVacuum found = BoostOrVacuumOf(store_(kMAP, row_), atmosphere_);
  SetBoostAndVacuum(found.boost, found.vacuum);
}

void UTECSamples::KeepAirFuel() { store_.Set(kAF, row_, row_ > 0 ? store_(kAF, row_ - 1) : 0); }

void UTECSamples::SetModifiedAdvance(std::string_view text, double number) {
  if (text.find("ECU") != std::string_view::npos)
    store_.Set(kIAdvM, row_, store_(kIAdv, row_));
  else
    SetFactored(kIAdvM, number);
}

void UTECSamples::SetAirTemp(double degrees) {
  SetFactored(kATemp, degrees);
  std::int32_t& lowest = context_.log.glngLowestAirTemp;
  if (degrees < lowest) lowest = RoundToLong(degrees);
}

void UTECSamples::SetTime(double count) {
  constexpr double kMicrosecondsPerCount = 500, kMicroseconds = 1000000;
  if (!firstTime_) firstTime_ = count;
  store_.Set(kSecs, row_, RoundToLong(factor_[kSecs] * (count - *firstTime_) * kMicrosecondsPerCount / kMicroseconds));
}

void UTECSamples::Finish(bool hasTime, bool hasModifiedFuel) {
  constexpr double kSecondsPerLine = 0.2;
  if (!hasTime)
    for (int row = 0; row < store_.Rows(); ++row)
      store_.Set(kSecs, row, RoundToLong(factor_[kSecs] * RoundPlaces((row + 1) * kSecondsPerLine, 4)));
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
