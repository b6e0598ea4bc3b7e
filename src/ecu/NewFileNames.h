#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/Dates.h"
#include "ecu/NewFile.h"

namespace tarnview {

/// A day's counter in letters: 0 is "a", 25 "z", 26 "ba".
std::string CounterLetters(int counter);

/// Proposes names for new files: the day and a counter in letters, "2026-11-24a". The counter is of
/// the run.
class AutoFileNames {
 public:
  /// Whether there is a file of that name, with any extension.
  using IsTaken = std::function<bool(const std::string& name)>;

  /// The first name from the counter on that is free, without an extension; "" if 500 are taken.
  std::string Propose(Date today, const IsTaken& isTaken);
  /// The name was used: the next one comes behind it.
  void Used() { ++counter_; }

 private:
  Date day_ = kNoDate;
  int counter_ = 0;
};

/// The name with the extension of its type, in place of its own or behind it; "" stays "".
std::string NameOfType(std::string_view name, std::string_view extension);

}  // namespace tarnview
