#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "power/SavedRun.h"

namespace tarnview {
namespace {

PowerCurves SmallCurves(bool imperial) {
  PowerCurves curves;
  curves.imperial = imperial;
  curves.points = {{6480, 141.24, 114.4}};
  curves.speed = {{0, 20}, {0.08, 20.5}};
  return curves;
}

std::string Texts(const PowerFile& f) {
  return f.file + " " + f.plotFrom + "-" + f.plotTo + " " + f.comments + "; " + f.gearRatios[2] +
         " " + f.finalDrive + " " + f.gearLosses[0] + "; " + f.driveWheel + "; " + f.setPointPower +
         " " + f.setPointSpeed + "; " + f.dragCoefficient + " " + f.frontalArea + "; " + f.gear +
         " " + f.carWeight + " " + f.smoothing + " " + f.dyno + " " + f.units + "; " +
         f.temperature + " " + f.pressure + " " + f.humidity + "; " + f.correctionFactor;
}

std::string Speeds(const PowerFile& f) {
  std::string text;
  for (const SpeedPoint& p : f.speed)
    text += FixedText(p.seconds, 2) + " " + FixedText(p.speed, 3) + "; ";
  return text;
}

TEST(SavedRun, TellsTheRunInWords) {
  PowerRun run;
  run.gear = 2;
  run.contentsWeight = 180;
  run.smoothing = 7;
  PowerFile f = SavedRun(run, SmallCurves(true), {"/logs/a.txt", "12", "90", "wet"}, "0.980");
  EXPECT_EQ(
      Texts(f),
      "/logs/a.txt 12-90 wet; 1.330 4.100 15; Tyre size 185/60 R14; 100 hp 115 mph; 0.4 2 ft2; "
      "3rd 2600 lb 7 0 Imperial; 20 'C 101 kPa 50 %; ");
  EXPECT_EQ(Speeds(f), "0.00 44.739; 0.08 45.857; ");
  EXPECT_FALSE(f.usesDrag);

  run.corrected = run.car.blnUseCD = true;
  run.car.blnImperialUnits = false;
  run.car.lngTyreSizeMethod = kTyreRadius;
  run.car.dblDriveWheelRadius = 290.5;
  run.air.humidityType = HumidityType::WetBulb;
  run.air.humidity = "15";
  f = SavedRun(run, SmallCurves(false), {}, "0.980");
  EXPECT_EQ(Texts(f),
            " - ; 1.330 4.100 15; 290.5 mm drive wheel radius; 100 kW 115 kmh; 0.4 2 m2; "
            "3rd 2600 kg 7 0 Metric; 20 'C 101 kPa 15 'C WB; 0.980");
  EXPECT_EQ(Speeds(f), "0.00 71.999; 0.08 73.799; ");
  EXPECT_TRUE(f.usesDrag && f.wetBulb);
}

TEST(SavedRun, TyresByTheirRevolutionsAndRadiusInInches) {
  PowerRun run;
  const auto wheel = [&](int method, bool imperial) {
    run.car.lngTyreSizeMethod = method;
    run.car.blnImperialUnits = imperial;
    return SavedRun(run, {}, {}, "").driveWheel;
  };
  EXPECT_EQ(wheel(kTyreRevolutions, true), "887 Revolutions per Mile ");
  EXPECT_EQ(wheel(kTyreRevolutions, false), "887 Revolutions per Km ");
  EXPECT_EQ(wheel(kTyreRadius, true), "11.5 in drive wheel radius");
}

TEST(SavedRun, DragOfASavedGraphByItsOwnTexts) {
  const auto drag = [](bool usesDrag, const char* first, const char* second) {
    PowerFile f;
    f.usesDrag = usesDrag;
    (usesDrag ? f.dragCoefficient : f.setPointPower) = first;
    (usesDrag ? f.frontalArea : f.setPointSpeed) = second;
    const auto k = DragOf(f, {30, 98, "", {}});
    return k ? FixedText(*k, 6) : "none";
  };
  EXPECT_EQ(drag(false, "100 hp", "115 mph"), "0.548822");
  EXPECT_EQ(drag(false, "75 kW", "180 kmh"), "0.599986");
  EXPECT_EQ(drag(true, "0.36", "1.9 m2"), "0.385156");
  EXPECT_EQ(drag(true, "0.36", "1.9 ft2"), "0.035782");
  EXPECT_EQ(drag(false, "", ""), "none");
  EXPECT_EQ(drag(false, "100 hp", "0 mph"), "none");
  EXPECT_EQ(drag(false, "some", "115 mph"), "none");
}

TEST(SavedRun, GearsAreNamed) {
  std::string names;
  for (int gear = 0; gear < kGears; ++gear) names += std::string(GearName(gear)) + " ";
  EXPECT_EQ(names, "1st 2nd 3rd 4th 5th 6th ");
}

}  // namespace
}  // namespace tarnview
