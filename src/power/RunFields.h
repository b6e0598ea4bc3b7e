#pragma once

#include <functional>

#include "model/OpenLog.h"
#include "model/Settings.h"
#include "power/PowerGraphControls.h"
#include "power/PowerRun.h"
#include "power/RunRange.h"

namespace tarnview {

/// What is done with a benchmark, in the order of the list.
enum class BenchmarkAction : int { Hide, Show, Average };

/// The fields of a power graph window that say what is worked out, and how they hang together: a
/// car brings its weight, smoothing and gear, the air its correction, a range the gear that the
/// road speed tells of.
class RunFields {
 public:
  /// `speedFactor` gives the metres per second in one unit of a Universal log's speed; 0 where it
  /// is not known.
  RunFields(PowerGraphControls& window, const OpenLog& log, const Settings& settings,
            const clsCarDefs& cars, std::function<double()> speedFactor);

  /// Fills the lists in, takes the settings and chooses the first car.
  void Load();
  /// Lists the cars anew; the chosen one stays chosen, as long as there is one of its name.
  void ListCars();

  /// nullptr for none.
  const clsCarDef* Car() const;
  /// All but the samples; a car must be chosen.
  PowerRun Run() const;
  SampleRange Range() const;
  void SetRange(const SampleRange& range);
  BenchmarkAction Action() const;

  /// Proposes the gear that explains the road speed behind the start of the range, where the log
  /// tells it.
  void SetPowerRunGear();

 private:
  void Bind();
  void BindArrows();
  void TakeCar();
  void ReCalculateCorrectionFactor();
  void HumidityTypeChosen();
  Air AirNow() const;
  /// Metres per second; 0 where the log does not tell.
  double SpeedAt(std::int32_t row) const;

  PowerGraphControls& w_;
  const OpenLog& log_;
  const Settings& settings_;
  const clsCarDefs& cars_;
  std::function<double()> speedFactor_;
};

}  // namespace tarnview
