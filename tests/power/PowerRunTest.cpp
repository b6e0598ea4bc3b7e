#include <cmath>

#include "base/Numbers.h"
#include "power/CarFile.h"
#include "power/PowerLog.h"
#include "power/PowerRun.h"
#include "support/Table.h"

namespace tarnview {
namespace {

const std::vector<RunSample> kRough{{0, 2000},  {.1, 2060}, {.2, 2130}, {.3, 2130},
                                    {.3, 2200}, {.4, 2290}, {.5, 2370}, {.6, 0},
                                    {.7, 2500}, {.8, 2590}, {.9, 2670}, {1.0, 2640}};
const std::vector<RunSample> kSmooth{{0, 2000},   {.08, 2062}, {.16, 2115}, {.24, 2182},
                                     {.32, 2240}, {.4, 2289},  {.48, 2352}, {.56, 2406},
                                     {.64, 2451}, {.72, 2510}, {.8, 2560}};

std::string Line(std::initializer_list<std::pair<double, int>> numbers) {
  std::string line;
  for (const auto& [number, places] : numbers)
    line += (line.empty() ? "" : " ") + FixedText(number, places);
  return line;
}

std::string Printed(const PowerCurves& curves) {
  if (curves.failed) return "failed: " + curves.fault;
  std::string text;
  for (std::size_t i = 0; i < curves.speed.size(); ++i) {
    const SpeedPoint& s = curves.speed[i];
    const std::string speed = Line({{s.seconds, 2}, {s.speed, 3}}) + "; ";
    if (i == curves.points.size()) return text + "no point " + speed;
    const PowerPoint& p = curves.points[i];
    text += Line({{p.rpm, 1}, {p.power, 2}, {p.torque, 2}}) + " " + speed;
  }
  const PowerPeaks& k = curves.peaks;
  return text + "peaks " +
         Line({{k.power, 2}, {k.powerRpm, 1}, {k.torque, 2}, {k.torqueRpm, 1}, {k.maxRpm, 1}}) +
         " top " + NumberText(*k.topSpeed);
}

PowerRun RunOf(const std::vector<RunSample>& samples, int gear, std::int32_t smoothing) {
  PowerRun run;
  run.gear = gear;
  run.contentsWeight = 180;
  run.smoothing = smoothing;
  run.samples = samples;
  run.air.temperature = 20;
  run.air.pressure = 101;
  return run;
}

PowerRun MetricRun() {
  PowerRun run = RunOf(kSmooth, 2, 2);
  run.car.blnImperialUnits = false;
  run.car.lngTyreSizeMethod = kTyreRadius;
  run.car.dblDriveWheelRadius = 290;
  run.car.blnUseCD = true;
  run.car.dblCD = 0.36;
  run.car.dblFrontalArea = 1.9;
  run.car.lngCarWeight = 1100;
  run.car.lngDynoCorrectionFactor = 5;
  run.contentsWeight = 80;
  run.imperial = false;
  run.corrected = true;
  run.correction = 1.021;
  run.air.temperature = 30;
  run.air.pressure = 98;
  return run;
}

TEST(PowerRun, EachIntervalGivesAPointThatIsNotClamped) {
  const std::vector<RunSample> repeated{{0, 2000}, {.1, 2060}, {.1, 2100}, {.2, 2130}, {.2, 2150}};
  const std::vector<PowerPoint> benchmark{
      {2000, 50, 100}, {2200, 60, 120}, {2200, 99, 99}, {2400, 80, 140}};
  const auto told = [&](const TableRow& row) {
    const std::string& samples = row.Text(0);
    PowerRun run = MetricRun();
    if (samples == "rough") run = RunOf(kRough, 3, row.Int(1));
    if (samples == "repeated") run = RunOf(repeated, 3, row.Int(1));
    if (samples == "uncorrected") run.corrected = false;
    if (samples == "factor 0") run.correction = 0;
    if (samples == "smooth") run = RunOf(kSmooth, 3, row.Int(1));
    return Printed(CurvesOf(run, row.Count() > 2 ? &benchmark : nullptr));
  };
  ExpectTable(told, R"(
# A repeated time and a standing engine give no point, and the next interval starts from them; falling rpm give less than no power.
rough, 0 -> 2030.0 107.28 277.56 0.00 15.195; 2095.0 128.91 323.17 0.10 15.712; 2130.0 2.85 7.04 0.20 15.712; 2245.0 177.21 414.57 0.30 16.892; 2330.0 164.14 369.98 0.40 17.482; 1185.0 -2416.21 -10709.03 0.50 0.000; 2545.0 201.97 416.80 0.60 19.105; 2630.0 186.42 372.29 0.70 19.695; 2655.0 -63.01 -124.65 0.80 19.474; peaks 201.97 2545.0 416.80 2545.0 2655.0 top 145.4
# Only a last sample without a point keeps its speed.
repeated, 0 -> 2030.0 107.28 277.56 0.00 15.195; 2115.0 57.39 142.52 0.10 15.712; no point 0.00 15.859; 
# Peaks are taken behind smoothing, and averaging comes in between.
smooth, 3 -> 2031.0 138.77 339.48 0.00 15.210; 2088.5 139.23 338.42 0.08 15.601; 2148.5 139.05 335.12 0.16 16.095; 2211.0 139.94 331.36 0.24 16.523; 2264.5 141.02 327.38 0.32 16.884; 2320.5 141.30 321.68 0.40 17.349; 2379.0 142.30 317.70 0.48 17.748; 2428.5 142.98 313.94 0.56 18.079; 2480.5 142.49 308.43 0.64 18.515; 2535.0 142.69 307.07 0.72 18.883; peaks 142.98 2428.5 339.48 2031.0 2535.0 top 129.6
smooth, 3, averaged -> 2031.0 95.16 221.29 0.00 15.210; 2088.5 96.83 223.64 0.08 15.601; 2148.5 98.24 224.98 0.16 16.095; 2211.0 118.95 216.31 0.24 16.523; 2264.5 116.95 219.80 0.32 16.884; 2320.5 114.43 222.69 0.40 17.349; 2379.0 112.15 226.70 0.48 17.748; 2428.5 142.98 313.94 0.56 18.079; 2480.5 142.49 308.43 0.64 18.515; 2535.0 142.69 307.07 0.72 18.883; peaks 142.98 2428.5 313.94 2428.5 2535.0 top 129.6
# With a drag coefficient, corrected, in third gear.
uncorrected, 2 -> 2031.0 65.99 299.55 0.00 11.484; 2088.5 65.48 295.45 0.08 11.779; 2148.5 65.72 291.20 0.16 12.152; 2211.0 66.51 288.41 0.24 12.475; 2264.5 66.69 282.04 0.32 12.748; 2320.5 66.80 275.67 0.40 13.099; 2379.0 66.84 269.31 0.48 13.399; 2428.5 67.43 266.51 0.56 13.650; 2480.5 67.34 262.27 0.64 13.979; 2535.0 68.26 262.85 0.72 14.257; peaks 68.26 2535.0 299.55 2031.0 2535.0 top 202.2
factor 0, 2 -> 2031.0 0.00 0.00 0.00 11.484; 2088.5 0.00 0.00 0.08 11.779; 2148.5 0.00 0.00 0.16 12.152; 2211.0 0.00 0.00 0.24 12.475; 2264.5 0.00 0.00 0.32 12.748; 2320.5 0.00 0.00 0.40 13.099; 2379.0 0.00 0.00 0.48 13.399; 2428.5 0.00 0.00 0.56 13.650; 2480.5 0.00 0.00 0.64 13.979; 2535.0 0.00 0.00 0.72 14.257; peaks 0.00 0.0 0.00 0.0 2535.0 top 0
metric, 2 -> 2031.0 67.37 305.84 0.00 11.484; 2088.5 66.85 301.65 0.08 11.779; 2148.5 67.10 297.32 0.16 12.152; 2211.0 67.91 294.46 0.24 12.475; 2264.5 68.10 287.96 0.32 12.748; 2320.5 68.21 281.46 0.40 13.099; 2379.0 68.25 274.96 0.48 13.399; 2428.5 68.85 272.11 0.56 13.650; 2480.5 68.75 267.77 0.64 13.979; 2535.0 69.69 268.37 0.72 14.257; peaks 69.69 2535.0 305.84 2031.0 2535.0 top 203.6
)");
}

/// Fields of the car's file, then those of the run.
TEST(PowerRun, ACarThatCannotBeReckonedWithFailsAndSaysWhichField) {
  const auto told = [](const TableRow& row) {
    CarFields fields = FieldsOf({});
    ReadCarFile("Car Definition Details:\n" + TableRow(row.Text(0)).Lines(), fields);
    PowerRun run = RunOf(row.Text(1) == "empty" ? std::vector<RunSample>() : kSmooth, 3, 0);
    run.car = CarOf(fields);
    if (row.Text(1) == "weightless") run.contentsWeight = -run.car.lngCarWeight;
    if (row.Text(1) == "airless") run.air.pressure = 0;
    if (row.Text(1) == "ratio nan") run.car.dbl4thGearRatio = std::nan("");
    if (row.Text(1) == "ratio tiny") run.car.dblDiffRatio = 1e-200;
    return Printed(CurvesOf(run));
  };
  ExpectTable(told, R"(
4th Gear Ratio=0, run -> failed: 4th Gear Ratio | Name=, ratio nan -> failed: 4th Gear Ratio | Diff Ratio=0, run -> failed: Diff Ratio | Name=, ratio tiny -> failed: 
Tyre Width=0; Wheel Diameter=0, run -> failed: Tyre Size | Tyre Size Method=2; Tyre RPM=0, run -> failed: Tyre RPM | Tyre Size Method=3; Drive Wheel Radius=0, run -> failed: Drive Wheel Radius
Name=, weightless -> failed: Car Weight | Set Point Speed=0, run -> failed: Set Point Speed | Set Point Power=0, run -> failed: Set Point Power | Use Drag Coefficient=Y; Drag Coefficient=0, run -> failed: Drag Coefficient
Use Drag Coefficient=Y, airless -> failed: Atmospheric Pressure | Name=, empty -> peaks 0.00 0.0 0.00 0.0 0.0 top 0
)");
}

TEST(PowerRun, ItsSamplesAreThoseOfTheRangeThatTheLogHas) {
  const PowerLog made("10 0.5 2000\n11 0.6 2100\n14 0.8 2300\n15 0.9 2400\n");
  const auto samples = [&](const TableRow& row) {
    std::string text;
    for (const RunSample& s : SamplesOfRun(made.log, row.Int(0), row.Int(1)))
      text += FixedText(s.seconds, 2) + ":" + NumberText(s.rpm) + " ";
    return text;
  };
  ExpectTable(samples, R"(
11, 14 -> 0.60:2100 0.80:2300  | 12, 99 -> 0.80:2300 0.90:2400  | 1, 10 -> 0.50:2000  | 12, 13 -> 
)");
  EXPECT_TRUE(SamplesOfRun(PowerLog("").log, 1, 10).empty());
  std::string same;
  for (int i = 0; i < 1200; ++i) same += "7 1 2000\n";
  EXPECT_EQ(SamplesOfRun(PowerLog(same).log, 7, 7).size(), 1001u);
}

}  // namespace
}  // namespace tarnview
