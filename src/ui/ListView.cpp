#include "ui/ListView.h"

#include <algorithm>
#include <charconv>
#include <compare>

#include "ui/Form.h"

namespace tarnview {
namespace {

/// Numbers by value and before texts, so that "9" stands before "10".
std::weak_ordering Compare(const std::string& a, const std::string& b) {
  double x = 0, y = 0;
  const bool xIsNumber =
      std::from_chars(a.data(), a.data() + a.size(), x).ptr == a.data() + a.size() && !a.empty();
  const bool yIsNumber =
      std::from_chars(b.data(), b.data() + b.size(), y).ptr == b.data() + b.size() && !b.empty();
  if (xIsNumber && yIsNumber) return std::weak_order(x, y);
  if (xIsNumber != yIsNumber) return yIsNumber <=> xIsNumber;  // numbers before texts
  return a <=> b;
}

}  // namespace

ListView::ListView(Form& owner, std::string itsName, std::vector<Column> columns, bool checkBoxes)
    : Control(owner, std::move(itsName)), CheckBoxes(checkBoxes), columns_(std::move(columns)) {}

void ListView::Clear() { SetRows({}); }

void ListView::SetRows(std::vector<Row> rows) {
  rows_ = std::move(rows);
  for (Row& row : rows_) row.texts.resize(columns_.size());
  selected_ = 0;
  Changed(What::Content);
}

void ListView::SetText(int row, int column, std::string text) {
  auto& cell = rows_[static_cast<std::size_t>(row - 1)].texts[static_cast<std::size_t>(column)];
  if (cell == text) return;
  cell = std::move(text);
  Changed(What::Content);
}

void ListView::SetChecked(int row, bool checked) {
  Row& it = rows_[static_cast<std::size_t>(row - 1)];
  if (it.checked == checked) return;
  it.checked = checked;
  Changed(What::Content);
  ItemCheck(row);
}

void ListView::Select(int row) {
  selected_ = std::clamp(row, 0, Count());
  Changed(What::Selection);
}

int ListView::RowOfTag(std::string_view tag) const {
  for (int row = 1; row <= Count(); ++row)
    if (At(row).tag == tag) return row;
  return 0;
}

void ListView::UserSelects(int row) {
  Select(row);
  if (selected_ > 0) ItemClick(selected_);
}

void ListView::UserSorts(int column) {
  sortDown_ = column == sortColumn_ && !sortDown_;
  sortColumn_ = column;
  std::string tag;
  if (selected_ > 0) tag = At(selected_).tag;
  const auto cell = static_cast<std::size_t>(column - 1);
  std::stable_sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) {
    if (sortDown_) return Compare(b.texts[cell], a.texts[cell]) < 0;
    return Compare(a.texts[cell], b.texts[cell]) < 0;
  });
  Changed(What::Content);
  if (selected_ > 0) Select(RowOfTag(tag));
  ColumnClick(column);
}

void ListView::Describe(Object& facts) const {
  List headings, rows;
  for (const Column& column : columns_) headings.emplace_back(column.heading);
  for (int n = 1; n <= Count(); ++n) {
    const Row& row = At(n);
    Object it{{"text", MakeList(row.texts)}, {"tag", row.tag}};
    if (CheckBoxes) it.emplace_back("checked", row.checked);
    it.emplace_back("selected", n == selected_);
    rows.emplace_back(std::move(it));
  }
  facts.emplace_back("columns", std::move(headings));
  facts.emplace_back("rows", std::move(rows));
}

int ListView::RowOf(const Action& action) const {
  const std::string& word = action.Word(0);
  int row = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), row);
  if (error == std::errc() && end == word.data() + word.size() && row >= 1 && row <= Count())
    return row;
  for (row = 1; row <= Count(); ++row)
    if (!At(row).texts.empty() && At(row).texts[0] == word) return row;
  throw CannotDo(FullName() + " has no row \"" + word + "\"");
}

void ListView::Perform(const Action& action) {
  if (action.verb == "row") {
    UserSelects(RowOf(action));
  } else if (action.verb == "double") {
    const int row = RowOf(action);
    UserSelects(row);
    DblClick(row);
  } else if (action.verb == "tick" && CheckBoxes) {
    const std::string& state = action.Word(1);
    if (state != "on" && state != "off") throw CannotDo("a check box is ticked \"on\" or \"off\"");
    SetChecked(RowOf(action), state == "on");
  } else if (action.verb == "sort") {
    int column = 0;
    for (std::size_t i = 0; i < columns_.size() && column == 0; ++i)
      if (columns_[i].heading == action.Word(0)) column = static_cast<int>(i) + 1;
    if (column == 0) column = action.Number(0);
    if (column < 1 || column > static_cast<int>(columns_.size()))
      throw CannotDo(FullName() + " has no such column");
    UserSorts(column);
  } else {
    Control::Perform(action);
  }
}

}  // namespace tarnview
