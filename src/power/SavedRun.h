#pragma once

#include <optional>
#include <string>

#include "power/PowerFile.h"
#include "power/PowerRun.h"

namespace tarnview {

/// Where a run came from, as it is told in a saved graph.
struct RunOrigin {
  std::string file;              ///< name and path of the log
  std::string plotFrom, plotTo;  ///< as typed
  std::string comments;
};

/// "1st" to "6th".
const char* GearName(int gear);

/// What is saved of a run: the curves as they stand, in their units; the speeds in mph or km/h.
/// `correctionFactor` is the factor's text.
PowerFile SavedRun(const PowerRun& run, const PowerCurves& curves, const RunOrigin& origin,
                   const std::string& correctionFactor);

/// mph or km/h of metres per second.
std::vector<SpeedPoint> SpeedsIn(std::vector<SpeedPoint> speed, bool imperial);

/// The drag of a saved graph (K, see GetSetPointDragCalcPart) by its own texts and their units, in
/// this air; nothing where it has no such texts or nothing can be reckoned with them.
std::optional<double> DragOf(const PowerFile& graph, const Air& air);

}  // namespace tarnview
