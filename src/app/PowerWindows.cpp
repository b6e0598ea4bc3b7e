#include "app/PowerWindows.h"

#include "desk/ColourScheme.h"
#include "power/frmCarDefinitionDetails.h"

namespace tarnview {

PowerWindows::PowerWindows(MainWindowControls& controls, Globals& globals, Services& services,
                           const PlotRange& range, SampleGraphWindow& mainWindow)
    : controls_(controls),
      globals_(globals),
      services_(services),
      range_(range),
      mainWindow_(mainWindow) {}

std::vector<Command> PowerWindows::Rows() {
  return {{&controls_.mnuModulesPowerGraph, [this] { Open(); },
           [this] { return globals_.log.gblnSamplesLoaded; }}};
}

frmPowerGraph& PowerWindows::Open() {
  const int number = powerGraphs_.NextNumber();
  const frmPowerGraph::Surroundings around{
      globals_.log,    globals_.settings, globals_.gcolCarDefs, services_.files,
      services_.clock, services_.errors,  services_.messages};
  frmPowerGraph::MainWindow& self = *this;
  frmPowerGraph& window =
      powerGraphs_.Add(std::make_unique<frmPowerGraph>(controls_.host, around, self));
  window.ID = number;
  window.Show();
  return window;
}

void PowerWindows::OpenSpeedGraph(const SpeedGraphInput& input) {
  const int number = speedGraphs_.NextNumber();
  frmSpeedGraph& window = speedGraphs_.Add(std::make_unique<frmSpeedGraph>(
      controls_.host,
      frmSpeedGraph::Surroundings{globals_.settings, services_.errors, services_.messages}, input,
      [this](int ID) { speedGraphs_.Remove(ID); }));
  window.ID = number;
  window.Show();
}

bool PowerWindows::EditCar(clsCarDef& car) {
  frmCarDefinitionDetails window(controls_.host,
                                 {globals_.settings.gstrDefaultWorkingDirectory, services_.files,
                                  services_.clock, services_.errors, services_.messages},
                                 car);
  window.ShowModal();
  if (!window.Accepted()) return false;
  car = window.ColItem();
  return true;
}

void PowerWindows::LogIsClosing() {
  powerGraphs_.ForEach([](frmPowerGraph& window) { window.LogIsClosing(); });
}

void PowerWindows::LogIsOpen() {
  powerGraphs_.ForEach([](frmPowerGraph& window) { window.LogIsOpen(); });
}

void PowerWindows::CarsChanged() {
  powerGraphs_.ForEach([](frmPowerGraph& window) { window.ListCars(); });
}

void PowerWindows::OptionsChanged() {
  const int scheme = globals_.settings.gintGraphColourScheme;
  powerGraphs_.ForEach(
      [=](frmPowerGraph& window) { TakeColourScheme(window.chPowerGraph, scheme); });
  speedGraphs_.ForEach(
      [=](frmSpeedGraph& window) { TakeColourScheme(window.chSpeedGraph, scheme); });
}

void PowerWindows::RecentPowerFilesChanged() {
  powerGraphs_.ForEach([](frmPowerGraph& window) { window.ListRecentFiles(); });
}

void PowerWindows::UnloadAll() {
  powerGraphs_.UnloadAll();
  speedGraphs_.UnloadAll();
}

}  // namespace tarnview
