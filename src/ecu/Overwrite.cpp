#include "ecu/Overwrite.h"

#include "desk/SaveDialog.h"

namespace tarnview {

bool MayWrite(const EcuWorld& world, const std::string& path) {
  if (!world.files.FileExists(path)) return true;
  Dialog chosen;
  chosen.path = path;
  chosen.ofOpenFile = true;  // a log captured or converted anew takes the place of the old one
  if (!MaySaveTo(world.host, chosen)) return false;
  return world.messages.Tell("File already exists.  Overwrite?", kBoxYesNo + kBoxQuestion) ==
         Reply::Yes;
}

}  // namespace tarnview
