#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/SurfaceEye.h"

namespace tarnview {

/// What is painted of a surface, in the units of the picture, from its upper left corner.
struct SceneFace {
  enum class Kind { Ground, Locked, Skirt };
  std::array<ScenePoint, 4> corners;
  int count = 3;  ///< corners that count
  Kind kind = Kind::Ground;
  double height = 0;  ///< 0 to 1 of the axis
  double light = 1;   ///< 0 to 1
  int row = 0;        ///< of the nearest cell of the table, from 1
  int column = 0;
  std::array<bool, 4> lined{};  ///< a line of the mesh runs from this corner to the next
};

struct SceneLine {
  ScenePoint from, to;
  bool edge = false;  ///< of the box; else a line of its grid
};

struct SceneLabel {
  std::string text;
  ScenePoint centre;
};

/// The selected cell: a ring, and a line down to the floor.
struct SceneMark {
  ScenePoint at, floor;
};

struct SurfaceScene {
  std::vector<SceneLine> walls;    ///< behind all else
  std::vector<SceneFace> faces;    ///< each is painted over those before it
  std::vector<SceneLabel> labels;  ///< none covers another
  std::vector<ScenePoint> cells;   ///< of the table, row by row
};

/// Where the picture is painted, and how much room its texts take.
struct SceneRoom {
  double width = 0;
  double height = 0;
  double top = 0;   ///< taken by the titles
  double line = 0;  ///< height of a line of text
  std::function<double(const std::string&)> widthOf;
};

/// Nothing but an empty scene for a table with less than two rows or columns.
SurfaceScene MakeScene(const Surface& surface, const SceneRoom& room);

/// The mark of a cell, row and column from 1; none for a cell that is not there.
std::optional<SceneMark> MarkOf(const Surface& surface, const SceneRoom& room, int row, int column);

/// The cell at a place of the picture, as row and column from 1: that of the face in front there,
/// else one that is near.
std::optional<std::pair<int, int>> CellAt(const SurfaceScene& scene, int columns, ScenePoint place,
                                          double reach);

}  // namespace tarnview
