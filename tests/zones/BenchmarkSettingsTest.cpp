#include <gtest/gtest.h>

#include "zones/BenchmarkSettings.h"

namespace tarnview {
namespace {

clsBenchmarks Read(const std::string& lines) {
  Settings settings;
  settings.gdblDefaultEngineSize = 1.8;
  settings.gdatDefaultChipDate = MakeDate(2001, 9, 18);
  settings.gintDefaultChipVersion = 3;
  settings.gintDefaultAtmosphericPressure = 99;
  clsBenchmarks benchmarks;
  ReadBenchmarks(ReadINIFileToArray("[Benchmarks]\n" + lines), settings, benchmarks);
  return benchmarks;
}

std::string Written(const clsBenchmarks& benchmarks) {
  IniWriter file;
  WriteBenchmarks(benchmarks, file);
  return file.Text();
}

TEST(BenchmarkSettings, WhatIsMissingIsTheUsersOwn) {
  const clsBenchmarks benchmarks = Read(
      "Benchmark 1 Name=\nBenchmark 1 Engine Size=\nBenchmark 2 Name=Two\nBenchmark 2 File=a.map\n"
      "Benchmark 2 Engine Size=1.6\nBenchmark 2 Chip Date=2000-01-01\nBenchmark 2 Chip Version=1\n"
      "Benchmark 2 Atmospheric Pressure=85\nBenchmark 4 Name=Behind a gap\n");
  ASSERT_EQ(benchmarks.Count(), 2);
  const std::string written = Written(benchmarks);
  EXPECT_TRUE(
      written.starts_with("Benchmark 1 Name=Benchmark 1\r\nBenchmark 1 File=Benchmark 1\r\n"
                          "Benchmark 1 Engine Size=1.8\r\nBenchmark 1 Chip Date=2001-09-18\r\n"
                          "Benchmark 1 Chip Version=3\r\nBenchmark 1 Atmospheric Pressure=99\r\n"
                          "Benchmark 1 Data Line 0= 000 000"));
  EXPECT_NE(written.find(
                "Benchmark 2 Name=Two\r\nBenchmark 2 File=a.map\r\nBenchmark 2 Engine Size=1.6\r\n"
                "Benchmark 2 Chip Date=2000-01-01\r\nBenchmark 2 Chip Version=1\r\n"
                "Benchmark 2 Atmospheric Pressure=85\r\n"),
            std::string::npos);
}

TEST(BenchmarkSettings, AllZonesComeBackTheUnknownOnesToo) {
  clsBenchmarks benchmarks = Read("Benchmark 1 Name=A\n");
  clsBenchmark& one = benchmarks.Item(1);
  for (int zone = 0; zone < 256; ++zone)
    one.ZoneSettings(zone) = static_cast<std::int16_t>(255 - zone);
  for (const int unknown : {0, 17, 47, 255}) one.ZoneSettings(unknown) = -1;
  const clsBenchmarks again = Read(Written(benchmarks));
  ASSERT_EQ(again.Count(), 1);
  EXPECT_EQ(again.Item(1).GetZoneSettingsDirect(), one.GetZoneSettingsDirect());
}

TEST(BenchmarkSettings, AFileWithoutAnyGetsTheEmergencyBenchmark) {
  const clsBenchmarks benchmarks = Read("");
  ASSERT_EQ(benchmarks.Count(), 1);
  EXPECT_EQ(benchmarks.Item(1).strName, "Emergency Benchmark");
  EXPECT_EQ(benchmarks.Item(1).File, "Emergency Benchmark");
  EXPECT_EQ(benchmarks.Item(1).EngineSize, 1.8);
  EXPECT_EQ(benchmarks.Item(1).ChipDate, MakeDate(2001, 9, 18));
  EXPECT_EQ(benchmarks.Item(1).GetZoneSettingsDirect(), ZoneSettings{});
}

}  // namespace
}  // namespace tarnview
