#include "power/CarFields.h"
#include "power/CarTold.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// Lines of a car's file in its fields, in the units of the file and once or twice in the others,
/// and the car of those.
TEST(CarFields, ShowACarInItsUnitsAndGiveItBack) {
  const auto told = [](const TableRow& row) {
    CarFields fields = FieldsOf({});
    ReadCarFile("Car Definition Details:\n" + TableRow(row.Text(1)).Lines(), fields);
    const int times = row.Int(0);
    if (times > 0) ConvertFields(fields, true);
    if (times > 1) ConvertFields(fields, false);
    return Join({fields.radius, fields.setPointPower, fields.setPointSpeed, fields.carWeight,
                 fields.contentsWeight, fields.tyreRpm, fields.frontalArea},
                " ") +
           ":" + CarTold(CarOf(fields));
  };
  ExpectTable(told, R"(
0, Name=Mine; Units=M; 3rd Gear Ratio=1.3335; 6th Gear Relative Loss=-4; Tyre Size Method=2; Use Drag Coefficient=Y; Default Gear=3 -> 11.50 100 115 2420 180 887 2.00: Name=Mine, Units=M, 3rd Gear Ratio=1.334, 6th Gear Relative Loss=-4, Tyre Size Method=2, Use Drag Coefficient=Y, Default Gear=3,
# A text that is no number counts as 0.
0, 1st Gear Ratio=; Diff Ratio=x; Car Weight=12.5 cwt -> 11.50 100 115 12.5 cwt 180 887 2.00: 1st Gear Ratio=0.000, Diff Ratio=0.000, Car Weight=12,
1, Units=M -> 292.10 75 185 1098 82 551 0.19: Units=M, Drive Wheel Radius=292.10, Tyre RPM=551, Set Point Power=75, Set Point Speed=185, Frontal Area=0.19, Car Weight=1098, Car Contents Weight=82,
2, Units=I -> 11.50 101 115 2421 181 887 2.05: Set Point Power=101, Frontal Area=2.05, Car Weight=2421, Car Contents Weight=181,
)");
}

TEST(CarFields, DragIsHeldToItsLimits) {
  const auto held = [](const TableRow& row) {
    return ValidateCD(row.All()) + ", " + ValidateFrontalArea(row.All());
  };
  ExpectTable(held, R"(
1 -> 0.99, 1.00 | 0 -> 0.01, 0.01 | abc -> 0.01, 0.01 | 50 -> 0.99, 49.99 | 49.994 -> 0.99, 49.99 | 0.345 -> 0.34, 0.34 | 0.3 or so -> 0.30, 0.30 | -1 -> 0.01, 0.01 | 0.996 -> 0.99, 1.00
)");
}

}  // namespace
}  // namespace tarnview
