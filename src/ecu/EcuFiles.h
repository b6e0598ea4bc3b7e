#pragma once

#include <string>
#include <vector>

#include "base/ProgramCall.h"
#include "ecu/NewFile.h"
#include "model/Settings.h"

namespace tarnview {

// The files of fixed names through which the outside programs are given and give what they work on.
// They stay behind after a run.

/// Beside the logging program, which is also the one that uploads. Folders end in a separator.
struct LoggerFiles {
  explicit LoggerFiles(const Settings& settings);

  std::string folder;
  std::string captured(NewFileType type) const {
    return folder + "miata" + (type == NewFileType::DataLog ? ".dat" : ".map");
  }
  std::string upload() const { return folder + "TVW.map"; }
  std::string uploadCommand() const { return folder + "vstrUploadCommand.txt"; }
  std::string description() const { return folder + "NewDataLogDescription.txt"; }
};

/// Beside the conversion program.
struct ConverterFiles {
  explicit ConverterFiles(const Settings& settings);

  std::string folder;
  std::string binary() const { return folder + "miatatmp.bin"; }
  std::string text() const { return folder + "miatatmp.txt"; }
};

/// What an earlier capture or conversion may have left in a folder, and what could be taken for a
/// new result.
std::vector<std::string> Leftovers(const std::string& folder);

/// The record of a new log's path, for the logging program.
std::string NewDataLogDescription(const std::string& path);
/// The record of what was run for an upload; nothing reads it back.
std::string UploadCommandRecord(const ProgramCall& call);

}  // namespace tarnview
