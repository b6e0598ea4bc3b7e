#include "power/CarFields.h"
#include "power/CarFile.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Measures(const CarFields& f) {
  return Join({f.radius, f.setPointPower, f.setPointSpeed, f.carWeight, f.contentsWeight, f.tyreRpm,
               f.frontalArea},
              " ");
}

TEST(CarFields, ShowACarAndGiveItBack) {
  clsCarDef car;
  car.strName = "Mine";
  car.blnImperialUnits = false;
  car.dbl3rdGearRatio = 1.3335;
  car.lng6thGearLoss = -4;
  car.lngTyreSizeMethod = kTyreRevolutions;
  car.blnUseCD = true;
  car.lngPowerRunGear = 2;
  const CarFields fields = FieldsOf(car);
  EXPECT_EQ(Measures(fields), "11.50 100 115 2420 180 887 2.00");
  EXPECT_EQ(fields.ratios[2] + " " + fields.diffRatio + " " + fields.cd, "1.334 4.100 0.40");
  const clsCarDef back = CarOf(fields);
  EXPECT_EQ(back.strName, "Mine");
  EXPECT_EQ(back.dbl3rdGearRatio, 1.334);
  EXPECT_EQ(CarFileText(FieldsOf(back), {}), CarFileText(fields, {}));
}

TEST(CarFields, TextsThatAreNoNumberCountAsZero) {
  CarFields fields = FieldsOf({});
  fields.ratios[0] = "";
  fields.carWeight = "12.5 cwt";
  EXPECT_EQ(CarOf(fields).dbl1stGearRatio, 0);
  EXPECT_EQ(CarOf(fields).lngCarWeight, 12);
}

TEST(CarFields, ChangeTheirUnitsAndBack) {
  CarFields fields = FieldsOf({});
  ConvertFields(fields, true);
  EXPECT_EQ(Measures(fields), "292.10 75 185 1098 82 551 0.19");
  ConvertFields(fields, false);
  EXPECT_EQ(Measures(fields), "11.50 101 115 2421 181 887 2.05");
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
