#include "base/Numbers.h"
#include "power/SavedRun.h"
#include "support/Table.h"

namespace tarnview {
namespace {

PowerCurves SmallCurves(bool imperial) {
  PowerCurves curves;
  curves.imperial = imperial;
  curves.points = {{6480, 141.24, 114.4}};
  curves.speed = {{0, 20}, {0.08, 20.5}};
  return curves;
}

/// What is written of the run, on one line.
std::string Told(const PowerFile& f) {
  const std::string text = Join(SplitAt(PowerFileText(f, {}), "\r\n"), "; ");
  return text.substr(text.find("File="));
}

TEST(SavedRun, TellsTheRunInWords) {
  PowerRun run;
  run.gear = 2;
  run.contentsWeight = 180;
  run.smoothing = 7;
  const auto told = [&](const TableRow& row) {
    const bool metric = row.All() == "metric";
    if (metric) {
      run.corrected = run.car.blnUseCD = true;
      run.car.blnImperialUnits = false;
      run.car.lngTyreSizeMethod = kTyreRadius;
      run.car.dblDriveWheelRadius = 290.5;
      run.air.humidityType = HumidityType::WetBulb;
      run.air.humidity = "15";
    }
    return Told(SavedRun(run, SmallCurves(!metric), {"/logs/a.txt", "12", "90", "wet"}, "0.980"));
  };
  ExpectTable(told, R"(
imperial -> File=/logs/a.txt; Plot Range From=12; Plot Range To=90; Comments=wet; ; Calculation Parameters:; ; 1st Gear Ratio=3.136; 2nd Gear Ratio=1.888; 3rd Gear Ratio=1.330; 4th Gear Ratio=1.000; 5th Gear Ratio=0.814; 6th Gear Ratio=0.814; Diff Ratio=4.100; 1st Gear Relative Loss=15; 2nd Gear Relative Loss=10; 3rd Gear Relative Loss=7; 4th Gear Relative Loss=0; 5th Gear Relative Loss=3; 6th Gear Relative Loss=6; Drive Wheel Dimensions=Tyre size 185/60 R14; Set Point Power=100 hp; Set Point Speed=115 mph; Gear=3rd; Car Weight=2600 lb; Smoothing Factor=7; Dyno Factor=0; Calculation Units=Imperial; Air Temperature=20 'C; Atmospheric Pressure=101 kPa; Relative Humidity=50 %; ; Graph Power & Torque Data (RPM, Power, Torque):; ; 6480,141.2,114.4; ; Graph Speed Data (Time, Speed):; ; 000.08,045.86; 
metric -> File=/logs/a.txt; Plot Range From=12; Plot Range To=90; Comments=wet; ; Calculation Parameters:; ; 1st Gear Ratio=3.136; 2nd Gear Ratio=1.888; 3rd Gear Ratio=1.330; 4th Gear Ratio=1.000; 5th Gear Ratio=0.814; 6th Gear Ratio=0.814; Diff Ratio=4.100; 1st Gear Relative Loss=15; 2nd Gear Relative Loss=10; 3rd Gear Relative Loss=7; 4th Gear Relative Loss=0; 5th Gear Relative Loss=3; 6th Gear Relative Loss=6; Drive Wheel Dimensions=290.5 mm drive wheel radius; Drag Coefficient=0.4; Frontal Area=2 m2; Gear=3rd; Car Weight=2600 kg; Smoothing Factor=7; Dyno Factor=0; Calculation Units=Metric; Air Temperature=20 'C; Atmospheric Pressure=101 kPa; Wet Bulb Air Temperature=15 'C WB; SAE Correction Factor=0.980; ; Graph Power & Torque Data (RPM, Power, Torque):; ; 6480,141.2,114.4; ; Graph Speed Data (Time, Speed):; ; 000.08,073.80; 
)");
}

TEST(SavedRun, TyresByTheirRevolutionsAndRadiusInInches) {
  const auto wheel = [](const TableRow& row) {
    PowerRun run;
    run.car.lngTyreSizeMethod = row.Int(0);
    run.car.blnImperialUnits = row.Text(1) == "imperial";
    return SavedRun(run, {}, {}, "").driveWheel;
  };
  ExpectTable(wheel, R"(
2, imperial -> 887 Revolutions per Mile  | 2, metric -> 887 Revolutions per Km  | 3, imperial -> 11.5 in drive wheel radius
)");
}

TEST(SavedRun, DragOfASavedGraphByItsOwnTexts) {
  const auto drag = [](const TableRow& row) {
    PowerFile f;
    f.usesDrag = row.Text(0) == "drag";
    (f.usesDrag ? f.dragCoefficient : f.setPointPower) = row.Text(1);
    (f.usesDrag ? f.frontalArea : f.setPointSpeed) = row.Text(2);
    const auto k = DragOf(f, {30, 98, "", {}});
    return k ? FixedText(*k, 6) : "none";
  };
  ExpectTable(drag, R"(
point, 100 hp, 115 mph -> 0.548822 | point, 75 kW, 180 kmh -> 0.599986 | drag, 0.36, 1.9 m2 -> 0.385156 | drag, 0.36, 1.9 ft2 -> 0.035782 | point, x, y -> none | point, 100 hp, 0 mph -> none | point, some, 115 mph -> none
)");
}

}  // namespace
}  // namespace tarnview
