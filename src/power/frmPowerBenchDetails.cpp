#include "power/frmPowerBenchDetails.h"

#include "power/SavedRun.h"

namespace tarnview {

frmPowerBenchDetails::frmPowerBenchDetails(Host& itsHost, const PowerFile& graph)
    : Form(itsHost, "frmPowerBenchDetails", "Power Graph Benchmark Details") {
  DefaultButton = &cmdOK;
  CancelButton = &cmdOK;
  HelpTopic = "PowerBenchDetails";
  txtFile.HoldsPath = true;
  for (Control* control : Controls())
    if (auto* field = dynamic_cast<TextBox*>(control)) field->ReadOnly = true;
  cmdOK.Click = [this] { Unload(); };
  ShowDetails(graph);
  ShowCar(graph);
}

void frmPowerBenchDetails::ShowDetails(const PowerFile& graph) {
  const struct {
    TextBox& field;
    const std::string& text;
  } kRows[] = {
      {txtFile, graph.file},
      {txtPlotFrom, graph.plotFrom},
      {txtPlotTo, graph.plotTo},
      {txtComments, graph.comments},
      {txtWheelRadius, graph.driveWheel},
      {txtDefGear, graph.gear},
      {txtDefCarWeight, graph.carWeight},
      {txtDefDynoFactor, graph.dyno},
      {txtDefSmoothFactor, graph.smoothing},
      {txtAirTemp, graph.temperature},
      {txtAirPressure, graph.pressure},
      {txtHumidity, graph.humidity},
      {txtSAECorrectionFactor, graph.correctionFactor},
      {txtSAESummary, graph.correctionSummary},
  };
  for (const auto& row : kRows) row.field.Text = row.text;
}

void frmPowerBenchDetails::ShowCar(const PowerFile& graph) {
  for (int gear = 0; gear < kGears; ++gear) {
    const auto place = static_cast<std::size_t>(gear);
    lblGears(gear).Caption = std::string(GearName(gear));
    txtGearRatios(gear).Text = graph.gearRatios[place];
    txtGearLosses(gear).Text = graph.gearLosses[place];
  }
  lblGears(kGears).Caption = std::string("Final Drive");
  txtGearRatios(kGears).Text = graph.finalDrive;
  if (graph.usesDrag) {
    txtSetPointPower.Text = graph.dragCoefficient;
    txtSetPointSpeed.Text = graph.frontalArea;
  } else {
    txtSetPointPower.Text = graph.setPointPower;
    txtSetPointSpeed.Text = graph.setPointSpeed;
  }
  if (!graph.usesDrag) return;
  lblSetPointPower.Caption = std::string("Drag Coefficient");
  lblSetPointSpeed.Caption = std::string("Frontal Area");
}

}  // namespace tarnview
