#include <sys/mman.h>

#include <cstdint>
#include <new>

#include "base/LargeMemory.h"

namespace tarnview {

LargeMemory::LargeMemory(std::size_t bytes) {
  if (bytes == 0) return;
  void* const memory =
      ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) throw std::bad_alloc();
  data_ = memory;
  bytes_ = bytes;
}

LargeMemory::~LargeMemory() {
  if (data_) ::munmap(data_, bytes_);
}

void PreferLargePages([[maybe_unused]] void* start, [[maybe_unused]] std::size_t bytes) {
#ifdef MADV_HUGEPAGE
  constexpr std::uintptr_t kPage = 2 << 20;
  const auto from = reinterpret_cast<std::uintptr_t>(start);
  const std::uintptr_t first = (from + kPage - 1) / kPage * kPage,
                       end = (from + bytes) / kPage * kPage;
  if (first < end) ::madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
#endif
}

}  // namespace tarnview
