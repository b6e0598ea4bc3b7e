#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <filesystem>

#include "qt/Text.h"

namespace tarnview {
namespace {

/// Starts the program in a folder of its own; what it says on standard error until `file` is there
/// or it ends.
std::string SaidUntil(const QString& file, const char* platform) {
  const QString program = QStringLiteral(TARNVIEW_PROGRAM);
  const QTemporaryDir folder(program + "-XXXXXX");  // beside it: a link reaches no further
  std::filesystem::create_hard_link(PathFromQt(program), PathFromQt(folder.filePath("tarnview")));
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("XDG_RUNTIME_DIR");
  environment.insert("QT_QPA_PLATFORM", platform);
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(folder.filePath("tarnview"), QStringList());
  for (int waited = 0; waited < 600 && !QFileInfo::exists(folder.filePath(file)); ++waited)
    if (process.waitForFinished(100)) break;
  process.waitForFinished(300);
  process.kill();
  process.waitForFinished();
  return process.readAllStandardError().toStdString();
}

TEST(RemarksTest, TheProgramSaysNoWordOfTheToolkitsButWhyItCannotStart) {
  EXPECT_EQ(SaidUntil("error.log", "offscreen"), "");
  const std::string why = SaidUntil("error.log", "no-such-platform");
  EXPECT_TRUE(why.starts_with("tarnview: This application failed to start")) << why;
}

}  // namespace
}  // namespace tarnview
