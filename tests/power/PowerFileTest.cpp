#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "power/PowerFile.h"

namespace tarnview {
namespace {

constexpr const char* kFile =
    "Tarnview Power Graph File\r\n"
    "File Created: 24-Nov-2026 14:05\r\n"
    "\r\n"
    "Data Log Details:\r\n"
    "\r\n"
    "File=C:\\Logs\\run=1.txt\r\n"
    "Plot Range From=100\r\n"
    "Plot Range To=140\r\n"
    "Comments=after the turbo\r\n"
    "\r\n"
    "Calculation Parameters:\r\n"
    "\r\n"
    "1st Gear Ratio=3.136\r\n"
    "2nd Gear Ratio=1.888\r\n"
    "3rd Gear Ratio=1.330\r\n"
    "4th Gear Ratio=1.000\r\n"
    "5th Gear Ratio=0.814\r\n"
    "6th Gear Ratio=0.700\r\n"
    "Diff Ratio=4.100\r\n"
    "1st Gear Relative Loss=15\r\n"
    "2nd Gear Relative Loss=10\r\n"
    "3rd Gear Relative Loss=7\r\n"
    "4th Gear Relative Loss=0\r\n"
    "5th Gear Relative Loss=3\r\n"
    "6th Gear Relative Loss=6\r\n"
    "Drive Wheel Dimensions=887 Revolutions per Mile \r\n"
    "Set Point Power=100 hp\r\n"
    "Set Point Speed=115 mph\r\n"
    "Gear=3rd\r\n"
    "Car Weight=2600 lb\r\n"
    "Smoothing Factor=7\r\n"
    "Dyno Factor=0\r\n"
    "Calculation Units=Imperial\r\n"
    "Air Temperature=20 'C\r\n"
    "Atmospheric Pressure=101 kPa\r\n"
    "Relative Humidity=50 %\r\n"
    "SAE Correction Factor=0.980\r\n"
    "\r\n"
    "Graph Power & Torque Data (RPM, Power, Torque):\r\n"
    "\r\n"
    "0980,001.2,006.4\r\n"
    "6480,141.2,114.4\r\n"
    "\r\n"
    "Graph Speed Data (Time, Speed):\r\n"
    "\r\n"
    "000.08,041.25\r\n"
    "012.50,101.00\r\n";

std::string All(const std::array<std::string, kGears>& texts) {
  std::string line;
  for (const std::string& text : texts) line += text + " ";
  return line;
}

std::string Rows(const PowerFile& f) {
  std::string text;
  for (const PowerPoint& p : f.points)
    text += NumberText(p.rpm) + "," + NumberText(p.power) + "," + NumberText(p.torque) + " ";
  text += "| ";
  for (const SpeedPoint& p : f.speed)
    text += NumberText(p.seconds) + "," + NumberText(p.speed) + " ";
  return text;
}

std::string Printed(const PowerFile& f) {
  return f.file + "; " + f.plotFrom + "-" + f.plotTo + "; " + f.comments + "\n" +
         All(f.gearRatios) + f.finalDrive + "; " + All(f.gearLosses) + "\n" + f.driveWheel + "; " +
         (f.usesDrag ? "drag" : "set point") + " " + f.setPointPower + " " + f.setPointSpeed + " " +
         f.dragCoefficient + " " + f.frontalArea + "\n" + f.gear + " " + f.carWeight + " " +
         f.smoothing + " " + f.dyno + " " + f.units + "\n" + f.temperature + ", " + f.pressure +
         ", " + f.humidity + ", " + f.correctionFactor + ", " + f.correctionSummary + "\n" +
         Rows(f);
}

TEST(PowerFile, IsReadAsItWasWritten) {
  EXPECT_EQ(Printed(ReadPowerFile(kFile)),
            "C:\\Logs\\run=1.txt; 100-140; after the turbo\n"
            "3.136 1.888 1.330 1.000 0.814 0.700 4.100; 15 10 7 0 3 6 \n"
            "887 Revolutions per Mile ; set point 100 hp 115 mph  \n"
            "3rd 2600 lb 7 0 Imperial\n"
            "20 'C, 101 kPa, 50 %, 0.980, Off\n"
            "980,1.2,6.4 6480,141.2,114.4 | 0.08,41.25 12.5,101 ");
  EXPECT_EQ(PowerFileText(ReadPowerFile(kFile), {2026, 11, 24, 14, 5, 9}), kFile);
}

// The earlier generation has neither log details nor speeds.
TEST(PowerFile, TheKeysOfTheEarlierGenerationAreSynonyms) {
  const PowerFile f = ReadPowerFile(
      "Calculation Parameters:\nGear Ratio 1=3.1\nGear Ratio 2=2\nGear Ratio 3=1.5\nGear Ratio "
      "4=1.1\nGear Ratio "
      "5=0.9\n"
      "Gear Ratio 6=0.8\nFinal Drive=4.3\nGear Loss 1=9\nGear Loss 2=8\nGear Loss 3=7\nGear Loss "
      "4=6\nGear Loss 5=5\n"
      "Gear Loss 6=4\nDrive Wheel Radius=11.5 in\nKnown Set Point Power=75 kW\nKnown Set Point "
      "Speed=180 "
      "kmh\nGear=4th\n"
      "Car Weight=1200 kg\nGraph Smoothing Factor=6\nDyno Correction Factor=2\nPower Units=kW\nSAE "
      "Correction=On\n"
      "Air Temperature=20\nGraph Data (RPM, Power, Torque):\n3000,050.0,100.0\n");
  EXPECT_EQ(Printed(f),
            "; -; \n3.1 2 1.5 1.1 0.9 0.8 4.3; 9 8 7 6 5 4 \n"
            "11.5 in drive wheel radius; set point 75 kW 180 kmh  \n"
            "4th 1200 kg 6 2 Metric\n"
            "20, N/A, N/A, , On\n"
            "3000,50,100 | ");
}

TEST(PowerFile, EachAttributeByItself) {
  const auto with = [](const std::string& lines) {
    return ReadPowerFile("Calculation Parameters:\n" + lines);
  };
  EXPECT_EQ(with("Power Units=hp").units, "Imperial");
  EXPECT_EQ(with("Torque Units=lb ft").units, "Imperial");
  EXPECT_EQ(with("Torque Units=Nm").units, "Metric");
  EXPECT_EQ(with("Calculation Units=hp").units, "hp");
  EXPECT_TRUE(with("Frontal Area=2 m2").usesDrag);
  EXPECT_TRUE(with("Drag Coefficient=0.3\nSet Point Power=9").usesDrag);
  EXPECT_EQ(with("Wet Bulb Air Temperature=15 'C WB").humidity, "15 'C WB");
  EXPECT_TRUE(with("Wet Bulb Air Temperature=15 'C WB").wetBulb);
  EXPECT_EQ(with("SAE Correction=On").correctionSummary, "N/A");  // of air that is not known
  EXPECT_EQ(with("Relative Humidity=9\nSAE Correction Factor=1.1").correctionSummary, "Off");
  EXPECT_EQ(with("gear=1st\n Gear=1st\nGear =1st\nGear\n=1st\nFile=x").gear, "");
  EXPECT_EQ(with("File=x").file, "");
  EXPECT_EQ(with("Gear= 1st=2 ").gear, " 1st=2 ");
}

TEST(PowerFile, FieldsStandAtFixedPlaces) {
  const auto rows = [](const std::string& lines) {
    return Rows(
        ReadPowerFile("Calculation Parameters:\nGraph Data (RPM, Power, Torque):\n" + lines));
  };
  EXPECT_EQ(rows("6000,100.0,200.0"), "6000,100,200 | ");
  EXPECT_EQ(rows("6000,1000.5,200.0"),
            "6000,1000,0 | ");  // a field too wide: the torque is misread, kept on purpose
  EXPECT_EQ(rows("10000,100.0,200.0"), "1000,0,0 | ");
  EXPECT_EQ(rows("\n\nabc\n6000\n6000,1"), "0,0,0 6000,0,0 6000,1,0 | ");
  EXPECT_EQ(rows("Graph Speed Data (Time, Speed):\n\n000.10,12.5\n000.20,1e9\nx"),
            "| 0.1,12.5 0.2,1000000000 0,0 ");
  EXPECT_EQ(rows("Graph Speed Data (Time, Speed): \n"), "0,0,0 | ");
}

TEST(PowerFile, IsWrittenWithPaddedFieldsAndWithoutTheFirstSpeed) {
  PowerFile f;
  f.usesDrag = f.wetBulb = true;
  f.points = {{7.4, -0.04, -0.5}, {10000, 1000.5, 99.95}};
  f.speed = {{0, 30}, {0.004, 31}, {1234.5, 1000}};
  const std::string text = PowerFileText(f, {});
  EXPECT_NE(text.find("Torque):\r\n\r\n0007,000.0,-000.5\r\n10000,1000.5,100.0\r\n\r\nGraph"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("Speed):\r\n\r\n000.00,031.00\r\n1234.50,1000.00\r\n"), std::string::npos)
      << text;
  EXPECT_NE(text.find("\r\nDrag Coefficient=\r\nFrontal Area=\r\nGear="), std::string::npos);
  EXPECT_NE(text.find("\r\nWet Bulb Air Temperature=N/A\r\n\r\nGraph"), std::string::npos);
  EXPECT_EQ(text.find("Set Point"), std::string::npos);
}

TEST(PowerFile, ATextWithoutItsHeadingsIsAnEmptyGraph) {
  const std::string empty = Printed(ReadPowerFile(""));
  EXPECT_EQ(Printed(ReadPowerFile("Tarnview Power Graph File\nGear=1st\n6000,100.0,200.0")), empty);
  EXPECT_EQ(Printed(ReadPowerFile(
                "Data Log Details: \nGraph Data (RPM, Power, Torque):\n1000,100.0,200.0")),
            empty);
  EXPECT_EQ(ReadPowerFile("Data Log Details:\nFile=a\nGear=1st").file, "a");
}

TEST(PowerFile, TellsWhatItLoadsAndStopsAtItsMostRows) {
  std::string told;
  const auto loading = [&](const char* what) { told += std::string(what) + "; "; };
  ReadPowerFile(kFile, loading);
  EXPECT_EQ(told,
            "Loading data log details; Loading calculation parameters; Loading power information; "
            "Loading speed information; ");
  std::string text = "Calculation Parameters:\nGraph Data (RPM, Power, Torque):\n";
  for (std::size_t i = 0; i < kMostPowerRows + 5; ++i) text += "1\n";
  EXPECT_EQ(ReadPowerFile(text).points.size(), kMostPowerRows);
}

}  // namespace
}  // namespace tarnview
