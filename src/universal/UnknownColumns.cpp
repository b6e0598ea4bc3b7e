#include "universal/UnknownColumns.h"

namespace tarnview {
namespace {

std::string LinesText(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return text;
}

}  // namespace

std::string WriteUnknownUniversalColumns(FileSystem& files, const Moment& now,
                                         const std::string& folder,
                                         const std::string& definitionPath,
                                         const std::string& logPath,
                                         const std::vector<std::string>& columns) {
  std::vector<std::string> lines{"TARNVIEW UNKNOWN COLUMNS",
                                 "",
                                 "Data & Time of load:",  // as it has always read
                                 LogTime(now),
                                 "Universal Data Log Definition File Name:",
                                 definitionPath,
                                 "Data Log File Name:",
                                 logPath,
                                 "",
                                 "Unknown Columns:"};
  lines.insert(lines.end(), columns.begin(), columns.end());
  const std::string path = folder + kUnknownColumnsFile;
  if (files.Write(path, LinesText(lines))) return path;
  return "";
}

bool CreateNewDataLogDescriptionFile(FileSystem& files, const std::string& folder,
                                     const std::string& strPath) {
  return files.Write(folder + "NewDataLogDescription.txt",
                     LinesText({"[General]", "Path and Filename=" + strPath}));
}

}  // namespace tarnview
