#pragma once

#include "model/SampleStore.h"

namespace tarnview {

/// Turns the stairs of a column that its logger refreshes slowly into ramps: from each change to
/// the next one a straight line, rounded to whole stored units, not below 0. Behind the last change
/// it stays flat.
void SmoothColumn(SampleStore& store, int column, std::int32_t least = 0);

}  // namespace tarnview
