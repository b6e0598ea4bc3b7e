#include "desk/Placement.h"

namespace tarnview {

void ApplyPlacement(const std::optional<clsWindowConfig>& config, Form& window) {
  if (!config) return;
  window.Left = config->lngLeft;
  window.Top = config->lngTop;
  window.Width = config->lngWidth;
  window.Height = config->lngHeight;
  window.WindowState = config->lngWindowState;
}

std::optional<clsWindowConfig> PlacementOf(const Form& window) {
  if (window.Width <= 0) return std::nullopt;
  clsWindowConfig config;
  config.lngLeft = window.Left;
  config.lngTop = window.Top;
  config.lngWidth = window.Width;
  config.lngHeight = window.Height;
  if (window.WindowState == clsWindowConfig::kMaximized)
    config.lngWindowState = clsWindowConfig::kMaximized;
  else
    config.lngWindowState = 0;
  return config;
}

}  // namespace tarnview
