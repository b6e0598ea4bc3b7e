#include "qt/chart/PlacedPoints.h"

#include <algorithm>

namespace tarnview {
namespace {

/// Beyond so many cells (a screen has 4 to 9 million pixels), several pixels share one: memory
/// stays below 150 MB.
constexpr std::size_t kMostCells = std::size_t{1} << 25;

/// The pixels of a grid, numbered row by row.
class Cells {
 public:
  explicit Cells(const PixelGrid& grid) : grid_(grid) {
    while (Number() > kMostCells) ++side_;
  }

  int Side() const { return side_; }
  int Columns() const { return std::max(grid_.inside.width(), 0) / side_ + 1; }
  int Rows() const { return std::max(grid_.inside.height(), 0) / side_ + 1; }
  std::size_t Number() const {
    return static_cast<std::size_t>(Columns()) * static_cast<std::size_t>(Rows());
  }
  int ColumnOf(int x) const { return (x - grid_.inside.left()) / side_; }
  int RowOf(int y) const { return (y - grid_.inside.top()) / side_; }

  /// Calls `use(point, x, y)` for each point within. Values that are no numbers lie nowhere.
  template <class Use>
  void ForEach(const PointCloud& cloud, Use use) const {
    const QRect& inside = grid_.inside;
    const std::size_t count = std::min(cloud.x.size(), cloud.y.size());
    for (std::size_t i = 0; i < count; ++i) {
      const double x = grid_.x.PixelOf(cloud.x[i]), y = grid_.y.PixelOf(cloud.y[i]);
      if (x >= inside.left() && x <= inside.right() && y >= inside.top() && y <= inside.bottom())
        use(static_cast<int>(i), static_cast<int>(x), static_cast<int>(y));
    }
  }

 private:
  const PixelGrid& grid_;
  int side_ = 1;
};

}  // namespace

std::vector<PlacedPoint> PlacePoints(const PointCloud& cloud, const PixelGrid& grid) {
  const Cells cells(grid);
  const auto columns = static_cast<std::size_t>(cells.Columns());
  const auto cellOf = [&](int x, int y) {
    return static_cast<std::size_t>(cells.RowOf(y)) * columns +
           static_cast<std::size_t>(cells.ColumnOf(x));
  };
  std::vector<int> last(cells.Number(), -1);
  cells.ForEach(cloud, [&](int point, int x, int y) { last[cellOf(x, y)] = point; });
  std::vector<PlacedPoint> placed;
  cells.ForEach(cloud, [&](int point, int x, int y) {
    if (last[cellOf(x, y)] == point) placed.push_back({x, y, point});
  });
  return placed;
}

std::vector<int> CountAround(const PointCloud& cloud, const PixelGrid& grid,
                             const std::vector<PlacedPoint>& placed, int reach) {
  const Cells cells(grid);
  const int columns = cells.Columns(), rows = cells.Rows();
  // Sums over all cells above and left (Crow, 1984), so that a box costs four look-ups whatever its
  // size.
  const auto width = static_cast<std::size_t>(columns) + 1;
  std::vector<int> sums(width * (static_cast<std::size_t>(rows) + 1));
  const auto at = [&](int column, int row) -> int& {
    return sums[static_cast<std::size_t>(row) * width + static_cast<std::size_t>(column)];
  };
  cells.ForEach(cloud, [&](int, int x, int y) { ++at(cells.ColumnOf(x) + 1, cells.RowOf(y) + 1); });
  for (int row = 1; row <= rows; ++row)
    for (int column = 1; column <= columns; ++column)
      at(column, row) += at(column - 1, row) + at(column, row - 1) - at(column - 1, row - 1);

  const int around = (reach + cells.Side() - 1) / cells.Side();
  std::vector<int> counts;
  counts.reserve(placed.size());
  for (const PlacedPoint& one : placed) {
    const int column = cells.ColumnOf(one.x), row = cells.RowOf(one.y);
    const int left = std::max(column - around, 0), right = std::min(column + around + 1, columns);
    const int top = std::max(row - around, 0), bottom = std::min(row + around + 1, rows);
    counts.push_back(at(right, bottom) - at(left, bottom) - at(right, top) + at(left, top));
  }
  return counts;
}

}  // namespace tarnview
