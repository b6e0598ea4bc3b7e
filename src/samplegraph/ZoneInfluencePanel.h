#pragma once

#include "model/OpenLog.h"
#include "samplegraph/Selection.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/MenuItem.h"
#include "ui/Picture.h"

namespace tarnview {

/// The panel that names the four zones around the highlighted sample and shows where the sample
/// lies among them.
class ZoneInfluencePanel {
 public:
  struct Controls {
    Frame& fraZoneInfl;
    /// The lower row at the lower and the higher RPM, above the picture; then the upper row, below
    /// it, as in the grid.
    ControlArray<Label>& lblZoneInfl;
    Picture& picZoneInfl;
    MenuItem& mnuViewZoneInfl;
    CommandButton& cmdDrawGraph;
  };
  ZoneInfluencePanel(const Controls& controls, const Selection& selection, const OpenLog& log);

  /// Whether the panel is on show; for other than Link logs it never is.
  bool gblnDisplayZoneInfluence = false;

  void DisplayZoneInfluence();
  void ClearZoneInfluence();
  /// Shows the highlighted sample again.
  void RefreshZoneInfluence();
  /// Shows the sample of a store index, while the panel is on show.
  void ShowSample(std::int32_t index);

 private:
  void PopulateZoneInfl(std::int32_t lngRPM, std::int32_t lngMAPRaw);

  Controls controls_;
  const Selection& selection_;
  const OpenLog& log_;
};

}  // namespace tarnview
