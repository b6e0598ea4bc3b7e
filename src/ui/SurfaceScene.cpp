#include "ui/SurfaceScene.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "ui/SurfaceBox.h"

namespace tarnview {
namespace {

struct Place {
  double x = 0, y = 0, z = 0;
};

/// How bright a face is that looks away from the light, of 1.
constexpr double kDarkest = 0.62;

/// The light comes from over the eye's left shoulder, so that it moves with who looks.
double LightOn(const SurfaceEye& eye, const Place& a, const Place& b, const Place& c) {
  const auto seen = [&](const Place& from, const Place& to) {
    const double x = to.x - from.x, y = to.y - from.y;
    return Place{eye.Right(x, y), eye.Back(x, y), to.z - from.z};
  };
  const Place u = seen(a, b), v = seen(a, c);
  const Place normal{u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
  const double length = std::sqrt(normal.x * normal.x + normal.y * normal.y + normal.z * normal.z);
  if (length == 0) return 1;
  // Unit vector: left, forward to the eye, up.
  constexpr Place kLight{-0.36, -0.48, 0.8};
  const double sign = normal.z < 0 ? -1 : 1;
  const double facing =
      sign * (normal.x * kLight.x + normal.y * kLight.y + normal.z * kLight.z) / length;
  return kDarkest + (1 - kDarkest) * std::max(facing, 0.0);
}

/// Numbers from 0 to count - 1, farthest first.
std::vector<std::size_t> Order(std::size_t count, bool lastIsFarthest) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  if (lastIsFarthest) std::reverse(order.begin(), order.end());
  return order;
}

class Painter {
 public:
  Painter(const SurfaceBox& box, SurfaceScene& scene) : box_(box), scene_(scene) {}

  void AddWalls();
  void AddGround();
  void AddSkirts();

 private:
  void AddLine(const Place& from, const Place& to, bool edge) {
    scene_.walls.push_back({box_.At(from.x, from.y, from.z), box_.At(to.x, to.y, to.z), edge});
  }
  void AddEdges();
  // Row 0 stands at the back of a box that is not turned.
  bool LastRowIsFarthest() const { return box_.Eye().Back(0, 1) < 0; }
  bool LastColumnIsFarthest() const { return box_.Eye().Back(1, 0) > 0; }
  void AddCell(std::size_t row, std::size_t column);
  void AddQuarter(std::size_t row, std::size_t column, std::size_t down, std::size_t across);
  Place Inside(std::size_t row, std::size_t column, double down, double across) const;
  void AddSkirt(std::size_t row, std::size_t column, std::size_t nextRow, std::size_t nextColumn,
                double light);
  void AddHalfSkirt(const Place& a, const Place& b, std::size_t row, std::size_t column,
                    double light);
  Place Corner(std::size_t row, std::size_t column) const {
    return {box_.X(static_cast<double>(column)), box_.Y(static_cast<double>(row)),
            box_.Z(box_.ShareOf(row, column))};
  }

