#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace tarnview {

/// The bytes of a file. Memory for a log of many megabytes comes from the system untouched, and is
/// filled but once.
class FileBytes {
 public:
  FileBytes() = default;
  FileBytes(std::string_view bytes);
  FileBytes(const char* text) : FileBytes(std::string_view(text)) {}

  operator std::string_view() const { return {bytes_.get() + front_, size_ - front_}; }
  friend bool operator==(const FileBytes& bytes, std::string_view text) {
    return std::string_view(bytes) == text;
  }

  /// Room for more bytes behind those that are there, whatever stands in it; raises std::bad_alloc.
  void Reserve(std::size_t capacity);
  std::size_t Room() const { return capacity_ - size_; }
  char* Begin() { return bytes_.get() + front_; }
  char* End() { return bytes_.get() + size_; }
  /// So many bytes of the room are filled.
  void Add(std::size_t filled) { size_ += filled; }
  /// So many bytes at the start are none of the file's any more.
  void DropFront(std::size_t count) { front_ += count; }

 private:
  std::unique_ptr<char[]> bytes_;
  std::size_t front_ = 0, size_ = 0, capacity_ = 0;
};

}  // namespace tarnview
