#include "ecu/Overwrite.h"

namespace tarnview {

bool MayWrite(const EcuWorld& world, const std::string& path) {
  if (!world.files.FileExists(path)) return true;
  return world.messages.Tell("File already exists.  Overwrite?", kBoxYesNo + kBoxQuestion) ==
         Reply::Yes;
}

}  // namespace tarnview
