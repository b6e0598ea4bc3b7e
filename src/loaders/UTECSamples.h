#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/Numbers.h"
#include "loaders/LoadContext.h"
#include "model/Column.h"

namespace tarnview {

/// How a field of a UTEC log becomes stored values; the same in both forms of the log.
enum class UTECRule {
  Factored,         ///< number x factor of the column's item
  Time,             ///< half milliseconds
  GaugeMAP,         ///< psi above the atmosphere
  MAP,              ///< psi above 100 kPa
  AirFuel,          ///< a ratio or a word
  CoolantTemp,      ///< degrees C
  AirTemp,          ///< degrees C
  Boost,            ///< the wastegate's duty in open loop, else the closed loop's value
  WastegateDuty,    ///< of 133
  InjectorDuty,     ///< %, at most 100
  ModifiedAdvance,  ///< degrees, or "ECU": as the ECU has it
  ModifiedFuel,     ///< %, on top of the item's zero
};

/// The samples of a UTEC log as they grow, field by field.
class UTECSamples {
 public:
  explicit UTECSamples(const LoadContext& context);

  void Add();
  /// The sample that the calls below are about; after Add it is the new one.
  void Use(int row) { row_ = row; }

  /// For a rule that stores the number x 10^scale as it stands: the scale; -1 for any other.
  int ScaleOf(UTECRule rule, Column column) const;
  /// Any rule; but a MAP sets more columns than its own, and the advance may be that of the ECU.
  std::int32_t Stored(UTECRule rule, Column column, double number);
  /// The same for many numbers.
  void Stored(UTECRule rule, Column column, std::span<const double> numbers, std::int32_t* stored);
  void Set(UTECRule rule, Column column, double number);
  /// `ratio` as such: 14.7.
  void SetAirFuel(double ratio) { Set(UTECRule::AirFuel, kAF, ratio); }
  void KeepAirFuel();  ///< that of the sample before
  void KeepAdvance();  ///< modified as the ECU has it

  /// What follows once all samples are there. Without a time column a log runs at five lines a
  /// second.
  void Finish(bool hasTime, bool hasModifiedFuel);

 private:
  std::int32_t StoredOne(UTECRule rule, Column column, double number);
  std::int32_t Factored(Column column, double value) const {
    return RoundToLong(factor_[column] * value);
  }
  std::int32_t AirTemp(double degrees);
  std::int32_t Time(double count);

  const LoadContext& context_;
  SampleStore& store_;
  const std::int32_t atmosphere_;  ///< as "MAP" is stored
  const std::int32_t noModifiedFuel_;
  double factor_[kColumnCount];
  int row_ = -1;
  std::optional<double> firstTime_;
};

/// Whether the UTEC passes the ECU's own figure on.
inline bool IsECUs(std::string_view text) { return text.find("ECU") != std::string_view::npos; }

/// The ratio of "RICH" and "LEAN", in any case; nothing for any other text.
std::optional<double> AirFuelOfWord(std::string_view text);

}  // namespace tarnview
