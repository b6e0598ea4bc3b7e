#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/IniFile.h"

namespace tarnview {

/// Where a window stood when it was closed, in twips: 15 to a pixel of a screen with 96 to the
/// inch.
class clsWindowConfig {
 public:
  std::int32_t lngHeight = 0;
  std::int32_t lngWidth = 0;
  std::int32_t lngLeft = 0;
  std::int32_t lngTop = 0;
  std::int32_t lngWindowState = 0;  ///< 0 normal, 1 minimized, 2 maximized

  static constexpr int kMaximized = 2;

  /// `prefix` is in front of the names of the keys: "Scatter Graph ", empty for the main window.
  void WriteIniFileEntry(IniWriter& file, const std::string& prefix) const;

  friend bool operator==(const clsWindowConfig&, const clsWindowConfig&) = default;
};

/// The keys of one window's placement, and the least size that it is read with.
struct WindowKeys {
  const char* prefix;
  std::int32_t leastWidth, leastHeight;
};

/// Nothing for a window without a state: it keeps its design size.
std::optional<clsWindowConfig> ReadWindowConfig(const IniTable& table, const std::string& section,
                                                const WindowKeys& keys);

}  // namespace tarnview
