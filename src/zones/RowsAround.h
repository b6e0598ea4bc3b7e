#pragma once

#include <cstdint>

namespace tarnview {

/// The rows of a zone grid below and above a sample's MAP, and where it lies between them.
struct RowsAround {
  std::int64_t lower = 1;
  std::int64_t upper = 2;
  double up = 0;  ///< from the lower row (0) to the upper (1); may lie just outside
};

/// `sixRows`: the map has six rows (normally aspirated), else rows of 40 kPa.
RowsAround RowsAroundMAP(double kPa, bool sixRows);

}  // namespace tarnview
