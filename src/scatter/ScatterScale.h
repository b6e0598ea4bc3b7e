#pragma once

#include <string>
#include <vector>

#include "ui/ChartDescription.h"

namespace tarnview {

/// An axis for these values: limits on round steps of 1, 2 or 5 that hold them all, not drawn down
/// to zero; equal values stand in the middle of it. Values that are no number, or from 1e300 on, do
/// not count.
ChartAxis AutomaticAxis(const std::vector<double>& values, std::string title);

}  // namespace tarnview
