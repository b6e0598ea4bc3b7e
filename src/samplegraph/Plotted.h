#pragma once

#include "model/OpenLog.h"
#include "samplegraph/DrawnGraph.h"
#include "samplegraph/PlotRange.h"
#include "samplegraph/Selection.h"

namespace tarnview {

/// What the parts that work on the Sample Graph share.
struct Plotted {
  const OpenLog& log;
  PlotRange& range;         ///< that is asked for
  const DrawnGraph& drawn;  ///< of the log
  Selection& selection;
};

}  // namespace tarnview
