#pragma once

#include <QList>
#include <QRect>
#include <QSize>

class QWidget;

namespace tarnview {

class Form;

/// Puts a window where its form says (what is inside its frame); one without a size is left alone.
void TakePlacement(const Form& form, QWidget& window);
/// Notes in the form where the window stands; a maximized one keeps the place that it goes back to.
void NotePlacement(const QWidget& window, Form& form);

/// Puts the bars between a window's parts where its form says, and notes in the form where they
/// stand.
void TakeDividers(const Form& form, QWidget& window);
void NoteDividers(const QWidget& window, Form& form);

/// A place that can be seen and taken hold of: `wanted` itself where enough of its caption lies on
/// a screen and it is no larger than the desktop, else moved onto the nearest of the screens and
/// made no larger than that.
QRect FitOnScreens(const QRect& wanted, const QList<QRect>& screens);

/// Where a window of that size stands beside its owner: right or left of it, where the screen has
/// room, else at its foot on the left, over its lists rather than its graph.
QRect Beside(const QRect& owner, const QSize& size, const QRect& screen);

}  // namespace tarnview
