#include "model/SampleStore.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tarnview {
namespace {

constexpr int kFewestRows = 64;

/// Cells from one column's begin to the next one's. Loaders may write a row through all columns,
/// which would fight for one set of the processor's cache if they began at the same place of a
/// memory page (1024 cells); so each begins a cache line (16 cells) behind its neighbour.
std::size_t Stride(int capacity) {
  return (static_cast<std::size_t>(capacity) + 1023) / 1024 * 1024 + 16;
}

LargeMemory MemoryFor(std::size_t columns, int capacity) {
  return LargeMemory(columns * Stride(capacity) * sizeof(std::int32_t));
}

}  // namespace

void SampleStore::Prepare(int columns, int expectedRows) {
  capacity_ = 0;
  if (columns > 0) capacity_ = std::clamp(expectedRows, kFewestRows, kMostSamples);
  columns_.assign(static_cast<std::size_t>(std::max(columns, 0)), nullptr);
  gaps_.assign(columns_.size(), {});
  memory_ = LargeMemory();  // the old one goes before the new one comes
  memory_ = MemoryFor(columns_.size(), capacity_);
  made_ = 0;
  rows_ = 0;
}

void SampleStore::Make(int column) {
  auto* const start = static_cast<std::int32_t*>(memory_.Data());
  const std::size_t stride = Stride(capacity_);
  columns_[static_cast<std::size_t>(column)] = start + made_ * stride;
  ++made_;
  // Most of these end within a large page, which cannot be had any more once a small one of it is
  // in use: so it is asked for ahead of the next column, if no more than half of it may go to
  // waste.
  constexpr std::size_t kHalfOfLargePage = 1 << 20;
  const std::size_t made = made_ * stride * sizeof(std::int32_t),
                    all = columns_.size() * stride * sizeof(std::int32_t);
  PreferLargePages(start, std::min(made + kHalfOfLargePage, all));
}

void SampleStore::Grow() {
  int grown = std::max(capacity_ + capacity_ / 2, kFewestRows);
  if (capacity_ < kMostSamples) grown = std::min(grown, kMostSamples);
  LargeMemory memory = MemoryFor(columns_.size(), grown);
  const auto* const old = static_cast<const std::int32_t*>(memory_.Data());
  auto* const start = static_cast<std::int32_t*>(memory.Data());
  PreferLargePages(start, made_ * Stride(grown) * sizeof(std::int32_t));
  for (std::int32_t*& cells : columns_) {
    if (!cells) continue;
    const std::size_t place = static_cast<std::size_t>(cells - old) / Stride(capacity_);
    cells = std::copy_n(cells, rows_, start + place * Stride(grown)) - rows_;
  }
  memory_ = std::move(memory);
  capacity_ = grown;
}

void SampleStore::SetRows(int column, int first, std::span<const std::int32_t> values) {
  std::int32_t*& cells = columns_[static_cast<std::size_t>(column)];
  if (!cells) {
    if (std::all_of(values.begin(), values.end(), [](std::int32_t value) { return value == 0; }))
      return;
    Make(column);
  }
  std::copy(values.begin(), values.end(), cells + first);
}

void SampleStore::Fill(int column, int first, int end, std::int32_t value) {
  std::int32_t*& cells = columns_[static_cast<std::size_t>(column)];
  if (first >= end || (!cells && value == 0)) return;
  if (!cells) Make(column);
  std::fill(cells + first, cells + end, value);
}

std::span<const std::int32_t> SampleStore::Column(int column) const {
  const std::int32_t* cells = columns_[static_cast<std::size_t>(column)];
  if (!cells) return {};
  return {cells, static_cast<std::size_t>(rows_)};
}

std::span<std::int32_t> SampleStore::Writable(int column) {
  std::int32_t*& cells = columns_[static_cast<std::size_t>(column)];
  if (!cells) Make(column);
  return {cells, static_cast<std::size_t>(rows_)};
}

void SampleStore::SetGaps(int column, int first, std::size_t count, std::uint64_t gaps) {
  auto& bits = gaps_[static_cast<std::size_t>(column)];
  const auto word = static_cast<std::size_t>(first) / 64,
             shift = static_cast<std::size_t>(first) % 64;
  bits.resize((static_cast<std::size_t>(first) + count + 63) / 64);
  bits[word] |= gaps << shift;
  if (shift > 0 && word + 1 < bits.size()) bits[word + 1] |= gaps >> (64 - shift);
}

int SampleStore::CountLogged(int column) const {
  int gaps = 0;
  for (const std::uint64_t word : gaps_[static_cast<std::size_t>(column)])
    gaps += std::popcount(word);
  return rows_ - gaps;
}

std::size_t SampleStore::DeliveredBytes() const {
  const auto delivered = std::count_if(columns_.begin(), columns_.end(),
                                       [](const std::int32_t* cells) { return cells != nullptr; });
  return static_cast<std::size_t>(delivered) * static_cast<std::size_t>(rows_) *
         sizeof(std::int32_t);
}

}  // namespace tarnview
