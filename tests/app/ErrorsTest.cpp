// Errors that nothing else ends, and what the error log keeps: the program stays.

#include "power/frmPowerGraph.h"
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
    work.Verb("memory", [this](const auto& words) { desk.full = words[0] == "full"; });
    work.Verb("break", [this](const auto& words) { files.broken.insert(words[0]); });
    work.Verb("save", [this](const auto&) { Main().WriteINIFile(); });
    work.Verb("load", [this](const auto& words) { Main().LoadDataFile(words[0], 1); });
    work.Event("logged", [this] { return Logged(); });
    work.Fact("pointers", [this] {
      std::string told;
      for (const Form* form : desk.open)
        told += form->Pointer() == MousePointer::Default ? "usual " : "hourglass ";
      return told;
    });
    for (const char* part : {" enabled", "lvw", "Graph ", "Graph=", "hsb", "ZoneInfl", "mnu", "lbl",
                             "updPlot", "Range", "caption", "txt", "proProgInd"})
      work.PassOver(part);
  }
  /// What the error log tells since the last time.
  std::string Logged() {
    const std::string& log = files.files["/car/error.log"];
    std::string told;
    for (const std::string& line : Split(log.substr(std::min(seen_, log.size())), '\n'))
      if (line.starts_with("Location") || line.starts_with("Number"))
        told += line.substr(line.find(':') + 1, line.find('\r') - line.find(':') - 1);
    seen_ = log.size();
    return told;
  }

  FullDesktop desk;
  Story work{desk};

 private:
  std::size_t seen_ = 0;
};

TEST_F(Errors, ShortMemoryIsToldAndLeavesNoWordOfItsWork) {
  work.Verb("watch", [this](const auto&) {
    dynamic_cast<frmPowerGraph&>(*desk.Front()).chPowerGraph.Watch([this](What) {
      if (desk.full) throw std::bad_alloc();
    });
  });
  EXPECT_STORY(work);
}

TEST_F(Errors, WhatFailsIsInTheErrorLog) { EXPECT_STORY(work); }

}  // namespace
}  // namespace tarnview
