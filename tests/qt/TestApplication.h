#pragma once

#include <QTest>
#include <QtWidgets>

namespace tarnview {

/// The toolkit, started once for the whole test program, without a screen.
inline QApplication& TestApplication() {
  static char program[] = "qt_tests", platform[] = "-platform", offscreen[] = "offscreen";
  static char* arguments[] = {program, platform, offscreen, nullptr};
  static int count = 3;
  static auto* application = [] {
    auto* made = new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return made;
  }();
  return *application;
}

/// Lets what is queued run.
inline void Settle() {
  for (int turn = 0; turn < 3; ++turn) TestApplication().processEvents();
}

}  // namespace tarnview
