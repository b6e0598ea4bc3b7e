#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/LargeMemory.h"

namespace tarnview {

/// At most so many samples are kept of a log, and at least so many make one.
inline constexpr int kMostSamples = 300000;
inline constexpr int kFewestSamples = 3;

/// All samples of the log that is open: a table of stored integers, column by sample, both from 0.
/// A cell that the log does not deliver reads as 0, and a column of such cells takes no memory: a
/// column is made when the first value other than 0 is written to it.
class SampleStore {
 public:
  /// Empties the store and says how many rows to expect (a guess: it grows at need).
  void Prepare(int columns, int expectedRows);
  void Clear() { Prepare(0, 0); }

  int Columns() const { return static_cast<int>(columns_.size()); }
  int Rows() const { return rows_; }

  /// Adds a row of zeros and returns its index.
  int AddRow() {
    if (rows_ == capacity_) Grow();
    return rows_++;
  }

  std::int32_t operator()(int column, int row) const {
    const std::int32_t* cells = columns_[static_cast<std::size_t>(column)];
    if (cells) return cells[static_cast<std::size_t>(row)];
    return 0;
  }
  void Set(int column, int row, std::int32_t value) {
    auto& cells = columns_[static_cast<std::size_t>(column)];
    if (!cells) {
      if (value == 0) return;
      Make(column);
    }
    cells[static_cast<std::size_t>(row)] = value;
  }

  /// Values of the rows from `first` on.
  void SetRows(int column, int first, std::span<const std::int32_t> values);
  /// The same value in the rows from `first` to `end` - 1.
  void Fill(int column, int first, int end, std::int32_t value);

  /// A column to read; empty where the log delivers nothing but zeros.
  std::span<const std::int32_t> Column(int column) const;
  /// A column to write, made if it is not there.
  std::span<std::int32_t> Writable(int column);

  /// Notes for `count` rows (up to 64) from `first` on, a bit each, where the log held no value; a
  /// cell keeps the last.
  void SetGaps(int column, int first, std::size_t count, std::uint64_t gaps);
  /// The cell stands for a value that was logged.
  bool IsLogged(int column, int row) const {
    const auto& gaps = gaps_[static_cast<std::size_t>(column)];
    const auto word = static_cast<std::size_t>(row) / 64;
    return word >= gaps.size() || (gaps[word] >> (row % 64) & 1) == 0;
  }
  /// Rows of a column whose value was logged.
  int CountLogged(int column) const;

  /// Bytes that the delivered columns hold.
  std::size_t DeliveredBytes() const;

 private:
  void Make(int column);
  void Grow();

  LargeMemory memory_;
  std::vector<std::int32_t*>
      columns_;  ///< where a column begins; nullptr for one that is not delivered
  std::vector<std::vector<std::uint64_t>>
      gaps_;              ///< of each column, a bit a row; empty: all rows were logged
  std::size_t made_ = 0;  ///< of the columns, one behind the other in the order of their making
  int rows_ = 0;
  int capacity_ = 0;
};

}  // namespace tarnview
