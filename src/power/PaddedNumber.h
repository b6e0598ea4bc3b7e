#pragma once

#include <string>

namespace tarnview {

/// Rounded half to even, at least `digits` digits before the point: "007.5", "-007.5". What rounds
/// to 0 has no sign.
std::string PaddedNumber(double value, int digits, int places);

}  // namespace tarnview
