#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/ControlArray.h"
#include "ui/Grid.h"
#include "zoneeditor/GridCells.h"
#include "zoneeditor/SheetKeeper.h"
#include "zoneeditor/ZoneComparison.h"

namespace tarnview {

/// The nine grids of the editor: what they show, and what is done to a selection of their cells.
class ZoneGrids {
 public:
  /// What the grids ask of their window.
  struct Window {
    /// The row "Conv" of the air/fuel targets: six texts.
    virtual std::vector<std::string> ConvertedTargets() const = 0;
    /// Whether the first boost target is to stand in all cells.
    virtual bool CopyFirstToAll() = 0;

   protected:
    ~Window() = default;
  };
  ZoneGrids(Form& form, SheetKeeper& keeper, const ZoneComparison& comparison, Window& window);

  ControlArray<Grid> grdData;

  void LayOut(bool readOnly);
  void Show();
  /// Cells of the two zone grids in colours from low to high.
  void ShowHeat(bool heat);

  // On the selection of a grid; each is one step.

  void ApplyOffset(SheetGrid grid, int offset);
  void CopyToDatalog(SheetGrid benchmark, const std::string& name);
  void ApplyDifference(SheetGrid difference);
  void Interpolate(SheetGrid grid);
  void Smooth(SheetGrid grid);
  void ResetToOpened(SheetGrid grid);
  /// A text that cannot be pasted changes nothing, and the user is told.
  void Paste(SheetGrid grid, const std::string& text);

  Grid& At(SheetGrid grid) { return grdData(static_cast<int>(grid)); }
  const Grid& At(SheetGrid grid) const { return grdData(static_cast<int>(grid)); }
  /// The grid that has the focus.
  std::optional<SheetGrid> Focused(const Control* active) const;
  /// The same where it can be edited.
  std::optional<SheetGrid> Editable(const Control* active) const;

 private:
  GridCell CellFor(SheetGrid grid, int row, int column) const;
  GridCell ValueCell(SheetGrid grid, int zone) const;
  GridCell ComparedCell(SheetGrid grid, int zone) const;
  void ShowGrid(SheetGrid grid);
  void CellEdited(SheetGrid grid, int row, int column, const std::string& text);
  std::vector<int> Selected(SheetGrid grid) const;

  SheetKeeper& keeper_;
  const ZoneComparison& comparison_;
  Window& window_;
  std::vector<std::string> converted_;
  bool heat_ = false;
};

}  // namespace tarnview
