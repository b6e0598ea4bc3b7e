#include "ui/Keys.h"

#include <array>
#include <cctype>

namespace tarnview {
namespace {

constexpr std::array kNames{"Left",   "Right",    "Up",        "Down",   "Home",  "End",
                            "PageUp", "PageDown", "Enter",     "Escape", "Tab",   "Space",
                            "Delete", "Insert",   "Backspace", "Plus",   "Minus", "F1",
                            "F2",     "F3",       "F4",        "F5",     "F6",    "F7",
                            "F8",     "F9",       "F10",       "F11",    "F12"};

bool SameText(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) !=
        std::tolower(static_cast<unsigned char>(b[i])))
      return false;
  return true;
}

std::optional<std::string> KeyName(std::string_view text) {
  if (text.size() == 1 && std::isalnum(static_cast<unsigned char>(text[0])))
    return std::string(1, static_cast<char>(std::toupper(static_cast<unsigned char>(text[0]))));
  for (const char* name : kNames)
    if (SameText(name, text)) return name;
  if (SameText(text, "Return")) return "Enter";
  if (SameText(text, "Esc")) return "Escape";
  return std::nullopt;
}

}  // namespace

std::optional<KeyPress> ParseKeys(std::string_view text) {
  KeyPress press;
  for (auto plus = text.find('+'); plus != std::string_view::npos; plus = text.find('+')) {
    const auto modifier = text.substr(0, plus);
    if (SameText(modifier, "Shift"))
      press.shift = true;
    else if (SameText(modifier, "Ctrl"))
      press.ctrl = true;
    else if (SameText(modifier, "Alt"))
      press.alt = true;
    else
      return std::nullopt;
    text.remove_prefix(plus + 1);
  }
  const auto key = KeyName(text);
  if (!key) return std::nullopt;
  press.key = *key;
  return press;
}

}  // namespace tarnview
