#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "ecu/Capture.h"
#include "ecu/Upload.h"
#include "ecu/frmConvertBIN.h"
#include "ecu/frmNewDownload.h"
#include "model/GeneralSettings.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "support/Story.h"
#include "support/Table.h"
#include "support/WholeWindow.h"
#include "zones/MapFile.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {

/// A program with ECU programs /link/L.exe and /mdos/C.exe and logs in /logs, and the story of its
/// use: behind "did" all that happened outside its windows.
class EcuStory : private RecordingHost,
                 private RecordingProcesses,
                 private Capture::MainWindow,
                 private Upload::Editor {
 public:
  int expected = 0;

  EcuStory() : files_(memory_), programs_(*this, *this) {
    memory_.files = {{"/link/L.exe", ""}, {"/mdos/C.exe", ""}, {"/logs/old.txt", "old"}};
    Prepare();
  }
  EcuStory(FileSystem& files, Processes& processes) : files_(files), programs_(processes, *this) {
    Prepare();
  }
  std::string Play(const std::string& story) { return story_.Play(story); }

 private:
  void Prepare() {
    for (const char* line : {"Log EXE=/link/L.exe", "Conversion EXE=/mdos/C.exe",
                             "Default Working Directory=/logs/", "Default Chip Date=2003-06-09",
                             "Default Engine Size=1.8", "Default Atmospheric Pressure=98"})
      Set(line);
    for (std::size_t n = 0; n < form_.zones.size(); ++n)
      form_.zones[n] = static_cast<std::int16_t>(n);
    WhyNotSave = [this](const Dialog& chosen) {
      if (!chosen.ofOpenFile && chosen.path == openFile_) return "Open:";
      return files_.MayReplace(chosen.path) ? "" : "Protected:";
    };
    messages_.ShowNonModal = [this](auto&&...) { Tell("not in a box"); };
    whileRunning = [this](const std::string& command) {
      if (const auto program = writes_.find(command[1]); program != writes_.end())
        for (const std::string& file : program->second) Put(file);
      else
        Put("/mdos/miatatmp.txt=text of " + Get("/mdos/miatatmp.bin"));
    };
    story_.Event("did", [this] { return std::exchange(told_, ""); });
    AddSurroundings();
    AddDeeds();
  }

  using Text = const std::string&;
  /// Engine size and date of an ECU of the second version.
  static ChipIdentity Chip(Text text) { return tarnview::Chip(text + " 2"); }
  void Verb(Text name, const std::function<void(Text rest)>& run) {
    story_.Verb(name, [run](const Story::Words& words) { run(Join(words, " ")); });
  }
  void AddSurroundings() {
    Verb("set", [this](Text line) { Set(line); });   // KEY=VALUE, as the file of settings has it
    Verb("file", [this](Text file) { Put(file); });  // PATH=TEXT
    Verb("gone", [this](Text path) { files_.DeleteFile(path); });
    Verb("broken", [this](Text path) { memory_.broken.insert(path); });
    Verb("protected", [this](Text path) { memory_.readOnly.insert(path); });
    Verb("open", [this](Text path) { openFile_ = path; });
    Verb("L", [this](Text does) { writes_['l'] = Split(does, ' '); });
    Verb("C", [this](Text does) { writes_['m'] = Split(does, ' '); });
    Verb("exits", [this](Text code) { exitCodes.push_back(std::stoi(code)); });
    Verb("trouble", [this](Text why) { trouble = why; });
    Verb("ended", [this](Text) { anyLeftAlone = false; });
    Verb("fails", [this](Text what) { fails_.insert(what); });
    Verb("form", [this](Text chip) {
      form_ = {Chip(chip).dblEngineSize, Chip(chip).datChipDate, form_.zones};
    });
    // Another value in z1 and none in z875.
    Verb("comparison", [this](Text chip) {
      comparison_.emplace();
      comparison_->zones = form_.zones;
      comparison_->chip = Chip(chip);
      comparison_->zones[1] = 99;
      comparison_->zones[255] = -1;
    });
    Verb("leftovers", [this](Text) {
      for (const char* folder : {"/link/", "/mdos/"})
        for (const char* name : {"miata.dat", "miata.map", "miatatmp.bin", "miatatmp.txt"})
          Put(std::string(folder) + name + "=" + folder);
    });
    // What was sent in that year, and two files that were not.
    Verb("fifty", [this](Text year) {
      for (const char* name : {"mine", "TVW"}) Put(std::string("/logs/Uploads/") + name + ".map=");
      for (int n = 10; n < 60; ++n)
        Put("/logs/Uploads/TVW " + year + "-01-01 00-00-" + std::to_string(n) + ".map=");
    });
  }
  void AddDeeds() {
    Verb("capture", [this](Text) { capture_.Run(); });
    Verb("upload", [this](Text) { upload_.Run(form_); });
    Verb("convert", [this](Text) {
      frmConvertBIN window(world_, openFile_);
      window.ShowModal();
      Tell("target " + OrElse(window.TargetPath(), "none"));
    });
    Verb("name", [this](Text name) {  // a file of zone settings
      frmNewDownload window(world_, {NewFileType::ZoneSettings, name, true});
      window.ShowModal();
    });
    Verb("whole", [this](Text) { ExpectWhole(*Front(), TARNVIEW_TESTS); });
    Verb("setting", [this](Text key) {
      for (const SettingRow& row : AllSettings())
        if (key == row.key) Tell(row.text(settings_));
    });
    Verb("read", [this](Text path) { Tell(Get(path)); });
    Verb("left", [this](Text) { Tell(LeftAlone()); });
    // What stands behind START in the paths that begin with it.
    Verb("list", [this](Text start) {
      std::string names;
      for (const auto& [path, bytes] : memory_.files)
        if (path.starts_with(start)) names += path.substr(start.size()) + " ";
      Tell(names);
    });
  }

  void Set(Text line) {
    for (const SettingRow& row : AllSettings())
      if (line.starts_with(std::string(row.key) + "="))
        row.take(settings_, line.substr(line.find('=') + 1));
  }
  void Tell(Text what) { told_ += (told_.empty() ? "" : " | ") + what; }
  void Put(Text file) {
    if (const auto sign = file.find('='); sign != std::string::npos)
      files_.Write(file.substr(0, sign), file.substr(sign + 1));
  }
  std::string Get(Text path) {
    const auto bytes = files_.Read(path);
    return bytes ? std::string(std::string_view(*bytes)) : "";
  }
  /// The zones of TVW.map that are left alone, or all but those that are not.
  std::string LeftAlone() {
    const ZoneSettings zones = ParseMap(Get("/link/TVW.map"), Settings{}, true).map.zones;
    std::string names[2];
    for (std::size_t n = 0; n < zones.size(); ++n)
      names[zones[n] == -1] += " " + ZoneName(static_cast<int>(n));
    if (names[0].size() < names[1].size()) return "all but" + names[0];
    return names[1].substr(1);
  }

  Reply Ask(const Box& box) override {
    Tell("box of " + std::to_string(box.style));
    return RecordingHost::Ask(box);
  }
  bool Choose(Dialog& dialog) override {
    Tell("looks into " + dialog.initialPath);
    return RecordingHost::Choose(dialog);
  }
  RunResult Run(const ProgramCall& call, const std::string& folder,
                const std::function<bool()>& keepWaiting) override {
    Tell("run " + call.Text() + " in " + folder);
    return RecordingProcesses::Run(call, folder, keepWaiting);
  }
  /// What the main window was asked for; false where the story lets it fail.
  bool Asked(Text what, Text with = "") {
    Tell(what + with);
    return !fails_.contains(what);
  }
  bool SaveChangesPrompt() override { return Asked("prompt"); }
  void CloseDataLogFile() override { Asked("close"); }
  bool LoadDataFile(const std::string& path, int fileType) override {
    return Asked("load", " " + path + " " + std::to_string(fileType));
  }
  bool SaveMapFile(const std::string& path) override { return Asked("save", " " + path); }
  void Say(const std::string& status) override { Asked("say", " " + status); }
  ComparisonChoices ChoicesForComparison() override {
    return {{"/logs/a.txt", "/logs/b.map"}, "filter"};
  }
  std::optional<ZoneMap> LoadComparison(const std::string& path) override {
    Asked("compare", " " + path);
    return comparison_;
  }

  std::string told_, openFile_;
  /// What a program does, by its folder; without an entry /mdos converts.
  std::map<char, std::vector<std::string>> writes_{
      {'l', {"/link/miata.dat=binary", "/link/miata.map=zones"}}};
  std::set<std::string> fails_;
  ZonesToUpload form_{1.8, MakeDate(2003, 6, 9), {}};
  std::optional<ZoneMap> comparison_;
  MemoryFileSystem memory_;
  FileSystem& files_;
  FixedClock clock_;
  Settings settings_;
  EXEFunctions programs_;
  Messages messages_{*this, [](int) { return ""; }};
  EcuWorld world_{*this, settings_, files_, clock_, programs_, messages_};
  Capture capture_{world_, *this};
  Upload upload_{world_, *this};
  Story story_{*this};
};

/// Stories, of which each paragraph begins with a fresh program.
struct EcuStories : ::testing::Test {
  int expected = 0;

  static std::string Play(const std::string& text) {
    std::vector<std::string> told;
    for (const std::string& story : SplitAt(text.substr(0, text.size() - 1), "\n\n"))
      told.push_back(EcuStory().Play(story));
    return Join(told, "\n\n") + "\n";
  }
};

}  // namespace tarnview
