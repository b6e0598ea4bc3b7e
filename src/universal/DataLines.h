#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "model/SampleStore.h"
#include "universal/FieldDate.h"
#include "universal/FieldIndex.h"
#include "universal/HeaderMap.h"

namespace tarnview {

/// The data lines of a Universal log into rows of the store. Some lines are gathered and then read column by column:
/// the fields of a column are much alike, and the processor reads several at a time.
class DataLines {
 public:
  static constexpr std::size_t kMostRows = 64;

  /// `bytes` holds all lines to come.
  DataLines(const HeaderMap& header, std::int32_t delimiter, std::string_view bytes, SampleStore& store);

  /// The next row.
  void Read(std::string_view line);
  /// Brings the rows read so far into the store.
  void Flush();

 private:
  using Numbers = std::array<double, kMostRows>;

  void FindFirstMoment();
  void FlushField(std::size_t field, int first);
  void ReadNumbers(std::size_t field, Numbers& numbers) const;
  void ReadMoments(std::size_t field, Numbers& numbers) const;
  void StoreNumbers(const FieldTarget& target, std::size_t field, const Numbers& numbers, std::int32_t* cells) const;
  void StoreValues(const FieldTarget& target, std::size_t field, std::int32_t* cells) const;

  const HeaderMap& header_;
  SampleStore& store_;
  FieldIndex index_;
  bool anyDate_ = false;
  std::optional<FieldMoment> firstMoment_;  ///< of the log, whichever column it stands in
  static constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);
  std::size_t mostFields_ = 0, leastFields_ = kAnyNumber;  ///< of the lines that are gathered
};

}  // namespace tarnview
