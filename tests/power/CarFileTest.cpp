#include "power/CarFile.h"
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

constexpr Moment kNow{2026, 11, 24, 14, 5, 9};
constexpr const char* kStart = "x\nCar Definition Details:\n";

TEST(CarFile, IsWrittenAsItWasRead) {
  CarFields fields;
  ASSERT_TRUE(ReadCarFile(File(), fields));
  EXPECT_EQ(CarFileText(fields, kNow), File());
  EXPECT_FALSE(fields.imperial);
  EXPECT_EQ(fields.gear, 3);
}

TEST(CarFile, WhatAFileDoesNotNameStays) {
  const CarFields before = FieldsOf({});
  CarFields fields = before;
  EXPECT_TRUE(ReadCarFile(
      std::string(kStart) + "name=a\nName =b\nunits=M\nTyre Width\n=1\nUnknown=2", fields));
  EXPECT_EQ(CarFileText(fields, kNow), CarFileText(before, kNow));
  EXPECT_FALSE(ReadCarFile("Car Definition Details: \nName=a", fields));
  EXPECT_FALSE(ReadCarFile("", fields));
  EXPECT_EQ(CarFileText(fields, kNow), CarFileText(before, kNow));
}

TEST(CarFile, EachKeyByItself) {
  const auto told = [](const TableRow& row) {
    CarFields f = FieldsOf({});
    ReadCarFile(kStart + row.Lines(), f);
    return Join({f.imperial ? "imperial" : "metric", std::to_string(f.tyreSizeMethod),
                 f.useCd ? "drag" : "set point", f.ratios[1], f.diffRatio, f.carWeight,
                 std::to_string(f.gear), f.name},
                " ");
  };
  ExpectTable(told, R"(
Units=X -> imperial 1 set point 1.888 4.100 2420 3 New | Units=M -> metric 1 set point 1.888 4.100 2420 3 New | Tyre Size Method=1 -> imperial 1 set point 1.888 4.100 2420 3 New | Tyre Size Method=2 -> imperial 2 set point 1.888 4.100 2420 3 New | Tyre Size Method= 1 -> imperial 3 set point 1.888 4.100 2420 3 New | Use Drag Coefficient=y -> imperial 1 set point 1.888 4.100 2420 3 New
2nd Gear Ratio=1.88849x -> imperial 1 set point 1.888 4.100 2420 3 New | Diff Ratio=abc -> imperial 1 set point 1.888 0.000 2420 3 New | Car Weight=heavy -> imperial 1 set point 1.888 4.100 heavy 3 New | Default Gear=1 -> imperial 1 set point 1.888 4.100 2420 0 New | Default Gear=0 -> imperial 1 set point 1.888 4.100 2420 0 New | Default Gear=99 -> imperial 1 set point 1.888 4.100 2420 5 New | Name=a; Name=b=c -> imperial 1 set point 1.888 4.100 2420 3 b=c
)");
}

}  // namespace
}  // namespace tarnview
