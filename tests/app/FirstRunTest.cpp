// The first run: which log, which template, what is written into it; and the templates that are
// shipped.

#include <gmock/gmock.h>

#include "app/FirstRun.h"
#include "app/frmFindINIFile.h"
#include "model/ConversionTables.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kPath = "/tv/bin/Tarnview.ini";

/// A desktop whose user fills the first run's window in.
class Desktop : public RecordingHost {
 public:
  std::function<void(frmFindINIFile&)> user;

 protected:
  void RunModal(Form& form) override {
    if (user) user(dynamic_cast<frmFindINIFile&>(form));
    form.Unload();
  }
};

constexpr const char* kDefinition = "/tv/data/Universal Data Log Formats/OBDLink.txt";

class FirstRunTest : public ::testing::Test {
 protected:
  FirstRunTest() {
    files.folders = {"/tv", "/tv/bin", "/tv/data"};
    for (const std::string& name : disk.List(TARNVIEW_DATA, "Tarnview_Install*.ini"))
      files.files["/tv/data/" + name] = Shipped(name);
    files.files[kDefinition] = Shipped("Universal Data Log Formats/OBDLink.txt");
    files.files["/tv/data/Universal Data Log Formats/bad.txt"] = "no definition";
  }
  std::string Shipped(const std::string& name) {
    const auto bytes = disk.Read(TARNVIEW_DATA "/" + name);
    EXPECT_TRUE(bytes) << name;
    return std::string(bytes ? std::string_view(*bytes) : "");
  }
  void Start() {
    program = std::make_unique<Program>(host, files, clock, processes,
                                        ProgramFolders{"/tv/bin/", "/tv/data/"});
    program->Start("", true);
  }
  void Choose(const std::string& entry) {
    host.user = [entry](frmFindINIFile& window) {
      Act(window, "choose lstFileType " + entry + "\nclick cmdOK");
    };
  }
  std::vector<int> MessageIds() const {
    std::vector<int> ids;
    for (const Box& box : host.messages) ids.push_back(box.id);
    return ids;
  }
  std::string Value(const char* key, const char* path = kPath) {
    return std::string(
        GetINIValue(ReadINIFileToArray(files.files[path]), "General", key).value_or("(missing)"));
  }

  RealFileSystem disk;
  Desktop host;
  MemoryFileSystem files;
  FixedClock clock;
  RecordingProcesses processes;
  std::unique_ptr<Program> program;
};

TEST_F(FirstRunTest, LogsOfAUserWithAFolderOfHisOwnLieInHisDocuments) {
  Choose("Tec-2 Data Logs");
  const ProgramFolders folders{"/home/me/.config/tarnview/", "/tv/data/", "/home/me/Documents/"};
  program = std::make_unique<Program>(host, files, clock, processes, folders);
  program->Start("", true);
  for (const char* key : {"Default Working Directory", "Initial Directory"})
    EXPECT_EQ(Value(key, "/home/me/.config/tarnview/Tarnview.ini"), "/home/me/Documents/");
}

TEST_F(FirstRunTest, TheListIsSortedAndEndsWithOther) {
  host.user = [this](frmFindINIFile& window) {
    EXPECT_THAT(window.lstFileType.Entries(),
                ElementsAre("FM Link Data Logs", "FM Link MAP Files", "LinkPlus Data Logs",
                            "OBDLink Data Logs", "Tec-2 Data Logs", "Tec-3 Data Logs",
                            "UTEC CSV Data Logs", "UTEC Fixed-Width Data Logs", "<Other>"));
    EXPECT_EQ(window.lstFileType.ListIndex(), 0);
    const char* const kOther = "txtPathOther lblPathOther cmdBrowse";
    EXPECT_EQ(Enabled(window, kOther), "");
    Act(window, "choose lstFileType <Other>");
    EXPECT_EQ(Enabled(window, kOther), std::string(kOther) + " ");
    host.nextFile = Answer{Answer::Kind::File, "/logs/my.txt"};
    window.cmdBrowse.Press();
    EXPECT_EQ(window.ActiveControl(), &window.cmdOK) << "Enter goes on from there";
    Act(window, "choose lstFileType #3");
    EXPECT_EQ(Enabled(window, kOther), "");
  };
  Start();
}

TEST_F(FirstRunTest, CancelEndsTheProgramWithNoFile) {
  Start();
  EXPECT_THAT(MessageIds(), ElementsAre(65));
  EXPECT_TRUE(host.open.empty());
  EXPECT_FALSE(files.files.contains(kPath));
}

