#include "power/CarDefSettings.h"
#include "power/CarTold.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Read(const std::string& lines) {
  clsCarDefs cars;
  ReadCarDefs(ReadINIFileToArray("[Power Graph]\n" + lines), cars);
  std::vector<std::string> told;
  for (int n = 1; n <= cars.Count(); ++n) told.push_back(std::to_string(n) + CarTold(cars.Item(n)));
  return Join(told, "; ");
}

TEST(CarDefSettings, AreReadWhileTheyHaveUnitsAndHeldToTheirLimits) {
  const auto told = [](const TableRow& row) { return Read(row.Lines()); };
  ExpectTable(told, R"(
Units Car Def 1=M; Name Car Def 1=One; Drag Coefficient Car Def 1=7; Frontal Area Car Def 1=0; Default Gear Car Def 1=6; Tyre Size Method Car Def 1=9; Use Drag Coefficient Car Def 1=Y -> 1 Name=One, Units=M, Tyre Size Method=3, Use Drag Coefficient=Y, Drag Coefficient=0.99, Frontal Area=0.01, Default Gear=6,
Units Car Def 1=m; Default Gear Car Def 1=0; Tyre Size Method Car Def 1=2; Units Car Def 2=I; Units Car Def 4=M -> 1 Tyre Size Method=2, Default Gear=1,; 2
# The one car of an old file; an empty file still has a car that drives.
Units=M; Gear Ratio 0=3.5; Gear Ratio 5=0.7; Gear Ratio 6=3.9; Gear Loss 0=20; Gear Loss 5=4; Drive Wheel Radius=290; Set Point Power=75; Set Point Speed=180; Use Drag Coefficient=Y; Default Gear=2; Default Car Weight=1100; Default Dyno Factor=5 -> 1 Name=Original, Description=QVX original power graph settings, Units=M, 1st Gear Ratio=3.500, 6th Gear Ratio=0.700, Diff Ratio=3.900, 1st Gear Relative Loss=20, 6th Gear Relative Loss=4, Drive Wheel Radius=290.00, Tyre Size Method=3, Set Point Power=75, Set Point Speed=180, Use Drag Coefficient=Y, Default Gear=3, Car Weight=1100, Car Contents Weight=0, Smoothing Factor=6, Dyno Factor=5,
Name=empty -> 1 Name=Original, Description=QVX original power graph settings, Tyre Size Method=3, Car Contents Weight=0, Smoothing Factor=6,
)");
}

TEST(CarDefSettings, AreWrittenInTheOrderOfTheirTable) {
  const auto written = [](const TableRow& row) {
    clsCarDefs cars;
    ReadCarDefs(ReadINIFileToArray("[Power Graph]\n" + row.Lines()), cars);
    IniWriter file;
    WriteCarDefs(cars, file);
    return Join(SplitAt(file.Text(), "\r\n"), "; ");
  };
  ExpectTable(written, R"(
Units Car Def 1=M; Description Car Def 1=Mine -> Name Car Def 1=New; Description Car Def 1=Mine; Units Car Def 1=M; 1st Gear Ratio Car Def 1=3.136; 2nd Gear Ratio Car Def 1=1.888; 3rd Gear Ratio Car Def 1=1.33; 4th Gear Ratio Car Def 1=1; 5th Gear Ratio Car Def 1=0.814; 6th Gear Ratio Car Def 1=0.814; Diff Ratio Car Def 1=4.1; 1st Gear Relative Loss Car Def 1=15; 2nd Gear Relative Loss Car Def 1=10; 3rd Gear Relative Loss Car Def 1=7; 4th Gear Relative Loss Car Def 1=0; 5th Gear Relative Loss Car Def 1=3; 6th Gear Relative Loss Car Def 1=6; Drive Wheel Radius Car Def 1=11.5; Tyre Width Car Def 1=185; Tyre Profile Car Def 1=60; Wheel Diameter Car Def 1=14; Tyre RPM Car Def 1=887; Tyre Size Method Car Def 1=1; Set Point Power Car Def 1=100; Set Point Speed Car Def 1=115; Use Drag Coefficient Car Def 1=N; Drag Coefficient Car Def 1=0.4; Frontal Area Car Def 1=2; Default Gear Car Def 1=4; Car Weight Car Def 1=2420; Car Contents Weight Car Def 1=180; Smoothing Factor Car Def 1=7; Dyno Factor Car Def 1=0; 
)");
}

}  // namespace
}  // namespace tarnview
