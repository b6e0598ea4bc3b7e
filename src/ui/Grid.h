#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Colour.h"
#include "ui/Control.h"

namespace tarnview {

struct GridPlace {
  int row = 0;
  int column = 0;
  friend bool operator==(const GridPlace&, const GridPlace&) = default;
};

/// A block of cells, both ends in it, in order whichever way it was marked.
struct GridRange {
  int top = 0, left = 0, bottom = 0, right = 0;
  bool Contains(GridPlace at) const {
    return at.row >= top && at.row <= bottom && at.column >= left && at.column <= right;
  }
  friend bool operator==(const GridRange&, const GridRange&) = default;
};

/// A place between the cells: 2.5 lies between rows 2 and 3.
struct GridPoint {
  double row = 0;
  double column = 0;
  friend bool operator==(const GridPoint&, const GridPoint&) = default;
};

struct GridCell {
  /// A corner mark: the value was changed upwards or downwards.
  enum class Mark { None, Raised, Lowered };

  std::string text;
  Colour colour = kDesktopColour;  ///< of the text
  Colour backColour = kDesktopColour;
  Mark mark = Mark::None;
  bool locked = false;      ///< its value is not edited
  bool blackedOut = false;  ///< no value: not edited either, and painted black
  std::string toolTip;

  friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// A table of texts under and beside headings, which are row 0 and column 0; cells count from 1. A
/// cell is edited in place by a double click, F2, Enter (both with its text), Delete (empty), or by
/// typing. The keys that move and mark are those of spreadsheets.
class Grid : public Control {
 public:
  Grid(Form& owner, std::string itsName, int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex) {}

  Event<int, int> Click;     ///< a cell was clicked on, by hand
  Event<> SelectionChanged;  ///< by hand or from code
  Event<> RightClick;        ///< for a pop-up menu; a cell outside the selection was selected first
  /// Enter was pressed in a cell's field, or the field was left: row, column and what it held. The
  /// window writes what it takes of that into the cell. Unheard, the text is taken as it is.
  Event<int, int, const std::string&> Edited;

  Property<bool> ReadOnly = Shown(false, What::State);  ///< no cell is edited
  /// The current point of something else, ringed.
  Property<std::optional<GridPoint>> Ring = Shown(std::optional<GridPoint>(), What::Selection);
  /// What the small arrows beside the field of an edited cell stay within.
  int Min = 0;
  int Max = 255;

  /// Headings included; all cells are empty then, and the first one is selected.
  void SetSize(int rows, int columns);
  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  /// Rows and columns from 0, the headings; a place outside the grid throws std::out_of_range.
  const GridCell& At(int row, int column) const { return cells_.at(PlaceOf(row, column)); }
  const std::string& Text(int row, int column) const { return At(row, column).text; }
  void SetCell(int row, int column, GridCell cell);
  void SetText(int row, int column, std::string text);

  /// The current cell; (0, 0) while there is none.
  GridPlace Current() const { return current_; }
  GridRange Selection() const;
  /// Places outside the cells are drawn in.
  void Select(GridPlace cell) { SelectRange(cell, cell); }
  /// `from` becomes the current cell.
  void SelectRange(GridPlace from, GridPlace to);

  bool CanEdit(GridPlace cell) const;
  /// Opens the field on the current cell; false, and nothing, where it cannot be edited.
  bool BeginEdit(std::string text);
  bool IsEditing() const { return editing_; }
  const std::string& EditText() const { return editText_; }
  void SetEditText(std::string text);
  /// Moves the number in the field, within Min and Max.
  void StepEdit(int by);
  void CommitEdit();
  void DiscardEdit();

  // What the mouse does to a cell; a place that is no cell does nothing.
  void UserClicks(GridPlace cell);
  void UserExtends(GridPlace cell);
  void UserDoubleClicks(GridPlace cell);
  void UserRightClicks(GridPlace cell);

  std::string_view Kind() const override { return "grid"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override;

 protected:
  void Perform(const Action& action) override;
  bool TakesKey(const KeyPress& key) override;
  bool WritesKey(const KeyPress& key) override;
  void LeavesFocus() override { CommitEdit(); }

 private:
  std::size_t PlaceOf(int row, int column) const;
  bool IsCell(GridPlace cell) const;
  GridPlace DrawnIn(GridPlace cell) const;
  GridPlace CellOf(const Action& action, std::size_t firstWord) const;
  void PerformCell(const Action& action);
  bool MovesBy(const KeyPress& key);
  bool StartsEdit(const KeyPress& key);
  bool WorksField(const KeyPress& key);

  int rows_ = 0;
  int columns_ = 0;
  std::vector<GridCell> cells_;  ///< row by row
  GridPlace current_;
  GridPlace end_;  ///< the selection's other end
  bool editing_ = false;
  std::string editText_;
};

}  // namespace tarnview
