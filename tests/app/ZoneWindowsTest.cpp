#include "support/FMLinkLogBuilder.h"
#include "support/ProgramFixture.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {
namespace {

constexpr const char* kJournal = "/car/Tarnview_Zones.journal";

class ZoneWindowsTest : public ProgramFixture {
 protected:
  /// A program that keeps its settings, so that it keeps a journal beside them.
  void StartKeeping(const std::string& commandLine = "") {
    files.files["/car/Tarnview.ini"] = "[General]\r\nDefault Engine Size=1.8\r\n";
    program = std::make_unique<Program>(host, files, clock, processes, ProgramFolders{},
                                        "/car/Tarnview.ini");
    program->WriteSettingsTo("/car/Tarnview.ini");
    program->Start(commandLine, false);
  }
  void WriteMap() {
    std::string text;
    for (int line = 0; line < 16; ++line) {
      for (int c = 0; c < 16; ++c) text += " 050";
      text += "\r\n";
    }
    files.files["/car/a.map"] =
        text +
        " Engine Size: 1.8\r\n Chip Date: 2004-07-02\r\n Chip Version: 3\r\n"
        " Atmospheric Pressure: 101\r\n";
  }
  /// Types a Choke Scale and presses a button of the editor.
  void EditAnd(const char* button, const char* choke = "7") {
    InEditor(std::string("type txtZone(6) ") + choke + "\nclick " + button);
  }
  void InEditor(const std::string& actions) {
    host.work = [actions](Form& form) { Act(form, actions); };
    Do("click mnuModulesZoneData");
    host.work = nullptr;
  }
  int ChokeScale() { return Log().zones.zones[6]; }
};

TEST_F(ZoneWindowsTest, WhatIsAcceptedIsTakenOver) {
  WriteMap();
  StartKeeping("/car/a.map");
  EXPECT_TRUE(Main().mnuModulesZoneData.Enabled);
  EditAnd("cmdOK");
  EXPECT_EQ(ChokeScale(), 7);
  EXPECT_TRUE(Log().gblnZonesDirty);
  EXPECT_TRUE(files.files.contains(kJournal));
  Do("click mnuFileSave");
  EXPECT_FALSE(Log().gblnZonesDirty);
  EXPECT_FALSE(files.files.contains(kJournal));

  host.answers = {{Answer::Kind::Yes}};  // throws the edit away
  EditAnd("cmdCancel", "9");
  EXPECT_EQ(ChokeScale(), 7);
  EXPECT_FALSE(Log().gblnZonesDirty);
  EXPECT_FALSE(files.files.contains(kJournal));
  InEditor("click cmdOK");
  EXPECT_FALSE(Log().gblnZonesDirty);
}

TEST_F(ZoneWindowsTest, ACellGoesThroughItsSamplesInTheGraph) {
  const auto shape = [](SmallSample& one) { one.rpm = one.sample > 20 ? 2000 : 1000; };
  files.files["/car/a.txt"] = SmallLog(60, shape) + JoinLines(ZoneSectionLines(CountingZoneRows()));
  StartKeeping("/car/a.txt");
  Draw("25", "40");
  std::string told;
  const auto tell = [&](const Form& editor) {
    const auto ring = dynamic_cast<const frmZoneData&>(editor).Grids.At(SheetGrid::Fuel).Ring();
    told += std::to_string(Main().Selected().lngHighlightSample()) + " " +
            std::to_string(static_cast<int>(ring->column * 10)) + " in " + Range() + "\n";
  };
  host.work = [&](Form& editor) {
    Act(editor, "choose cboShowOnGrid Visits");
    editor.Find("grdDrive", 0)->Do({"cell", {"2", "5"}});
    tell(editor);
    Act(editor, "click cmdNextInCell");
    tell(editor);
    Act(editor, "click chkWholeLog");
    editor.Find("grdDrive", 1)->Do({"cell", {"2", "3"}});
    tell(editor);
  };
  Do("click mnuModulesZoneData");
  EXPECT_EQ(told, "25 45 in 25-40\n26 45 in 25-40\n1 25 in 1-8\n");
}

TEST_F(ZoneWindowsTest, EditsThatACrashCutOffAreOfferedOnce) {
  WriteMap();
  StartKeeping("/car/a.map");
  EditAnd("cmdOK");
  std::string lost;
  host.work = [&](Form& form) {
    Act(form, "type txtZone(6) 8\ntype txtZone(7) 9");
    lost = files.files[kJournal];
    Act(form, "click cmdOK");
  };
  Do("click mnuModulesZoneData");
  program.reset();
  host.open.clear();
  host.messages.clear();

  files.files[kJournal] = lost;
  std::string steps;
  host.answers = {{Answer::Kind::Yes}};
  host.work = [&](Form& form) {
    auto& editor = dynamic_cast<frmZoneData&>(form);
    for (const auto& step : editor.History().Steps()) steps += step.name + "; ";
    Act(editor, "click mnuEditUndo\nclick cmdOK");
  };
  StartKeeping();
  EXPECT_EQ(host.messages[0].text,
            "Edits of the zones of a.map were not saved when Tarnview ended.\r\nDo you want to go "
            "on with them?");
  EXPECT_EQ(steps, "Choke Scale 7 to 8; Speedo. Calib. 50 to 9; ");
  EXPECT_EQ(ChokeScale(), 8);
  EXPECT_EQ(Log().zones.zones[7], 50);
  EXPECT_TRUE(Log().gblnZonesDirty);
  EXPECT_EQ(Main().Caption(), "Tarnview - a.map (FM Link MAP File)");
  host.answers = {{Answer::Kind::No}};
  Main().Unload();
  EXPECT_FALSE(files.files.contains(kJournal));
}

TEST_F(ZoneWindowsTest, LostEditsOfAFileThatHasGone) {
  WriteMap();
  StartKeeping("/car/a.map");
  EditAnd("cmdOK");
  const std::string lost = files.files[kJournal];
  program.reset();
  host.open.clear();
  for (const auto answer : {Answer::Kind::No, Answer::Kind::Yes}) {
    files.files.erase("/car/a.map");
    files.files[kJournal] = lost;
    host.answers = {{answer}};
    host.work = [](Form& form) { Act(form, "click cmdOK"); };
    StartKeeping();
    EXPECT_EQ(Log().gblnZonesLoaded, answer == Answer::Kind::Yes);
    if (answer == Answer::Kind::No) {
      EXPECT_FALSE(files.files.contains(kJournal));
    } else {
      EXPECT_EQ(ChokeScale(), 7);
      EXPECT_TRUE(Main().mnuFileSave.Enabled);
    }
    program.reset();
    host.open.clear();
  }
  files.files[kJournal] = "nonsense";
  host.messages.clear();
  StartKeeping();
  EXPECT_EQ(Boxes(), Ids{});
}

TEST_F(ZoneWindowsTest, Benchmarks) {
  WriteMap();
  StartKeeping("/car/a.map");
  std::string told;
  host.answers = {{Answer::Kind::File, "/car/a.map"}};
  host.work = [&](Form& form) {
    if (form.name == "frmMaint") {
      told += form.Caption() + ": ";
      Act(form, "click cmdNew\nclick cmdOK");
    } else if (form.name == "frmBenchmarkDetails") {
      Act(form, "type txtName Mine\nclick cmdBrowse\nclick cmdLoad\nclick cmdZones\nclick cmdOK");
    } else {
      told += form.Caption();
      Act(form, "type txtZone(6) 3\nclick cmdOK");
    }
  };
  Do("click mnuCustomiseBenchmarks");
  EXPECT_EQ(told, "Zone Data Benchmark Editor: Tarnview Zone Data - Mine (benchmark)");
  const clsBenchmarks& benchmarks = program->Global().gcolBenchmarks;
  ASSERT_EQ(benchmarks.Count(), 2);
  EXPECT_EQ(benchmarks.Item(2).strName + " " + benchmarks.Item(2).File, "Mine /car/a.map");
  EXPECT_EQ(benchmarks.Item(2).ZoneSettings(6), 3);
}

}  // namespace
}  // namespace tarnview
