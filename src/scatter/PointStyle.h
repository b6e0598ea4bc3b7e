#pragma once

#include <cstdint>

#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Picture.h"

namespace tarnview {

/// How the points of a scatter graph look, with the numbers that presets keep.
struct PointStyle {
  std::int32_t lngPointShape = 0;   ///< 0 to 9
  std::int32_t lngPointSize = 1;    ///< 1 to 10
  std::int32_t lngPointColour = 0;  ///< 0xBBGGRR
};

/// The controls of a window in which a point style is chosen.
class PointStyleControls {
 public:
  struct Controls {
    ComboBox& cboPointShape;
    ComboBox&
        cboPointSize;  ///< editable; a size outside the list becomes "1" when the caret leaves
    Picture& picColour;
    CommandButton& cmdColourSelector;
  };
  /// Fills the lists and binds the events. The first entries are chosen.
  explicit PointStyleControls(const Controls& controls);

  PointStyle Style() const;
  /// Values outside the limits are brought into them.
  void Show(const PointStyle& style);

 private:
  void cmdColourSelector_Click();

  Controls controls_;
};

}  // namespace tarnview
