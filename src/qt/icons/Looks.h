#pragma once

class QWidget;

namespace tarnview {

/// Gives a window what its form names by properties, since it hangs on the desktop's palette and
/// font: "picture" (an action's or button's icon), "fontScale" (a label's share of the font's
/// size), "clear" (a scrolled page lets what is behind it show), "lines" (a label shows the
/// program's icon, so many lines of text high).
void SetLooks(QWidget& window);

}  // namespace tarnview
