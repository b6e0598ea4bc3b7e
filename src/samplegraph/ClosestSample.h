#pragma once

#include <cstdint>

#include "model/OpenLog.h"

namespace tarnview {

/// The store index of the sample nearest to a time (stored units of `Secs`), by a guess in
/// proportion and a walk to the first row that is not past it. The store must hold a row.
std::int32_t ClosestSampleNumberToTime(const OpenLog& log, std::int32_t lngTime);

}  // namespace tarnview
