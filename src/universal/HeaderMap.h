#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "universal/clsDataLog.h"

namespace tarnview {

/// The texts of a value list, ready to be looked up with no allocation.
class ValueLookup {
 public:
  explicit ValueLookup(const clsDataLogColumnValues& values);

  /// The number of the first entry that equals a field, in any case; 0 if none does.
  std::int32_t operator()(std::string_view field);

 private:
  std::unordered_map<std::string, std::int32_t> translations_;  ///< by text in capitals
  std::size_t longest_ = 0;
  std::string capitals_;
};

/// What a field of a line gives to one data item: a definition column with all that a line needs of
/// it worked out.
struct FieldTarget {
  explicit FieldTarget(const clsDataLogColumn& column);

  enum class Kind { Nothing, Number, Date, Value, Time };
  Kind kind = Kind::Nothing;
  int column;  ///< of the store
  /// A number becomes (number + before) x factor + after: the conversion's offset is one of the
  /// two, the other is 0.
  double before = 0, factor, after = 0;
  bool bounded, setToMin, setToMax;
  bool negative;                        ///< values below 0 are stored
  double min, max;                      ///< beyond everything where they are not set
  double scale, storedOffset;           ///< a value is stored as value x scale + storedOffset
  std::optional<int> tens;              ///< where all of that comes to number x 10^tens
  std::shared_ptr<ValueLookup> values;  ///< of a column of values
};

/// Which definition columns each field of a log's lines feeds.
class HeaderMap {
 public:
  HeaderMap(std::string_view headerLine, const clsDataLog& definition);
  /// By titles that are at hand.
  HeaderMap(const std::vector<std::string>& titles, const clsDataLog& definition);

  int Fields() const { return static_cast<int>(fields_.size()); }
  /// In the order of the definition's columns. A field from 0.
  std::span<const FieldTarget> Targets(int field) const {
    const Range range = fields_[static_cast<std::size_t>(field)];
    return {targets_.data() + range.first, range.count};
  }
  /// Fields that no column matches, as they stand.
  const std::vector<std::string>& Unknown() const { return unknown_; }
  bool AnyKnown() const { return unknown_.size() < fields_.size(); }
  /// A matched column names the item, whatever it stores.
  bool Feeds(int item) const;
  /// Items whose values are to be smoothed, each once.
  const std::vector<int>& Smoothed() const { return smoothed_; }

 private:
  struct Range {
    std::uint32_t first = 0, count = 0;
  };
  void Gather(const clsDataLog& definition);
  void Match(std::string_view field, const clsDataLog& definition);
  Range AddTargets(const std::vector<int>& columns, int occurrence, const clsDataLog& definition);

  struct Group {  ///< the columns of one title
    std::vector<int> columns;
    Range targets;
    int used = 0;               ///< fields of that title so far
    bool byOccurrence = false;  ///< a column wants one of them alone
  };
  std::unordered_map<std::string, Group> groups_;
  std::vector<Range> fields_;
  std::vector<FieldTarget> targets_;
  std::vector<std::string> unknown_;
  std::vector<bool> fed_;
  std::vector<int> smoothed_;
};

/// More columns than any log has; what stands behind them in a line of titles is passed over.
inline constexpr std::size_t kMostFields = std::size_t{1} << 18;

/// The parts of a line between delimiters, kMostFields at most; an empty line has none. No byte is
/// a delimiter beyond 255.
std::vector<std::string_view> SplitFields(std::string_view line, std::int32_t delimiter);

}  // namespace tarnview
