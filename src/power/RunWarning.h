#pragma once

#include <string>
#include <vector>

#include "power/PowerRun.h"

namespace tarnview {

/// What makes the curves of a run doubtful, in a few words; empty for nothing.
std::string RunWarning(const std::vector<RunSample>& samples);

}  // namespace tarnview
