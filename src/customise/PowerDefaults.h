#pragma once

#include "customise/OptionsControls.h"

namespace tarnview {

/// The Power Graph's defaults on the General page: what follows from what.
class PowerDefaults {
 public:
  explicit PowerDefaults(OptionsControls& window);

 private:
  void EnableAutoGearFields();
  void EnableSAE();
  void cboSpeedUnits_Click();
  void cboHumidityType_Click();
  void ReCalculateCorrectionFactor();

  OptionsControls& window_;
};

}  // namespace tarnview