  const SurfaceBox& box_;
  SurfaceScene& scene_;
};

void Painter::AddWalls() {
  const double farX = -box_.NearX(), farY = -box_.NearY(), floor = box_.Z(0), roof = box_.Z(1);
  for (std::size_t column = 0; column < box_.Columns(); ++column) {
    const double x = box_.X(static_cast<double>(column));
    AddLine({x, box_.NearY(), floor}, {x, farY, floor}, false);
    AddLine({x, farY, floor}, {x, farY, roof}, false);
  }
  for (std::size_t row = 0; row < box_.Rows(); ++row) {
    const double y = box_.Y(static_cast<double>(row));
    AddLine({box_.NearX(), y, floor}, {farX, y, floor}, false);
    AddLine({farX, y, floor}, {farX, y, roof}, false);
  }
  const int divisions = std::max(box_.Table().height.divisions, 1);
  for (int i = 1; i <= divisions; ++i) {
    const double z = box_.Z(static_cast<double>(i) / divisions);
    AddLine({box_.NearX(), farY, z}, {farX, farY, z}, false);
    AddLine({farX, box_.NearY(), z}, {farX, farY, z}, false);
  }
  AddEdges();
}

/// Those that bear numbers, and the corner at the back.
void Painter::AddEdges() {
  const double nearX = box_.NearX(), nearY = box_.NearY(), floor = box_.Z(0), roof = box_.Z(1);
  AddLine({nearX, nearY, floor}, {-nearX, nearY, floor}, true);
  AddLine({nearX, nearY, floor}, {nearX, -nearY, floor}, true);
  for (const Place& at :
       {Place{nearX, -nearY, 0}, Place{-nearX, nearY, 0}, Place{-nearX, -nearY, 0}})
    AddLine({at.x, at.y, floor}, {at.x, at.y, roof}, true);
}

void Painter::AddGround() {
  for (std::size_t row : Order(box_.Rows() - 1, LastRowIsFarthest()))
    for (std::size_t column : Order(box_.Columns() - 1, LastColumnIsFarthest()))
      AddCell(row, column);
}

/// Four quarters, so that colours change softly, and since four cells of the table need not lie in
/// one plane.
void Painter::AddCell(std::size_t row, std::size_t column) {
  for (std::size_t down : Order(2, LastRowIsFarthest()))
    for (std::size_t across : Order(2, LastColumnIsFarthest()))
      AddQuarter(row, column, down, across);
}

void Painter::AddQuarter(std::size_t row, std::size_t column, std::size_t down,
                         std::size_t across) {
  const std::size_t cellRow = row + down, cellColumn = column + across;
  const double top = static_cast<double>(down) / 2, left = static_cast<double>(across) / 2;
  const std::array<Place, 4> corners{
      Inside(row, column, top, left), Inside(row, column, top, left + 0.5),
      Inside(row, column, top + 0.5, left + 0.5), Inside(row, column, top + 0.5, left)};
  SceneFace face;
  double height = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    face.corners[i] = box_.At(corners[i].x, corners[i].y, corners[i].z);
    height += corners[i].z / 4;
  }
  if (box_.Table().IsLocked(cellRow, cellColumn))
    face.kind = SceneFace::Kind::Locked;
  else
    face.kind = SceneFace::Kind::Ground;
  face.height = box_.ShareOfZ(height);
  face.light = LightOn(box_.Eye(), corners[0], corners[1], corners[2]);
  face.row = static_cast<int>(cellRow) + 1;
  face.column = static_cast<int>(cellColumn) + 1;
  face.lined = {down == 0, across == 1, down == 1, across == 0};
  scene_.faces.push_back(face);
}

/// A place between four cells, as shares of the way from the first to the next row and column.
Place Painter::Inside(std::size_t row, std::size_t column, double down, double across) const {
  const auto z = [&](std::size_t r, std::size_t c) { return box_.Z(box_.ShareOf(r, c)); };
  const double upper = std::lerp(z(row, column), z(row, column + 1), across);
  const double lower = std::lerp(z(row + 1, column), z(row + 1, column + 1), across);
  return {box_.X(static_cast<double>(column) + across), box_.Y(static_cast<double>(row) + down),
          std::lerp(upper, lower, down)};
}

/// From one cell of the table to the next, in two halves.
void Painter::AddSkirt(std::size_t row, std::size_t column, std::size_t nextRow,
                       std::size_t nextColumn, double light) {
  const Place a = Corner(row, column), b = Corner(nextRow, nextColumn);
  const Place middle{(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2};
  AddHalfSkirt(a, middle, row, column, light);
  AddHalfSkirt(middle, b, nextRow, nextColumn, light);
}

void Painter::AddHalfSkirt(const Place& a, const Place& b, std::size_t row, std::size_t column,
                           double light) {
  const double floor = box_.Z(0);
  SceneFace face;
  face.kind = SceneFace::Kind::Skirt;
  face.corners = {box_.At(a.x, a.y, a.z), box_.At(b.x, b.y, b.z), box_.At(b.x, b.y, floor),
                  box_.At(a.x, a.y, floor)};
  face.light = light;
  face.row = static_cast<int>(row) + 1;
  face.column = static_cast<int>(column) + 1;
  face.lined[0] = true;
  scene_.faces.push_back(face);
}

/// The cut sides of the ground that look to the eye, as a model in a museum has them: nobody sees
/// it from below.
void Painter::AddSkirts() {
  constexpr double kFront = 1, kSide = 0.8;
  const std::size_t lastRow = box_.Rows() - 1, lastColumn = box_.Columns() - 1;
  const std::size_t row = box_.NearY() < 0 ? lastRow : 0,
                    column = box_.NearX() > 0 ? lastColumn : 0;
  for (std::size_t i = 0; i < lastColumn; ++i) AddSkirt(row, i, row, i + 1, kFront);
  for (std::size_t i = 0; i < lastRow; ++i) AddSkirt(i, column, i + 1, column, kSide);
}

bool Contains(const SceneFace& face, ScenePoint at) {
  bool inside = false;
  for (std::size_t i = 0; i < face.corners.size(); ++i) {
    const ScenePoint &a = face.corners[i], &b = face.corners[(i + 1) % face.corners.size()];
    if ((a.y > at.y) == (b.y > at.y)) continue;
    if (at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x) inside = !inside;
  }
  return inside;
}

}  // namespace

SurfaceScene MakeScene(const Surface& surface, const SceneRoom& room) {
  SurfaceScene scene;
  const SurfaceBox box(surface, room);
  if (box.IsEmpty()) return scene;
  Painter painter(box, scene);
  painter.AddWalls();
  painter.AddGround();
  painter.AddSkirts();
  AddLabels(box, scene.labels);
  for (std::size_t row = 0; row < box.Rows(); ++row)
    for (std::size_t column = 0; column < box.Columns(); ++column)
      scene.cells.push_back(box.AtCell(row, column));
  return scene;
}

std::optional<SceneMark> MarkOf(const Surface& surface, const SceneRoom& room, int row,
                                int column) {
  const SurfaceBox box(surface, room);
  if (box.IsEmpty() || row < 1 || column < 1) return std::nullopt;
  const auto r = static_cast<std::size_t>(row - 1), c = static_cast<std::size_t>(column - 1);
  if (r >= box.Rows() || c >= box.Columns()) return std::nullopt;
  return SceneMark{box.AtCell(r, c),
                   box.At(box.X(static_cast<double>(c)), box.Y(static_cast<double>(r)), box.Z(0))};
}

std::optional<std::pair<int, int>> CellAt(const SurfaceScene& scene, int columns, ScenePoint place,
                                          double reach) {
  // The last face that holds the place is in front.
  const auto face = std::find_if(scene.faces.rbegin(), scene.faces.rend(),
                                 [&](const SceneFace& one) { return Contains(one, place); });
  if (face != scene.faces.rend()) return std::pair{face->row, face->column};
  std::optional<std::pair<int, int>> nearest;
  for (std::size_t cell = 0; cell < scene.cells.size(); ++cell) {
    const double far = std::hypot(scene.cells[cell].x - place.x, scene.cells[cell].y - place.y);
    if (far >= reach) continue;
    reach = far;
    const int number = static_cast<int>(cell);
    nearest = std::pair{number / columns + 1, number % columns + 1};
  }
  return nearest;
}

}  // namespace tarnview
