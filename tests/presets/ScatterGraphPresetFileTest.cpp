#include "presets/ScatterFilters.h"
#include "presets/ScatterGraphPresetFile.h"
#include "support/Table.h"

namespace tarnview {
namespace {

constexpr const char* kStart = "anything\r\nPreset Scatter Graph Details:\r\n";

class ScatterPresetFile : public ::testing::Test {
 protected:
  clsScatterGraphPreset Read(const std::string& lines) const {
    return *ReadScatterGraphPresetFile(kStart + lines, catalogue.gcolFixedDataItems);
  }
  Catalogue catalogue = BuildDataItemCatalogue();
};

TEST_F(ScatterPresetFile, IsWrittenLineByLineAndReadBack) {
  clsScatterGraphPreset preset;
  for (const auto member :
       {&clsScatterGraphPreset::lngPointColour, &clsScatterGraphPreset::lngPointShape,
        &clsScatterGraphPreset::lngPointSize, &clsScatterGraphPreset::lngXAxisDataItem,
        &clsScatterGraphPreset::lngYAxisDataItem})
    EXPECT_EQ(preset.*member, 0) << "never given";
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
  EXPECT_EQ(
      Join(SplitAt(text, "\r\n"), "; "),
      "Tarnview Preset Scatter Graph File; File Created: 24-Nov-2026 14:05; ; Preset Scatter "
      "Graph Details:; Graph 1 Name=Spool Up; Graph 1 Point Colour=16776960; Graph 1 Point "
      "Shape=3; Graph 1 Point Size=6; Graph 1 X Axis=3; Graph 1 Y Axis=5; Graph 1 File Open "
      "Draw=Y; Graph 1 Log Family=2; Graph 1 Filter 1 Data Item=5; Graph 1 Filter 1 From=0.1; "
      "Graph 1 Filter 1 To=; Graph 1 Filter 2 Data Item=3; Graph 1 Filter 2 From=; Graph 1 "
      "Filter 2 To=-2.5; ");
  const auto read = ReadScatterGraphPresetFile(text, catalogue.gcolFixedDataItems);
  ASSERT_TRUE(read);
  EXPECT_FALSE(read->FileOpenDraw);  // kept on purpose: it belongs to the user's list
  clsScatterGraphPreset back = *read;
  back.FileOpenDraw = true;
  EXPECT_EQ(ScatterGraphPresetFileText(back, true, {2026, 11, 24, 14, 5, 9}), text);
  EXPECT_FALSE(ReadScatterGraphPresetFile("Graph 1 Name=a", catalogue.gcolFixedDataItems));
}

TEST_F(ScatterPresetFile, HoldsNumbersToTheirLimits) {
  const auto held = [this](const TableRow& row) {
    const auto read = Read(row.Lines());
    std::string told;
    for (const long one :
         std::vector<long>{read.lngPointSize, read.lngPointShape, read.lngPointColour,
                           read.lngXAxisDataItem, read.lngYAxisDataItem, read.lngLogFamily})
      told += std::to_string(one) + " ";
    return told;
  };
  // Size, shape, colour, items of the axes, family.
  ExpectTable(held, R"(
Graph 1 Point Size=0; Graph 1 Point Shape=-1; Graph 1 Point Colour=-5; Graph 1 X Axis=84 -> 1 0 0 1 1 0 
Graph 1 Point Size=99; Graph 1 Point Shape=12; Graph 1 Point Colour=99999999 -> 10 9 16777216 1 1 0 
)");
}

TEST_F(ScatterPresetFile, GroupsTheLinesOfAFilterByItsNumber) {
  const auto filters = [this](const TableRow& row) {
    std::vector<std::string> told;
    for (const auto& filter : Read(row.Lines()).objFilters)
      told.push_back(FilterPrintString(filter, catalogue.gcolFixedDataItems));
    return Join(told, "; ");
  };
  ExpectTable(filters, R"(
Graph 1 Filter 2 To=; Graph 1 Filter 1 Data Item=3; Graph 1 Filter 2 Data Item=5; Graph 1 Filter 1 To=900; Graph 1 Filter 02 From=60 -> MAP [Manifold Air Pressure] from 60; RPM [RPM] to 900
Graph 1 Filter 1 Data Item=27; Graph 1 Filter 1 From=1 -> A/C [A/C Switch] = On
Graph 1 Filter 1 Data Item=27; Graph 1 Filter 1 From=7 -> A/C [A/C Switch] = Off
Graph 1 Filter 1 Data Item=900; Graph 1 Filter 1 From=3 -> Sample [Sample No.] from 3
# In any order.
Graph 1 Filter 1 From=1; Graph 1 Filter 1 Data Item=27 -> A/C [A/C Switch] = On
Graph 1 Filter 1 From=60; Graph 1 Filter 1 Data Item=5 -> MAP [Manifold Air Pressure] from 60
Graph 1 Filter 1 Colour=3; Graph 1 Filters=4; Graph 1 Filter 9; Graph 2 Filter 1 Data Item=5 -> 
)");
}

TEST_F(ScatterPresetFile, ABoundOfAListIsShownByItsPlace) {
  const auto shown = [this](const TableRow& row) {
    return FilterBoundText(row.Number(0), catalogue.gcolFixedDataItems.Item(27));
  };
  ExpectTable(shown, R"(
-1 -> -1 | 0 -> Off | 0.5 -> 0.5 | 1 -> On | 2 -> 2
)");
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
