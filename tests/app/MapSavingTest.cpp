#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class MapSavingTest : public ProgramFixture {
 protected:
  std::string Map() {
    std::string text;
    for (int line = 0; line < 15; ++line) {
      for (int c = 0; c < 16; ++c) text += " 002";
      text += "\r\n";
    }
    return text + " Engine Size: 1.8\r\n Chip Date: 2001-03-01\r\n Atmospheric Pressure: 101\r\n";
  }
  void OpenMap() {
    files.files["/car/a.map"] = Map();
    Start("/car/a.map");
    host.messages.clear();
  }
  void Dirty() { program->Global().log.gblnZonesDirty = true; }
  std::string Texts() const {
    std::string texts;
    for (const Box& box : host.messages) texts += std::to_string(box.style) + " " + box.text + "\n";
    return texts;
  }
};

TEST_F(MapSavingTest, Opening) {
  OpenMap();
  EXPECT_EQ(Main().Caption(), "Tarnview - a.map (FM Link MAP File)");
  EXPECT_TRUE(Main().mnuFileSave.Enabled);
  EXPECT_TRUE(Main().mnuFileSaveAs.Enabled);
  EXPECT_FALSE(Main().mnuModulesScatterGraph.Enabled);
  EXPECT_EQ(Said(), "Loading complete");
  EXPECT_FALSE(Main().LoadDataFile("/car/none.map", kMAPFile));
  files.files["/car/no.map"] = "no map";
  EXPECT_FALSE(Main().LoadDataFile("/car/no.map", kMAPFile));
  EXPECT_EQ(MessageIds(), (std::vector{0, 56, 12, 56, 12}));
  EXPECT_EQ(host.messages[0].text, "53, File not found");
  EXPECT_FALSE(Main().mnuFileSave.Enabled);
}

TEST_F(MapSavingTest, Saving) {
  OpenMap();
  Dirty();
  Do("click mnuFileSave");
  EXPECT_EQ(Said(), "Saving complete");
  EXPECT_TRUE(files.files["/car/a.map"].starts_with(
      " Tarnview MAP File\r\n File Created: 24-Nov-2026 14:05\r\n\r\n"));
  EXPECT_FALSE(Log().gblnZonesDirty);

  Dirty();
  const std::string before = files.files["/car/a.map"];
  files.failWrites = true;
  Do("click mnuFileSave");
  EXPECT_EQ(Texts(), "64 Something went wrong...\n");
  EXPECT_EQ(Said(), "Problem saving");
  EXPECT_FALSE(Main().mnuFileSave.Enabled);
  EXPECT_TRUE(Log().gblnZonesDirty);
  EXPECT_EQ(files.files["/car/a.map"], before);
}

TEST_F(MapSavingTest, AFileThatAnotherProgramChangedIsNotOverwrittenUnasked) {
  OpenMap();
  files.files["/car/a.map"] += "other";
  host.answers = {{Answer::Kind::No}, {Answer::Kind::Yes}};
  Do("click mnuFileSave");
  EXPECT_EQ(Texts(),
            "292 a.map was changed by another program since it was opened.\r\nDo you want to "
            "overwrite it?\n");
  EXPECT_TRUE(files.files["/car/a.map"].ends_with("other"));
  Do("click mnuFileSave");
  EXPECT_TRUE(files.files["/car/a.map"].ends_with(" End Of Notes\r\n"));
  EXPECT_EQ(host.messages.size(), 2u);
}

TEST_F(MapSavingTest, SaveAs) {
  OpenMap();
  Do("click mnuFileSaveAs");
  EXPECT_EQ(Log().gstrCurrentFileTitle, "a.map");
  host.answers = {{Answer::Kind::File, "/car/b.map"}};
  Do("click mnuFileSaveAs");
  EXPECT_EQ(Main().Caption(), "Tarnview - b.map (FM Link MAP File)");
  EXPECT_EQ(Main().Files().Recent().At(0).path, "/car/b.map");
  EXPECT_TRUE(files.files.contains("/car/b.map"));
}

TEST_F(MapSavingTest, AProtectedMapIsSavedUnderAnotherName) {
  OpenMap();
  Dirty();
  files.readOnly = {"/car/a.map"};
  host.answers = {{}, {Answer::Kind::File, "/car/a.map"}, {}, {Answer::Kind::File, "/car/b.map"}};
  Do("click mnuFileSave");
  const std::string refused =
      "48 This file is write-protected:\r\n/car/a.map\r\n\r\nPlease choose another name.\n";
  EXPECT_EQ(Texts(), refused + refused);
  EXPECT_EQ(files.files["/car/a.map"], Map());
  EXPECT_EQ(Log().gstrCurrentFile, "/car/b.map");
  EXPECT_TRUE(files.files.contains("/car/b.map"));
}

TEST_F(MapSavingTest, TheLogThatZonesCameFromIsNoPlaceForThem) {
  const std::string log = SmallLog(20);
  files.files["/car/run.map"] = log;
  Start("/car/run.map|1");
  ASSERT_TRUE(Log().gblnSamplesLoaded);
  host.messages.clear();
  program->Global().log.gblnZonesLoaded = true;
  Dirty();
  // "Yes, save", the refusal, and a name of its own.
  host.answers = {{Answer::Kind::Yes}, {}, {Answer::Kind::File, "/car/zones.map"}};
  EXPECT_TRUE(Main().Files().SaveChangesPrompt());
  ASSERT_EQ(host.messages.size(), 2u);
  EXPECT_TRUE(host.messages[1].text.starts_with("The log that is open is never written over:"));
  EXPECT_EQ(files.files["/car/run.map"], log);
  EXPECT_TRUE(files.files.contains("/car/zones.map"));
}

TEST_F(MapSavingTest, EditedZonesAreAskedFor) {
  const struct {
    Answer::Kind answer;
    bool goesOn, written;
  } cases[] = {{Answer::Kind::Yes, true, true},
               {Answer::Kind::No, true, false},
               {Answer::Kind::Cancel, false, false}};
  for (const auto& c : cases) {
    OpenMap();
    EXPECT_TRUE(Main().Files().SaveChangesPrompt());
    Dirty();
    host.answers = {{c.answer}};
    EXPECT_EQ(Main().Files().SaveChangesPrompt(), c.goesOn);
    EXPECT_EQ(Texts(), "51 Do you want to save the changes made to a.map?\n");
    EXPECT_EQ(files.files["/car/a.map"] != Map(), c.written);
  }
}

}  // namespace
}  // namespace tarnview
