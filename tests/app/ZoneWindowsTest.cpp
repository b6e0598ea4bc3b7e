#include "support/FMLinkLogBuilder.h"
#include "support/ProgramFixture.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {
namespace {

constexpr const char* kJournal = "/car/Tarnview_Zones.journal";

class ZoneWindowsTest : public ProgramFixture {
 protected:
  ZoneWindowsTest() {
    std::string map;
    for (int line = 0; line < 16; ++line) {
      for (int c = 0; c < 16; ++c) map += " 050";
      map += "\r\n";
    }
    files.files["/car/a.map"] = map +
                                " Engine Size: 1.8\r\n Chip Date: 2004-07-02\r\n Chip Version: 3"
                                "\r\n Atmospheric Pressure: 101\r\n";
    files.folders.insert("/car/data");
    // A program that keeps its settings, so that it keeps a journal beside them.
    story.Verb("keep", [this](const auto& words) {
      StartKeeping(
          "[General]\r\nDefault Engine Size=1.8\r\nDefault Chip Version=3\r\nDefault Chip "
          "Date=2004-07-02\r\n",
          {"/car/", "/car/data/"}, words.empty() ? "" : words[0]);
    });
    story.Verb("note", [this](const auto&) { noted = files.files[kJournal]; });
    story.Verb("crash", [this](const auto&) {
      program.reset();
      host.open.clear();
      files.files[kJournal] = noted;
    });
    Fact("zones", [this] {
      if (!Log().gblnZonesLoaded) return std::string();
      return std::to_string(Log().zones.zones[6]) + " " + std::to_string(Log().zones.zones[7]);
    });
    story.Fact("journal", [this] { return files.files.contains(kJournal) ? "kept" : "none"; });
    story.PassOver("grdD");
  }
  std::string noted;
};

TEST_F(ZoneWindowsTest, WhatIsAcceptedIsTakenOverAndWhatACrashCutOffIsOfferedOnce) {
  EXPECT_STORY(story);
}

TEST_F(ZoneWindowsTest, ACellGoesThroughItsSamplesInTheGraph) {
  const auto shape = [](SmallSample& one) { one.rpm = one.sample > 20 ? 2000 : 1000; };
  files.files["/car/a.txt"] = SmallLog(60, shape) + JoinLines(ZoneSectionLines(CountingZoneRows()));
  story.Fact("ring", [this] {
    const auto* editor = host.Front() ? dynamic_cast<frmZoneData*>(host.Front()) : nullptr;
    const auto ring = editor ? editor->Grids.At(SheetGrid::Fuel).Ring() : std::nullopt;
    return ring ? NumberText(ring->column) : "none";
  });
  EXPECT_STORY(story);
}

TEST_F(ZoneWindowsTest, Benchmarks) {
  EXPECT_STORY(story);
  const clsBenchmarks& benchmarks = program->Global().gcolBenchmarks;
  ASSERT_EQ(benchmarks.Count(), 2);
  EXPECT_EQ(benchmarks.Item(2).strName + " " + benchmarks.Item(2).File, "Mine /car/a.map");
  EXPECT_EQ(benchmarks.Item(2).ZoneSettings(6), 3);
}

}  // namespace
}  // namespace tarnview
