#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/OpenLog.h"
#include "zones/ZoneGrid.h"
#include "zones/ZoneSheet.h"

namespace tarnview {

/// What the cells of a zone grid can show of a drive.
enum class GridShow { Nothing, Visits, Error, Knock };

/// Samples of one cell: those nearest to it among the four that influence each.
struct CellFacts {
  int samples = 0;
  int mixtures = 0;     ///< samples with an air/fuel ratio and a target
  double errorSum = 0;  ///< of air/fuel less target, per cent of the target
  int highestKnock = 0;

  double MeanError() const { return errorSum / mixtures; }
};

/// A drive on the map. Below so many samples a cell says nothing.
struct LogOnMap {
  static constexpr int kFewestSamples = 10;

  std::array<std::array<CellFacts, kGridColumns>, kGridRows> cells;

  /// Row 1 to 6, column 1 to 16, as the grid numbers them.
  const CellFacts& At(int row, int column) const {
    return cells[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
  }
  /// Nothing for a cell with too few samples.
  std::optional<double> Value(GridShow show, int row, int column) const;
  /// "+2.3" for an error; empty for a cell that says nothing.
  std::string Text(GridShow show, int row, int column) const;
  std::string ToolTip(int row, int column) const;
};

/// Where a sample lies on the map: 2.5 is half way from row 2 to row 3.
struct PlaceOnMap {
  double row = 1;     ///< 1 to 6
  double column = 1;  ///< 1 to 16
  friend bool operator==(const PlaceOnMap&, const PlaceOnMap&) = default;
};
PlaceOnMap PlaceOf(const OpenLog& log, int index);

/// Store indices of the first and last sample; those beyond the log are left out.
struct DrivenRange {
  int first = 0;
  int last = -1;
  friend bool operator==(const DrivenRange&, const DrivenRange&) = default;
};
/// A range of `Sample` values; one that goes beyond the log ends there.
DrivenRange RangeOfSamples(const OpenLog& log, std::int64_t from, std::int64_t to);
inline DrivenRange WholeLog(const OpenLog& log) { return {0, log.glngDataLog.Rows() - 1}; }

LogOnMap ReadLogOnMap(const OpenLog& log, DrivenRange range);

/// The next sample in a cell behind a store index, after the last one the first again; -1 for none.
int NextInCell(const OpenLog& log, DrivenRange range, int row, int column, int after);

/// Changes of the fuel zones that would bring each cell's mean error to nothing, in zone units.
struct FuelProposal {
  static constexpr int kFewestSamples = 30;
  static constexpr double kMostPerCent = 5;  ///< of a zone's value, in one step

  std::array<std::array<int, kGridColumns>, kGridRows> changes{};  ///< 0: nothing is proposed
  int At(int row, int column) const {
    return changes[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
  }
  /// How many cells are changed.
  int Cells() const;
};
/// A lean cell gets more fuel, a rich one less. Blacked-out cells get nothing.
FuelProposal Propose(const LogOnMap& drive, const ZoneSheet& sheet);
/// The sheet with all of them.
ZoneSheet WithProposal(const ZoneSheet& sheet, const FuelProposal& proposal);

}  // namespace tarnview
