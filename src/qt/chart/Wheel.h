#pragma once

#include <QWheelEvent>

namespace tarnview {

/// How far a wheel was turned, away from the hand; a touchpad tells parts of a notch.
inline double Notches(const QWheelEvent& event) {
  return event.angleDelta().y() / static_cast<double>(QWheelEvent::DefaultDeltasPerStep);
}

}  // namespace tarnview
