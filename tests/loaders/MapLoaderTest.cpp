#include <gtest/gtest.h>

#include "loaders/BenchmarkLog.h"
#include "loaders/MapLoader.h"
#include "model/Catalogue.h"

namespace tarnview {
namespace {

std::string Cells(int count, const std::string& cell) {
  std::string text;
  for (int c = 0; c < count; ++c) text += cell;
  return text + "\n";
}

std::string Told(const std::vector<LoadMessage>& messages) {
  std::string told;
  for (const LoadMessage& message : messages)
    told += std::to_string(static_cast<int>(message.id)) + " ";
  return told;
}

class MapLoaderTest : public ::testing::Test {
 protected:
  LoadOutcome Load(const std::string& bytes) {
    return LoadMap(bytes, {log, catalogue.gcolFixedDataItems, settings, tables, progress});
  }
  const Catalogue catalogue = BuildDataItemCatalogue();
  Settings settings;
  ConversionTables tables;
  NoProgress progress;
  OpenLog log;
};

TEST_F(MapLoaderTest, AMapIsZonesWithoutSamples) {
  log.gblnSamplesLoaded = true;
  std::string text;
  for (int line = 0; line < 15; ++line) text += Cells(16, " 002");
  const LoadOutcome outcome = Load(text + " Engine Size: 1.8\n Notes:\na\n End Of Notes\n");
  EXPECT_TRUE(outcome.loaded);
  EXPECT_EQ(Told(outcome.messages), "8 9 ");
  EXPECT_TRUE(log.gblnZonesLoaded);
  EXPECT_FALSE(log.gblnSamplesLoaded);
  EXPECT_FALSE(log.zones.gblnZoneLayout6);
  EXPECT_EQ(log.zones.strNotes, "a");
  Load(text + text);
  EXPECT_TRUE(log.gblnZonesLoaded);
}

TEST_F(MapLoaderTest, WhatIsNoMap) {
  const LoadOutcome outcome = Load(Cells(16, " 1e5"));
  EXPECT_FALSE(outcome.loaded);
  EXPECT_EQ(outcome.error, "6, Overflow");
  EXPECT_EQ(Told(outcome.messages), "56 ");
  EXPECT_FALSE(log.gblnZonesLoaded);
}

/// A log's zone section, each zone 3, one cell unknown.
std::string Section() {
  std::string text = "Sample\nInitial zone map\n\n ATM" + Cells(16, "   3") + "\nrest\n" +
                     Cells(16, "   3") + "fuel\n";
  text += "    *" + Cells(15, "   3").substr(1);
  for (int row = 1; row < 6; ++row) text += Cells(16, "   3");
  text += "\nx\nignition\n";
  for (int row = 0; row < 6; ++row) text += Cells(16, "   3");
  return text + "\nmore\n" + Cells(16, "   3") + Cells(16, "   3");
}

std::string Told(const MapReading& reading) {
  if (!reading.read) return "none " + reading.error;
  std::string told = std::to_string(reading.map.zones[0]) + std::to_string(reading.map.zones[32]) +
                     std::to_string(reading.map.zones[33]) +
                     std::to_string(reading.map.zones[255]) + " " +
                     DateText(reading.map.chip.datChipDate) + " " +
                     std::to_string(reading.map.intAtmosphericPressure);
  for (const Message message : reading.messages)
    told += " " + std::to_string(static_cast<int>(message));
  return told;
}

TEST(BenchmarkLog, ZonesAndChipOfALog) {
  const std::string settings = "x\n ATM = 101            1.8 18-Sep-01 \n";
  const struct {
    const char* what;
    std::string text, told;
  } cases[] = {
      {"whole", Section() + settings, "3033 2001-09-18 101"},
      {"no settings line", Section(), "3033 2000-01-01 75 7 8 9"},
      {"no zones", "Sample\n", "none "},
      {"settings first", settings + Section(), "none "},
      {"cut off", Section().substr(0, 300), "none 62, Input past end of file"},
      {"nothing", "", "none "},
  };
  long bytes = 0;
  for (const auto& c : cases)
    EXPECT_EQ(Told(ReadBenchmarkLog(c.text, Settings{}, [&](long length) { bytes += length; })),
              c.told)
        << c.what;
  EXPECT_GT(bytes, 0);
}

}  // namespace
}  // namespace tarnview
