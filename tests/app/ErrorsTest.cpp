// Errors that nothing else ends, and what the error log keeps: the program stays.

#include "power/frmPowerGraph.h"
#include "scatter/frmScatterGraph.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

/// A desktop that runs out of memory in a repaint.
struct FullDesktop : RecordingHost {
  void Repaint(Form&) override {
    if (full) throw std::bad_alloc();
  }
  bool full = false;
};

class Errors : public ProgramFixture {
 protected:
  ~Errors() override { program.reset(); }
  Errors() {
    files.files["/logs/run.txt"] = SmallLog(600);
    files.files["/car/Tarnview.ini"] = "[General]\r\n";
    program = std::make_unique<Program>(desk, files, clock, processes,
                                        ProgramFolders{"/car/", "/car/data/"});
    program->Start("", false);
    Main().LoadDataFile("/logs/run.txt", 1);
    desk.messages.clear();
  }
  void Click(Control& control) {
    desk.events.Run("frmDataLogViewer", control.name, [&] { control.Do({"click", {}}); });
  }
  std::string Boxes() {
    std::string texts;
    for (const Box& box : desk.messages) texts += std::to_string(box.id) + " " + box.text + "|";
    desk.messages.clear();
    return texts;
  }
  bool Logged(const std::string& text) {
    return files.files["/car/error.log"].find(text) != std::string::npos;
  }

  const std::string kTold = "0 There is not enough memory for that.|";
  FullDesktop desk;
};

TEST_F(Errors, ShortMemoryIsToldAndEndsNothing) {
  desk.full = true;
  Click(Main().cmdDrawGraph);
  EXPECT_EQ(Boxes(), kTold);
  EXPECT_TRUE(Logged("cmdDrawGraph_Click\r\nNumber       : 7 Out of memory"));
  EXPECT_EQ(Main().Pointer(), MousePointer::Default);
  EXPECT_FALSE(Main().proProgInd.Visible());
  EXPECT_FALSE(Main().LoadDataFile("/logs/run.txt", 1));
  EXPECT_EQ(Boxes(),
            kTold + "12 Could not load the necessary minimum of three records from the data log.|");
  EXPECT_EQ(Main().Pointer(), MousePointer::Default);
  desk.full = false;
  EXPECT_TRUE(Main().LoadDataFile("/logs/run.txt", 1));
  Click(Main().cmdDrawGraph);
  EXPECT_TRUE(Main().chSampleGraph.Visible());
}

TEST_F(Errors, ADrawThatFailsLeavesNoWordOfItsWork) {
  Click(Main().mnuModulesScatterGraph);
  auto& scatter = dynamic_cast<frmScatterGraph&>(*desk.Front());
  scatter.cboYAxis.Do({"choose", {"#2"}});
  Click(Main().mnuModulesPowerGraph);
  auto& power = dynamic_cast<frmPowerGraph&>(*desk.Front());
  power.chPowerGraph.Watch([this](What) {
    if (desk.full) throw std::bad_alloc();
  });
  desk.full = true;
  Click(scatter.cmdDrawGraph);
  Click(Main().cmdDrawGraph);
  Click(power.cmdDrawGraph);
  EXPECT_EQ(Boxes(), kTold + kTold + kTold);
  EXPECT_EQ(scatter.staScatterGraph.Panel(1) + Main().staDataLogViewer.Panel(1) +
                power.staPowerGraph.Panel(1),
            "");
  EXPECT_FALSE(scatter.prgProgInd.Visible());
  EXPECT_EQ(power.Pointer(), MousePointer::Default);
  EXPECT_FALSE(power.chPowerGraph.Visible());
  for (const char* procedure : {"DrawScatter", "frmPowerGraph/cmdDrawGraph_Click"})
    EXPECT_TRUE(Logged(procedure + std::string("\r\nNumber       : 7 Out of memory"))) << procedure;
  desk.full = false;
  Click(power.cmdDrawGraph);
  EXPECT_TRUE(power.chPowerGraph.Visible());
}

TEST_F(Errors, WhatFailsIsInTheErrorLog) {
  Main().LoadDataFile("/logs/none.txt", 1);
  EXPECT_TRUE(Logged("Number       : -12 Loading failed: /logs/none.txt"));
  files.broken.insert("/car/Tarnview.ini");
  Main().WriteINIFile();
  EXPECT_TRUE(Logged("Number       : -39 Problem updating application settings file."));
  Main().Press({"F1"});
  EXPECT_TRUE(Logged("Number       : -30 Problem trying to run on-line help."));
}

}  // namespace
}  // namespace tarnview
