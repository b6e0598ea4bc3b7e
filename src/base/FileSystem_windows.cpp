#include <windows.h>

#undef CopyFile
#undef DeleteFile

#include <algorithm>
#include <exception>
#include <system_error>
#include <utility>

#include "base/FileSystem.h"
#include "base/Paths.h"

namespace tarnview {
namespace {

class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() { Close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE operator()() const { return handle_; }
  bool Close() {
    return handle_ == INVALID_HANDLE_VALUE ||
           CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
  }

 private:
  HANDLE handle_;
};

/// The most that one call moves; the calls count in 32 bits.
constexpr std::size_t kMostAtOnce = 1u << 30;
DWORD AtOnce(std::size_t bytes) {
  return static_cast<DWORD>(std::min<std::size_t>(bytes, kMostAtOnce));
}

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// Takes away what would keep a file from being replaced or deleted.
void ClearAttributes(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  constexpr DWORD kInTheWay = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN;
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kInTheWay))
    SetFileAttributesA(path.c_str(), attributes & ~kInTheWay);
}

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto part = AtOnce(bytes.size());
    if (!WriteFile(file, bytes.data(), part, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

bool ReadAll(HANDLE file, FileBytes& bytes, std::size_t size) {
  bytes.Reserve(size);
  while (bytes.Room() > 0) {
    DWORD got = 0;
    if (!ReadFile(file, bytes.End(), AtOnce(bytes.Room()), &got, nullptr)) return false;
    if (got == 0) break;
    bytes.Add(got);
  }
  return true;
}

bool FillNewFile(const std::string& path, std::string_view bytes) {
  Handle file(CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file(), bytes) && FlushFileBuffers(file()) && file.Close();
}

}  // namespace

std::optional<FileBytes> RealFileSystem::Read(const std::string& path) {
  const Handle file(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER size;
  if (!file || GetFileType(file()) != FILE_TYPE_DISK || !GetFileSizeEx(file(), &size) ||
      size.QuadPart > kMostFileBytes)
    return std::nullopt;
  try {
    FileBytes bytes;
    if (!ReadAll(file(), bytes, static_cast<std::size_t>(size.QuadPart))) return std::nullopt;
    return bytes;
  } catch (const std::exception&) {  // a file larger than the memory
    return std::nullopt;
  }
}

std::string RealFileSystem::WhyNotRead(const std::string& path) {
  const Handle file(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return std::system_category().message(static_cast<int>(GetLastError()));
  LARGE_INTEGER size;
  if (GetFileType(file()) != FILE_TYPE_DISK || !GetFileSizeEx(file(), &size))
    return "It is not a file.";
  if (size.QuadPart > kMostFileBytes) return kTooLargeToRead;
  return kNoMemoryToRead;
}

bool RealFileSystem::Write(const std::string& path, std::string_view bytes) {
  if (IsFolder(path)) return false;
  // The name bears the process's number, so that two programs that save at once do not meet.
  const std::string folder = path.substr(0, path.size() - FileTitle(path).size());
  ClearLeftovers(folder);
  const std::string fresh = folder + "tarnview-" + std::to_string(GetCurrentProcessId()) + ".tmp";
  if (FillNewFile(fresh, bytes)) {
    ClearAttributes(path);
    if (MoveFileExA(fresh.c_str(), path.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      return true;
  }
  DeleteFileA(fresh.c_str());
  return false;
}

bool RealFileSystem::MayReplace(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_READONLY);
}

void RealFileSystem::ClearLeftovers(const std::string& folder) {
  // What is still being written is open to its writer alone, and cannot be deleted.
  for (const std::string& name : List(folder, "tarnview-*.tmp"))
    DeleteFileA((folder + name).c_str());
}

bool RealFileSystem::Hold(const std::string& path) {
  LetGo(path);
  const auto file = std::make_shared<Handle>(
      CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  // One byte far behind any file's end, so that the lock is in no write's way.
  constexpr DWORD kFar = 0x7FFFFFFF;
  if (*file && !LockFile((*file)(), 0, kFar, 1, 0)) return GetLastError() != ERROR_LOCK_VIOLATION;
  held_[path] = file;
  return true;
}

bool RealFileSystem::Append(const std::string& path, std::string_view bytes) {
  Handle file(CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && GetFileType(file()) == FILE_TYPE_DISK && WriteAll(file(), bytes) && file.Close();
}

bool RealFileSystem::DeleteFile(const std::string& path) {
  ClearAttributes(path);
  return DeleteFileA(path.c_str()) != 0;
}

bool RealFileSystem::IsProgram(const std::string& path) {
  return HasProgramName(path) && FileExists(path);
}

}  // namespace tarnview
