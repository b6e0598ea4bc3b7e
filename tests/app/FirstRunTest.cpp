// The first run: which log, which template, what is written into it; and the templates that are
// shipped.

#include "app/FirstRun.h"
#include "model/ConversionTables.h"
#include "support/ProgramFixture.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

constexpr const char* kDefinition = "/tv/data/Universal Data Log Formats/OBDLink.txt";

class FirstRunTest : public ProgramFixture {
 protected:
  FirstRunTest() {
    files.folders = {"/tv", "/tv/bin", "/tv/data"};
    for (const std::string& name : disk.List(TARNVIEW_DATA, "Tarnview_Install*.ini"))
      files.files["/tv/data/" + name] = Shipped(name);
    files.files[kDefinition] = Shipped("Universal Data Log Formats/OBDLink.txt");
    files.files["/tv/data/Universal Data Log Formats/bad.txt"] = "no definition";
    story.Verb("first", [this](const auto&) { First(); });
    story.Verb("home", [this](const auto&) {
      First({"/home/me/.config/tarnview/", "/tv/data/", "/home/me/Documents/"});
    });
    story.Verb("whole", [this](const auto&) {
      for (const Form* form : host.open) ExpectWhole(*form, TARNVIEW_TESTS);
    });
    story.Verb("bare", [this](const auto&) { files.files.clear(); });
    story.PassOver("tmrTimer");
  }
  std::string Shipped(const std::string& name) {
    const auto bytes = disk.Read(TARNVIEW_DATA "/" + name);
    EXPECT_TRUE(bytes) << name;
    return std::string(bytes ? std::string_view(*bytes) : "");
  }
  void First(const ProgramFolders& folders = {"/tv/bin/", "/tv/data/"}) {
    program.reset();
    host.open.clear();
    program = std::make_unique<Program>(host, files, clock, processes, folders);
    program->Start("", true);
    path = folders.program + "Tarnview.ini";
  }

  RealFileSystem disk;
  std::string path;  ///< of the settings
};

TEST_F(FirstRunTest, AsksWhichLogOnceAndOtherNeedsAGoodDefinition) {
  EXPECT_STORY(story);
  EXPECT_TRUE(files.files[path].starts_with("[General]\r\n"));
}

TEST_F(FirstRunTest, ATemplateIsCopiedAndFilledIn) {
  files.files["/tv/bin/Tarnview_Install1.ini"] =
      "[General]\r\nFirst Run Indicator=Y\r\nAlternative Background "
      "Picture=C:\\old\\car.bmp\r\nZoom Amount=30\r\n";
  story.Fact("settings", [this] {
    const IniTable written = ReadINIFileToArray(files.Read(path).value_or(""));
    std::string told;
    for (const char* key :
         {"Initial Directory", "Default Working Directory", "Alternative Background Picture",
          "Log EXE", "Conversion EXE", "O2 Input Conversion File", "Zoom Amount",
          "Default File Type", "Generic Data Log Definition File"})
      if (const auto value = GetINIValue(written, "General", key))
        told += std::string(key) + "=" + std::string(*value) + "|";
    return told;
  });
  Fact("definition", [this] { return program->Global().gclsDataLogDefinition.strName; });
  EXPECT_STORY(story);
}

/// How many presets of a family, and a fault for each item that its logs do not have.
template <class Presets, class Items>
int PresetsOf(int family, const Presets& presets, const clsLogDataItems& items,
              const Items& itemsOf) {
  int count = 0;
  for (const auto& preset : presets) {
    if (preset.lngLogFamily != family) continue;
    ++count;
    for (const int item : itemsOf(preset))
      EXPECT_TRUE(items.Item(item).InFamily(family))
          << preset.strName << ", family " << family << ", item " << item;
  }
  return count;
}

std::vector<int> ItemsOfSample(const clsSampleGraphPreset& preset) {
  return {preset.colDataItems.begin(), preset.colDataItems.end()};
}

std::vector<int> ItemsOfScatter(const clsScatterGraphPreset& preset) {
  std::vector<int> all{preset.lngXAxisDataItem, preset.lngYAxisDataItem};
  for (const clsScatterFilter& filter : preset.objFilters) all.push_back(filter.lngDataItemSeq);
  return all;
}

TEST_F(FirstRunTest, TheShippedTemplatesHoldGoodData) {
  for (int type = 1; type <= kUniversalLog; ++type) {
    SCOPED_TRACE(type);
    files.files["/tv/bin/Tarnview.ini"] =
        Shipped("Tarnview_Install" + std::to_string(type) + ".ini");
    First();
    EXPECT_TRUE(host.messages.empty());
    const Globals& globals = program->Global();
    const clsLogDataItems& items = globals.catalogue.gcolFixedDataItems;
    EXPECT_EQ(globals.settings.gintDefaultFileType, type);
    EXPECT_EQ(globals.gcolCarDefs.Count(), 5);
    const int own = globals.kinds.gcolLogFamilies.FirstLogFamily(type);
    for (const int item : globals.settings.gcolCheckedDataItems)
      EXPECT_TRUE(own == kUniversalLogFamily || items.Item(item).InFamily(own)) << item;
    for (int family = 1; family <= 6; ++family) {
      const int samples = PresetsOf(family, globals.gcolSampleGraphPresets, items, ItemsOfSample);
      const int scatters =
          PresetsOf(family, globals.gcolScatterGraphPresets, items, ItemsOfScatter);
      EXPECT_TRUE(samples >= 4 && samples <= 8) << samples;
      EXPECT_TRUE(scatters >= 6 && scatters <= 10) << scatters;
    }
    Main().Unload();
  }
}

TEST_F(FirstRunTest, TheShippedConversionTableIsSorted) {
  const ConversionTable table =
      ParseConversionTable(Shipped("NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt"));
  ASSERT_GT(table.size(), 20u);
  EXPECT_EQ(TableLookup(80, table, true, false), 14700);
  for (std::size_t row = 1; row < table.size(); ++row) {
    EXPECT_LT(table[row - 1].first, table[row].first);
    EXPECT_GT(table[row - 1].second, table[row].second);
  }
}

}  // namespace
}  // namespace tarnview
