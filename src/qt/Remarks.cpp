#include "qt/Remarks.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace tarnview {

void SilenceRemarks() {
  qInstallMessageHandler([](QtMsgType kind, const QMessageLogContext&, const QString& text) {
    if (kind == QtFatalMsg) std::fprintf(stderr, "tarnview: %s\n", qUtf8Printable(text));
  });
}

}  // namespace tarnview
