#pragma once

#include <string>

namespace tarnview {

/// What can be captured from an ECU.
enum class NewFileType { DataLog, ZoneSettings };

/// Its extension: "txt" or "map".
constexpr const char* ExtensionOf(NewFileType type) {
  if (type == NewFileType::DataLog) return "txt";
  return "map";
}

/// A file to be captured, as the New File window takes it and gives it back.
struct NewFile {
  NewFileType type = NewFileType::DataLog;
  std::string strFileName = {};  ///< without a folder
  bool blnRetain = false;        ///< keep the binary log beside the text
};

}  // namespace tarnview
