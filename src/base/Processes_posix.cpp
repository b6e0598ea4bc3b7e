#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "base/Processes.h"

extern char** environ;

namespace tarnview {
namespace {

// Answers of the desktop's "open".
constexpr int kOpened = 33;
constexpr int kFileNotFound = 2;
constexpr int kNoAssociation = 31;

/// The words of a command line: parted by blanks, double quotes keep blanks, "\" is a character
/// like any other.
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

/// What a program that is being started finds: its folder, and where its words go.
class Surroundings {
 public:
  explicit Surroundings(const std::string& folder) {
    ::posix_spawn_file_actions_init(&actions_);
    if (!folder.empty()) ::posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
    // Standard output is this program's own: the command line prints its result there.
    ::posix_spawn_file_actions_adddup2(&actions_, STDERR_FILENO, STDOUT_FILENO);
  }
  ~Surroundings() { ::posix_spawn_file_actions_destroy(&actions_); }
  Surroundings(const Surroundings&) = delete;

  const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

/// Starts a program whose words are `words`; 0, or the system's error number.
int Start(const std::string& program, std::vector<std::string> words, const std::string& folder,
          pid_t& process) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  return ::posix_spawn(&process, program.c_str(), Surroundings(folder).Actions(), nullptr,
                       arguments.data(), environ);
}

/// The exit code of a program that has ended; nothing while it runs.
std::optional<int> ExitCodeOf(pid_t process, int options) {
  int status = 0;
  pid_t ended = 0;
  do ended = ::waitpid(process, &status, options);
  while (ended < 0 && errno == EINTR);
  if (ended == 0) return std::nullopt;
  if (ended < 0) return 0;  // somebody else has taken its status
  int code = WEXITSTATUS(status);
  // A program that a signal ended has the status that shells give it.
  if (WIFSIGNALED(status)) code = 128 + WTERMSIG(status);
  if (code < 128) return code;
  return code - 256;
}

}  // namespace

RunResult RealProcesses::Run(const ProgramCall& call, const std::string& folder,
                             const std::function<bool()>& keepWaiting) {
  std::vector<std::string> words = Words(call.arguments);
  words.insert(words.begin(), call.program);
  // As seen from here: the program's own folder is another.
  std::error_code unknown;
  const auto program = std::filesystem::absolute(call.program, unknown);
  pid_t process = 0;
  if (const int error = Start(program.string(), std::move(words), folder, process))
    return {RunResult::End::NotStarted, 0, std::strerror(error)};

  constexpr auto kLongestNap = std::chrono::milliseconds(20);
  for (auto nap = std::chrono::milliseconds(1);; nap = std::min(2 * nap, kLongestNap)) {
    if (const auto code = ExitCodeOf(process, WNOHANG)) return {RunResult::End::Exited, *code};
    if (!keepWaiting()) break;
    std::this_thread::sleep_for(nap);
  }
  leftAlone_.push_back(process);
  return {RunResult::End::LeftAlone};
}

bool RealProcesses::IsAnyLeftAlone() {
  std::erase_if(leftAlone_, [](std::intptr_t process) {
    return ExitCodeOf(static_cast<pid_t>(process), WNOHANG).has_value();
  });
  return !leftAlone_.empty();
}

int RealProcesses::Open(const std::string& path) {
  struct stat facts;
  const bool isAddress = path.find("://") != std::string::npos;
  if (!isAddress && ::stat(path.c_str(), &facts) != 0) return kFileNotFound;
  // The shell ends at once and leaves the desktop's program running, which nobody waits for.
  static constexpr const char* kScript =
      "command -v xdg-open >/dev/null 2>&1 || exit 31; xdg-open \"$1\" </dev/null >/dev/null 2>&1 "
      "& exit 0";
  pid_t process = 0;
  if (Start("/bin/sh", {"sh", "-c", kScript, "sh", path}, "", process) != 0) return kNoAssociation;
  if (ExitCodeOf(process, 0) == 0) return kOpened;
  return kNoAssociation;
}

}  // namespace tarnview
