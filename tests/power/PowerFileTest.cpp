#include "base/FileSystem.h"
#include "base/Numbers.h"
#include "power/PowerFile.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// The one that is shipped.
std::string File() {
  return std::string(RealFileSystem().Read(TARNVIEW_EXAMPLES "/turbo.pow").value_or(""));
}

std::string Rows(const PowerFile& f) {
  std::string text;
  for (const PowerPoint& p : f.points)
    text += NumberText(p.rpm) + "," + NumberText(p.power) + "," + NumberText(p.torque) + " ";
  text += "/ ";
  for (const SpeedPoint& p : f.speed)
    text += NumberText(p.seconds) + "," + NumberText(p.speed) + " ";
  return text;
}

/// What is written of it, on one line.
std::string Told(const PowerFile& f) { return Join(SplitAt(PowerFileText(f, {}), "\r\n"), "; "); }

TEST(PowerFile, IsWrittenAsItWasRead) {
  const PowerFile f = ReadPowerFile(File());
  EXPECT_EQ(PowerFileText(f, {2026, 11, 25, 4, 14, 9}), File());
  EXPECT_FALSE(f.points.empty() || f.speed.empty());
}

TEST(PowerFile, TheKeysOfTheEarlierGenerationAreSynonyms) {
  const auto told = [](const TableRow& row) { return Told(ReadPowerFile(row.Lines())); };
  ExpectTable(told, R"(
# It has neither log details nor speeds.
Calculation Parameters:; Gear Ratio 1=3.1; Gear Ratio 2=2; Gear Ratio 3=1.5; Gear Ratio 4=1.1; Gear Ratio 5=0.9; Gear Ratio 6=0.8; Final Drive=4.3; Gear Loss 1=9; Gear Loss 2=8; Gear Loss 3=7; Gear Loss 4=6; Gear Loss 5=5; Gear Loss 6=4; Drive Wheel Radius=11.5 in; Known Set Point Power=75 kW; Known Set Point Speed=180 kmh; Gear=4th; Car Weight=1200 kg; Graph Smoothing Factor=6; Dyno Correction Factor=2; Power Units=kW; SAE Correction=On; Air Temperature=20; Graph Data (RPM, Power, Torque):; 3000,050.0,100.0 -> Tarnview Power Graph File; File Created: 01-Jan-2000 00:00; ; Data Log Details:; ; File=; Plot Range From=; Plot Range To=; Comments=; ; Calculation Parameters:; ; 1st Gear Ratio=3.1; 2nd Gear Ratio=2; 3rd Gear Ratio=1.5; 4th Gear Ratio=1.1; 5th Gear Ratio=0.9; 6th Gear Ratio=0.8; Diff Ratio=4.3; 1st Gear Relative Loss=9; 2nd Gear Relative Loss=8; 3rd Gear Relative Loss=7; 4th Gear Relative Loss=6; 5th Gear Relative Loss=5; 6th Gear Relative Loss=4; Drive Wheel Dimensions=11.5 in drive wheel radius; Set Point Power=75 kW; Set Point Speed=180 kmh; Gear=4th; Car Weight=1200 kg; Smoothing Factor=6; Dyno Factor=2; Calculation Units=Metric; Air Temperature=20; Atmospheric Pressure=N/A; Relative Humidity=N/A; ; Graph Power & Torque Data (RPM, Power, Torque):; ; 3000,050.0,100.0; ; Graph Speed Data (Time, Speed):; ; 
)");
}

