#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "app/Program.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "support/SmallLog.h"
#include "ui/RecordingHost.h"

namespace tarnview {

/// The whole program on a disk in memory, before a desktop that records.
class ProgramFixture : public ::testing::Test {
 protected:
  void Start(const std::string& commandLine = "", const std::string& settings = "") {
    files.files["/car/error.log"] = "old";
    if (!settings.empty()) files.files["/car/Tarnview.ini"] = settings;
    program = std::make_unique<Program>(host, files, clock, processes, ProgramFolders{});
    if (!settings.empty())
      program = std::make_unique<Program>(host, files, clock, processes, ProgramFolders{},
                                          "/car/Tarnview.ini");
    program->Start(commandLine, false);
  }
  frmDataLogViewer& Main() { return program->MainWindow(); }
  const OpenLog& Log() { return program->Global().log; }
  std::vector<int> MessageIds() const {
    std::vector<int> ids;
    for (const Box& box : host.messages) ids.push_back(box.id);
    return ids;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  RecordingProcesses processes;
  std::unique_ptr<Program> program;
};

}  // namespace tarnview
