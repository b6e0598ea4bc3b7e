#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "ecu/EcuWorld.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "support/WindowActions.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {

/// A program whose ECU programs lie in /link/L.exe and /mdos/C.exe and whose logs lie in /logs,
/// before a desktop that writes down what is told.
class EcuTest : public ::testing::Test {
 protected:
  EcuTest() {
    settings.gstrLogEXE = "/link/L.exe";
    settings.gstrConversionEXE = "/mdos/C.exe";
    settings.gstrDefaultWorkingDirectory = "/logs/";
    files.files = {{"/link/L.exe", ""}, {"/mdos/C.exe", ""}, {"/logs/old.txt", "old"}};
    host.work = [this](Form& form) {
      told += "window " + form.name + "\n";
      if (const auto user = users.find(form.name); user != users.end()) user->second(form);
    };
    processes.whileRunning = [this](const std::string& command) {
      const std::string title = FileTitle(command.substr(0, command.find(' ')));
      if (const auto program = programs_.find(title); program != programs_.end()) program->second();
    };
  }

  /// What a user does in a window of that class: actions such as "click cmdOK", one a line.
  void User(const std::string& window, const std::string& actions) {
    users[window] = [actions](Form& form) { Act(form, actions); };
  }
  /// What a program does, by the name of its file.
  void ProgramDoes(const std::string& name, std::function<void()> does) {
    programs_[name] = std::move(does);
  }

  /// All that happened, in its order by kind, and forgets it: windows and what the main window was
  /// asked for, boxes, command lines with their folders.
  std::string Told() {
    std::string text = std::move(told);
    told.clear();
    for (const Box& box : host.messages)
      text += "box " + (box.id ? std::to_string(box.id) : box.text) + " [" +
              std::to_string(box.style) + "]\n";
    host.messages.clear();
    for (std::size_t run = 0; run < processes.commands.size(); ++run)
      text += "run " + processes.commands[run] + " in " + processes.folders[run] + "\n";
    processes.commands.clear();
    processes.folders.clear();
    return text;
  }
  std::string FileNames() {
    std::string names;
    for (const auto& [path, bytes] : files.files) names += path + " ";
    return names;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  RecordingProcesses processes;
  Settings settings;
  EXEFunctions programs{processes, host};
  Messages messages{host, [](int) { return ""; }};
  EcuWorld world{host, settings, files, clock, programs, messages};
  std::string told;
  std::map<std::string, std::function<void(Form&)>> users;

 private:
  std::map<std::string, std::function<void()>> programs_;
};

}  // namespace tarnview
