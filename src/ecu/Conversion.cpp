#include "ecu/Conversion.h"

#include "ecu/CommandLines.h"
#include "ecu/EcuFiles.h"
#include "ecu/ProgramRun.h"

namespace tarnview {

bool HasConverter(const EcuWorld& world) {
  return HasProgram(world, world.settings.gstrConversionEXE, Message::ConversionProgramNotFound);
}

Converted ConvertBinary(const EcuWorld& world, const std::string& binary, const std::string& text) {
  const ConverterFiles files(world.settings);
  if (binary != files.binary() && !world.files.CopyFile(binary, files.binary())) {
    world.messages.ShowMessage(Message::UnknownFileProblem, false, files.binary());
    return Converted::NotRun;
  }
  const RunResult result = RunProgram(world, ConversionCall(world.settings));
  if (result.end == RunResult::End::NotStarted) {
    if (binary != files.binary()) world.files.DeleteFile(files.binary());
    return Converted::NotRun;
  }
  if (result.end == RunResult::End::LeftAlone) return Converted::Nothing;
  if (!world.files.FileExists(files.text())) {
    world.messages.ShowMessage(Message::NothingConverted);
    return Converted::Nothing;
  }
  if (world.files.CopyFile(files.text(), text)) return Converted::Done;
  world.messages.ShowMessage(Message::UnknownFileProblem, false, text);
  return Converted::Nothing;
}

}  // namespace tarnview
