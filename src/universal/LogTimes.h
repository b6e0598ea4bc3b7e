#pragma once

#include <span>
#include <vector>

#include "universal/TimeBase.h"

namespace tarnview {

/// The times of a log's lines, in seconds from its first, out of what stands in its clock (seconds
/// of whatever origin; not a number where a line has none). They never fall. A clock that passes
/// midnight goes on; a logger that starts anew goes on from where it was; stamps that repeat are
/// spread over their span.
std::vector<double> TimesOfLines(std::span<const double> stamps, TimeForm form);

}  // namespace tarnview
