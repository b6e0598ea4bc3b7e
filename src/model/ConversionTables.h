#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// A sensor's table: raw input to output, sorted by input, ascending or descending. At least one
/// row once loaded.
using ConversionTable = std::vector<std::pair<std::int32_t, std::int32_t>>;

/// The O2 and Aux tables in use. Outputs are thousandths of the value shown.
struct ConversionTables {
  ConversionTable O2;
  ConversionTable Aux;
  bool reloadO2 = true;  ///< the file was changed; LoadO2ConvFile reads it and clears the flag
  bool reloadAux = true;
};

const ConversionTable& DefaultO2Table();   ///< 25 rows, narrow band sensor to air/fuel ratio
const ConversionTable& DefaultAuxTable();  ///< 33 rows, in steps of 156
/// 29 outputs for the inputs 60 to 88; an input outside them takes the end's.
std::int32_t OxygenTableOutput(std::int32_t input);

/// The rows of a conversion file's text; empty where its first line is no known heading.
ConversionTable ParseConversionTable(std::string_view text);

/// The output for a value; a value outside the table takes the end row's, one between two rows is
/// interpolated (rounded half to even) or, without `interpolate`, takes the output that is nearer
/// to the value itself. `reverse` swaps the columns.
std::int32_t TableLookup(std::int32_t value, const ConversionTable& table, bool interpolate,
                         bool reverse);

/// Whichever of a and b is nearer the target; a on a tie.
std::int32_t ReturnClosest(std::int32_t target, std::int32_t a, std::int32_t b);

/// An air/fuel value's nearest input of the O2 table.
std::int32_t MatchAFToO2Limitations(std::int32_t value, const ConversionTable& O2);

/// y at x on the line through (x1, y1) and (x2, y2); y1 unless x2 exceeds x1. `clamp` stops at y2.
double LinearInterpolate(double x1, double x2, double x, double y1, double y2, bool clamp);

}  // namespace tarnview
