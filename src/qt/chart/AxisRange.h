#pragma once

#include <qcustomplot.h>

#include "ui/ChartAxis.h"

namespace tarnview {

/// The range of an axis; an empty one is 1 wide.
inline QCPRange RangeOf(const ChartAxis& axis) {
  if (axis.max > axis.min) return {axis.min, axis.max};
  return {axis.min, axis.min + 1};
}

}  // namespace tarnview
