#include "power/CarTold.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// Its lines stand apart by "; " here, by CR LF in the file.
std::string File() {
  std::string text;
  for (const std::string& some :
       Split(R"(Tarnview Car Definition File; File Created: 24-Nov-2026 14:05; 
Car Definition Details:; Name=Mine = fast; Description=; Units=M
1st Gear Ratio=3.100; 2nd Gear Ratio=2.200; 3rd Gear Ratio=1.330; 4th Gear Ratio=1.040; 5th Gear Ratio=0.850; 6th Gear Ratio=0.760; Diff Ratio=4.300
1st Gear Relative Loss=1; 2nd Gear Relative Loss=2; 3rd Gear Relative Loss=3; 4th Gear Relative Loss=4; 5th Gear Relative Loss=5; 6th Gear Relative Loss=6
Drive Wheel Radius=290.00; Tyre Width=195; Tyre Profile=50; Wheel Diameter=15; Tyre RPM=540; Tyre Size Method=2
Set Point Power=74
Set Point Speed=185; Use Drag Coefficient=Y; Drag Coefficient=0.38; Frontal Area=1.80
Default Gear=4; Car Weight=1010; Car Contents Weight=80; Smoothing Factor=5; Dyno Factor=-2)",
             '\n'))
    text += Join(SplitAt(some, "; "), "\r\n") + "\r\n";
  return text;
}

TEST(CarFile, IsWrittenAsItWasRead) {
  CarFields fields;
  ASSERT_TRUE(ReadCarFile(File(), fields));
  EXPECT_EQ(CarFileText(fields, {2026, 11, 24, 14, 5, 9}), File());
  EXPECT_FALSE(fields.imperial);
  EXPECT_EQ(fields.gear, 3);
}

TEST(CarFile, EachKeyByItself) {
  const auto told = [](const TableRow& row) {
    CarFields f = FieldsOf({});
    ReadCarFile("x\nCar Definition Details:\n" + row.Lines(), f);
    return std::to_string(f.tyreSizeMethod) + " " + f.carWeight + CarTold(CarOf(f));
  };
  ExpectTable(told, R"(
Units=X -> 1 2420 | Units=M -> 1 2420 Units=M, | Tyre Size Method=1 -> 1 2420 | Tyre Size Method=2 -> 2 2420 Tyre Size Method=2, | Tyre Size Method= 1 -> 3 2420 Tyre Size Method=3, | Use Drag Coefficient=y -> 1 2420 | 2nd Gear Ratio=1.88849x -> 1 2420 | Diff Ratio=abc -> 1 2420 Diff Ratio=0.000, | Car Weight=heavy -> 1 heavy Car Weight=0, | Default Gear=1 -> 1 2420 Default Gear=1, | Default Gear=0 -> 1 2420 Default Gear=1, | Default Gear=99 -> 1 2420 Default Gear=6, | Name=a; Name=b=c -> 1 2420 Name=b=c,
# What a file does not name stays.
name=a; Name =b; units=M; Tyre Width; =1; Unknown=2 -> 1 2420
)");
  CarFields f;
  EXPECT_FALSE(ReadCarFile("Car Definition Details: \nName=a", f) || ReadCarFile("", f));
  EXPECT_EQ(f.name, "");
}

}  // namespace
}  // namespace tarnview
