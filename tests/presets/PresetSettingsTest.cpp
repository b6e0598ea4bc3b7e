#include "model/Catalogue.h"
#include "presets/PresetRecords.h"
#include "presets/PresetSettings.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// The records of both kinds as they are written, a line behind the other.
std::string Written(const clsSampleGraphPresets& samples, const clsScatterGraphPresets& scatters) {
  IniWriter file;
  WriteSamplePresets(samples, file);
  WriteScatterPresets(scatters, file);
  return Join(SplitAt(file.Text(), "\r\n"), "; ");
}

/// What the lines of a settings file give, as it is written again, and how often an unknown item
/// was told.
std::string ReadBack(const std::string& lines) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const IniTable table = ReadINIFileToArray(Join(SplitAt(lines, "; "), "\n"));
  clsSampleGraphPresets samples;
  clsScatterGraphPresets scatters;
  int told = 0;
  const auto tell = [&](const std::vector<int>&) { ++told; };
  ReadSamplePresets(table, tell, samples);
  ReadScatterPresets(table, catalogue.gcolFixedDataItems, catalogue.gcolFixedDataItems, tell,
                     scatters);
  const std::string count = told > 0 ? std::to_string(told) + " told; " : "";
  return count + Written(samples, scatters);
}

TEST(PresetSettings, AreReadAsFarAsTheyGoAndWrittenAgain) {
  const auto read = [](const TableRow& row) { return ReadBack(row.All()); };
  ExpectTable(read, R"(
# Missing keys are empty, numbers held to their limits; a gap ends the list.
[New Preset Sample Graphs]; Graph 1 Name=Bare; Graph 2 Name=Full; Graph 2 Data Items=5,3,5; Graph 2 Fix Graph Max=y; Graph 2 Graph Max=9x; Graph 2 Log Family=9; Graph 4 Name=Behind a gap -> Graph 1 Name=Bare; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=1; Graph 2 Name=Full; Graph 2 Data Items=5,3; Graph 2 Fix Graph Max=N; Graph 2 Graph Max=9; Graph 2 Log Family=7; 
[New Preset Scatter Graphs]; Graph 1 Name=Bare; Graph 1 X Axis=3; Graph 1 Y Axis=5; Graph 2 Name=Wild; Graph 2 Point Colour=99999999; Graph 2 Point Shape=12; Graph 2 Point Size=99; Graph 2 X Axis=83; Graph 2 Y Axis=5; Graph 2 Log Family=0 -> Graph 1 Name=Bare; Graph 1 Point Colour=0; Graph 1 Point Shape=0; Graph 1 Point Size=1; Graph 1 X Axis=3; Graph 1 Y Axis=5; Graph 1 File Open Draw=N; Graph 1 Log Family=1; Graph 2 Name=Wild; Graph 2 Point Colour=16777216; Graph 2 Point Shape=9; Graph 2 Point Size=10; Graph 2 X Axis=83; Graph 2 Y Axis=5; Graph 2 File Open Draw=N; Graph 2 Log Family=1; 
# An unknown item is dropped or replaced, and told.
[New Preset Sample Graphs]; Graph 1 Name=A; Graph 1 Data Items=3,84,0,5,-1 -> 1 told; Graph 1 Name=A; Graph 1 Data Items=3,5; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=1; 
[New Preset Scatter Graphs]; Graph 1 Name=B; Graph 1 X Axis=84; Graph 1 Y Axis=5; Graph 2 Name=C; Graph 2 X Axis=3; Graph 2 Y Axis=5; Graph 2 Filter 1 Data Item=99 -> 2 told; Graph 1 Name=B; Graph 1 Point Colour=0; Graph 1 Point Shape=0; Graph 1 Point Size=1; Graph 1 X Axis=1; Graph 1 Y Axis=5; Graph 1 File Open Draw=N; Graph 1 Log Family=1; Graph 2 Name=C; Graph 2 Point Colour=0; Graph 2 Point Shape=0; Graph 2 Point Size=1; Graph 2 X Axis=3; Graph 2 Y Axis=5; Graph 2 File Open Draw=N; Graph 2 Log Family=1; Graph 2 Filter 1 Data Item=1; Graph 2 Filter 1 From=; Graph 2 Filter 1 To=; 
# A filter keeps an unset bound and checks a list's index.
[New Preset Scatter Graphs]; Graph 1 Name=F; Graph 1 X Axis=3; Graph 1 Y Axis=5; Graph 1 Filter 1 Data Item=5; Graph 1 Filter 1 From=; Graph 1 Filter 1 To=60.5; Graph 1 Filter 2 Data Item=15; Graph 1 Filter 2 From=2; Graph 1 Filter 3 Data Item=15; Graph 1 Filter 3 From=3; Graph 1 Filter 5 Data Item=5 -> Graph 1 Name=F; Graph 1 Point Colour=0; Graph 1 Point Shape=0; Graph 1 Point Size=1; Graph 1 X Axis=3; Graph 1 Y Axis=5; Graph 1 File Open Draw=N; Graph 1 Log Family=1; Graph 1 Filter 1 Data Item=5; Graph 1 Filter 1 From=; Graph 1 Filter 1 To=60.5; Graph 1 Filter 2 Data Item=15; Graph 1 Filter 2 From=2; Graph 1 Filter 2 To=; Graph 1 Filter 3 Data Item=15; Graph 1 Filter 3 From=0; Graph 1 Filter 3 To=; 
[New Preset Scatter Graphs]; Graph 1 Name=L; Graph 1 X Axis=3; Graph 1 Y Axis=83; Graph 1 Filter 1 Data Item=83; Graph 1 Filter 1 From=2 -> Graph 1 Name=L; Graph 1 Point Colour=0; Graph 1 Point Shape=0; Graph 1 Point Size=1; Graph 1 X Axis=3; Graph 1 Y Axis=83; Graph 1 File Open Draw=N; Graph 1 Log Family=1; Graph 1 Filter 1 Data Item=83; Graph 1 Filter 1 From=2; Graph 1 Filter 1 To=; 
# A series of the older form is a mask of items; the new form comes first.
[Preset Graph Series]; Graph Series 1=4095, All, of them; Graph Series 2=144,RPM and Knock; Graph Series 3=x,None; Graph Series 5=1,Behind a gap; [New Preset Sample Graphs]; Graph 1 Name=New -> Graph 1 Name=New; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=1; Graph 2 Name=All, of them; Graph 2 Data Items=10,16,17,31,3,7,5,20,13,21,23,11; Graph 2 Fix Graph Max=N; Graph 2 Graph Max=10; Graph 2 Log Family=1; Graph 3 Name=RPM and Knock; Graph 3 Data Items=3,20; Graph 3 Fix Graph Max=N; Graph 3 Graph Max=10; Graph 3 Log Family=1; Graph 4 Name=None; Graph 4 Data Items=; Graph 4 Fix Graph Max=N; Graph 4 Graph Max=10; Graph 4 Log Family=1; 
# A scatter graph of the older form names its items and colours.
[Preset Scatter Graphs]; Graph 1 Name=Wild; Graph 1 Point Size=11; Graph 1 Point Shape=10 -> Graph 1 Name=Wild; Graph 1 Point Colour=0; Graph 1 Point Shape=9; Graph 1 Point Size=10; Graph 1 X Axis=3; Graph 1 Y Axis=3; Graph 1 File Open Draw=N; Graph 1 Log Family=1; 
[Preset Scatter Graphs]; Graph 1 Name=Old; Graph 1 XAxis=TPS; Graph 1 YAxis=Boost; Graph 1 Point Size=0; Graph 1 Point Shape=4; Graph 1 Point Colour=Magenta; Graph 1 Filter Data Type=C. Temp; Graph 1 Filter From=80; Graph 1 Filter To=; Graph 1 Filter 2 Data Type=None; Graph 1 Filter 2 From=1; Graph 1 X Axis Scale Min=5; Graph 2 Name=Older; Graph 2 Point Colour=magenta; Graph 2 Filter Data Type=C. Temp; Graph 2 Filter To=70 -> Graph 1 Name=Old; Graph 1 Point Colour=16711935; Graph 1 Point Shape=4; Graph 1 Point Size=1; Graph 1 X Axis=17; Graph 1 Y Axis=3; Graph 1 File Open Draw=N; Graph 1 Log Family=1; Graph 1 Filter 1 Data Item=23; Graph 1 Filter 1 From=80; Graph 1 Filter 1 To=; Graph 2 Name=Older; Graph 2 Point Colour=0; Graph 2 Point Shape=0; Graph 2 Point Size=1; Graph 2 X Axis=3; Graph 2 Y Axis=3; Graph 2 File Open Draw=N; Graph 2 Log Family=1; Graph 2 Filter 1 Data Item=23; Graph 2 Filter 1 From=; Graph 2 Filter 1 To=70; 
)");
}

TEST(PresetSettings, ANamelessPresetDoesNotCutOffThoseBehindIt) {
  clsSampleGraphPresets samples;
  samples.AddDirect({});
  samples.AddDirect(clsSampleGraphPresets::BlankPreset()).strName = "Last";
  const std::string again = ReadBack("[New Preset Sample Graphs]; " + Written(samples, {}));
  EXPECT_TRUE(again.starts_with("Graph 1 Name=New Preset; ")) << again;
  EXPECT_NE(again.find("Graph 2 Name=Last; "), std::string::npos) << again;
}

}  // namespace
}  // namespace tarnview
