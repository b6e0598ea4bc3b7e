#include "app/Program.h"

namespace tarnview {
namespace {

std::string In(const std::string& folder, const char* name) { return folder.empty() ? "" : folder + name; }

}  // namespace

Program::Program(Host& host, FileSystem& files, Clock& clock, Processes& processes, ProgramFolders folders,
                 std::string settingsFile)
    : host_(host),
      files_(files),
      folders_(std::move(folders)),
      errors_(files, clock, In(folders_.program, "error.log")),
      messages_(host, [this](int id) { return globals_.kinds.gcolFileTypes.Item(id).strDescription; }),
      programs_(processes, host),
      help_(files, programs_, messages_, In(folders_.data, "Documentation/")),
      services_{host, files, clock, programs_, errors_, messages_, help_} {
  globals_.gstrINIFile = settingsFile.empty() ? In(folders_.program, "Tarnview.ini") : std::move(settingsFile);
  globals_.gstrInstallINIFile = In(folders_.program, "Tarnview_Install.ini");
}

void Program::Start(const std::string& commandLine, bool splash) {
  errors_.ResetErrorLog();
  clsFileTypes& types = globals_.kinds.gcolFileTypes;
  for (int id = 1; id <= types.Count(); ++id) types.Item(id).blnEnabled = true;
  LoadINIFileNew();
  if (splash) {
    splash_ = std::make_unique<frmSplash>(host_);
    splash_->Show();
    splash_->tmrTimer.Enabled = true;
    host_.DoEvents();
  }
  globals_.gblnStarting = true;
  LoadMainForm(commandLine);
}

void Program::LoadINIFileNew() {
  if (globals_.gstrINIFile.empty()) return;
  if (const auto text = files_.Read(globals_.gstrINIFile)) globals_.settings = ReadSettings(*text);
}

void Program::LoadMainForm(const std::string& commandLine) {
  main_ = std::make_unique<frmDataLogViewer>(globals_, services_);
  main_->Show();
  TellFolderTroubles();
  TrapEvent(errors_, "frmDataLogViewer", "Form_Activate", [&] { main_->OpenFromCommandLine(commandLine); });
}

/// Told once, so that nobody wonders later why a setting did not stay.
void Program::TellFolderTroubles() {
  if (folders_.program.empty()) return;
  const std::string trial = folders_.program + "error.log";
  std::string trouble;
  if (!files_.Append(trial, ""))
    trouble = "Tarnview cannot write to its folder, so nothing is kept between runs:\r\n" + folders_.program;
  else if (!files_.FolderExists(folders_.data))
    trouble = "Tarnview's data folder is missing; help and conversion tables are not there:\r\n" + folders_.data;
  if (!trouble.empty()) messages_.Tell(trouble, kBoxExclamation);
}

}  // namespace tarnview
