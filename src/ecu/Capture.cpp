#include "ecu/Capture.h"

#include "base/Paths.h"
#include "ecu/CommandLines.h"
#include "ecu/Conversion.h"
#include "ecu/EcuFiles.h"
#include "ecu/ExitCodes.h"
#include "ecu/ProgramRun.h"
#include "ecu/frmNewDownload.h"
#include "model/clsFileTypes.h"

namespace tarnview {

void Capture::Run() {
  static constexpr bool (Capture::*kSteps[])() = {
      &Capture::MayLoseZones, &Capture::HasPrograms,  &Capture::AskWhat,    &Capture::MakeRoom,
      &Capture::CallLogger,   &Capture::FindCaptured, &Capture::KeepBinary, &Capture::TakeOver,
      &Capture::Load,         &Capture::CountName,
  };
  aside_ = SetAside(world_.files);
  for (const auto step : kSteps)
    if (!(this->*step)()) return;
}

bool Capture::HasPrograms() {
  if (!HasProgram(world_, world_.settings.gstrLogEXE, Message::UploadProgramNotFound)) return false;
  if (!HasConverter(world_)) return false;
  if (!HasFolder(world_, world_.settings.gstrDefaultWorkingDirectory)) {
    world_.messages.ShowMessage(Message::WorkingDirectoryNotFound);
    return false;
  }
  return !IsStillAtWork(world_);
}

std::string Capture::TargetFolder() const {
  return AddBackslash(world_.settings.gstrDefaultWorkingDirectory);
}

bool Capture::AskWhat() {
  const auto isTaken = [&](const std::string& name) {
    return world_.files.FileExists(TargetFolder() + name) ||
           world_.files.FileExists(TargetFolder() + name + ".*");
  };
  const Moment now = world_.clock.Now();
  NewFile proposed{NewFileType::DataLog, "", world_.settings.gblnRetainBinary};
  if (world_.settings.gblnAutoFileNames)
    proposed.strFileName = names_.Propose(MakeDate(now.year, now.month, now.day), isTaken);
  frmNewDownload window(world_, proposed);
  window.ShowModal();
  file_ = window.Chosen();
  target_ = TargetFolder() + file_.strFileName;
  return window.Accepted();
}

bool Capture::MakeRoom() {
  mainWindow_.CloseDataLogFile();
  aside_.Take(target_);
  for (const std::string& folder :
       {LoggerFiles(world_.settings).folder, ConverterFiles(world_.settings).folder})
    for (const std::string& leftover : Leftovers(folder)) aside_.Take(leftover);
  return true;
}

bool Capture::CallLogger() {
  const ProgramCall call = CaptureCall(world_.settings, file_.type);
  world_.files.Write(LoggerFiles(world_.settings).description(), NewDataLogDescription(target_));
  const RunResult result = RunProgram(world_, call);
  if (result.end == RunResult::End::NotStarted) aside_.PutBack();
  if (result.end == RunResult::End::Exited && result.exitCode != kNormalExit)
    world_.messages.Tell(ExitCodeText(result.exitCode), kBoxExclamation);
  return result.Succeeded();
}

std::string Capture::Captured() const { return LoggerFiles(world_.settings).captured(file_.type); }

bool Capture::FindCaptured() {
  if (world_.files.FileExists(Captured())) return true;
  Message missing = Message::NoMapFileProduced;
  if (file_.type == NewFileType::DataLog) missing = Message::NoBinaryFileProduced;
  world_.messages.ShowMessage(missing);
  return false;
}

bool Capture::CopyTo(const std::string& from, const std::string& to) {
  if (world_.files.CopyFile(from, to)) return true;
  world_.messages.ShowMessage(Message::UnknownFileProblem, false, to);
  return false;
}

bool Capture::KeepBinary() {
  if (file_.type != NewFileType::DataLog || !file_.blnRetain) return true;
  return CopyTo(Captured(), WithoutExtension(target_) + ".bin");
}

bool Capture::TakeOver() {
  if (file_.type == NewFileType::ZoneSettings) return CopyTo(Captured(), target_);
  return ConvertBinary(world_, Captured(), target_) == Converted::Done;
}

bool Capture::Load() {
  if (file_.type == NewFileType::ZoneSettings) return LoadMap();
  return mainWindow_.LoadDataFile(target_, kFMLinkLog);
}

/// Written anew at once, so that it has the form of this program's MAP files.
bool Capture::LoadMap() {
  if (!mainWindow_.LoadDataFile(target_, kMAPFile)) return false;
  if (mainWindow_.SaveMapFile(target_)) return true;
  world_.messages.ShowMessage(Message::TooFewRecords);
  mainWindow_.Say("Loading failed");
  return false;
}

bool Capture::CountName() {
  if (world_.settings.gblnAutoFileNames) names_.Used();
  return true;
}

}  // namespace tarnview
