#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnview {

/// A key with its modifiers. `key` is the name that scripts and menus use: "A" to "Z", "0" to "9",
/// "F1" to "F12", "Left", "Right", "Up", "Down", "Home", "End", "PageUp", "PageDown", "Enter",
/// "Escape", "Tab", "Space", "Delete", "Insert", "Backspace", "Plus", "Minus".
struct KeyPress {
  std::string key;
  bool shift = false;
  bool ctrl = false;
  bool alt = false;

  bool Plain() const { return !shift && !ctrl && !alt; }
  friend bool operator==(const KeyPress&, const KeyPress&) = default;
};

/// "Ctrl+Left" and the like; nothing for a text that names no key.
std::optional<KeyPress> ParseKeys(std::string_view text);

}  // namespace tarnview
