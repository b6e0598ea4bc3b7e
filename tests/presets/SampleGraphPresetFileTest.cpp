#include "presets/SampleGraphPresetFile.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Flat(const std::string& text) { return Join(SplitAt(text, "\r\n"), "; "); }

TEST(SampleGraphPresetFile, IsWrittenLineByLineAndReadBack) {
  clsSampleGraphPreset preset;
  preset.strName = "Boost = all";
  preset.colDataItems = {5, 3, 20};
  preset.blnFixGraphMax = true;
  preset.lngGraphMax = 240;
  preset.lngLogFamily = 2;
  const Moment now{2026, 11, 24, 14, 5, 9};
  const std::string text = SampleGraphPresetFileText(preset, true, now);
  EXPECT_EQ(Flat(text),
            "Tarnview Preset Sample Graph File; File Created: 24-Nov-2026 14:05; ; Preset Sample "
            "Graph Details:; Graph 1 Name=Boost = all; Graph 1 Data Items=5,3,20; Graph 1 Fix "
            "Graph Max=Y; Graph 1 Graph Max=240; Graph 1 Log Family=2; ");
  EXPECT_EQ(SampleGraphPresetFileText(*ReadSampleGraphPresetFile(text), true, now), text);
  const std::string without = SampleGraphPresetFileText(preset, false, now);
  EXPECT_EQ(without + "Graph 1 Log Family=2\r\n", text);
  EXPECT_EQ(ReadSampleGraphPresetFile(without)->lngLogFamily, 0);
}

TEST(SampleGraphPresetFile, ReadsWhatItFinds) {
  const std::string heading = "anything\r\nPreset Sample Graph Details:\r\n";
  const auto read = [&](const TableRow& row) {
    std::string lines = row.Lines();
    std::replace(lines.begin(), lines.end(), '@', '\0');
    const std::string text =
        Flat(SampleGraphPresetFileText(*ReadSampleGraphPresetFile(heading + lines), true, {}));
    return text.substr(text.find("Graph 1"));
  };
  ExpectTable(read, R"(
nothing -> Graph 1 Name=; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 2 Name=a; Graph 1 name=b -> Graph 1 Name=; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Graph Max=; Graph 1 Name=a=b -> Graph 1 Name=a=b; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Name -> Graph 1 Name=; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Name=a@@ -> Graph 1 Name=a; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Fix Graph Max=y -> Graph 1 Name=; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Data Items=3, 5,3,999 -> Graph 1 Name=; Graph 1 Data Items=3,5,999; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Data Items= -> Graph 1 Name=; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=0; 
Graph 1 Log Family=12 -> Graph 1 Name=; Graph 1 Data Items=; Graph 1 Fix Graph Max=N; Graph 1 Graph Max=0; Graph 1 Log Family=7; 
)");
  EXPECT_FALSE(ReadSampleGraphPresetFile(""));
  EXPECT_FALSE(ReadSampleGraphPresetFile(
      "Graph 1 Name=a\r\nPreset Sample Graph Details: \r\nGraph 1 Name=b"));
}

}  // namespace
}  // namespace tarnview
