#include "base/FileBytes.h"

#include <algorithm>

#include "base/LargeMemory.h"

namespace tarnview {

FileBytes::FileBytes(std::string_view bytes) {
  Reserve(bytes.size());
  std::copy(bytes.begin(), bytes.end(), End());
  Add(bytes.size());
}

void FileBytes::Reserve(std::size_t capacity) {
  if (capacity <= capacity_) return;
  auto larger = std::make_unique_for_overwrite<char[]>(capacity);
  PreferLargePages(larger.get(), capacity);
  std::copy_n(bytes_.get(), size_, larger.get());
  bytes_ = std::move(larger);
  capacity_ = capacity;
}

}  // namespace tarnview
