#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <utility>

#include "base/FileSystem.h"
#include "base/Paths.h"

namespace tarnview {
namespace {

/// No file that the program reads is near it; a sparse file may claim any size.
constexpr off_t kMostBytes = off_t{1} << 30;

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

/// Opens a file that is one by its name and still is one once open: never a pipe to wait for, nor a device. -1 if not.
int OpenRegular(const std::string& path, int flags) {
  const int file = ::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
  struct stat facts;
  if (file < 0 || (::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode))) return file;
  ::close(file);
  return -1;
}

bool WriteAll(int file, std::string_view bytes) {
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

/// Where a path leads, links followed, so that a new file takes the place of the old one and not of a link to it.
std::string Resolved(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
  return real ? real.get() : path;
}

/// The name bears the process's number: two programs that save at once do not meet, and what a killed one left
/// behind is in nobody's way.
std::string NameBeside(const std::string& path) {
  return path.substr(0, path.size() - FileTitle(path).size()) + ".tarnview-" + std::to_string(::getpid()) + ".tmp";
}

bool FillNewFile(const std::string& path, std::string_view bytes, const struct stat* old) {
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file) return false;
  if (old && ::fchmod(file(), old->st_mode & 07777) != 0) return false;
  return WriteAll(file(), bytes) && ::fsync(file()) == 0 && file.Close();
}

/// Brings a folder's new entry to the disk, so that it outlives a power cut; a disk that cannot do it is no failure.
void FlushFolderOf(const std::string& path) {
  const std::string folder = path.substr(0, path.size() - FileTitle(path).size());
  const Descriptor opened(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) ::fsync(opened());
}

}  // namespace

std::optional<FileBytes> RealFileSystem::Read(const std::string& path) {
  if (!IsRegular(path)) return std::nullopt;
  const Descriptor file(OpenRegular(path, O_RDONLY));
  struct stat facts;
  if (!file || ::fstat(file(), &facts) != 0 || facts.st_size > kMostBytes) return std::nullopt;
  try {
    FileBytes bytes;
    if (!ReadAll(file(), bytes, static_cast<std::size_t>(facts.st_size))) return std::nullopt;
    return bytes;
  } catch (const std::exception&) {  // a file larger than the memory
    return std::nullopt;
  }
}

bool RealFileSystem::Write(const std::string& path, std::string_view bytes) {
  const std::string target = Resolved(path);
  struct stat facts;
  const bool isThere = ::stat(target.c_str(), &facts) == 0;
  if (isThere && !S_ISREG(facts.st_mode)) return false;
  const std::string fresh = NameBeside(target);
  ::unlink(fresh.c_str());
  if (FillNewFile(fresh, bytes, isThere ? &facts : nullptr) && ::rename(fresh.c_str(), target.c_str()) == 0) {
    FlushFolderOf(target);
    return true;
  }
  ::unlink(fresh.c_str());
  return false;
}

bool RealFileSystem::Append(const std::string& path, std::string_view bytes) {
  struct stat facts;
  if (::stat(path.c_str(), &facts) == 0 && !S_ISREG(facts.st_mode)) return false;
  Descriptor file(OpenRegular(path, O_WRONLY | O_APPEND | O_CREAT));
  return file && WriteAll(file(), bytes) && file.Close();
}

bool RealFileSystem::DeleteFile(const std::string& path) { return ::unlink(path.c_str()) == 0; }

}  // namespace tarnview
