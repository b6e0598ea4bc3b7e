#include <gtest/gtest.h>

#include "DefinitionText.h"
#include "model/Catalogue.h"
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
  struct Told {
    Message id;
    std::string extra;
  };
  std::vector<Told> told;
  ErrorLog errors{files, clock, "/error.log"};
  Catalogue catalogue = BuildDataItemCatalogue();
  DefinitionFiles loader{files,
                         [this](Message id, const std::string& extra) {
                           told.push_back({id, extra});
                         },
                         errors, catalogue.gcolFixedDataItems};
  const std::string good = DefinitionText{"", {ColumnText("Time", 63, 3)}, ""}.Text();
};

TEST_F(DefinitionFilesTest, AFaultIsShownAndLoggedAndTheBuiltInDefinitionServes) {
  files.files["/good.txt"] = good;
  files.files["/bad.txt"] = "[Other]";
  files.files["/locked.txt"] = good;
  files.broken.insert("/locked.txt");
  EXPECT_EQ(loader.LoadDataLogDefinitionWrapper("/good.txt").strName, "Test Logs");
  EXPECT_EQ(loader.LoadDataLogDefinitionWrapper("").strName, "Hydra Nemesis 2.1 (MX-5 Miata)");
  EXPECT_TRUE(told.empty());
  for (const char* path : {"/bad.txt", "/none.txt", "/locked.txt"})
    EXPECT_EQ(loader.LoadDataLogDefinitionWrapper(path).objColumns.Count(), 19) << path;
  ASSERT_EQ(told.size(), 3u);
  EXPECT_EQ(told[0].id, Message::NoHeaderDefinition);
  EXPECT_EQ(told[0].extra, "[Other]");
  EXPECT_EQ(told[1].id, Message::DefinitionFileNotFound);
  EXPECT_EQ(told[1].extra, "/none.txt");
  EXPECT_EQ(told[2].id, Message::UnknownDefinitionError);
  EXPECT_NE(files.files["/error.log"].find("Number       : -69 [Other]\r\n"), std::string::npos);
}

TEST_F(DefinitionFilesTest, AFolderOffersItsGoodDefinitions) {
  files.files["/formats/b.txt"] = good;
  files.files["/formats/a.txt"] = good;
  files.files["/formats/bad.txt"] = "rubbish";
  files.files["/formats/other.csv"] = good;
  std::string found;
  for (const auto& choice : loader.GenericFileLocation("/formats"))
    found += choice.strName + "@" + choice.path + " ";
  EXPECT_EQ(found, "Test Logs@/formats/a.txt Test Logs@/formats/b.txt ");
  EXPECT_TRUE(told.empty());
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
