#include <windows.h>

#include <new>

#include "base/LargeMemory.h"

namespace tarnview {

LargeMemory::LargeMemory(std::size_t bytes) {
  if (bytes == 0) return;
  data_ = VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
  if (!data_) throw std::bad_alloc();
  bytes_ = bytes;
}

LargeMemory::~LargeMemory() {
  if (data_) VirtualFree(data_, 0, MEM_RELEASE);
}

void PreferLargePages(void*, std::size_t) {}  // they need a right that users rarely have

}  // namespace tarnview
