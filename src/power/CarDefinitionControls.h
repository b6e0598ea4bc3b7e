#pragma once

#include "power/DriveWheel.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/OptionButton.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"

namespace tarnview {

/// The controls of a car definition's window, in reading order. No behaviour: that is
/// frmCarDefinitionDetails'.
class CarDefinitionControls : public Form {
 public:
  explicit CarDefinitionControls(Host& itsHost)
      : Form(itsHost, "frmCarDefinitionDetails", "Car Definition Details") {}

  TabStrip tabCarDefinition{*this, "tabCarDefinition"};

  Frame fraCarDefinition{*this, "fraCarDefinition"};
  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  Label lblDesc{*this, "lblDesc", "&Description"};
  TextBox txtDesc{*this, "txtDesc"};
  Frame fraUnits{*this, "fraUnits", "Units"};
  ControlArray<OptionButton> optUnits{*this, "optUnits", UpTo(2), "fraUnits", ""};

  Frame fraDriveWheel{*this, "fraDriveWheel", "Drive Wheel"};
  OptionButton optTyreSize{*this, "optTyreSize", "fraDriveWheel", "&Tyre Size"};
  ComboBox cboTyreWidth{*this, "cboTyreWidth"};
  Label lblTyreSlash{*this, "lblTyreSlash", "/"};
  ComboBox cboTyreProfile{*this, "cboTyreProfile"};
  Label lblTyreRim{*this, "lblTyreRim", "R"};
  ComboBox cboWheelDiameter{*this, "cboWheelDiameter"};
  OptionButton optRevsPerMile{*this, "optRevsPerMile", "fraDriveWheel", "&Revs per Mile"};
  TextBox txtTyreRPM{*this, "txtTyreRPM"};
  OptionButton optRadius{*this, "optRadius", "fraDriveWheel", "Drive &Wheel Radius (inches)"};
  TextBox txtWheelRadius{*this, "txtWheelRadius"};

  Frame fraAero{*this, "fraAero", "Aero and Friction Loss Characteristics"};
  OptionButton optAeroSetPoint{*this, "optAeroSetPoint", "fraAero", "Set &Point"};
  Label lblSetPointPower{*this, "lblSetPointPower"};
  TextBox txtSetPointPower{*this, "txtSetPointPower"};
  Label lblSetPointSpeed{*this, "lblSetPointSpeed"};
  TextBox txtSetPointSpeed{*this, "txtSetPointSpeed"};
  OptionButton optAeroCD{*this, "optAeroCD", "fraAero", "Dra&g Coefficient"};
  Label lblCD{*this, "lblCD", "Drag Coefficient"};
  TextBox txtCD{*this, "txtCD"};
  Label lblFrontalArea{*this, "lblFrontalArea"};
  TextBox txtFrontalArea{*this, "txtFrontalArea"};

  Frame fraGearRatios{*this, "fraGearRatios"};
  Label lblGearRatios{*this, "lblGearRatios", "Ratio"};
  Label lblGearLosses{*this, "lblGearLosses", "Relative Loss (%)"};
  ControlArray<Label> lblGears{*this, "lblGears", UpTo(kGears + 1), ""};
  ControlArray<TextBox> txtGearRatios{*this, "txtGearRatios", UpTo(kGears + 1),
                                      ""};  ///< the last is the diff's
  ControlArray<TextBox> txtGearLosses{*this, "txtGearLosses", UpTo(kGears), ""};

  Frame fraDefaults{*this, "fraDefaults"};
  Label lblDefGear{*this, "lblDefGear", "Default &Gear"};
  ComboBox cboDefGear{*this, "cboDefGear"};
  Label lblCarWeight{*this, "lblCarWeight"};
  TextBox txtCarWeight{*this, "txtCarWeight"};
  Label lblCarContentsWeight{*this, "lblCarContentsWeight"};
  TextBox txtCarContentsWeight{*this, "txtCarContentsWeight"};
  Label lblTotalWeight{*this, "lblTotalWeight"};
  TextBox txtTotalWeight{*this, "txtTotalWeight"};
  Label lblSmoothFactor{*this, "lblSmoothFactor", "&Smoothing Factor"};
  TextBox txtSmoothFactor{*this, "txtSmoothFactor"};
  Label lblDynoFactor{*this, "lblDynoFactor", "D&yno Factor (%)"};
  TextBox txtDynoFactor{*this, "txtDynoFactor"};

  CommandButton cmdSave{*this, "cmdSave", "&Save..."};
  CommandButton cmdLoad{*this, "cmdLoad", "&Load..."};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
};

}  // namespace tarnview
