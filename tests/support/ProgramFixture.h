#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "app/Program.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "support/SmallLog.h"
#include "support/WindowActions.h"
#include "ui/RecordingHost.h"

namespace tarnview {

using Ids = std::vector<int>;

/// The whole program on a disk in memory, before a desktop that records.
class ProgramFixture : public ::testing::Test {
 protected:
  void Start(const std::string& commandLine = "", const std::string& settings = "") {
    files.files["/car/error.log"] = "old";
    if (!settings.empty()) files.files["/car/Tarnview.ini"] = settings;
    Run(commandLine, ProgramFolders{}, settings.empty() ? "" : "/car/Tarnview.ini");
  }
  /// As tarnview starts: settings and reports are kept in /car/.
  void StartKeeping(const std::string& settings, const ProgramFolders& folders,
                    const std::string& commandLine = "") {
    files.files["/car/Tarnview.ini"] = settings;
    Run(commandLine, folders, "");
  }
  /// Starts and opens /logs/run.txt, with no boxes left of that.
  void Open(int samples, const std::string& settings = "",
            const std::function<void(SmallSample&)>& shape = {}) {
    files.files["/logs/run.txt"] = SmallLog(samples, shape);
    Start("", settings);
    Main().LoadDataFile("/logs/run.txt", 0);
    host.messages.clear();
  }
  frmDataLogViewer& Main() { return program->MainWindow(); }
  const OpenLog& Log() { return program->Global().log; }
  Settings& Set() { return program->Global().settings; }
  /// What a user does in the main window: see Act.
  void Do(const std::string& actions) { Act(Main(), actions); }
  void Draw(const std::string& from, const std::string& to) {
    Main().PlotRangeFrom.Text = from;
    Main().PlotRangeTo.Text = to;
    Main().cmdDrawGraph.Press();
  }
  std::string Range() { return Main().PlotRangeFrom.Text() + "-" + Main().PlotRangeTo.Text(); }
  std::string Said() { return Main().staDataLogViewer.Panel(1); }
  std::string Shown(const char* item) {
    const ListView& list = Main().lvwSampleDetails;
    return list.At(list.RowOfTag(item)).texts[1];
  }
  Ids MessageIds() const {
    Ids ids;
    for (const Box& box : host.messages) ids.push_back(box.id);
    return ids;
  }
  /// The ids of the boxes since the last call.
  Ids Boxes() {
    const Ids ids = MessageIds();
    host.messages.clear();
    return ids;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  RecordingProcesses processes;
  std::unique_ptr<Program> program;

 private:
  void Run(const std::string& commandLine, const ProgramFolders& folders,
           const std::string& settingsFile) {
    program.reset();
    host.open.clear();
    program = std::make_unique<Program>(host, files, clock, processes, folders, settingsFile);
    program->Start(commandLine, false);
  }
};

}  // namespace tarnview
