#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "fields/NumberColumn.h"
#include "model/SampleStore.h"
#include "universal/FieldDate.h"
#include "universal/HeaderMap.h"
#include "universal/NoValues.h"
#include "universal/TimeBase.h"

namespace tarnview {

/// The data lines of a Universal log into rows of the store. Some lines are gathered and then read
/// column by column: the fields of a column are much alike, and the processor reads several at a
/// time.
class DataLines {
 public:
  DataLines(const HeaderMap& header, const clsDataLog& definition, SampleStore& store);

  /// The lines to come stand in `bytes`; all before were flushed.
  void Begin(std::string_view bytes) { block_.Begin(bytes); }
  /// The next row. Where the definition tells the form of a log, a line that holds no sample is
  /// none.
  void Read(std::string_view line);
  /// Rows read so far.
  int Rows() const { return store_.Rows() + static_cast<int>(block_.Lines()); }
  /// What stands in the log's clock, in seconds, a row each; empty without a form of time.
  const std::vector<double>& Stamps() const { return stamps_; }
  /// Brings the rows read so far into the store.
  void Flush();

 private:
  using Numbers = BlockOf<double>;
  using Cells = BlockOf<std::int32_t>;

  bool IsSample(std::string_view line) const;
  void ReadStamps(std::size_t field);
  void WriteCells(const FieldTarget& target, int first, std::uint64_t gaps, Cells& cells);
  void FindFirstMoment();
  void FlushField(std::size_t field, int first);
  void TakeCells(int column, int first, Cells& cells) const;
  void ReadNumbers(std::size_t field);
  void ReadSpans(std::size_t field, Numbers& spans);
  void ReadMoments(std::size_t field, Numbers& moments);
  void StoreNumbers(const FieldTarget& target, std::size_t field, Cells& cells) const;
  void StoreValues(const FieldTarget& target, std::size_t field, Numbers& values, std::size_t rows,
                   Cells& cells) const;
  void StoreListed(const FieldTarget& target, std::size_t field, Cells& cells) const;
  /// A line of the block lacks the field.
  bool Ragged(std::size_t field) const { return field >= block_.FewestFields(); }

  const HeaderMap& header_;
  SampleStore& store_;
  FieldIndex block_;
  NumberColumn numbers_;  ///< of the field that is read
  bool anyDate_ = false;
  // Of a log whose form is told:
  const bool formed_;
  const std::string commentPrefix_;
  const double secondsOfStamp_;  ///< 1 for texts
  const bool stampsAreTexts_;
  std::optional<std::size_t> clock_;  ///< the field of its clock
  std::optional<NoValues> noValues_;
  std::vector<int> sharedColumns_;  ///< of the store, which several fields feed
  std::unordered_map<std::size_t, FieldMoment> firstOfField_;
  std::optional<FieldMoment> firstStamp_;
  std::vector<double> stamps_;
  std::optional<FieldMoment> firstMoment_;  ///< of the log, whichever column it stands in
};

}  // namespace tarnview
