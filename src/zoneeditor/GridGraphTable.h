#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/Settings.h"
#include "ui/Grid.h"
#include "ui/Surface.h"
#include "zones/ZoneGrid.h"
#include "zones/ZoneRange.h"
#include "zones/ZoneSheet.h"

namespace tarnview {

/// The cells of a zone grid as the 3D graph takes them and gives them back: texts, row 1 first.
struct GridGraphTable {
  std::array<std::array<std::string, kGridColumns>, kGridRows> texts;
  std::array<std::array<bool, kGridColumns>, kGridRows> locked{};

  /// Row 1 to 6, column 1 to 16, as the grid numbers them. An empty text is 0, as in a table of
  /// differences.
  int Number(int row, int column) const;
  std::string& Text(int row, int column) {
    return texts[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
  }
  const std::string& Text(int row, int column) const {
    return texts[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
  }
  bool IsLocked(int row, int column) const {
    return locked[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)];
  }
};

/// A grid with its headings, 7 x 17; blacked-out cells are locked.
GridGraphTable TableOf(const Grid& grid);

/// What the 3D graph opens with.
struct GridGraphRequest {
  bool readOnly = true;
  int rotation = 0;  ///< degrees, 0 to 359
  int elevation = 0;
  GridGraphTable table;
  std::string caption;  ///< "Fuel (This Datalog)"
  ZoneRange limits;
  bool normallyAspirated = false;
  std::string kind;    ///< " Fuel Zone Graph"
  std::string source;  ///< "This Data Log"
  int grid = 0;        ///< index of the editor's grid, 0 to 5
};

/// Grids 0 to 2 show fuel, 3 to 5 ignition; of each three the first is the editor's own, then the
/// benchmark and the difference to it.
bool IsFuelGrid(int grid);
std::string GraphKind(int grid);
std::string GraphSource(int grid, const std::string& benchmark);
/// The angles that the settings keep for a grid.
struct StartingAngles {
  int rotation = 0;
  int elevation = 0;
};
StartingAngles AnglesOf(const GraphAngles& settings, int grid);

/// "34kPa 200": not the headings of the grids, and kept so on purpose.
std::string GraphRowLabel(bool normallyAspirated, int row);

/// The surface that the graph draws; its view is left at 0.
Surface SurfaceOf(const GridGraphRequest& request, const GridGraphTable& table);
/// Round numbers around the values, in at most six steps.
ChartAxis HeightAxis(const std::vector<double>& values);

/// The sheet after OK: the cells that differ from those the graph opened with take its numbers. Of
/// row 6, fuel leaves out columns 1 and 2, but ignition column 1 alone, on every chip: kept on
/// purpose.
ZoneSheet WithGraphTable(const ZoneSheet& sheet, ZoneGrid grid, const GridGraphTable& before,
                         const GridGraphTable& after);

}  // namespace tarnview
