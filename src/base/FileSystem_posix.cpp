#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <memory>
#include <utility>

#include "base/FileSystem.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace tarnview {
namespace {

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  explicit operator bool() const { return number_ >= 0; }
  int operator()() const { return number_; }
  bool Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

bool IsRegular(const std::string& path) {
  struct stat facts;
  return ::stat(path.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

/// Opens a file that is one by its name and still is one once open: never a pipe to wait for, nor a
/// device. -1 if not.
int OpenRegular(const std::string& path, int flags) {
  const int file = ::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
  struct stat facts;
  if (file < 0 || (::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode))) return file;
  ::close(file);
  return -1;
}

bool WriteAll(int file, std::string_view bytes) {
  // A limit on the size of files is a full disk, not the end of the program.
  static const auto before = ::signal(SIGXFSZ, SIG_IGN);
  static_cast<void>(before);
  while (!bytes.empty()) {
    const ssize_t written = ::write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// Reads on to the end of the file, though it has grown.
bool ReadAll(int file, FileBytes& bytes, std::size_t expected) {
  constexpr std::size_t kMore = 4096;
  bytes.Reserve(expected + kMore);
  for (;;) {
    if (bytes.Room() == 0) bytes.Reserve(std::string_view(bytes).size() * 2);
    const ssize_t got = ::read(file, bytes.End(), bytes.Room());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return got == 0;
    bytes.Add(static_cast<std::size_t>(got));
  }
}

/// Where a path leads, links followed, so that a new file takes the place of the old one and not of
/// a link to it.
std::string Resolved(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                         &std::free);
  if (real) return real.get();
  return path;
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.size() - FileTitle(path).size());
}

/// The name bears the process's number: two programs that save at once do not meet.
std::string NameBeside(const std::string& path) {
  return FolderOf(path) + ".tarnview-" + std::to_string(::getpid()) + ".tmp";
}

/// Fills the new file, which stays locked as long as `file` is open: it is no leftover. (A disk
/// without locks never has its leftovers cleared.)
bool FillNewFile(const Descriptor& file, std::string_view bytes, const struct stat* old) {
  if (!file) return false;
  ::flock(file(), LOCK_EX | LOCK_NB);
  if (old && ::fchmod(file(), old->st_mode & 07777) != 0) return false;
  return WriteAll(file(), bytes) && ::fsync(file()) == 0;
}

/// Deletes an unfinished file unless its writer still has it.
void ClearLeftover(const std::string& path) {
  const Descriptor file(OpenRegular(path, O_RDONLY));
  if (file && ::flock(file(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
}

/// Brings a folder's new entry to the disk, so that it outlives a power cut; a disk that cannot do
/// it is no failure.
void FlushFolderOf(const std::string& path) {
  const std::string folder = OrElse(FolderOf(path), ".");
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) ::fsync(opened());
}

}  // namespace

std::optional<FileBytes> RealFileSystem::Read(const std::string& path) {
  if (!IsRegular(path)) return std::nullopt;
  const Descriptor file(OpenRegular(path, O_RDONLY));
  struct stat facts;
  if (!file || ::fstat(file(), &facts) != 0 || facts.st_size > kMostFileBytes) return std::nullopt;
  try {
    FileBytes bytes;
    if (!ReadAll(file(), bytes, static_cast<std::size_t>(facts.st_size))) return std::nullopt;
    return bytes;
  } catch (const std::exception&) {  // a file larger than the memory
    return std::nullopt;
  }
}

std::string RealFileSystem::WhyNotRead(const std::string& path) {
  struct stat facts;
  if (::stat(path.c_str(), &facts) != 0) return std::strerror(errno);
  if (!S_ISREG(facts.st_mode)) return "It is not a file.";
  if (facts.st_size > kMostFileBytes) return kTooLargeToRead;
  if (::access(path.c_str(), R_OK) != 0) return std::strerror(errno);
  return kNoMemoryToRead;
}

bool RealFileSystem::Write(const std::string& path, std::string_view bytes) {
  const std::string target = Resolved(path);
  struct stat facts;
  const bool isThere = ::stat(target.c_str(), &facts) == 0;
  if (isThere && !S_ISREG(facts.st_mode)) return false;
  ClearLeftovers(FolderOf(target));
  const std::string fresh = NameBeside(target);
  const Descriptor file(::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (FillNewFile(file, bytes, isThere ? &facts : nullptr) &&
      ::rename(fresh.c_str(), target.c_str()) == 0) {
    FlushFolderOf(target);
    return true;
  }
  if (file) ::unlink(fresh.c_str());
  return false;
}

bool RealFileSystem::MayReplace(const std::string& path) {
  struct stat facts;
  if (::stat(path.c_str(), &facts) != 0) return true;
  // The superuser may write anything, and still means what a file without any right to write says.
  return (facts.st_mode & 0222) != 0 && ::access(path.c_str(), W_OK) == 0;
}

void RealFileSystem::ClearLeftovers(const std::string& folder) {
  for (const std::string& name : List(folder, ".tarnview-*.tmp")) ClearLeftover(folder + name);
}

bool RealFileSystem::Hold(const std::string& path) {
  LetGo(path);
  const auto file = std::make_shared<Descriptor>(OpenRegular(path, O_RDWR | O_CREAT));
  if (*file && ::flock((*file)(), LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
  held_[path] = file;
  return true;
}

bool RealFileSystem::Append(const std::string& path, std::string_view bytes) {
  struct stat facts;
  if (::stat(path.c_str(), &facts) == 0 && !S_ISREG(facts.st_mode)) return false;
  Descriptor file(OpenRegular(path, O_WRONLY | O_APPEND | O_CREAT));
  return file && WriteAll(file(), bytes) && file.Close();
}

bool RealFileSystem::DeleteFile(const std::string& path) { return ::unlink(path.c_str()) == 0; }

bool RealFileSystem::IsProgram(const std::string& path) {
  struct stat facts;
  if (::stat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return false;
  return HasProgramName(path) || ::access(path.c_str(), X_OK) == 0;
}

}  // namespace tarnview
