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

class FirstRunTest : public ::testing::Test {
 protected:
  FirstRunTest() {
    files.folders = {"/tv", "/tv/bin", "/tv/data"};
    for (const std::string& name : disk.List(TARNVIEW_DATA, "Tarnview_Install*.ini"))
      files.files["/tv/data/" + name] =
          disk.Read(std::string(TARNVIEW_DATA "/") + name).value_or("");
    files.files["/tv/data/Universal Data Log Formats/OBDLink.txt"] =
        disk.Read(TARNVIEW_DATA "/Universal Data Log Formats/OBDLink.txt").value_or("");
    files.files["/tv/data/Universal Data Log Formats/bad.txt"] = "no definition";
  }
  void Start() {
    program = std::make_unique<Program>(host, files, clock, processes,
                                        ProgramFolders{"/tv/bin/", "/tv/data/"});
    program->Start("", true);
  }
  void Choose(const std::string& entry) {
    host.user = [entry](frmFindINIFile& window) {
      window.lstFileType.Do({"choose", {entry}});
      window.cmdOK.Press();
    };
  }
  std::vector<int> MessageIds() const {
    std::vector<int> ids;
    for (const Box& box : host.messages) ids.push_back(box.id);
    return ids;
  }
  std::string Value(const char* key) {
    return std::string(
        GetINIValue(ReadINIFileToArray(files.files[kPath]), "General", key).value_or("(missing)"));
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
  const IniTable table = ReadINIFileToArray(files.files["/home/me/.config/tarnview/Tarnview.ini"]);
  for (const char* key : {"Default Working Directory", "Initial Directory"})
    EXPECT_EQ(GetINIValue(table, "General", key), "/home/me/Documents/");
}

TEST_F(FirstRunTest, TheListIsSortedAndEndsWithOther) {
  host.user = [this](frmFindINIFile& window) {
    EXPECT_THAT(window.lstFileType.Entries(),
                ElementsAre("FM Link Data Logs", "FM Link MAP Files", "LinkPlus Data Logs",
                            "OBDLink Data Logs", "Tec-2 Data Logs", "Tec-3 Data Logs",
                            "UTEC CSV Data Logs", "UTEC Fixed-Width Data Logs", "<Other>"));
    EXPECT_EQ(window.lstFileType.ListIndex(), 0);
    EXPECT_FALSE(window.txtPathOther.Enabled());
    window.lstFileType.Do({"choose", {"<Other>"}});
    EXPECT_TRUE(window.txtPathOther.Enabled() && window.lblPathOther.Enabled() &&
                window.cmdBrowse.Enabled());
    host.nextFile = Answer{Answer::Kind::File, "/logs/my.txt"};
    window.cmdBrowse.Press();
    EXPECT_EQ(window.ActiveControl(), &window.cmdOK) << "Enter goes on from there";
    window.lstFileType.Do({"choose", {"#3"}});
    EXPECT_FALSE(window.cmdBrowse.Enabled());
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
  EXPECT_EQ(Value("Initial Directory"), "/tv/");
  EXPECT_EQ(Value("Default Working Directory"), "/tv/");
  EXPECT_EQ(Value("Alternative Background Picture"), "/tv/Images/car.bmp");
  EXPECT_EQ(Value("Log EXE"), "/tv/LinkWin/LinkWin.exe");
  EXPECT_EQ(Value("Conversion EXE"), "/tv/MDOS/MDOS_AT.exe");
  EXPECT_EQ(Value("O2 Input Conversion File"),
            "/tv/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt");
  EXPECT_EQ(Value("Zoom Amount"), "30");
  EXPECT_EQ(program->MainWindow().cboZoomAmount.Text(), "30");
  EXPECT_EQ(Value("Generic Data Log Definition File"), "(missing)");
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
  EXPECT_EQ(Value("Generic Data Log Definition File"),
            "/tv/data/Universal Data Log Formats/OBDLink.txt");
  EXPECT_EQ(Value("Log EXE"), "");
  const Globals& globals = program->Global();
  EXPECT_EQ(globals.gclsDataLogDefinition.strName, "OBDLink");
  EXPECT_EQ(globals.settings.gintDefaultFileType, kUniversalLog);
}

TEST_F(FirstRunTest, OtherNeedsAGoodDefinition) {
  host.user = [this](frmFindINIFile& window) {
    window.lstFileType.Do({"choose", {"<Other>"}});
    window.cmdOK.Press();
    EXPECT_TRUE(window.IsShown());
    window.txtPathOther.Text = "/tv/none.txt";
    window.cmdOK.Press();
    EXPECT_TRUE(window.IsShown());
    host.answers.push_back(
        {Answer::Kind::File, "/tv/data/Universal Data Log Formats/OBDLink.txt", 0, 0});
    window.cmdBrowse.Press();
    window.cmdOK.Press();
    EXPECT_FALSE(window.IsShown());
  };
  Start();
  EXPECT_THAT(MessageIds(), ElementsAre(78, 70));
  EXPECT_EQ(Value("Generic Data Log Definition File"),
            "/tv/data/Universal Data Log Formats/OBDLink.txt");
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
    const auto text = disk.Read(TARNVIEW_DATA "/Tarnview_Install" + std::to_string(type) + ".ini");
    ASSERT_TRUE(text);
    files.files[kPath] = *text;
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
  const auto text = disk.Read(TARNVIEW_DATA "/NB O2 Conversion Tables/AEM_WB_Derived_AF_14.7.txt");
  ASSERT_TRUE(text);
  const ConversionTable table = ParseConversionTable(*text);
  ASSERT_GT(table.size(), 20u);
  EXPECT_EQ(TableLookup(80, table, true, false), 14700);
  for (std::size_t row = 1; row < table.size(); ++row) {
    EXPECT_LT(table[row - 1].first, table[row].first);
    EXPECT_GT(table[row - 1].second, table[row].second);
  }
}

}  // namespace
}  // namespace tarnview
