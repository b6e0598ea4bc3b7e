#include <windows.h>

#undef CopyFile
#undef DeleteFile

#include <exception>
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
    return handle_ == INVALID_HANDLE_VALUE || CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
  }

 private:
  HANDLE handle_;
};

/// The most that one call moves; the calls count in 32 bits.
constexpr std::size_t kMostAtOnce = 1u << 30;

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

/// No file that the program reads is near it; a sparse file may claim any size.
constexpr LONGLONG kMostBytes = LONGLONG{1} << 30;

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
    const auto part = static_cast<DWORD>(bytes.size() < kMostAtOnce ? bytes.size() : kMostAtOnce);
    if (!WriteFile(file, bytes.data(), part, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

bool ReadAll(HANDLE file, FileBytes& bytes, std::size_t size) {
  bytes.Reserve(size);
  while (bytes.Room() > 0) {
    DWORD got = 0;
    const std::size_t left = bytes.Room();
    if (!ReadFile(file, bytes.End(), static_cast<DWORD>(left < kMostAtOnce ? left : kMostAtOnce), &got, nullptr))
      return false;
    if (got == 0) break;
    bytes.Add(got);
  }
  return true;
}

bool FillNewFile(const std::string& path, std::string_view bytes) {
  Handle file(CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file(), bytes) && FlushFileBuffers(file()) && file.Close();
}

}  // namespace

std::optional<FileBytes> RealFileSystem::Read(const std::string& path) {
  const Handle file(CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER size;
  if (!file || GetFileType(file()) != FILE_TYPE_DISK || !GetFileSizeEx(file(), &size) || size.QuadPart > kMostBytes)
    return std::nullopt;
  try {
    FileBytes bytes;
    if (!ReadAll(file(), bytes, static_cast<std::size_t>(size.QuadPart))) return std::nullopt;
    return bytes;
  } catch (const std::exception&) {  // a file larger than the memory
    return std::nullopt;
  }
}

bool RealFileSystem::Write(const std::string& path, std::string_view bytes) {
  if (IsFolder(path)) return false;
  // The name bears the process's number, so that two programs that save at once do not meet.
  const std::string fresh = path.substr(0, path.size() - FileTitle(path).size()) + "tarnview-" +
                            std::to_string(GetCurrentProcessId()) + ".tmp";
  if (FillNewFile(fresh, bytes)) {
    ClearAttributes(path);
    if (MoveFileExA(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return true;
  }
  DeleteFileA(fresh.c_str());
  return false;
}

bool RealFileSystem::Append(const std::string& path, std::string_view bytes) {
  Handle file(CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                          nullptr));
  return file && GetFileType(file()) == FILE_TYPE_DISK && WriteAll(file(), bytes) && file.Close();
}

bool RealFileSystem::DeleteFile(const std::string& path) {
  ClearAttributes(path);
  return DeleteFileA(path.c_str()) != 0;
}

}  // namespace tarnview
