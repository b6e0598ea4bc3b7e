#include "app/Program.h"

#include <utility>

#include "app/FirstRun.h"
#include "base/Paths.h"

namespace tarnview {
namespace {

constexpr const char* kInstallFile = "Tarnview_Install.ini";

std::string In(const std::string& folder, const char* name) {
  if (folder.empty()) return "";
  return folder + name;
}

}  // namespace

Program::Program(Host& host, FileSystem& files, Clock& clock, Processes& processes,
                 ProgramFolders folders, std::string settingsFile)
    : host_(host),
      files_(files),
      folders_(std::move(folders)),
      errors_(files, clock, In(folders_.program, "error.log")),
      messages_(host,
                [this](int id) { return globals_.kinds.gcolFileTypes.Item(id).strDescription; }),
      programs_(processes, host),
      help_(files, programs_, messages_, In(folders_.data, "Documentation/"), folders_.program),
      services_{host, files, clock, programs_, errors_, messages_} {
  host_.ShowHelp = [this](const std::string& topic) {
    if (!host_.ShowManual(help_.Folder(), topic)) help_.ShowHelp(topic);
  };
  globals_.gstrProgramFolder = folders_.program;
  globals_.dataFolder = folders_.data;
  if (settingsFile.empty()) globals_.gstrINIFileToWrite = In(folders_.program, "Tarnview.ini");
  if (settingsFile.empty())
    globals_.gstrINIFile = globals_.gstrINIFileToWrite;
  else
    globals_.gstrINIFile = std::move(settingsFile);
}

Program::~Program() {
  host_.events.Failed = nullptr;
  host_.WhyNotSave = nullptr;
}

/// Where an event ends that nothing else has ended.
void Program::EventFailed(const std::string& module, const std::string& procedure,
                          const std::exception& error) {
  const RuntimeError raised = AsRuntimeError(error);
  errors_.LogError(module, procedure, raised, false);
  if (raised.number == kOutOfMemory) messages_.Tell(kShortOfMemory, kBoxExclamation);
}

std::string Program::WhyNotSave(const Dialog& chosen) const {
  if (!chosen.ofOpenFile && files_.SameFile(chosen.path, globals_.log.gstrCurrentFile))
    return "The log that is open is never written over:";
  if (files_.MayReplace(chosen.path)) return "";
  return "This file is write-protected:";
}

void Program::FindInstallINIFile() {
  std::string& path = globals_.gstrInstallINIFile;
  if (globals_.gstrINIFile.empty()) return;
  path = GetParentFolder(globals_.gstrINIFile) + kInstallFile;
  if (!files_.FileExists(path)) path = In(folders_.data, kInstallFile);
}

void Program::Start(const std::string& commandLine, bool splash) {
  errors_.ResetErrorLog();
  if (!folders_.program.empty()) files_.ClearLeftovers(folders_.program);
  host_.WhyNotSave = [this](const Dialog& chosen) { return WhyNotSave(chosen); };
  host_.events.Failed = [this](const std::string& module, const std::string& procedure,
                               const std::exception& error) {
    EventFailed(module, procedure, error);
  };
  messages_.Failed = [this](Message id, const std::string& text) {
    errors_.LogError("Messages", "ShowMessage", RuntimeError(-static_cast<long>(id), text), false);
  };
  clsFileTypes& types = globals_.kinds.gcolFileTypes;
  for (int id = 1; id <= types.Count(); ++id) types.Item(id).blnEnabled = true;
  if (splash) {
    splash_ = std::make_unique<frmSplash>(host_);
    splash_->Show();
    host_.DoEvents();
    if (!HasINIFile()) {
      messages_.ShowMessage(Message::FirstRunCancelled);
      splash_->Unload();
      return;
    }
    splash_->tmrTimer.Enabled = true;
  }
  FindInstallINIFile();
  settingsFile_.LoadINIFileNew();
  FindDefinition();
  globals_.gblnStarting = true;
  LoadMainForm(commandLine);
}

/// Asks for one where there is none; false if the user cancelled.
bool Program::HasINIFile() {
  const std::string& path = globals_.gstrINIFile;
  if (path.empty() || files_.FileExists(path)) return true;
  return FirstRun(globals_, services_, folders_.program, folders_.data, folders_.logs)
      .GenerateINIFile(path);
}

/// A definition that is named on the command line is told of when it is loaded.
void Program::FindDefinition() {
  std::string& path = globals_.settings.gstrGenericDefinitionFile;
  if (!definitionFile_.empty()) {
    path = definitionFile_;
  } else if (!path.empty() && !files_.FileExists(path)) {
    messages_.ShowMessage(Message::DefinitionOfSettingsNotFound, false, path);
    globals_.missingDefinitionFile = std::exchange(path, "");
  }
}

void Program::LoadMainForm(const std::string& commandLine) {
  main_ = std::make_unique<frmDataLogViewer>(globals_, services_, settingsFile_);
  UserEvents& events = host_.events;
  events.Run(main_->name, "Form_Load", [&] { main_->Show(); });
  TellFolderTroubles();
  events.Run(main_->name, "Form_Activate", [&] {
    main_->Zones().OfferLostEdits();
    main_->OpenFromCommandLine(commandLine);
  });
}

/// Told once, so that nobody wonders later why a setting did not stay.
void Program::TellFolderTroubles() {
  if (folders_.program.empty()) return;
  const std::string trial = folders_.program + "error.log";
  std::string trouble;
  if (!files_.Append(trial, ""))
    trouble = "Tarnview cannot write to its folder, so nothing is kept between runs:\r\n" +
              folders_.program;
  else if (!files_.FolderExists(folders_.data))
    trouble = "Tarnview's data folder is missing; help and conversion tables are not there:\r\n" +
              folders_.data;
  if (!trouble.empty()) messages_.Tell(trouble, kBoxExclamation);
}

}  // namespace tarnview
