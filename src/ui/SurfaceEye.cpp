#include "ui/SurfaceEye.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnview {
namespace {

constexpr double kZoomOfANotch = 1.15;

int Wrapped(int degrees) { return (degrees % 360 + 360) % 360; }

/// The elevation as a place on the half circle over the map, 0 to 180.
int OverTheMap(int elevation) {
  const int degrees = Wrapped(elevation);
  if (degrees <= 180) return degrees;
  return 360 - degrees;
}

bool IsBehind(int elevation) { return OverTheMap(elevation) > 90; }

/// Above the floor, 0 to 90.
int TiltOf(int elevation) {
  const int over = OverTheMap(elevation);
  if (over > 90) return 180 - over;
  return over;
}

double Radians(int degrees) { return degrees * std::numbers::pi / 180; }

}  // namespace

SurfaceEye::SurfaceEye(const SurfaceView& view) {
  const int spin = Wrapped(view.rotation + (IsBehind(view.elevation) ? 180 : 0));
  const int tilt = TiltOf(view.elevation);
  sinSpin_ = std::sin(Radians(spin));
  cosSpin_ = std::cos(Radians(spin));
  sinTilt_ = std::sin(Radians(tilt));
  cosTilt_ = std::cos(Radians(tilt));
}

SurfaceView Turned(const SurfaceView& view, double right, double up) {
  SurfaceView turned = view;
  turned.rotation =
      Wrapped(view.rotation + static_cast<int>(std::lround(std::remainder(right, 360.0))));
  const int elevation = Wrapped(view.elevation);
  const bool behind = IsBehind(elevation), beyond = elevation > 180;
  // Straight above, a view from behind would be one from the front.
  const int highest = behind ? 89 : 90;
  const int change = static_cast<int>(std::lround(std::clamp(up, -90.0, 90.0)));
  const int tilt = std::clamp(TiltOf(elevation) - change, 0, highest);
  int level = 0;
  if (beyond) level = 360;
  if (behind) level = 180;
  const bool climbs = behind == beyond;
  turned.elevation = Wrapped(climbs ? level + tilt : level - tilt);
  return turned;
}

SurfaceView Zoomed(const SurfaceView& view, double notches) {
  SurfaceView zoomed = view;
  zoomed.zoom = std::clamp(view.zoom * std::pow(kZoomOfANotch, notches), kLeastZoom, kMostZoom);
  return zoomed;
}

}  // namespace tarnview
