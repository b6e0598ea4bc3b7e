#include "base/LargeMemory.h"

#include <utility>

namespace tarnview {

LargeMemory::LargeMemory(LargeMemory&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), bytes_(std::exchange(other.bytes_, 0)) {}

LargeMemory& LargeMemory::operator=(LargeMemory&& other) noexcept {
  std::swap(data_, other.data_);
  std::swap(bytes_, other.bytes_);
  return *this;
}

}  // namespace tarnview
