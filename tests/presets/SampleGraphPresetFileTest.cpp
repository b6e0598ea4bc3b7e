#include <gtest/gtest.h>

#include "presets/SampleGraphPresetFile.h"

namespace tarnview {
namespace {

using Items = std::vector<int>;

constexpr const char* kStart = "anything\r\nPreset Sample Graph Details:\r\n";

TEST(SampleGraphPresetFile, IsWrittenLineByLineAndReadBack) {
  clsSampleGraphPreset preset;
  preset.strName = "Boost = all";
  preset.colDataItems = {5, 3, 20};
  preset.blnFixGraphMax = true;
  preset.lngGraphMax = 240;
  preset.lngLogFamily = 2;
  const std::string text = SampleGraphPresetFileText(preset, true, {2026, 11, 24, 14, 5, 9});
  EXPECT_EQ(text,
            "Tarnview Preset Sample Graph File\r\n"
            "File Created: 24-Nov-2026 14:05\r\n"
            "\r\n"
            "Preset Sample Graph Details:\r\n"
            "Graph 1 Name=Boost = all\r\n"
            "Graph 1 Data Items=5,3,20\r\n"
            "Graph 1 Fix Graph Max=Y\r\n"
            "Graph 1 Graph Max=240\r\n"
            "Graph 1 Log Family=2\r\n");
  const auto read = ReadSampleGraphPresetFile(text);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->strName, preset.strName);
  EXPECT_EQ(read->colDataItems, preset.colDataItems);
  EXPECT_TRUE(read->blnFixGraphMax);
  EXPECT_EQ(read->lngGraphMax, 240);
  EXPECT_EQ(read->lngLogFamily, 2);

  const std::string without = SampleGraphPresetFileText(preset, false, {});
  EXPECT_EQ(without.find("Log Family"), std::string::npos);
  EXPECT_EQ(ReadSampleGraphPresetFile(without)->lngLogFamily, 0);
}

TEST(SampleGraphPresetFile, ReadsWhatItFinds) {
  EXPECT_FALSE(ReadSampleGraphPresetFile(""));
  EXPECT_FALSE(ReadSampleGraphPresetFile(
      "Graph 1 Name=a\r\nPreset Sample Graph Details: \r\nGraph 1 Name=b"));
  const auto read = [](const std::string& lines) {
    return *ReadSampleGraphPresetFile(kStart + lines);
  };
  EXPECT_EQ(read("").strName, "");
  EXPECT_EQ(read("Graph 2 Name=a\nGraph 1 name=b").strName, "");
  EXPECT_EQ(read("Graph 1 Graph Max=\nGraph 1 Name=a=b").lngGraphMax, 0);
  EXPECT_EQ(read("Graph 1 Name").strName, "");
  EXPECT_EQ(read("Graph 1 Name=a" + std::string(2, '\0')).strName, "a");
  EXPECT_FALSE(read("Graph 1 Fix Graph Max=y").blnFixGraphMax);
  EXPECT_EQ(read("Graph 1 Data Items=3, 5,3,999").colDataItems, (Items{3, 5, 999}));
  EXPECT_EQ(read("Graph 1 Data Items=").colDataItems, (Items{}));
  EXPECT_EQ(read("Graph 1 Log Family=12").lngLogFamily, 7);
}

}  // namespace
}  // namespace tarnview
