#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tarnview {

/// At most so many samples are kept of a log, and at least so many make one.
inline constexpr int kMostSamples = 300000;
inline constexpr int kFewestSamples = 3;

/// All samples of the log that is open: a table of stored integers, column by sample, both from 0. A cell that the log
/// does not deliver reads as 0, and a column of such cells takes no memory: a column is made when the first value
/// other than 0 is written to it.
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
    const auto& cells = columns_[static_cast<std::size_t>(column)];
    return cells ? cells[static_cast<std::size_t>(row)] : 0;
  }
  void Set(int column, int row, std::int32_t value) {
    auto& cells = columns_[static_cast<std::size_t>(column)];
    if (!cells) {
      if (value == 0) return;
      Make(column);
    }
    cells[static_cast<std::size_t>(row)] = value;
  }

  /// The same value in the rows from `first` to `end` - 1.
  void Fill(int column, int first, int end, std::int32_t value);

  /// A column to read; empty where the log delivers nothing but zeros.
  std::span<const std::int32_t> Column(int column) const;
  /// A column to write, made if it is not there.
  std::span<std::int32_t> Writable(int column);

  /// Bytes that the delivered columns hold.
  std::size_t DeliveredBytes() const;

 private:
  struct Free {
    std::size_t stagger;  ///< cells between the start of the block and the first row
    void operator()(std::int32_t* cells) const;
  };
  using Cells = std::unique_ptr<std::int32_t[], Free>;
  void Make(int column);
  void Grow();

  std::vector<Cells> columns_;
  int rows_ = 0;
  int capacity_ = 0;
};

}  // namespace tarnview
