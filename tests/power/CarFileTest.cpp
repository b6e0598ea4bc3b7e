#include <gtest/gtest.h>

#include "power/CarFile.h"

namespace tarnview {
namespace {

constexpr const char* kFile =
    "Tarnview Car Definition File\r\n"
    "File Created: 24-Nov-2026 14:05\r\n"
    "\r\n"
    "Car Definition Details:\r\n"
    "Name=Mine = fast\r\n"
    "Description=\r\n"
    "Units=M\r\n"
    "1st Gear Ratio=3.100\r\n"
    "2nd Gear Ratio=2.200\r\n"
    "3rd Gear Ratio=1.330\r\n"
    "4th Gear Ratio=1.040\r\n"
    "5th Gear Ratio=0.850\r\n"
    "6th Gear Ratio=0.760\r\n"
    "Diff Ratio=4.300\r\n"
    "1st Gear Relative Loss=1\r\n"
    "2nd Gear Relative Loss=2\r\n"
    "3rd Gear Relative Loss=3\r\n"
    "4th Gear Relative Loss=4\r\n"
    "5th Gear Relative Loss=5\r\n"
    "6th Gear Relative Loss=6\r\n"
    "Drive Wheel Radius=290.00\r\n"
    "Tyre Width=195\r\n"
    "Tyre Profile=50\r\n"
    "Wheel Diameter=15\r\n"
    "Tyre RPM=540\r\n"
    "Tyre Size Method=2\r\n"
    "Set Point Power=74\r\n"
    "Set Point Speed=185\r\n"
    "Use Drag Coefficient=Y\r\n"
    "Drag Coefficient=0.38\r\n"
    "Frontal Area=1.80\r\n"
    "Default Gear=4\r\n"
    "Car Weight=1010\r\n"
    "Car Contents Weight=80\r\n"
    "Smoothing Factor=5\r\n"
    "Dyno Factor=-2\r\n";

constexpr Moment kNow{2026, 11, 24, 14, 5, 9};
constexpr const char* kStart = "x\nCar Definition Details:\n";

TEST(CarFile, IsWrittenAsItWasRead) {
  CarFields fields;
  ASSERT_TRUE(ReadCarFile(kFile, fields));
  EXPECT_EQ(CarFileText(fields, kNow), kFile);
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
  const auto with = [](const std::string& lines) {
    CarFields fields = FieldsOf({});
    ReadCarFile(kStart + lines, fields);
    return fields;
  };
  EXPECT_TRUE(with("Units=X").imperial);
  EXPECT_FALSE(with("Units=M").imperial);
  EXPECT_EQ(with("Tyre Size Method=1").tyreSizeMethod, kTyreSize);
  EXPECT_EQ(with("Tyre Size Method=2").tyreSizeMethod, kTyreRevolutions);
  EXPECT_EQ(with("Tyre Size Method= 1").tyreSizeMethod, kTyreRadius);
  EXPECT_FALSE(with("Use Drag Coefficient=y").useCd);
  EXPECT_EQ(with("2nd Gear Ratio=1.88849x").ratios[1], "1.888");
  EXPECT_EQ(with("Diff Ratio=abc").diffRatio, "0.000");
  EXPECT_EQ(with("Car Weight=heavy").carWeight, "heavy");
  EXPECT_EQ(with("Default Gear=1").gear, 0);
  EXPECT_EQ(with("Default Gear=0").gear, 0);
  EXPECT_EQ(with("Default Gear=99").gear, 5);
  EXPECT_EQ(with("Name=a\nName=b=c").name, "b=c");
}

}  // namespace
}  // namespace tarnview
