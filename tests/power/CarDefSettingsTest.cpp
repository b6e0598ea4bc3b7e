#include <gtest/gtest.h>

#include "power/CarDefSettings.h"

namespace tarnview {
namespace {

clsCarDefs Read(const std::string& lines) {
  clsCarDefs cars;
  ReadCarDefs(ReadINIFileToArray("[Power Graph]\n" + lines), cars);
  return cars;
}

TEST(CarDefSettings, CarsAreReadWhileTheyHaveUnitsAndHeldToTheirLimits) {
  const clsCarDefs cars = Read(
      "Units Car Def 1=M\nName Car Def 1=One\nDrag Coefficient Car Def 1=7\nFrontal Area Car Def "
      "1=0\n"
      "Default Gear Car Def 1=6\nTyre Size Method Car Def 1=9\nUse Drag Coefficient Car Def 1=Y\n"
      "Units Car Def 2=m\nDefault Gear Car Def 2=0\nTyre Size Method Car Def 2=2\nUnits Car Def "
      "4=M\n");
  ASSERT_EQ(cars.Count(), 2);
  const clsCarDef& one = cars.Item(1);
  EXPECT_EQ(one.strName, "One");
  EXPECT_FALSE(one.blnImperialUnits);
  EXPECT_EQ(one.dblCD, 0.99);
  EXPECT_EQ(one.dblFrontalArea, 0.01);
  EXPECT_EQ(one.lngPowerRunGear, 5);
  EXPECT_EQ(one.lngTyreSizeMethod, kTyreRadius);
  EXPECT_TRUE(one.blnUseCD);
  EXPECT_EQ(one.dblDiffRatio, clsCarDefs::BlankPreset().dblDiffRatio);
  EXPECT_TRUE(cars.Item(2).blnImperialUnits);
  EXPECT_EQ(cars.Item(2).lngPowerRunGear, 0);
  EXPECT_EQ(cars.Item(2).lngTyreSizeMethod, kTyreRevolutions);
}

TEST(CarDefSettings, TheOneCarOfAnOldFileBecomesTheOriginal) {
  const clsCarDefs cars = Read(
      "Units=M\nGear Ratio 0=3.5\nGear Ratio 5=0.7\nGear Ratio 6=3.9\nGear Loss 0=20\nGear Loss "
      "5=4\n"
      "Drive Wheel Radius=290\nSet Point Power=75\nSet Point Speed=180\nUse Drag "
      "Coefficient=Y\nDefault Gear=2\n"
      "Default Car Weight=1100\nDefault Dyno Factor=5\n");
  ASSERT_EQ(cars.Count(), 1);
  const clsCarDef& car = cars.Item(1);
  EXPECT_EQ(car.strName, "Original");
  EXPECT_EQ(car.strDesc, "QVX original power graph settings");
  EXPECT_FALSE(car.blnImperialUnits);
  EXPECT_EQ(car.dbl1stGearRatio, 3.5);
  EXPECT_EQ(car.dbl6thGearRatio, 0.7);
  EXPECT_EQ(car.dblDiffRatio, 3.9);
  EXPECT_EQ(car.lng1stGearLoss, 20);
  EXPECT_EQ(car.lng6thGearLoss, 4);
  EXPECT_EQ(car.dblDriveWheelRadius, 290);
  EXPECT_EQ(car.lngAeroLossPower, 75);
  EXPECT_EQ(car.lngAeroLossSpeed, 180);
  EXPECT_TRUE(car.blnUseCD);
  EXPECT_EQ(car.lngPowerRunGear, 2);
  EXPECT_EQ(car.lngCarWeight, 1100);
  EXPECT_EQ(car.lngDynoCorrectionFactor, 5);
  EXPECT_EQ(car.lngTyreSizeMethod, kTyreRadius);
  EXPECT_EQ(car.lngCarContentsWeight, 0);
  EXPECT_EQ(car.lngSmoothingFactor, 6);
}

TEST(CarDefSettings, AnEmptyFileStillHasACarThatDrives) {
  const clsCarDefs cars = Read("");
  ASSERT_EQ(cars.Count(), 1);
  EXPECT_GT(cars.Item(1).dbl1stGearRatio, 0);
  EXPECT_GT(cars.Item(1).dblDriveWheelRadius, 0);
}

}  // namespace
}  // namespace tarnview
