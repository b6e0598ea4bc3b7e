#include "qt/host/KeyNames.h"

#include <QKeyEvent>
#include <algorithm>

namespace tarnview {
namespace {

struct Name {
  int key;
  const char* name;
};
constexpr Name kNames[] = {
    {Qt::Key_Left, "Left"},     {Qt::Key_Right, "Right"},         {Qt::Key_Up, "Up"},
    {Qt::Key_Down, "Down"},     {Qt::Key_Home, "Home"},           {Qt::Key_End, "End"},
    {Qt::Key_PageUp, "PageUp"}, {Qt::Key_PageDown, "PageDown"},   {Qt::Key_Return, "Enter"},
    {Qt::Key_Enter, "Enter"},   {Qt::Key_Escape, "Escape"},       {Qt::Key_Tab, "Tab"},
    {Qt::Key_Backtab, "Tab"},   {Qt::Key_Space, "Space"},         {Qt::Key_Delete, "Delete"},
    {Qt::Key_Insert, "Insert"}, {Qt::Key_Backspace, "Backspace"}, {Qt::Key_Plus, "Plus"},
    {Qt::Key_Minus, "Minus"},
};

std::optional<std::string> NameOf(int key) {
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
    return std::string(1, static_cast<char>(key));
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return "F" + std::to_string(key - Qt::Key_F1 + 1);
  const auto row = std::find_if(std::begin(kNames), std::end(kNames),
                                [key](const Name& one) { return one.key == key; });
  if (row == std::end(kNames)) return std::nullopt;
  return row->name;
}

}  // namespace

std::optional<KeyPress> ToKeyPress(const QKeyEvent& event) {
  const auto name = NameOf(event.key());
  if (!name) return std::nullopt;
  const auto held = [&](Qt::KeyboardModifier modifier) {
    return event.modifiers().testFlag(modifier);
  };
  return KeyPress{*name, held(Qt::ShiftModifier), held(Qt::ControlModifier), held(Qt::AltModifier)};
}

}  // namespace tarnview
