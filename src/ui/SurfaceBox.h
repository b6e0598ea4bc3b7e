#pragma once

#include <cstddef>

#include "ui/SurfaceScene.h"

namespace tarnview {

/// The box that holds a surface, seen by an eye and fitted into the picture.
class SurfaceBox {
 public:
  SurfaceBox(const Surface& surface, const SceneRoom& room);

  /// A table with less than two rows or columns, or with too few values, makes no surface.
  bool IsEmpty() const { return empty_; }
  std::size_t Rows() const { return surface_.rows.size(); }
  std::size_t Columns() const { return surface_.columns.size(); }
  const Surface& Table() const { return surface_; }
  const SceneRoom& Room() const { return room_; }
  const SurfaceEye& Eye() const { return eye_; }

  /// Places in the box. Rows and columns count from 0, and stand between them, too.
  double X(double column) const;
  double Y(double row) const;
  double Z(double share) const;
  double ShareOfZ(double z) const;
  /// Of the axis, 0 to 1; a value that is no number stands on the floor.
  double ShareOf(std::size_t row, std::size_t column) const;

  ScenePoint At(double x, double y, double z) const;
  ScenePoint AtCell(std::size_t row, std::size_t column) const;

  /// The sides of the floor that are nearest to the eye.
  double NearX() const;
  double NearY() const;

 private:
  const Surface& surface_;
  const SceneRoom& room_;
  SurfaceEye eye_;
  bool empty_;
  double scale_ = 1;
  ScenePoint middle_;
};

/// Adds the texts that stand along the edges of the box.
void AddLabels(const SurfaceBox& box, std::vector<SceneLabel>& labels);

}  // namespace tarnview
