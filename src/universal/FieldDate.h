#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarnview {

/// A moment of a log: whole seconds since 30 December 1899, and the rest of a second.
struct FieldMoment {
  std::int64_t seconds = 0;
  double fraction = 0;

  double Since(const FieldMoment& first) const {
    return static_cast<double>(seconds - first.seconds) + (fraction - first.fraction);
  }
};

/// A date and time as loggers write them: "yyyy-mm-dd", "yyyy/mm/dd", "dd-mmm-yyyy" or
/// "dd/mm/yyyy", a blank, and "hh:mm:ss" with any fraction of a second; or either alone. Nothing
/// for any other text. Blanks at the ends are let be.
std::optional<FieldMoment> ParseFieldMoment(std::string_view text);

}  // namespace tarnview
