#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace tarnview {

/// One of icons/*.svg by its name, drawn in the palette's text colour, light or dark, at any size.
QIcon TintedIcon(const QString& name);
/// The program's own icon.
QIcon ProgramIcon();
/// A patch of a curve's colour for a list; `size` in pixels. No colour: an empty place of that
/// size.
QIcon ColourChip(const QColor& colour, int size);

}  // namespace tarnview
