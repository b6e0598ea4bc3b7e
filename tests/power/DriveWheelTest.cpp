#include "base/Numbers.h"
#include "power/DriveWheel.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(DriveWheel, CircumferenceByEachMethod) {
  const auto metres = [](const TableRow& row) {
    clsCarDef car;
    car.lngTyreSizeMethod = row.Int(0);
    car.blnImperialUnits = row.Text(1) == "imperial";
    car.dblDriveWheelRadius = row.Number(2);
    return FixedText(DriveWheelCircumference(car), 5);
  };
  ExpectTable(metres, R"(
1, imperial, 0 -> 1.81458 | 1, metric, 0 -> 1.81458 | 2, imperial, 0 -> 1.81437 | 2, metric, 0 -> 1.12740 | 3, imperial, 11.5 -> 1.83532 | 3, metric, 290 -> 1.82212 | 0, metric, 290 -> 1.82212
)");
}

TEST(DriveWheel, EachGearHasItsRatioLossAndSpeed) {
  clsCarDef car;
  car.dbl6thGearRatio = 0.7;
  const auto gear = [&](const TableRow& row) {
    return NumberText(GearRatio(car, row.Int(0))) + ", loss " +
           std::to_string(GearLoss(car, row.Int(0))) + ", " +
           FixedText(SpeedPerRpm(car, row.Int(0)) * 2060, 4);
  };
  ExpectTable(gear, R"(
0 -> 3.136, loss 15, 4.8454 | 1 -> 1.888, loss 10, 8.0483 | 2 -> 1.33, loss 7, 11.4250 | 3 -> 1, loss 0, 15.1953 | 4 -> 0.814, loss 3, 18.6674 | 5 -> 0.7, loss 6, 21.7075
)");
}

TEST(DriveWheel, TheGearThatExplainsTheSpeedAndTheLowerOfTwo) {
  const auto gear = [](const TableRow& row) {
    return std::to_string(GearOfSpeed(clsCarDef(), row.Number(0), row.Number(1)));
  };
  // 1356 rpm in 4th, 1803 in 3rd: of errors that round to the same, the lower gear.
  ExpectTable(gear, R"(
10, 4250 -> 0 | 10, 2560 -> 1 | 10, 1800 -> 2 | 10, 1350 -> 3 | 10, 1100 -> 4 | 10, 0 -> 4 | 1, 9000 -> 0 | 10, 1579 -> 3 | 10, 1579.5 -> 2 | 10, 1580 -> 2
)");
}

}  // namespace
}  // namespace tarnview
