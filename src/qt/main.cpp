// tarnview [PATH]: the program with its windows.

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "app/Program.h"
#include "app/Version.h"
#include "qt/Remarks.h"
#include "qt/Text.h"
#include "qt/host/QtHost.h"
#include "qt/icons/DesktopStyle.h"
#include "qt/icons/Icons.h"

namespace tarnview {
namespace {

/// The executable's folder where it can be written to, else one of the user's own.
QString WritableFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable()) return own;
  const QString users = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
  QDir().mkpath(users);
  return users;
}

/// What is installed beside the program, or where a package puts it.
QString DataFolder() {
  const QDir own(QCoreApplication::applicationDirPath());
  for (const char* place : {"data", "../share/tarnview"})
    if (own.exists(place)) return own.absoluteFilePath(place);
  return own.absoluteFilePath("data");
}

ProgramFolders FindFolders() {
  const QString program = WritableFolder();
  ProgramFolders folders{PathFromQt(program + '/'), PathFromQt(DataFolder() + '/')};
  if (program != QCoreApplication::applicationDirPath())
    folders.logs =
        PathFromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/');
  return folders;
}

}  // namespace
}  // namespace tarnview

int main(int argc, char** argv) {
  using namespace tarnview;
  SilenceRemarks();
  QApplication application(argc, argv);
  QApplication::setApplicationName("tarnview");
  QApplication::setApplicationVersion(kVersion);
  QApplication::setStyle(new DesktopStyle);
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);

  QtHost host;
  RealFileSystem files;
  RealClock clock;
  RealProcesses processes;
  Program program(host, files, clock, processes, FindFolders());
  program.Start(argc > 1 ? argv[1] : "", true);
  if (host.AnyWindow()) return QApplication::exec();
  return 0;
}
