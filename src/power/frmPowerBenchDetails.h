#pragma once

#include "power/PowerFile.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Shows what a saved power graph was worked out with. Nothing in it can be changed.
class frmPowerBenchDetails : public Form {
 public:
  frmPowerBenchDetails(Host& itsHost, const PowerFile& graph);

  Frame fraDataLog{*this, "fraDataLog", "Data Log Details"};
  Label lblFile{*this, "lblFile", "File"};
  TextBox txtFile{*this, "txtFile"};
  Label lblPlotFrom{*this, "lblPlotFrom", "Plot Range From"};
  TextBox txtPlotFrom{*this, "txtPlotFrom"};
  Label lblPlotTo{*this, "lblPlotTo", "To"};
  TextBox txtPlotTo{*this, "txtPlotTo"};
  Label lblComments{*this, "lblComments", "Comments"};
  TextBox txtComments{*this, "txtComments"};

  Frame fraGearRatios{*this, "fraGearRatios", "Gear Ratios"};
  ControlArray<Label> lblGears{*this, "lblGears", UpTo(kGears + 1), ""};
  Label lblGearRatios{*this, "lblGearRatios", "Ratio"};
  ControlArray<TextBox> txtGearRatios{*this, "txtGearRatios", UpTo(kGears + 1),
                                      ""};  ///< the last is the final drive
  Label lblGearLosses{*this, "lblGearLosses", "Loss (%)"};
  ControlArray<TextBox> txtGearLosses{*this, "txtGearLosses", UpTo(kGears), ""};
  Label lblWheelRadius{*this, "lblWheelRadius", "Drive Wheel"};
  TextBox txtWheelRadius{*this, "txtWheelRadius"};

  Frame fraAero{*this, "fraAero", "Aero and Friction Loss Characteristics"};
  Label lblSetPointPower{*this, "lblSetPointPower", "Set Point Power"};
  TextBox txtSetPointPower{*this, "txtSetPointPower"};
  Label lblSetPointSpeed{*this, "lblSetPointSpeed", "Set Point Speed"};
  TextBox txtSetPointSpeed{*this, "txtSetPointSpeed"};

  Frame fraOther{*this, "fraOther", "Other Calculation Settings"};
  Label lblDefGear{*this, "lblDefGear", "Gear"};
  TextBox txtDefGear{*this, "txtDefGear"};
  Label lblDefCarWeight{*this, "lblDefCarWeight", "Total Weight"};
  TextBox txtDefCarWeight{*this, "txtDefCarWeight"};
  Label lblDefDynoFactor{*this, "lblDefDynoFactor", "Dyno Factor"};
  TextBox txtDefDynoFactor{*this, "txtDefDynoFactor"};
  Label lblDefSmoothFactor{*this, "lblDefSmoothFactor", "Smoothing Factor"};
  TextBox txtDefSmoothFactor{*this, "txtDefSmoothFactor"};
  Label lblAirTemp{*this, "lblAirTemp", "Air Temperature"};
  TextBox txtAirTemp{*this, "txtAirTemp"};
  Label lblAirPressure{*this, "lblAirPressure", "Atmospheric Pressure"};
  TextBox txtAirPressure{*this, "txtAirPressure"};
  Label lblHumidity{*this, "lblHumidity", "Humidity"};
  TextBox txtHumidity{*this, "txtHumidity"};
  Label lblSAECorrectionFactor{*this, "lblSAECorrectionFactor", "SAE Correction Factor"};
  TextBox txtSAECorrectionFactor{*this, "txtSAECorrectionFactor"};
  Label lblSAESummary{*this, "lblSAESummary", "SAE Correction"};
  TextBox txtSAESummary{*this, "txtSAESummary"};

  CommandButton cmdOK{*this, "cmdOK", "OK"};

 private:
  void ShowDetails(const PowerFile& graph);
  void ShowCar(const PowerFile& graph);
};

}  // namespace tarnview
