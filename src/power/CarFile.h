#pragma once

#include <string>
#include <string_view>

#include "base/Clock.h"
#include "power/CarFields.h"

namespace tarnview {

// A .car file: one car definition, as users exchange them.

inline constexpr const char* kCarFileFilter = "Car Definition files (*.car)|*.car";

/// The fields as they stand, CR LF behind each line.
std::string CarFileText(const CarFields& fields, const Moment& now);

/// Takes what the text holds into the fields; those that it does not name stay. False where the
/// line is missing that the fields follow.
bool ReadCarFile(std::string_view text, CarFields& fields);

}  // namespace tarnview
