#pragma once

#include <functional>
#include <string_view>

#include "model/Settings.h"
#include "zones/MapFile.h"

namespace tarnview {

/// The zone settings at the start of an FM Link log, as a benchmark takes them, and the chip of its
/// settings line. Cells are read by position; a zone that is not known is 0. `lineRead` is told the
/// length of each line with its end. Any bytes are a log or none; never throws.
MapReading ReadBenchmarkLog(std::string_view bytes, const Settings& settings,
                            const std::function<void(long)>& lineRead);

}  // namespace tarnview
