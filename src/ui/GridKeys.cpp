// What keys do to a grid.
#include <algorithm>
#include <cctype>

#include "ui/Grid.h"
#include "ui/Keys.h"

namespace tarnview {
namespace {

/// Farther than any grid reaches: its edge.
constexpr int kEdge = 1 << 20;

struct Move {
  const char* key;
  int rows, columns;              ///< moved by
  int rowsByCtrl, columnsByCtrl;  ///< with Ctrl
};
constexpr Move kMoves[] = {
    {"Up", -1, 0, -kEdge, 0},
    {"Down", 1, 0, kEdge, 0},
    {"Left", 0, -1, 0, -kEdge},
    {"Right", 0, 1, 0, kEdge},
    {"Home", 0, -kEdge, -kEdge, -kEdge},
    {"End", 0, kEdge, kEdge, kEdge},
    {"PageUp", -kEdge, 0, -kEdge, 0},
    {"PageDown", kEdge, 0, kEdge, 0},
};

/// The character that a key writes; empty for a key that writes none.
std::string Written(const KeyPress& key) {
  if (key.ctrl || key.alt) return "";
  if (key.key == "Minus") return "-";
  if (key.key.size() != 1) return "";
  if (key.shift) return key.key;
  const int letter = std::tolower(static_cast<unsigned char>(key.key[0]));
  return std::string(1, static_cast<char>(letter));
}

}  // namespace

bool Grid::TakesKey(const KeyPress& key) {
  if (editing_) return WorksField(key);
  if (key.ctrl && !key.shift && !key.alt && key.key == "A") {
    SelectRange({1, 1}, {rows_ - 1, columns_ - 1});
    return true;
  }
  return MovesBy(key) || StartsEdit(key);
}

bool Grid::MovesBy(const KeyPress& key) {
  const auto move = std::find_if(std::begin(kMoves), std::end(kMoves),
                                 [&](const Move& row) { return key.key == row.key; });
  if (move == std::end(kMoves) || key.alt) return false;
  const GridPlace from = key.shift ? end_ : current_;
  const int rows = key.ctrl ? move->rowsByCtrl : move->rows;
  const int columns = key.ctrl ? move->columnsByCtrl : move->columns;
  const GridPlace to{from.row + rows, from.column + columns};
  SelectRange(key.shift ? current_ : to, to);
  return true;
}

bool Grid::StartsEdit(const KeyPress& key) {
  if (!key.Plain() || !CanEdit(current_)) return false;
  if (key.key == "Enter" || key.key == "F2") return BeginEdit(Text(current_.row, current_.column));
  return key.key == "Delete" && BeginEdit("");
}

bool Grid::WorksField(const KeyPress& key) {
  if (!key.Plain()) return false;
  if (key.key == "Enter")
    CommitEdit();
  else if (key.key == "Escape")
    DiscardEdit();
  else if (key.key == "Up")
    StepEdit(1);
  else if (key.key == "Down")
    StepEdit(-1);
  else
    return false;
  return true;
}

bool Grid::WritesKey(const KeyPress& key) {
  if (editing_ && key.Plain() && key.key == "Backspace") {
    SetEditText(editText_.substr(0, editText_.size() - std::min<std::size_t>(editText_.size(), 1)));
    return true;
  }
  const std::string written = Written(key);
  if (written.empty() || (!editing_ && !BeginEdit(""))) return false;
  SetEditText(editText_ + written);
  return true;
}

}  // namespace tarnview
