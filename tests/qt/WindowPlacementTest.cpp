#include <gtest/gtest.h>

#include <QTimer>

#include "app/Program.h"
#include "app/frmNonModalMessage.h"
#include "qt/TestApplication.h"
#include "qt/host/QtHost.h"
#include "qt/host/WindowPlacement.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"

namespace tarnview {
namespace {

TEST(WindowPlacementTest, AWindowOnAScreenThatIsGoneComesBack) {
  const QRect laptop(0, 0, 1366, 740), beside(1366, 0, 1920, 1080);
  const struct {
    const char* what;
    QRect wanted;
    QList<QRect> screens;
    QRect placed;
  } rows[] = {
      {"as it was", {100, 80, 800, 600}, {laptop}, {100, 80, 800, 600}},
      {"across two screens", {1000, 80, 1500, 600}, {laptop, beside}, {1000, 80, 1500, 600}},
      {"the second screen is gone", {1500, 80, 800, 600}, {laptop}, {566, 80, 800, 600}},
      {"and was larger", {1400, 40, 1800, 1000}, {laptop}, {0, 32, 1366, 708}},
      {"larger than the one screen", {10, 40, 2500, 1300}, {laptop}, {0, 32, 1366, 708}},
      {"caption above the screen", {100, -90, 800, 600}, {laptop}, {100, 32, 800, 600}},
      {"numbers of a damaged file", {-90000, 100000, 800, 600}, {laptop, beside}, {0, 140, 800, 600}},
      {"no screen at all", {5, 5, 10, 10}, {}, {5, 5, 10, 10}},
  };
  for (const auto& row : rows) EXPECT_EQ(FitOnScreens(row.wanted, row.screens), row.placed) << row.what;
}

TEST(WindowPlacementTest, AWindowTakesItsPlaceAndKeepsItUpToDate) {
  TestApplication();
  QtHost host;
  frmNonModalMessage form(host, [](int) {});
  form.Left = 1500;
  form.Top = 1200;
  form.Width = 7500;
  form.Height = 4500;
  form.Show();
  QWidget& window = host.WindowOf(form)->window();
  EXPECT_EQ(window.geometry(), QRect(100, 80, 500, 300));
  window.setGeometry(120, 90, 520, 310);
  Settle();
  EXPECT_EQ(form.Left, 120 * 15);
  EXPECT_EQ(form.Top, 90 * 15);
  EXPECT_EQ(form.Width, 520 * 15);
  EXPECT_EQ(form.Height, 310 * 15);
  window.showMaximized();
  Settle();
  EXPECT_EQ(form.WindowState, 2);
  EXPECT_EQ(form.Width, 520 * 15) << "a maximized window keeps the size that it goes back to";
  form.Unload();
  EXPECT_EQ(form.WindowState, 2);
  Settle();
  form.Show();
  EXPECT_TRUE(host.WindowOf(form)->window().isMaximized());
  form.Unload();
  Settle();
}

TEST(WindowPlacementTest, TheSettingsFileKeepsWhereTheWindowsStood) {
  TestApplication();
  QtHost host;
  MemoryFileSystem files;
  FixedClock clock;
  RecordingProcesses processes;
  files.files["/car/Tarnview.ini"] =
      "[General]\r\nWindow State=0\r\nWindow Left=150\r\nWindow Top=750\r\nWindow Width=11250\r\n"
      "Window Height=10500\r\nMaintenance Form Window State=0\r\nMaintenance Form Window Left=300\r\n"
      "Maintenance Form Window Top=1500\r\nMaintenance Form Window Width=9000\r\n"
      "Maintenance Form Window Height=7500\r\n";
  Program program(host, files, clock, processes, ProgramFolders{}, "/car/Tarnview.ini");
  program.WriteSettingsTo("/car/Tarnview.ini");
  program.Start("", false);
  QWidget& main = host.WindowOf(program.MainWindow())->window();
  EXPECT_EQ(main.geometry(), QRect(10, 50, 750, 700));
  QTimer::singleShot(0, [] {
    QWidget* list = QApplication::activeModalWidget();
    EXPECT_EQ(list->geometry(), QRect(20, 100, 600, 500));
    list->resize(620, 510);
    Settle();
    list->close();
  });
  program.MainWindow().mnuCustomisePresetSample.Do({"click", {}});
  main.setGeometry(12, 40, 760, 710);
  Settle();
  program.MainWindow().Unload();
  Settle();
  const std::string& kept = files.files["/car/Tarnview.ini"];
  for (const char* line : {"\r\nWindow Left=180\r\n", "\r\nWindow Width=11400\r\n",
                           "Maintenance Form Window Left=300\r\n", "Maintenance Form Window Width=9300\r\n"})
    EXPECT_NE(kept.find(line), std::string::npos) << line;
}

}  // namespace
}  // namespace tarnview
