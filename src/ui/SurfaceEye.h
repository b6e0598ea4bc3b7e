#pragma once

#include "ui/Surface.h"

namespace tarnview {

/// A place on the picture: to the right and downwards.
struct ScenePoint {
  double x = 0;
  double y = 0;
};

/// How a place in space is seen along parallel rays: x to the right, y to the back, z up while
/// nothing is turned.
class SurfaceEye {
 public:
  explicit SurfaceEye(const SurfaceView& view);

  double Right(double x, double y) const { return x * cosSpin_ - y * sinSpin_; }
  double Up(double x, double y, double z) const { return z * cosTilt_ + Back(x, y) * sinTilt_; }
  /// How far behind the middle a place of the floor stands; below 0 it is nearer than the middle.
  double Back(double x, double y) const { return x * sinSpin_ + y * cosSpin_; }
  /// How high above the floor the eye stands.
  double SinTilt() const { return sinTilt_; }
  double CosTilt() const { return cosTilt_; }

 private:
  double sinSpin_, cosSpin_, sinTilt_, cosTilt_;
};

/// The view after the surface was drawn by so many degrees to the right and up. It stops where the
/// eye is straight above and where it is on the floor, so that a hand never turns it over.
SurfaceView Turned(const SurfaceView& view, double right, double up);

/// The view after so many notches of a wheel: above 0, nearer.
SurfaceView Zoomed(const SurfaceView& view, double notches);

}  // namespace tarnview
