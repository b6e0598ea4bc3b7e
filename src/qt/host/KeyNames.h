#pragma once

#include <optional>

#include "ui/Keys.h"

class QKeyEvent;

namespace tarnview {

/// The key by its name in the program; nothing for one that has none there (a lone modifier, a dead
/// key).
std::optional<KeyPress> ToKeyPress(const QKeyEvent& event);

}  // namespace tarnview
