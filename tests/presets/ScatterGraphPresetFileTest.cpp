#include <gtest/gtest.h>

#include "presets/ScatterFilters.h"
#include "presets/ScatterGraphPresetFile.h"

namespace tarnview {
namespace {

constexpr const char* kStart = "anything\r\nPreset Scatter Graph Details:\r\n";

class ScatterPresetFile : public ::testing::Test {
 protected:
  clsScatterGraphPreset Read(const std::string& lines) const {
    return *ReadScatterGraphPresetFile(kStart + lines, catalogue.gcolFixedDataItems);
  }
  std::string Filters(const std::string& lines) const {
    std::string text;
    for (const auto& filter : Read(lines).objFilters)
      text += FilterPrintString(filter, catalogue.gcolFixedDataItems) + "\n";
    return text;
  }

  Catalogue catalogue = BuildDataItemCatalogue();
};

TEST_F(ScatterPresetFile, IsWrittenLineByLineAndReadBack) {
  clsScatterGraphPreset preset;
  EXPECT_EQ(preset.lngPointColour + preset.lngPointSize, 0) << "never given";
  preset.strName = "Spool Up";
  preset.lngPointColour = 0xFFFF00;
  preset.lngPointShape = 3;
  preset.lngPointSize = 6;
  preset.lngXAxisDataItem = 3;
  preset.lngYAxisDataItem = 5;
  preset.FileOpenDraw = true;
  preset.lngLogFamily = 2;
  preset.objFilters.AddDirect({.dblFrom = 0.1, .lngDataItemSeq = 5});
  preset.objFilters.AddDirect({.dblTo = -2.5, .lngDataItemSeq = 3});
  const std::string text = ScatterGraphPresetFileText(preset, true, {2026, 11, 24, 14, 5, 9});
  EXPECT_EQ(text,
            "Tarnview Preset Scatter Graph File\r\n"
            "File Created: 24-Nov-2026 14:05\r\n"
            "\r\n"
            "Preset Scatter Graph Details:\r\n"
            "Graph 1 Name=Spool Up\r\n"
            "Graph 1 Point Colour=16776960\r\n"
            "Graph 1 Point Shape=3\r\n"
            "Graph 1 Point Size=6\r\n"
            "Graph 1 X Axis=3\r\n"
            "Graph 1 Y Axis=5\r\n"
            "Graph 1 File Open Draw=Y\r\n"
            "Graph 1 Log Family=2\r\n"
            "Graph 1 Filter 1 Data Item=5\r\n"
            "Graph 1 Filter 1 From=0.1\r\n"
            "Graph 1 Filter 1 To=\r\n"
            "Graph 1 Filter 2 Data Item=3\r\n"
            "Graph 1 Filter 2 From=\r\n"
            "Graph 1 Filter 2 To=-2.5\r\n");
  const auto read = ReadScatterGraphPresetFile(text, catalogue.gcolFixedDataItems);
  ASSERT_TRUE(read);
  EXPECT_FALSE(read->FileOpenDraw);  // kept on purpose: it belongs to the user's list
  clsScatterGraphPreset back = *read;
  back.FileOpenDraw = true;
  EXPECT_EQ(ScatterGraphPresetFileText(back, true, {2026, 11, 24, 14, 5, 9}), text);
  EXPECT_FALSE(ReadScatterGraphPresetFile("Graph 1 Name=a", catalogue.gcolFixedDataItems));
}

TEST_F(ScatterPresetFile, HoldsNumbersToTheirLimits) {
  const auto low = Read(
      "Graph 1 Point Size=0\nGraph 1 Point Shape=-1\nGraph 1 Point Colour=-5\nGraph 1 X Axis=84");
  EXPECT_EQ(low.lngPointSize, 1);
  EXPECT_EQ(low.lngPointShape, 0);
  EXPECT_EQ(low.lngPointColour, 0);
  EXPECT_EQ(low.lngXAxisDataItem, 1);
  EXPECT_EQ(low.lngYAxisDataItem, 1);
  EXPECT_EQ(low.lngLogFamily, 0);
  const auto high =
      Read("Graph 1 Point Size=99\nGraph 1 Point Shape=12\nGraph 1 Point Colour=99999999");
  EXPECT_EQ(high.lngPointSize, 10);
  EXPECT_EQ(high.lngPointShape, 9);
  EXPECT_EQ(high.lngPointColour, 0x1000000);
}

TEST_F(ScatterPresetFile, GroupsTheLinesOfAFilterByItsNumber) {
  const struct {
    const char* lines;
    const char* filters;
  } kRows[] = {
      // clang-format off
      {"Graph 1 Filter 2 To=\nGraph 1 Filter 1 Data Item=3\nGraph 1 Filter 2 Data Item=5\nGraph 1 Filter 1 To=900\n"
       "Graph 1 Filter 02 From=60",
       "MAP [Manifold Air Pressure] from 60\nRPM [RPM] to 900\n"},
      {"Graph 1 Filter 1 Data Item=27\nGraph 1 Filter 1 From=1", "A/C [A/C Switch] = On\n"},
      {"Graph 1 Filter 1 Data Item=27\nGraph 1 Filter 1 From=7", "A/C [A/C Switch] = Off\n"},
      {"Graph 1 Filter 1 Data Item=900\nGraph 1 Filter 1 From=3", "Sample [Sample No.] from 3\n"},
      // In any order.
      {"Graph 1 Filter 1 From=1\nGraph 1 Filter 1 Data Item=27", "A/C [A/C Switch] = On\n"},
      {"Graph 1 Filter 1 From=60\nGraph 1 Filter 1 Data Item=5", "MAP [Manifold Air Pressure] from 60\n"},
      {"Graph 1 Filter 1 Colour=3\nGraph 1 Filters=4\nGraph 1 Filter 9\nGraph 2 Filter 1 Data Item=5", "\n"},
      // clang-format on
  };
  for (const auto& row : kRows) EXPECT_EQ(Filters(row.lines), row.filters) << row.lines;
}

TEST_F(ScatterPresetFile, FiltersOnWhatIsNotDisplayedGo) {
  catalogue.gcolFixedDataItems.Item(5).blnDisplay = false;
  catalogue.gcolFixedDataItems.Item(1).blnDisplay = false;  // the time axes always stay
  clsScatterFilters filters;
  for (const int seq : {5, 1, 3, 47, 0}) filters.AddDirect({.dblFrom = 1, .lngDataItemSeq = seq});
  EXPECT_EQ(RemoveNonDisplayFilters(filters, catalogue, 1), (std::vector<int>{5, 47, 0}));
  EXPECT_EQ(filters.Count(), 2);
}

}  // namespace
}  // namespace tarnview
