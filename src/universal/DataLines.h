#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "fields/NumberColumn.h"
#include "model/SampleStore.h"
#include "universal/FieldDate.h"
#include "universal/HeaderMap.h"

namespace tarnview {

/// The data lines of a Universal log into rows of the store. Some lines are gathered and then read column by column:
/// the fields of a column are much alike, and the processor reads several at a time.
class DataLines {
 public:
  /// `bytes` holds all lines to come.
  DataLines(const HeaderMap& header, std::int32_t delimiter, std::string_view bytes, SampleStore& store);

  /// The next row.
  void Read(std::string_view line);
  /// Brings the rows read so far into the store.
  void Flush();

 private:
  using Numbers = BlockOf<double>;
  using Cells = BlockOf<std::int32_t>;

  void FindFirstMoment();
  void FlushField(std::size_t field, int first);
  void TakeCells(int column, int first, Cells& cells) const;
  void ReadNumbers(std::size_t field);
  void ReadMoments(std::size_t field, Numbers& moments);
  void StoreNumbers(const FieldTarget& target, std::size_t field, Cells& cells) const;
  void StoreValues(const FieldTarget& target, std::size_t field, Numbers& values, std::size_t rows, Cells& cells) const;
  void StoreListed(const FieldTarget& target, std::size_t field, Cells& cells) const;
  /// A line of the block lacks the field.
  bool Ragged(std::size_t field) const { return field >= block_.FewestFields(); }

  const HeaderMap& header_;
  SampleStore& store_;
  FieldIndex block_;
  NumberColumn numbers_;  ///< of the field that is read
  bool anyDate_ = false;
  std::optional<FieldMoment> firstMoment_;  ///< of the log, whichever column it stands in
};

}  // namespace tarnview
