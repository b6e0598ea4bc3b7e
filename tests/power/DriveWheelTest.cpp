#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "power/DriveWheel.h"

namespace tarnview {
namespace {

TEST(DriveWheel, CircumferenceByEachMethod) {
  const struct {
    int method;
    bool imperial;
    double radius;
    const char* metres;
  } kRows[] = {{1, true, 0, "1.81458"},   {1, false, 0, "1.81458"},   {2, true, 0, "1.81437"},
               {2, false, 0, "1.12740"},  {3, true, 11.5, "1.83532"}, {3, false, 290, "1.82212"},
               {0, false, 290, "1.82212"}};
  for (const auto& row : kRows) {
    clsCarDef car;
    car.lngTyreSizeMethod = row.method;
    car.blnImperialUnits = row.imperial;
    car.dblDriveWheelRadius = row.radius;
    EXPECT_EQ(FixedText(DriveWheelCircumference(car), 5), row.metres) << row.method;
  }
}

TEST(DriveWheel, EachGearHasItsRatioAndLoss) {
  clsCarDef car;
  car.dbl6thGearRatio = 0.7;
  std::string text;
  for (int gear = 0; gear < kGears; ++gear)
    text += NumberText(GearRatio(car, gear)) + ":" + std::to_string(GearLoss(car, gear)) + " ";
  EXPECT_EQ(text, "3.136:15 1.888:10 1.33:7 1:0 0.814:3 0.7:6 ");
}

TEST(DriveWheel, SpeedOfTheEngineThroughAGear) {
  EXPECT_EQ(FixedText(SpeedPerRpm(clsCarDef(), 3) * 2060, 4), "15.1953");
  EXPECT_EQ(FixedText(SpeedPerRpm(clsCarDef(), 1) * 2060, 4), "8.0483");
}

TEST(DriveWheel, TheGearThatExplainsTheSpeedAndTheLowerOfTwo) {
  const struct {
    double speed, rpm;
    int gear;
  } kRows[] = {{10, 4250, 0},
               {10, 2560, 1},
               {10, 1800, 2},
               {10, 1350, 3},
               {10, 1100, 4},
               {10, 0, 4},
               {1, 9000, 0},
               // 1356 rpm in 4th, 1803 in 3rd: of errors that round to the same, the lower gear
               {10, 1579, 3},
               {10, 1579.5, 2},
               {10, 1580, 2}};
  for (const auto& row : kRows)
    EXPECT_EQ(GearOfSpeed(clsCarDef(), row.speed, row.rpm), row.gear) << row.rpm;
}

}  // namespace
}  // namespace tarnview
