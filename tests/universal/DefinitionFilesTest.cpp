#include "DefinitionText.h"
#include "support/Accept.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "universal/DefinitionFiles.h"
#include "universal/GenericDescriptions.h"

namespace tarnview {
namespace {

class DefinitionFilesTest : public ::testing::Test {
 protected:
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, "/error.log"};
  std::string told;
  DefinitionFiles loader{files,
                         [this](Message id, const std::string& extra) {
                           told += std::to_string(static_cast<int>(id)) + " " + extra + "; ";
                         },
                         errors, BuiltInItems()};
  const std::string good = DefinitionText{"", {ColumnText("Time", 63, 3)}, ""}.Text();
};

TEST_F(DefinitionFilesTest, AFaultIsShownAndLoggedAndTheBuiltInDefinitionServes) {
  files.files = {{"/good.txt", good}, {"/bad.txt", "[Other]"}, {"/locked.txt", good}};
  files.broken.insert("/locked.txt");
  EXPECT_EQ(loader.LoadDataLogDefinitionWrapper("/good.txt").strName, "Test Logs");
  EXPECT_EQ(loader.LoadDataLogDefinitionWrapper("").strName, "Hydra Nemesis 2.1 (MX-5 Miata)");
  for (const char* path : {"/bad.txt", "/none.txt", "/locked.txt"})
    EXPECT_EQ(loader.LoadDataLogDefinitionWrapper(path).objColumns.Count(), 19) << path;
  ExpectTold(told, R"(69 [Other]; 70 /none.txt; 101 Path/File access error; )");
  EXPECT_NE(files.files["/error.log"].find("Number       : -69 [Other]\r\n"), std::string::npos);
}

TEST_F(DefinitionFilesTest, AFolderOffersItsGoodDefinitions) {
  files.files = {{"/formats/b.txt", good},
                 {"/formats/a.txt", good},
                 {"/formats/bad.txt", "rubbish"},
                 {"/formats/other.csv", good}};
  std::string found;
  for (const auto& choice : loader.GenericFileLocation("/formats"))
    found += choice.strName + "@" + choice.path + " ";
  EXPECT_EQ(found, "Test Logs@/formats/a.txt Test Logs@/formats/b.txt ");
  EXPECT_EQ(told, "");
}

TEST_F(DefinitionFilesTest, TheFileTypeAndFamilyBearTheDefinitionsName) {
  FileKinds kinds = SetUpLogFamilies();
  clsDataLog definition;
  definition.strName = "Test Logs";
  definition.strFileExtension = "tst";
  SetGenericDataLogDescriptions(kinds, definition);
  EXPECT_EQ(kinds.gcolFileTypes.Item(kUniversalLog).CommonDialogFilter(),
            "Universal - Test Logs (*.tst)|*.tst");
  EXPECT_EQ(kinds.gcolLogFamilies.Item(7).strDescription, "Universal - Test Logs");
}

}  // namespace
}  // namespace tarnview
