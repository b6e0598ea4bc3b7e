#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class MapSavingTest : public ProgramFixture {
 protected:
  MapSavingTest() {
    for (int line = 0; line < 15; ++line) {
      for (int c = 0; c < 16; ++c) map += " 002";
      map += "\r\n";
    }
    map += " Engine Size: 1.8\r\n Chip Date: 2001-03-01\r\n Atmospheric Pressure: 101\r\n";
    files.files["/car/a.map"] = map;
    files.files["/car/run.map"] = SmallLog(20);
    story.Verb("edit", [this](const auto&) {
      program->Global().log.gblnZonesLoaded = true;
      program->Global().log.gblnZonesDirty = true;
    });
    story.Verb("protect", [this](const auto& words) { files.readOnly = {words[0]}; });
    story.Verb("ask", [this](const auto&) { goesOn = Main().Files().SaveChangesPrompt(); });
    story.Fact("goes on", [this] { return goesOn ? "yes" : "no"; });
  }
  std::string map;
  bool goesOn = true;
};

TEST_F(MapSavingTest, OpeningAndSaving) {
  EXPECT_STORY(story);
  EXPECT_TRUE(files.files["/car/a.map"].starts_with(
      " Tarnview MAP File\r\n File Created: 24-Nov-2026 14:05\r\n\r\n"));
}

TEST_F(MapSavingTest, WhatIsNotToBeWrittenOver) {
  EXPECT_STORY(story);
  EXPECT_EQ(files.files["/car/run.map"], SmallLog(20));
}

}  // namespace
}  // namespace tarnview
