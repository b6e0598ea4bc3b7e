#include "ui/Grid.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <stdexcept>

namespace tarnview {
namespace {

const char* NameOf(GridCell::Mark mark) {
  switch (mark) {
    case GridCell::Mark::Raised:
      return "raised";
    case GridCell::Mark::Lowered:
      return "lowered";
    case GridCell::Mark::None:
      break;
  }
  return "";
}

/// What a cell shows beside its text; empty for an ordinary one.
Object DescribeBeside(const GridCell& cell) {
  Object facts;
  if (cell.colour != kDesktopColour) facts.emplace_back("colour", cell.colour);
  if (cell.backColour != kDesktopColour) facts.emplace_back("back_colour", cell.backColour);
  if (cell.mark != GridCell::Mark::None) facts.emplace_back("mark", NameOf(cell.mark));
  if (cell.locked) facts.emplace_back("locked", true);
  if (cell.blackedOut) facts.emplace_back("blacked_out", true);
  if (!cell.toolTip.empty()) facts.emplace_back("tool_tip", cell.toolTip);
  return facts;
}

}  // namespace

std::size_t Grid::PlaceOf(int row, int column) const {
  if (row < 0 || column < 0 || row >= rows_ || column >= columns_)
    throw std::out_of_range(FullName() + ": no such cell");
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
         static_cast<std::size_t>(column);
}

bool Grid::IsCell(GridPlace cell) const {
  return cell.row >= 1 && cell.row < rows_ && cell.column >= 1 && cell.column < columns_;
}

GridPlace Grid::DrawnIn(GridPlace cell) const {
  if (rows_ < 2 || columns_ < 2) return {};
  return {std::clamp(cell.row, 1, rows_ - 1), std::clamp(cell.column, 1, columns_ - 1)};
}

void Grid::SetSize(int rows, int columns) {
  DiscardEdit();
  rows_ = std::max(rows, 0);
  columns_ = std::max(columns, 0);
  cells_.assign(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_), {});
  current_ = end_ = DrawnIn({1, 1});
  Changed(What::Content);
}

void Grid::SetCell(int row, int column, GridCell cell) {
  GridCell& old = cells_.at(PlaceOf(row, column));
  if (old == cell) return;
  old = std::move(cell);
  Changed(What::Content);
}

void Grid::SetText(int row, int column, std::string text) {
  GridCell& cell = cells_.at(PlaceOf(row, column));
  if (cell.text == text) return;
  cell.text = std::move(text);
  Changed(What::Content);
}

GridRange Grid::Selection() const {
  const auto [top, bottom] = std::minmax(current_.row, end_.row);
  const auto [left, right] = std::minmax(current_.column, end_.column);
  return {top, left, bottom, right};
}

void Grid::SelectRange(GridPlace from, GridPlace to) {
  CommitEdit();
  from = DrawnIn(from);
  to = DrawnIn(to);
  if (from == current_ && to == end_) return;
  current_ = from;
  end_ = to;
  Changed(What::Selection);
  SelectionChanged();
}

bool Grid::CanEdit(GridPlace cell) const {
  if (ReadOnly || !Enabled || !IsCell(cell)) return false;
  const GridCell& it = At(cell.row, cell.column);
  return !it.locked && !it.blackedOut;
}

bool Grid::BeginEdit(std::string text) {
  CommitEdit();
  if (!CanEdit(current_)) return false;
  Select(current_);
  editing_ = true;
  editText_ = std::move(text);
  Changed(What::Selection);
  return true;
}

void Grid::SetEditText(std::string text) {
  if (!editing_ || text == editText_) return;
  editText_ = std::move(text);
  Changed(What::Selection);
}

void Grid::StepEdit(int by) {
  int number = 0;
  std::from_chars(editText_.data(), editText_.data() + editText_.size(), number);
  SetEditText(std::to_string(std::clamp(std::clamp(number, Min, Max) + by, Min, Max)));
}

void Grid::CommitEdit() {
  if (!editing_) return;
  const std::string text = editText_;
  DiscardEdit();
  if (Edited.Heard())
    Edited(current_.row, current_.column, text);
  else
    SetText(current_.row, current_.column, text);
}

void Grid::DiscardEdit() {
  if (!editing_) return;
  editing_ = false;
  editText_.clear();
  Changed(What::Selection);
}

void Grid::UserClicks(GridPlace cell) {
  if (!IsCell(cell)) return;
  Select(cell);
  Click(cell.row, cell.column);
}

void Grid::UserExtends(GridPlace cell) { SelectRange(current_, cell); }

void Grid::UserDoubleClicks(GridPlace cell) {
  if (!IsCell(cell)) return;
  Select(cell);
  BeginEdit(Text(cell.row, cell.column));
}

void Grid::UserRightClicks(GridPlace cell) {
  CommitEdit();
  if (IsCell(cell) && !Selection().Contains(cell)) Select(cell);
  RightClick();
}

void Grid::Describe(Object& facts) const {
  List rows, beside;
  for (int row = 0; row < rows_; ++row) {
    List texts;
    for (int column = 0; column < columns_; ++column) {
      const GridCell& cell = At(row, column);
      texts.emplace_back(cell.text);
      if (Object more = DescribeBeside(cell); !more.empty()) {
        more.insert(more.begin(), {{"row", row}, {"column", column}});
        beside.emplace_back(std::move(more));
      }
    }
    rows.emplace_back(std::move(texts));
  }
  const GridRange range = Selection();
  facts.emplace_back("cells", std::move(rows));
  facts.emplace_back("row", current_.row);
  facts.emplace_back("column", current_.column);
  facts.emplace_back("range", List{range.top, range.left, range.bottom, range.right});
  if (editing_) facts.emplace_back("editing", editText_);
  if (Ring()) facts.emplace_back("ring", List{Ring()->row, Ring()->column});
  facts.emplace_back("looks", std::move(beside));
}

GridPlace Grid::CellOf(const Action& action, std::size_t firstWord) const {
  const GridPlace cell{action.Number(firstWord), action.Number(firstWord + 1)};
  if (!IsCell(cell)) throw CannotDo(FullName() + " has no such cell");
  return cell;
}

void Grid::Perform(const Action& action) {
  const struct {
    const char* verb;
    std::function<void()> run;
  } kActions[] = {
      {"cell", [&] { PerformCell(action); }},
      {"range", [&] { SelectRange(CellOf(action, 0), CellOf(action, 2)); }},
      {"double", [&] { UserDoubleClicks(CellOf(action, 0)); }},
      {"popup", [&] { UserRightClicks(current_); }},
  };
  for (const auto& row : kActions)
    if (action.verb == row.verb) return row.run();
  Control::Perform(action);
}

void Grid::PerformCell(const Action& action) {
  const GridPlace cell = CellOf(action, 0);
  UserClicks(cell);
  if (action.words.size() < 3) return;
  if (!BeginEdit("")) throw CannotDo("this cell of " + FullName() + " cannot be edited");
  SetEditText(action.Word(2));
  CommitEdit();
}

}  // namespace tarnview
