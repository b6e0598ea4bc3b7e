#pragma once

#include <cstddef>

namespace tarnview {

/// Zeroed memory straight from the system: what is never touched of it costs nothing.
class LargeMemory {
 public:
  LargeMemory() = default;
  explicit LargeMemory(std::size_t bytes);  ///< raises std::bad_alloc
  ~LargeMemory();
  LargeMemory(LargeMemory&& other) noexcept;
  LargeMemory& operator=(LargeMemory&& other) noexcept;

  void* Data() const { return data_; }

 private:
  void* data_ = nullptr;
  std::size_t bytes_ = 0;
};

/// Asks the system for its large pages (2 MB), which come in a fraction of the time that as many
/// small ones take, where they lie wholly in the stretch. A system without them lets it be.
void PreferLargePages(void* start, std::size_t bytes);

}  // namespace tarnview
