#include "power/RunFields.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Units.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "model/clsFileTypes.h"
#include "power/DriveWheel.h"
#include "power/SavedRun.h"

namespace tarnview {
namespace {

/// Unit of road speed that the settings name.
enum GearSpeedUnits { kMph = 1, kKmh = 2, kByFactor = 3 };

}  // namespace

RunFields::RunFields(PowerGraphControls& window, const OpenLog& log, const Settings& settings,
                     const clsCarDefs& cars, std::function<double()> speedFactor)
    : w_(window),
      log_(log),
      settings_(settings),
      cars_(cars),
      speedFactor_(std::move(speedFactor)) {
  Bind();
  BindArrows();
}

void RunFields::Bind() {
  const auto gear = [this] {
    if (settings_.gblnAutoGearSelection) SetPowerRunGear();
  };
  w_.txtPlotRangeFrom.Change = gear;
  w_.txtPlotRangeTo.Change = gear;
  w_.cboCarDefs.Click = [this, gear] {
    TakeCar();
    gear();
  };
  for (TextBox* field : {&w_.txtAmbTemp, &w_.txtAtmos, &w_.txtRH})
    field->Change = [this] { ReCalculateCorrectionFactor(); };
  w_.cboHumidityType.Click = [this] { HumidityTypeChosen(); };
}

void RunFields::BindArrows() {
  const struct {
    UpDown& arrows;
    TextBox& field;
    int least, most;
  } kRows[] = {
      {w_.updPlotRangeFrom, w_.txtPlotRangeFrom, 0, kMostSamples * 10},
      {w_.updPlotRangeTo, w_.txtPlotRangeTo, 0, kMostSamples * 10},
      {w_.updWeight, w_.txtWeight, 0, 9999},
      {w_.updSmoothFactor, w_.txtSmoothFactor, 0, 50},
      {w_.updAmbTemp, w_.txtAmbTemp, -30, 60},
      {w_.updAtmos, w_.txtAtmos, 75, 115},
      {w_.updRH, w_.txtRH, -30, 100},
  };
  for (const auto& row : kRows) {
    row.arrows.Min = row.least;
    row.arrows.Max = row.most;
    const auto step = [&arrows = row.arrows, &field = row.field](int by) {
      field.Text =
          std::to_string(std::clamp(StringToLong(field.Text()) + by, arrows.Min, arrows.Max));
    };
    row.arrows.UpClick = [step] { step(1); };
    row.arrows.DownClick = [step] { step(-1); };
  }
}

void RunFields::Load() {
  std::vector<std::string> gears;
  for (int gear = 0; gear < kGears; ++gear) gears.emplace_back(GearName(gear));
  w_.cboGear.SetList(std::move(gears));
  w_.cboUnits.SetList({"Imperial", "Metric"});
  w_.cboUnits.SetListIndex(0);
  w_.cboHumidityType.SetList({"Rel. Humidity", "Wet Bulb"});
  w_.cboBenchMarkAction.SetList({"Hide", "Show", "Average"});
  w_.cboBenchMarkAction.SetListIndex(0);
  w_.chkSAE.Value = settings_.gblnSAECorrection;
  w_.txtAmbTemp.Text = std::to_string(settings_.gintAmbientTemp);
  w_.txtAtmos.Text = std::to_string(settings_.gintDefaultAtmosphericPressure);
  w_.txtRH.Text = std::to_string(settings_.gintRelativeHumidity);
  w_.cboHumidityType.SetListIndex(settings_.gintHumidityType);
  ListCars();
}

void RunFields::ListCars() {
  const std::string chosen = w_.cboCarDefs.Text();
  std::vector<std::string> names;
  for (const clsCarDef& car : cars_) names.push_back(car.strName);
  w_.cboCarDefs.SetList(std::move(names));
  if (!w_.cboCarDefs.Choose(chosen)) w_.cboCarDefs.SetListIndex(0);
}

const clsCarDef* RunFields::Car() const {
  const int place = w_.cboCarDefs.ListIndex();
  if (place >= 0 && place < cars_.Count()) return &cars_.Item(place + 1);
  return nullptr;
}

void RunFields::TakeCar() {
  const clsCarDef* car = Car();
  if (!car) return;
  w_.txtWeight.Text = std::to_string(car->lngCarContentsWeight);
  w_.txtSmoothFactor.Text = std::to_string(car->lngSmoothingFactor);
  w_.cboGear.SetListIndex(car->lngPowerRunGear);
  w_.lblWeight.Caption =
      std::string(car->blnImperialUnits ? "Contents &Weight (lb)" : "Contents &Weight (kg)");
}

Air RunFields::AirNow() const {
  return {StringToLong(w_.txtAmbTemp.Text()), StringToLong(w_.txtAtmos.Text()), w_.txtRH.Text(),
          static_cast<HumidityType>(std::max(w_.cboHumidityType.ListIndex(), 0))};
}

void RunFields::ReCalculateCorrectionFactor() {
  if (w_.cboHumidityType.ListIndex() >= 0) w_.txtCorrFactor.Text = CorrectionFactor(AirNow());
}

void RunFields::HumidityTypeChosen() {
  const bool wetBulb = AirNow().humidityType == HumidityType::WetBulb;
  w_.lblRH.Caption = std::string(wetBulb ? "'C" : "%");
  ReCalculateCorrectionFactor();
}

PowerRun RunFields::Run() const {
  PowerRun run;
  run.car = *Car();
  run.gear = std::max(w_.cboGear.ListIndex(), 0);
  run.contentsWeight = StringToLong(w_.txtWeight.Text());
  run.smoothing = StringToLong(w_.txtSmoothFactor.Text());
  run.imperial = w_.cboUnits.ListIndex() == 0;
  run.corrected = w_.chkSAE.Value;
  run.correction = StringToDouble(w_.txtCorrFactor.Text());
  run.air = AirNow();
  return run;
}

SampleRange RunFields::Range() const {
  return {StringToLong(w_.txtPlotRangeFrom.Text()), StringToLong(w_.txtPlotRangeTo.Text())};
}

void RunFields::SetRange(const SampleRange& range) {
  w_.txtPlotRangeFrom.Text = std::to_string(range.from);
  w_.txtPlotRangeTo.Text = std::to_string(range.to);
}

BenchmarkAction RunFields::Action() const {
  return static_cast<BenchmarkAction>(std::max(w_.cboBenchMarkAction.ListIndex(), 0));
}

double RunFields::SpeedAt(std::int32_t row) const {
  const double speed =
      log_.gcolDataItems->Item(ItemOf(kSpeed)).GetRawData(log_.glngDataLog(kSpeed, row));
  if (log_.gintCurrentFileType == kLinkPlusLog) return speed * kMetresPerSecondInKmh;
  const double factor = speedFactor_();
  if (log_.gintCurrentFileType == kUniversalLog && factor > 0) return speed * factor;
  switch (settings_.gintGearSpeedUnits) {
    case kMph:
      return speed * kMetresPerSecondInMph;
    case kKmh:
      return speed * kMetresPerSecondInKmh;
    default:
      return speed * settings_.gdblGearSpeedConvFactor;
  }
}

void RunFields::SetPowerRunGear() {
  const clsCarDef* car = Car();
  const std::int64_t sample = Range().from + 1;
  if (!car || !log_.gblnSamplesLoaded) return;
  if (sample < log_.glngFirstSampleTime || sample > log_.glngLastSampleTime) return;
  const auto wanted = static_cast<std::int32_t>(sample);
  const std::int32_t row = LocateSample(log_, wanted - log_.glngFirstSampleTime, wanted);
  const double speed = SpeedAt(row);
  if (speed <= 0 || !(DriveWheelCircumference(*car) > 0)) return;
  const double rpm = log_.gcolDataItems->Item(ItemOf(kRPM)).GetRawData(log_.glngDataLog(kRPM, row));
  w_.cboGear.SetListIndex(GearOfSpeed(*car, speed, rpm));
}

}  // namespace tarnview
