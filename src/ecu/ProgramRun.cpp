#include "ecu/ProgramRun.h"

#include "base/Paths.h"

namespace tarnview {

RunResult RunProgram(const EcuWorld& world, const ProgramCall& call) {
  // Dialogs that were just closed go from the screen before a long wait.
  world.host.DoEvents();
  const RunResult result = world.programs.RunAndWait(call, GetParentFolder(call.program));
  const std::string name = FileTitle(call.program);
  if (result.end == RunResult::End::NotStarted)
    world.messages.Tell(name + " could not be started:\r\n" + result.trouble, kBoxExclamation);
  if (result.end == RunResult::End::LeftAlone)
    world.messages.Tell(
        name + " was left alone and may still be at work, so nothing is known of its result.",
        kBoxExclamation);
  return result;
}

bool HasProgram(const EcuWorld& world, const std::string& program, Message message) {
  if (!program.empty() && world.files.FileExists(program)) return true;
  world.messages.ShowMessage(message);
  return false;
}

bool HasFolder(const EcuWorld& world, const std::string& folder) {
  return !folder.empty() && world.files.FolderExists(folder);
}

bool IsStillAtWork(const EcuWorld& world) {
  if (!world.programs.IsAnyLeftAlone()) return false;
  world.messages.Tell(
      "A program that was left alone is still running.\r\nWait until it has ended, then try again.",
      kBoxExclamation);
  return true;
}

}  // namespace tarnview
