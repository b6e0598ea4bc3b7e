#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "presets/PresetRecords.h"
#include "presets/PresetSettings.h"

namespace tarnview {
namespace {

/// What the settings file's text gives, and how often an unknown item was told.
struct ReadBack {
  explicit ReadBack(const std::string& text) {
    const IniTable table = ReadINIFileToArray(text);
    const auto tell = [this](const std::vector<int>&) { ++told; };
    ReadSamplePresets(table, tell, samples);
    ReadScatterPresets(table, catalogue.gcolFixedDataItems, catalogue.gcolFixedDataItems, tell,
                       scatters);
  }
  const Catalogue catalogue = BuildDataItemCatalogue();
  clsSampleGraphPresets samples;
  clsScatterGraphPresets scatters;
  int told = 0;
};

/// The records of both kinds as they are written.
std::string Written(const ReadBack& read) {
  IniWriter file;
  WriteSamplePresets(read.samples, file);
  WriteScatterPresets(read.scatters, file);
  return file.Text();
}

TEST(PresetSettings, MissingKeysAreEmptyAndNumbersHeldToTheirLimits) {
  const ReadBack read(
      "[New Preset Sample Graphs]\nGraph 1 Name=Bare\nGraph 2 Name=Full\nGraph 2 Data Items=5,3,5\n"
      "Graph 2 Fix Graph Max=y\nGraph 2 Graph Max=9x\nGraph 2 Log Family=9\nGraph 4 Name=Behind a "
      "gap\n"
      "[New Preset Scatter Graphs]\nGraph 1 Name=Bare\nGraph 1 X Axis=3\nGraph 1 Y Axis=5\nGraph 2 "
      "Name=Wild\n"
      "Graph 2 Point Colour=99999999\nGraph 2 Point Shape=12\nGraph 2 Point Size=99\nGraph 2 X "
      "Axis=83\n"
      "Graph 2 Y Axis=5\nGraph 2 Log Family=0\n");
  EXPECT_EQ(
      Written(read),
      "Graph 1 Name=Bare\r\nGraph 1 Data Items=\r\nGraph 1 Fix Graph Max=N\r\nGraph 1 Graph "
      "Max=0\r\n"
      "Graph 1 Log Family=1\r\nGraph 2 Name=Full\r\nGraph 2 Data Items=5,3\r\nGraph 2 Fix Graph "
      "Max=N\r\n"
      "Graph 2 Graph Max=9\r\nGraph 2 Log Family=7\r\n"
      "Graph 1 Name=Bare\r\nGraph 1 Point Colour=0\r\nGraph 1 Point Shape=0\r\nGraph 1 Point "
      "Size=1\r\n"
      "Graph 1 X Axis=3\r\nGraph 1 Y Axis=5\r\nGraph 1 File Open Draw=N\r\nGraph 1 Log Family=1\r\n"
      "Graph 2 Name=Wild\r\nGraph 2 Point Colour=16777216\r\nGraph 2 Point Shape=9\r\nGraph 2 "
      "Point Size=10\r\n"
      "Graph 2 X Axis=83\r\nGraph 2 Y Axis=5\r\nGraph 2 File Open Draw=N\r\nGraph 2 Log "
      "Family=1\r\n");
  EXPECT_EQ(read.told, 0);
}

TEST(PresetSettings, AnUnknownItemIsDroppedOrReplacedAndTold) {
  const ReadBack read(
      "[New Preset Sample Graphs]\nGraph 1 Name=A\nGraph 1 Data Items=3,84,0,5,-1\n"
      "[New Preset Scatter Graphs]\nGraph 1 Name=B\nGraph 1 X Axis=84\nGraph 1 Y Axis=5\n"
      "Graph 2 Name=C\nGraph 2 X Axis=3\nGraph 2 Y Axis=5\nGraph 2 Filter 1 Data Item=99\n");
  EXPECT_EQ(read.told, 3);
  EXPECT_EQ(read.samples.Item(1).colDataItems, (std::vector<int>{3, 5}));
  EXPECT_EQ(read.scatters.Item(1).lngXAxisDataItem, 1);
  EXPECT_EQ(read.scatters.Item(2).objFilters.Item(1).lngDataItemSeq, 1);
}

TEST(PresetSettings, AFilterKeepsAnUnsetBoundAndChecksAListsIndex) {
  const ReadBack read(
      "[New Preset Scatter Graphs]\nGraph 1 Name=F\nGraph 1 X Axis=3\nGraph 1 Y Axis=5\n"
      "Graph 1 Filter 1 Data Item=5\nGraph 1 Filter 1 From=\nGraph 1 Filter 1 To=60.5\n"
      "Graph 1 Filter 2 Data Item=15\nGraph 1 Filter 2 From=2\n"
      "Graph 1 Filter 3 Data Item=15\nGraph 1 Filter 3 From=3\n"
      "Graph 1 Filter 5 Data Item=5\n");
  const std::string written = Written(read);
  EXPECT_EQ(written.substr(written.find("Graph 1 Filter")),
            "Graph 1 Filter 1 Data Item=5\r\nGraph 1 Filter 1 From=\r\nGraph 1 Filter 1 To=60.5\r\n"
            "Graph 1 Filter 2 Data Item=15\r\nGraph 1 Filter 2 From=2\r\nGraph 1 Filter 2 To=\r\n"
            "Graph 1 Filter 3 Data Item=15\r\nGraph 1 Filter 3 From=0\r\nGraph 1 Filter 3 To=\r\n");
}

TEST(PresetSettings, ANamelessPresetDoesNotCutOffThoseBehindIt) {
  ReadBack read("");
  read.samples.AddDirect({});
  read.samples.AddDirect(clsSampleGraphPresets::BlankPreset()).strName = "Last";
  const ReadBack again("[New Preset Sample Graphs]\n" + Written(read));
  ASSERT_EQ(again.samples.Count(), 2);
  EXPECT_EQ(again.samples.Item(1).strName, "New Preset");
}

TEST(OldPresetSettings, ASeriesIsAMaskOfItems) {
  const ReadBack read(
      "[Preset Graph Series]\nGraph Series 1=4095, All, of them\nGraph Series 2=144,RPM and "
      "Knock\nGraph Series "
      "3=x,None\n"
      "Graph Series 5=1,Behind a gap\n[New Preset Sample Graphs]\nGraph 1 Name=New\n");
  ASSERT_EQ(read.samples.Count(), 4);
  EXPECT_EQ(read.samples.Item(1).strName, "New");
  EXPECT_EQ(read.samples.Item(2).strName, "All, of them");
  EXPECT_EQ(read.samples.Item(2).colDataItems,
            (std::vector<int>{10, 16, 17, 31, 3, 7, 5, 20, 13, 21, 23, 11}));
  EXPECT_EQ(read.samples.Item(3).colDataItems, (std::vector<int>{3, 20}));
  EXPECT_TRUE(read.samples.Item(4).colDataItems.empty());
  EXPECT_TRUE(read.samples.Item(3).strName.starts_with("RPM and"));
  EXPECT_EQ(read.samples.Item(3).lngLogFamily, 1);
  EXPECT_EQ(read.samples.Item(3).lngGraphMax, 10);
  EXPECT_FALSE(read.samples.Item(3).blnFixGraphMax);
}

TEST(OldPresetSettings, AScatterGraphNamesItsItemsAndColours) {
  const ReadBack read(
      "[Preset Scatter Graphs]\nGraph 1 Name=Old\nGraph 1 XAxis=TPS\nGraph 1 YAxis=Boost\nGraph 1 "
      "Point Size=0\n"
      "Graph 1 Point Shape=4\nGraph 1 Point Colour=Magenta\nGraph 1 Filter Data Type=C. "
      "Temp\nGraph 1 Filter From=80\n"
      "Graph 1 Filter To=\nGraph 1 Filter 2 Data Type=None\nGraph 1 Filter 2 From=1\nGraph 1 X "
      "Axis Scale Min=5\n"
      "Graph 2 Name=Older\nGraph 2 Point Colour=magenta\n");
  EXPECT_EQ(Written(read),
            "Graph 1 Name=Old\r\nGraph 1 Point Colour=16711935\r\nGraph 1 Point Shape=4\r\nGraph 1 "
            "Point Size=1\r\n"
            "Graph 1 X Axis=17\r\nGraph 1 Y Axis=3\r\nGraph 1 File Open Draw=N\r\nGraph 1 Log "
            "Family=1\r\n"
            "Graph 1 Filter 1 Data Item=23\r\nGraph 1 Filter 1 From=80\r\nGraph 1 Filter 1 To=\r\n"
            "Graph 2 Name=Older\r\nGraph 2 Point Colour=0\r\nGraph 2 Point Shape=0\r\nGraph 2 "
            "Point Size=1\r\n"
            "Graph 2 X Axis=3\r\nGraph 2 Y Axis=3\r\nGraph 2 File Open Draw=N\r\nGraph 2 Log "
            "Family=1\r\n");
}

}  // namespace
}  // namespace tarnview