TEST(PowerFile, EachAttributeByItself) {
  const auto told = [](const TableRow& row) {
    const PowerFile f = ReadPowerFile("Calculation Parameters:\n" + row.Lines());
    return "units " + f.units + ", gear " + f.gear + ", file " + f.file +
           (f.usesDrag ? ", drag" : "") + ", humidity " + f.humidity + (f.wetBulb ? " wet" : "") +
           ", correction " + f.correctionSummary;
  };
  ExpectTable(told, R"(
Power Units=hp -> units Imperial, gear , file , humidity N/A, correction N/A
Torque Units=lb ft -> units Imperial, gear , file , humidity N/A, correction N/A
Torque Units=Nm -> units Metric, gear , file , humidity N/A, correction N/A
Calculation Units=hp -> units hp, gear , file , humidity N/A, correction N/A
Frontal Area=2 m2 -> units , gear , file , drag, humidity N/A, correction N/A
Drag Coefficient=0.3; Set Point Power=9 -> units , gear , file , drag, humidity N/A, correction N/A
Wet Bulb Air Temperature=15 'C WB -> units , gear , file , humidity 15 'C WB wet, correction Off
# A correction is one of air that is known.
SAE Correction=On -> units , gear , file , humidity N/A, correction N/A
Relative Humidity=9; SAE Correction Factor=1.1 -> units , gear , file , humidity 9, correction Off
gear=1st;  Gear=1st; Gear =1st; Gear; =1st; File=x -> units , gear , file , humidity N/A, correction N/A
Gear= 1st=2  -> units , gear  1st=2 , file , humidity N/A, correction N/A
)");
}

TEST(PowerFile, FieldsStandAtFixedPlaces) {
  const auto told = [](const TableRow& row) {
    const std::string heading = "Calculation Parameters:\nGraph Data (RPM, Power, Torque):\n";
    const bool whole = row.All().starts_with("Data") || row.All().starts_with("Tarnview");
    const PowerFile f = ReadPowerFile((whole ? "" : heading) + row.Lines());
    return f.file + f.gear + Rows(f);
  };
  ExpectTable(told, R"(
6000,100.0,200.0 -> 6000,100,200 / 
# A field too wide: the torque is misread, kept on purpose.
6000,1000.5,200.0 -> 6000,1000,0 / 
10000,100.0,200.0 -> 1000,0,0 / 
; ; abc; 6000; 6000,1 -> 0,0,0 6000,0,0 6000,1,0 / 
Graph Speed Data (Time, Speed):; ; 000.10,12.5; 000.20,1e9; x -> / 0.1,12.5 0.2,1000000000 0,0 
Graph Speed Data (Time, Speed):  -> 0,0,0 / 
# Without its headings it is an empty graph.
Tarnview Power Graph File; Gear=1st; 6000,100.0,200.0 -> / 
Data Log Details: ; Graph Data (RPM, Power, Torque):; 1000,100.0,200.0 -> / 
Data Log Details:; File=a; Gear=1st -> a/ 
)");
}

TEST(PowerFile, IsWrittenWithPaddedFieldsAndWithoutTheFirstSpeed) {
  PowerFile f;
  f.usesDrag = f.wetBulb = true;
  f.points = {{7.4, -0.04, -0.5}, {10000, 1000.5, 99.95}};
  f.speed = {{0, 30}, {0.004, 31}, {1234.5, 1000}};
  const std::string told = Told(f);
  EXPECT_EQ(told.substr(told.find("Drive")),
            "Drive Wheel Dimensions=; Drag Coefficient=; Frontal Area=; Gear=; Car Weight=; "
            "Smoothing Factor=; Dyno Factor=; Calculation Units=; Air Temperature=N/A; "
            "Atmospheric Pressure=N/A; Wet Bulb Air Temperature=N/A; ; Graph Power & Torque Data "
            "(RPM, Power, Torque):; ; 0007,000.0,-000.5; 10000,1000.5,100.0; ; Graph Speed Data "
            "(Time, Speed):; ; 000.00,031.00; 1234.50,1000.00; ");
}

TEST(PowerFile, TellsWhatItLoadsAndStopsAtItsMostRows) {
  std::string told;
  const auto loading = [&](const char* what) { told += std::string(what) + "; "; };
  ReadPowerFile(File(), loading);
  EXPECT_EQ(told,
            "Loading data log details; Loading calculation parameters; Loading power information; "
            "Loading speed information; ");
  std::string text = "Calculation Parameters:\nGraph Data (RPM, Power, Torque):\n";
  for (std::size_t i = 0; i < kMostPowerRows + 5; ++i) text += "1\n";
  EXPECT_EQ(ReadPowerFile(text).points.size(), kMostPowerRows);
}

}  // namespace
}  // namespace tarnview
