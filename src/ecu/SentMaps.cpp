#include "ecu/SentMaps.h"

#include <vector>

#include "base/Numbers.h"
#include "base/Paths.h"

namespace tarnview {
namespace {

constexpr std::size_t kMostKept = 50;
/// Of this program's own names alone: nothing else in the folder is touched.
constexpr const char* kPattern = "TVW *-*-* *-*-*.map";

std::string NameAt(const Moment& now) {
  return "TVW " + PaddedText(now.year, 4) + "-" + PaddedText(now.month, 2) + "-" +
         PaddedText(now.day, 2) + " " + PaddedText(now.hour, 2) + "-" + PaddedText(now.minute, 2) +
         "-" + PaddedText(now.second, 2);
}

}  // namespace

bool KeepSentMap(FileSystem& files, const std::string& workingDirectory, std::string_view text,
                 const Moment& now) {
  if (workingDirectory.empty()) return true;
  const std::string folder = AddBackslash(AddBackslash(workingDirectory) + "Uploads");
  if (!files.FolderExists(folder) && !files.MakeFolder(folder)) return false;
  // Two in one second are two.
  std::string name = NameAt(now) + ".map";
  for (int n = 2; files.FileExists(folder + name); ++n)
    name = NameAt(now) + " (" + std::to_string(n) + ").map";
  if (!files.Write(folder + name, text)) return false;
  // This one stays, though a clock that went wrong may have made all others later.
  std::vector<std::string> others = files.List(folder, kPattern);
  std::erase(others, name);
  for (std::size_t n = 0; n + kMostKept <= others.size(); ++n) files.DeleteFile(folder + others[n]);
  return true;
}

}  // namespace tarnview
