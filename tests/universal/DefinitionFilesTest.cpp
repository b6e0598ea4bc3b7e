#include <gtest/gtest.h>

#include "DefinitionText.h"
#include "model/Catalogue.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "ui/RecordingHost.h"
#include "universal/DefinitionFiles.h"
#include "universal/DefinitionPresets.h"
#include "universal/GenericDescriptions.h"

namespace tarnview {
namespace {

class DefinitionFilesTest : public ::testing::Test {
 protected:
  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  Messages messages{host, {}};
  ErrorLog errors{files, clock, "/error.log"};
  Catalogue catalogue = BuildDataItemCatalogue();
  DefinitionFiles loader{files, messages, errors, catalogue.gcolFixedDataItems};
  const std::string good = DefinitionText{"", {ColumnText("Time", 63, 3)}, ""}.Text();
};

TEST_F(DefinitionFilesTest, AFaultIsShownAndLoggedAndTheBuiltInDefinitionServes) {
  files.files["/good.txt"] = good;
  files.files["/bad.txt"] = "[Other]";
  files.files["/locked.txt"] = good;
  files.broken.insert("/locked.txt");
  EXPECT_EQ(loader.LoadDataLogDefinitionWrapper("/good.txt").strName, "Test Logs");
  EXPECT_EQ(loader.LoadDataLogDefinitionWrapper("").strName, "Hydra Nemesis 2.1 (MX-5 Miata)");
  EXPECT_TRUE(host.messages.empty());
  for (const char* path : {"/bad.txt", "/none.txt", "/locked.txt"})
    EXPECT_EQ(loader.LoadDataLogDefinitionWrapper(path).objColumns.Count(), 19) << path;
  ASSERT_EQ(host.messages.size(), 3u);
  EXPECT_EQ(host.messages[0].text, "Error loading data log definition - header definition not found:\r\n\r\n[Other]");
  EXPECT_EQ(host.messages[1].text, "Error loading data log definition - file not found:\r\n\r\n/none.txt");
  EXPECT_EQ(host.messages[2].id, 101);
  EXPECT_NE(files.files["/error.log"].find("Number       : -69 [Other]\r\n"), std::string::npos);
}

TEST_F(DefinitionFilesTest, AFolderOffersItsGoodDefinitions) {
  files.files["/formats/b.txt"] = good;
  files.files["/formats/a.txt"] = good;
  files.files["/formats/bad.txt"] = "rubbish";
  files.files["/formats/other.csv"] = good;
  std::string found;
  for (const auto& choice : loader.GenericFileLocation("/formats")) found += choice.strName + "@" + choice.path + " ";
  EXPECT_EQ(found, "Test Logs@/formats/a.txt Test Logs@/formats/b.txt ");
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(DefinitionFilesTest, PresetsJoinAsTheUserSays) {
  clsDataLog definition;
  clsSampleGraphPreset own, other;
  own.lngLogFamily = kUniversalLogFamily;
  other.lngLogFamily = 1;
  definition.objPresetSampleGraphs.AddDirect(own);
  const struct {
    Answer::Kind answer;
    int samples, scatters;
  } kRows[] = {{Answer::Kind::Yes, 2, 1}, {Answer::Kind::No, 3, 1}, {Answer::Kind::Cancel, 2, 1}};
  for (const auto& row : kRows) {
    clsSampleGraphPresets samples;
    samples.AddDirect(own);
    samples.AddDirect(other);
    clsScatterGraphPresets scatters;  // a kind that the definition lacks stays
    scatters.AddDirect({}).lngLogFamily = kUniversalLogFamily;
    host.answers.push_back({row.answer, {}, 0, 0});
    OfferDefinitionPresets(definition, samples, scatters, messages);
    EXPECT_EQ(samples.Count(), row.samples);
    EXPECT_EQ(scatters.Count(), row.scatters);
  }
  EXPECT_EQ(host.messages[0].style, 291);
  host.messages.clear();
  clsSampleGraphPresets samples;
  clsScatterGraphPresets scatters;
  OfferDefinitionPresets({}, samples, scatters, messages);
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(DefinitionFilesTest, TheFileTypeAndFamilyBearTheDefinitionsName) {
  FileKinds kinds = SetUpLogFamilies();
  clsDataLog definition;
  definition.strName = "Test Logs";
  definition.strFileExtension = "tst";
  SetGenericDataLogDescriptions(kinds, definition);
  EXPECT_EQ(kinds.gcolFileTypes.Item(kUniversalLog).CommonDialogFilter(), "Universal - Test Logs (*.tst)|*.tst");
  EXPECT_EQ(kinds.gcolLogFamilies.Item(7).strDescription, "Universal - Test Logs");
}

}  // namespace
}  // namespace tarnview
