#include "base/ErrorLog.h"

namespace tarnview {
namespace {

constexpr const char* kLineEnd = "\r\n";

}  // namespace

ErrorLog::ErrorLog(FileSystem& files, Clock& clock, std::string path)
    : files_(files), clock_(clock), path_(std::move(path)) {}

void ErrorLog::ResetErrorLog() {
  if (path_.empty() || !files_.Hold(path_)) return;
  files_.LetGo(path_);
  files_.DeleteFile(path_);
  files_.Write(path_, std::string("Tarnview Error File") + kLineEnd +
                          "File Created : " + LogTime(clock_.Now()) + kLineEnd + kLineEnd);
  files_.Hold(path_);  // the new file
}

void ErrorLog::LogError(const std::string& module, const std::string& procedure,
                        const RuntimeError& error, bool reraise) {
  if (path_.empty()) return;
  std::string entry = "Date & Time  : " + LogTime(clock_.Now()) + kLineEnd;
  entry += "Location     : " + error.source + "/" + module + "/" + procedure + kLineEnd;
  entry += "Number       : " + std::to_string(error.number) + " " + error.what() + kLineEnd;
  entry += kLineEnd;
  if (!reraise) entry += std::string(50, '-') + kLineEnd;
  files_.Append(path_, entry);
}

}  // namespace tarnview
