#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/IniFile.h"
#include "ui/Form.h"

namespace tarnview {

/// Where a window stood when it was closed, in twips: 15 to a pixel of a screen with 96 to the inch.
class clsWindowConfig {
 public:
  std::int32_t lngHeight = 0;
  std::int32_t lngWidth = 0;
  std::int32_t lngLeft = 0;
  std::int32_t lngTop = 0;
  std::int32_t lngWindowState = 0;  ///< 0 normal, 1 minimized, 2 maximized

  /// `prefix` is in front of the names of the keys: "Scatter Graph ", empty for the main window.
  void WriteIniFileEntry(IniWriter& file, const std::string& prefix) const;

  friend bool operator==(const clsWindowConfig&, const clsWindowConfig&) = default;
};

/// The keys of one window's placement, and the least size that it is read with.
struct WindowKeys {
  const char* prefix;
  std::int32_t leastWidth, leastHeight;
};

/// Puts a window where its placement says; without one it keeps its design size.
void ApplyPlacement(const std::optional<clsWindowConfig>& config, Form& window);
/// Where a window stands; nothing for one that no toolkit has placed. A minimized one counts as normal, so that it can
/// be seen next time.
std::optional<clsWindowConfig> PlacementOf(const Form& window);

/// Nothing for a window without a state: it keeps its design size.
std::optional<clsWindowConfig> ReadWindowConfig(const IniTable& table, const std::string& section,
                                                const WindowKeys& keys);

}  // namespace tarnview