TEST_F(FirstRunTest, ATemplateIsCopiedAndFilledIn) {
  files.files["/tv/bin/Tarnview_Install1.ini"] =
      "[General]\r\nFirst Run Indicator=Y\r\nAlternative Background "
      "Picture=C:\\old\\car.bmp\r\nZoom Amount=30\r\n";
  Choose("FM Link Data Logs");
  Start();
  const std::pair<const char*, const char*> values[] = {
      {"Initial Directory", "/tv/"},
      {"Default Working Directory", "/tv/"},
      {"Alternative Background Picture", "/tv/Images/car.bmp"},
      {"Log EXE", "/tv/LinkWin/LinkWin.exe"},
      {"Conversion EXE", "/tv/MDOS/MDOS_AT.exe"},
      {"O2 Input Conversion File", "/tv/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt"},
      {"Zoom Amount", "30"},
      {"Generic Data Log Definition File", "(missing)"}};
  for (const auto& [key, value] : values) EXPECT_EQ(Value(key), value) << key;
  EXPECT_EQ(program->MainWindow().cboZoomAmount.Text(), "30");
}

TEST_F(FirstRunTest, ATableInTheDataFolderIsFoundThere) {
  const std::string table = "/tv/data/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt";
  files.files[table] = "TARNVIEW CONVERSION TABLE\r\n";
  Choose("FM Link MAP Files");
  Start();
  EXPECT_EQ(Value("O2 Input Conversion File"), table);
  EXPECT_EQ(Value("Default File Type"), "2");
}

TEST_F(FirstRunTest, ADefinitionIsTakenWithItsPresets) {
  Choose("OBDLink Data Logs");
  Start();
  EXPECT_THAT(MessageIds(), ElementsAre());
  EXPECT_EQ(Value("Generic Data Log Definition File"), kDefinition);
  EXPECT_EQ(Value("Log EXE"), "");
  const Globals& globals = program->Global();
  EXPECT_EQ(globals.gclsDataLogDefinition.strName, "OBDLink");
  EXPECT_EQ(globals.settings.gintDefaultFileType, kUniversalLog);
}

TEST_F(FirstRunTest, OtherNeedsAGoodDefinition) {
  host.user = [this](frmFindINIFile& window) {
    Act(window, "choose lstFileType <Other>\nclick cmdOK");
    EXPECT_TRUE(window.IsShown());
    Act(window, "type txtPathOther /tv/none.txt\nclick cmdOK");
    EXPECT_TRUE(window.IsShown());
    host.answers = {{Answer::Kind::File, kDefinition}};
    Act(window, "click cmdBrowse\nclick cmdOK");
    EXPECT_FALSE(window.IsShown());
  };
  Start();
  EXPECT_THAT(MessageIds(), ElementsAre(78, 70));
  EXPECT_EQ(Value("Generic Data Log Definition File"), kDefinition);
}

TEST_F(FirstRunTest, WithoutATemplateTheDefaultsServe) {
  files.files.clear();
  Choose("Tec-2 Data Logs");
  Start();
  EXPECT_THAT(MessageIds(), Contains(29));
  EXPECT_TRUE(program->MainWindow().IsShown());
  EXPECT_FALSE(files.files.contains(kPath));
  program->MainWindow().Unload();
  EXPECT_THAT(files.files[kPath], HasSubstr("[General]\r\n"));
}

TEST_F(FirstRunTest, AFileThatIsThereAsksNothing) {
  files.files[kPath] = "[General]\r\n";
  host.user = [](frmFindINIFile&) { ADD_FAILURE(); };
  Start();
  EXPECT_TRUE(program->MainWindow().IsShown());
}

/// Presets of a family, and a fault for each item that its logs do not have.
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

TEST_F(FirstRunTest, TheShippedTemplatesHoldGoodData) {
  for (int type = 1; type <= kUniversalLog; ++type) {
    SCOPED_TRACE(type);
    files.files[kPath] = Shipped("Tarnview_Install" + std::to_string(type) + ".ini");
    Start();
    EXPECT_THAT(MessageIds(), ElementsAre());
    const Globals& globals = program->Global();
    const clsLogDataItems& items = globals.catalogue.gcolFixedDataItems;
    EXPECT_EQ(globals.settings.gintDefaultFileType, type);
    EXPECT_EQ(globals.gcolCarDefs.Count(), 5);
    const int own = globals.kinds.gcolLogFamilies.FirstLogFamily(type);
    for (const int item : globals.settings.gcolCheckedDataItems) {
      EXPECT_TRUE(own == kUniversalLogFamily || items.Item(item).InFamily(own)) << item;
    }
    for (int family = 1; family <= 6; ++family) {
      const int samples =
          PresetsOf(family, globals.gcolSampleGraphPresets, items,
                    [](const clsSampleGraphPreset& preset) { return preset.colDataItems; });
      const int scatters = PresetsOf(
          family, globals.gcolScatterGraphPresets, items, [](const clsScatterGraphPreset& preset) {
            std::vector<int> all{preset.lngXAxisDataItem, preset.lngYAxisDataItem};
            for (const clsScatterFilter& filter : preset.objFilters)
              all.push_back(filter.lngDataItemSeq);
            return all;
          });
      EXPECT_TRUE(samples >= 4 && samples <= 8) << samples;
      EXPECT_TRUE(scatters >= 6 && scatters <= 10) << scatters;
    }
    program->MainWindow().Unload();
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
