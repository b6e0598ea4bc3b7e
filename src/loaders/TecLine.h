#pragma once

#include <array>
#include <span>
#include <string_view>

#include "base/Units.h"
#include "fields/NumberColumn.h"
#include "loaders/SampleFinish.h"
#include "loaders/SampleLog.h"
#include "model/Column.h"
#include "model/SampleStore.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

// Tec-2 and Tec-3 logs are one design: a heading whose second line says SECONDS, then lines of
// fixed length.

enum class TecRule {
  Whole,          ///< an integer
  WholeFactored,  ///< an integer x factor of the column's item
  Factored,       ///< number x factor of the column's item
  Rounded,        ///< number
  Tenths,         ///< number x 10
  Hundredths,     ///< number x 100
  Seconds,        ///< number x 10000
  Correction,     ///< number x 1000 on top of 1000, which stands for none
};

/// The field ends at the eighth character of its line or behind it, and has eight at most.
struct TecField {
  Column column;
  int at, length;  ///< from 1
  TecRule rule;
};

/// Lines of one length, gathered and then read column by column, as the fields of delimited lines
/// are.
class TecBlock {
 public:
  explicit TecBlock(const LoadContext& context)
      : context_(context), store_(context.log.glngDataLog) {}

  void Add(std::string_view line) { lines_[count_++] = line.data(), length_ = line.size(); }
  bool Full() const { return count_ == lines_.size(); }
  std::size_t Lines() const { return count_; }
  std::size_t LineLength() const { return length_; }
  const char* Line(std::size_t line) const { return lines_[line]; }
  void Clear() { count_ = 0; }

  /// Stores the fields of all lines in the store's last rows, which are there.
  void Store(std::span<const TecField> fields);

 private:
  using Cells = BlockOf<std::int32_t>;

  void Read(const TecField& field);
  void Convert(const TecField& field, Cells& cells) const;

  const LoadContext& context_;
  SampleStore& store_;
  BlockOf<const char*> lines_;
  std::size_t count_ = 0, length_ = 0;
  NumberColumn numbers_;  ///< of the field that is read
};

/// All samples: `store(block)` of the lines whose length fits, a block at a time, and what follows
/// from the others of their columns.
template <class Fits, class Store>
void ReadTecLines(SampleLines lines, const LoadContext& context, const Fits& fits,
                  const Store& store) {
  SampleStore& samples = context.log.glngDataLog;
  TecBlock block(context);
  const auto flush = [&] {
    store(block);
    FillBoostAndVacuum(context, samples.Rows() - static_cast<int>(block.Lines()));
    block.Clear();
  };
  for (std::string_view line; lines.Next(line);) {
    if (!fits(line.size())) continue;
    if (block.Full() || line.size() != block.LineLength()) flush();
    block.Add(line);
    const int row = samples.AddRow();
    samples.Set(kSample, row, row + 1);
  }
  flush();
  FillWithZero(kFuelPercentM, context);
  FindFirstPlotSample(context);
}

/// The second line says SECONDS, the third is longer than `blankAt` and has a blank there. Throws
/// where not.
void CheckTecHeading(TextLines lines, std::size_t blankAt);
/// The lines from the first one on that has a point at `pointAt`.
TextLines FromFirstPoint(TextLines lines, std::size_t pointAt);

}  // namespace tarnview
