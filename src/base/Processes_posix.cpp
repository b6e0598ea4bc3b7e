#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "base/Processes.h"

extern char** environ;

namespace tarnview {
namespace {

constexpr int kNotStarted = -1000;

// Answers of the desktop's "open".
constexpr int kOpened = 33;
constexpr int kFileNotFound = 2;
constexpr int kNoAssociation = 31;

/// The words of a command line: parted by blanks, double quotes keep blanks, "\" is a character like any other.
std::vector<std::string> Words(const std::string& command) {
  std::vector<std::string> words;
  bool inWord = false, inQuotes = false;
  for (const char c : command) {
    const bool parts = !inQuotes && (c == ' ' || c == '\t');
    if (!parts && !inWord) words.emplace_back();
    inWord = !parts;
    if (c == '"')
      inQuotes = !inQuotes;
    else if (!parts)
      words.back() += c;
  }
  return words;
}

/// Runs a program to its end.
int RunWords(std::vector<std::string> words) {
  if (words.empty()) return kNotStarted;
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  pid_t process = 0;
  if (::posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) return kNotStarted;
  int status = 0;
  while (::waitpid(process, &status, 0) < 0)
    if (errno != EINTR) return kNotStarted;
  // A program that a signal ended has the status that shells give it.
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return code < 128 ? code : code - 256;
}

}  // namespace

int RealProcesses::Run(const std::string& command) { return RunWords(Words(command)); }

int RealProcesses::Open(const std::string& path) {
  struct stat facts;
  const bool isAddress = path.find("://") != std::string::npos;
  if (!isAddress && ::stat(path.c_str(), &facts) != 0) return kFileNotFound;
  // The shell ends at once and leaves the desktop's program running, which nobody waits for.
  static constexpr const char* kScript =
      "command -v xdg-open >/dev/null 2>&1 || exit 31; xdg-open \"$1\" </dev/null >/dev/null 2>&1 & exit 0";
  return RunWords({"/bin/sh", "-c", kScript, "sh", path}) == 0 ? kOpened : kNoAssociation;
}

}  // namespace tarnview
