#include "customise/PowerDefaults.h"

#include "base/Numbers.h"
#include "power/Air.h"

namespace tarnview {
namespace {

struct SpeedUnit {
  const char* name;
  const char* factor;  ///< to metres per second; "" where the user says
};
constexpr SpeedUnit kSpeedUnits[] = {{"MPH", "0.44704"}, {"KPH", "0.27778"}, {"Other", ""}};

/// In the order of HumidityType.
struct Humidity {
  const char* name;
  const char* caption;
  const char* toolTip;
};
constexpr Humidity kHumidities[] = {
    {"Rel. Humidity", "Relati&ve Humidity (%)",
     "Default environmental relative humidity during Power Runs"},
    {"Wet Bulb", "Wet &Bulb Temp ('C)",
     "Default environmental wet bulb temperature during Power Runs"},
};

template <class Rows>
std::vector<std::string> Names(const Rows& rows) {
  std::vector<std::string> names;
  for (const auto& row : rows) names.emplace_back(row.name);
  return names;
}

}  // namespace

PowerDefaults::PowerDefaults(OptionsControls& window) : window_(window) {
  window_.cboSpeedUnits.SetList(Names(kSpeedUnits));
  window_.cboHumidityType.SetList(Names(kHumidities));
  window_.txtCorrFactor.ReadOnly = true;
  window_.chkPowerGraphGearSelection.Click = [this] { EnableAutoGearFields(); };
  window_.chkSAE.Click = [this] { EnableSAE(); };
  window_.cboSpeedUnits.Click = [this] { cboSpeedUnits_Click(); };
  window_.cboHumidityType.Click = [this] { cboHumidityType_Click(); };
  for (TextBox* field : {&window_.txtAmbTemp, &window_.txtAtmos, &window_.txtRH})
    field->Change = [this] { ReCalculateCorrectionFactor(); };
  EnableAutoGearFields();
  EnableSAE();
}

void PowerDefaults::EnableAutoGearFields() {
  const bool on = window_.chkPowerGraphGearSelection.Value;
  for (Control* follower :
       std::initializer_list<Control*>{&window_.lblSpeedUnits, &window_.cboSpeedUnits,
                                       &window_.lblmsConvFactor, &window_.txtmsConvFactor})
    follower->Enabled = on;
}

void PowerDefaults::EnableSAE() {
  const bool on = window_.chkSAE.Value;
  for (Control* follower : std::initializer_list<Control*>{
           &window_.lblHumidityType, &window_.cboHumidityType, &window_.lblAmbTemp,
           &window_.txtAmbTemp, &window_.lblAtmos, &window_.txtAtmos, &window_.lblRH,
           &window_.txtRH, &window_.lblCorrFactor, &window_.txtCorrFactor})
    follower->Enabled = on;
}

void PowerDefaults::cboSpeedUnits_Click() {
  const int unit = window_.cboSpeedUnits.ListIndex();
  if (unit >= 0 && *kSpeedUnits[unit].factor)
    window_.txtmsConvFactor.Text = std::string(kSpeedUnits[unit].factor);
}

void PowerDefaults::cboHumidityType_Click() {
  const int type = window_.cboHumidityType.ListIndex();
  if (type < 0) return;
  window_.lblRH.Caption = std::string(kHumidities[type].caption);
  window_.txtRH.ToolTip = std::string(kHumidities[type].toolTip);
  ReCalculateCorrectionFactor();
}

void PowerDefaults::ReCalculateCorrectionFactor() {
  const int type = window_.cboHumidityType.ListIndex();
  if (type < 0) return;
  window_.txtCorrFactor.Text = CorrectionFactor(
      {StringToLong(window_.txtAmbTemp.Text()), StringToLong(window_.txtAtmos.Text()),
       window_.txtRH.Text(), static_cast<HumidityType>(type)});
}

}  // namespace tarnview
