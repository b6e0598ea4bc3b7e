#include "power/frmPowerBenchDetails.h"
#include "support/Table.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

/// Each field of the window, with a text that tells where it comes from.
std::string Told(const TableRow& row) {
  PowerFile f{"file",      "from",     "to",
              "comments",  {},         "final",
              {},          "wheel",    row.All() == "drag",
              "power",     "speed",    "drag",
              "area",      "gear",     "weight",
              "smoothing", "dyno",     "Metric",
              "temp",      "pressure", "humidity",
              false,       "factor",   "summary",
              {},          {}};
  for (std::size_t gear = 0; gear < kGears; ++gear) {
    f.gearRatios[gear] = "r" + std::to_string(gear + 1);
    f.gearLosses[gear] = "l" + std::to_string(gear + 1);
  }
  RecordingHost host;
  const frmPowerBenchDetails window(host, f);
  std::string told;
  for (const Control* control : window.Controls())
    if (const auto* field = dynamic_cast<const TextBox*>(control))
      told += control->FullName() + "=" + field->Text() + (field->ReadOnly() ? "" : "!") +
              (field->HoldsPath ? " (a path) " : " ");
  for (int gear = 0; gear <= kGears; ++gear) told += window.lblGears(gear).Caption() + " ";
  return told + window.lblSetPointPower.Caption() + " " + window.lblSetPointSpeed.Caption();
}

TEST(PowerBenchDetails, EachFieldHasItsPlace) {
  ExpectTable(Told, R"(
set point -> txtFile=file (a path) txtPlotFrom=from txtPlotTo=to txtComments=comments txtGearRatios(0)=r1 txtGearRatios(1)=r2 txtGearRatios(2)=r3 txtGearRatios(3)=r4 txtGearRatios(4)=r5 txtGearRatios(5)=r6 txtGearRatios(6)=final txtGearLosses(0)=l1 txtGearLosses(1)=l2 txtGearLosses(2)=l3 txtGearLosses(3)=l4 txtGearLosses(4)=l5 txtGearLosses(5)=l6 txtWheelRadius=wheel txtSetPointPower=power txtSetPointSpeed=speed txtDefGear=gear txtDefCarWeight=weight txtDefDynoFactor=dyno txtDefSmoothFactor=smoothing txtAirTemp=temp txtAirPressure=pressure txtHumidity=humidity txtSAECorrectionFactor=factor txtSAESummary=summary 1st 2nd 3rd 4th 5th 6th Final Drive Set Point Power Set Point Speed
drag -> txtFile=file (a path) txtPlotFrom=from txtPlotTo=to txtComments=comments txtGearRatios(0)=r1 txtGearRatios(1)=r2 txtGearRatios(2)=r3 txtGearRatios(3)=r4 txtGearRatios(4)=r5 txtGearRatios(5)=r6 txtGearRatios(6)=final txtGearLosses(0)=l1 txtGearLosses(1)=l2 txtGearLosses(2)=l3 txtGearLosses(3)=l4 txtGearLosses(4)=l5 txtGearLosses(5)=l6 txtWheelRadius=wheel txtSetPointPower=drag txtSetPointSpeed=area txtDefGear=gear txtDefCarWeight=weight txtDefDynoFactor=dyno txtDefSmoothFactor=smoothing txtAirTemp=temp txtAirPressure=pressure txtHumidity=humidity txtSAECorrectionFactor=factor txtSAESummary=summary 1st 2nd 3rd 4th 5th 6th Final Drive Drag Coefficient Frontal Area
)");
}

}  // namespace
}  // namespace tarnview
