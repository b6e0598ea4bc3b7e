#include "model/SampleStore.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace tarnview {
namespace {

constexpr int kFewestRows = 64;

/// Large blocks start at the same place of a memory page. Loaders write a row through all columns, which would then
/// fight for one set of the processor's cache; so each column starts a cache line (16 cells) behind its neighbour.
constexpr std::size_t Stagger(int column) { return static_cast<std::size_t>(column) % 64 * 16; }

}  // namespace

void SampleStore::Free::operator()(std::int32_t* cells) const { std::free(cells - stagger); }

void SampleStore::Prepare(int columns, int expectedRows) {
  columns_.clear();
  columns_.resize(static_cast<std::size_t>(std::max(columns, 0)));
  rows_ = 0;
  capacity_ = columns > 0 ? std::clamp(expectedRows, kFewestRows, kMostSamples) : 0;
}

void SampleStore::Make(int column) {
  // Large zeroed blocks come from the system untouched: rows that are never written take no memory.
  const std::size_t stagger = Stagger(column);
  auto* block =
      static_cast<std::int32_t*>(std::calloc(stagger + static_cast<std::size_t>(capacity_), sizeof(std::int32_t)));
  if (!block) throw std::bad_alloc();
  columns_[static_cast<std::size_t>(column)] = Cells(block + stagger, Free{stagger});
}

void SampleStore::Grow() {
  const int larger = std::max(capacity_ + capacity_ / 8, kFewestRows);
  const int grown = capacity_ < kMostSamples ? std::min(larger, kMostSamples) : larger;
  for (Cells& cells : columns_) {
    if (!cells) continue;
    // realloc moves large blocks by remapping their pages, so that neither time nor memory is spent on a copy.
    const Free free = cells.get_deleter();
    void* block = std::realloc(cells.get() - free.stagger,
                               (free.stagger + static_cast<std::size_t>(grown)) * sizeof(std::int32_t));
    if (!block) throw std::bad_alloc();
    (void)cells.release();
    cells.reset(static_cast<std::int32_t*>(block) + free.stagger);
    std::fill(cells.get() + capacity_, cells.get() + grown, 0);
  }
  capacity_ = grown;
}

void SampleStore::Fill(int column, int first, int end, std::int32_t value) {
  auto& cells = columns_[static_cast<std::size_t>(column)];
  if (first >= end || (!cells && value == 0)) return;
  if (!cells) Make(column);
  std::fill(cells.get() + first, cells.get() + end, value);
}

std::span<const std::int32_t> SampleStore::Column(int column) const {
  const auto& cells = columns_[static_cast<std::size_t>(column)];
  return {cells.get(), cells ? static_cast<std::size_t>(rows_) : 0};
}

std::span<std::int32_t> SampleStore::Writable(int column) {
  auto& cells = columns_[static_cast<std::size_t>(column)];
  if (!cells) Make(column);
  return {cells.get(), static_cast<std::size_t>(rows_)};
}

std::size_t SampleStore::DeliveredBytes() const {
  const auto delivered = std::count_if(columns_.begin(), columns_.end(), [](const Cells& cells) { return !!cells; });
  return static_cast<std::size_t>(delivered) * static_cast<std::size_t>(rows_) * sizeof(std::int32_t);
}

}  // namespace tarnview
