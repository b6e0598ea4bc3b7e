#include <gtest/gtest.h>

#include "app/frmAbout.h"
#include "qt/TestApplication.h"
#include "qt/host/ManualWindow.h"
#include "qt/host/QtHost.h"

namespace tarnview {
namespace {

/// The text at the top of the page that is shown.
QString TopOf(const ManualPage& page) {
  return page.cursorForPosition(QPoint(20, 8)).block().text();
}

const QWidget* Manual() {
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == "manual") return window;
  return nullptr;
}

class ManualWindowTest : public testing::Test {
 protected:
  /// A copy of the manual under a path with every character that a name of a page could stumble
  /// over.
  std::string CopyManual(const char* name) {
    const std::string folder = folder_.path().toStdString() + "/" + name;
    EXPECT_EQ(std::system(("cp -r '" TARNVIEW_DATA "/Documentation' '" + folder + "'").c_str()), 0);
    return folder + "/";
  }

  QApplication& application_ = TestApplication();
  QTemporaryDir folder_;
};

TEST_F(ManualWindowTest, OpensAtATopicWhateverTheFoldersName) {
  for (const char* name : {"plain", "my #1 caf\xC3\xA9 100%20", "no utf \xE9"}) {
    const std::string folder = CopyManual(name);
    ManualWindow window;
    ASSERT_TRUE(window.ShowTopic(folder, "DataTags", nullptr)) << name;
    Settle();
    EXPECT_EQ(TopOf(window.Instructions()).toStdString(), "Data tags") << name;
    EXPECT_TRUE(window.ShowTopic(folder, "", nullptr));
    Settle();
    EXPECT_EQ(window.Instructions().verticalScrollBar()->value(), 0) << name;
  }
}

TEST_F(ManualWindowTest, NoManualIsNoWindow) {
  ManualWindow window;
  EXPECT_FALSE(window.ShowTopic(folder_.path().toStdString() + "/", "Keys", nullptr));
  EXPECT_FALSE(window.isVisible());
}

TEST_F(ManualWindowTest, StaysWhenTheDialogGoesForWhichItWasOpened) {
  const std::string folder = CopyManual("plain");
  QtHost host;
  frmAbout about(host, {}, [] {});
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(host.ShowManual(folder, "Keys"));
    EXPECT_EQ(Manual()->parentWidget(), &host.WindowOf(about)->window())
        << "it takes input before the dialog";
    about.Unload();
  });
  about.ShowModal();
  Settle();
  EXPECT_TRUE(Manual() && Manual()->isVisible());
}

}  // namespace
}  // namespace tarnview
