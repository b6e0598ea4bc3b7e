#pragma once

#include <cstdint>

#include "model/OpenLog.h"

namespace tarnview {

/// The store index of a `Sample` value. From the guess, forward to the first row that is not below
/// the value, or backward to the first that is not above it; never outside the store. Where samples
/// run on one by one the guess is the answer. The store must hold a row.
std::int32_t LocateSample(const OpenLog& log, std::int32_t guessIndex, std::int32_t sample);

}  // namespace tarnview
