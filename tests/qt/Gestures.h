#pragma once

#include <QtWidgets>
#include <cmath>
#include <string>
#include <vector>

namespace tarnview {

// What QTest has no gesture for, or one that tells no buttons.

inline void MoveMouse(QWidget& widget, QPoint at, Qt::MouseButtons held,
                      Qt::KeyboardModifiers keys = {}) {
  QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, held, keys);
  QApplication::sendEvent(&widget, &move);
}

/// By eighths of a degree: a notch has 120.
inline void TurnWheel(QWidget& widget, QPointF at, int eighths, Qt::KeyboardModifiers keys = {}) {
  QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, eighths}, {}, keys, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&widget, &wheel);
}

inline void DropFile(QWidget& window, const QString& path) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path)});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(&window, &enter);
  if (enter.isAccepted()) QApplication::sendEvent(&window, &drop);
}

/// A slot that notes a signal: what it is, and its numbers in whole ones.
inline auto Telling(std::vector<std::string>& told, const char* what) {
  return [&told, what](auto... numbers) {
    std::string text = what;
    ((text += " " + std::to_string(std::lround(numbers))), ...);
    told.push_back(text);
  };
}

}  // namespace tarnview
