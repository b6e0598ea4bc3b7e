#include <gmock/gmock.h>

#include <QAction>
#include <QLabel>
#include <QMainWindow>

#include "qt/TestApplication.h"
#include "qt/binder/FormTable.h"
#include "qt/binder/WindowWalk.h"
#include "qt/pictures/AllWindows.h"
#include "ui/Label.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

TEST(WindowWalkTest, EveryControlOfEveryWindowHasItsWidgetAndTheOtherWayRound) {
  TestApplication();
  RecordingHost host;
  AllWindows windows(host);
  std::vector<std::string> walked, drawn;
  for (Form* form : windows.Forms()) {
    walked.push_back(form->name);
    const std::unique_ptr<QWidget> window(MakeWindow(form->name, nullptr));
    ASSERT_TRUE(window) << form->name;
    EXPECT_THAT(WindowFaults(*form, *window), IsEmpty());
  }
  for (const FormRow& row : FormTable()) drawn.push_back(row.name);
  EXPECT_THAT(walked, UnorderedElementsAreArray(drawn)) << "a window that nobody walks, or one without a file";
}

TEST(WindowWalkTest, NamesWhatDoesNotFit) {
  TestApplication();
  RecordingHost host;
  struct TwoLabels : Form {
    explicit TwoLabels(Host& itsHost) : Form(itsHost, "frmTwo", "") {}
    Label lblHere{*this, "lblHere"};
    Label lblMember{*this, "lblMember", "", 3};
  } form(host);
  QWidget window;
  QLabel here(&window), stray(&window), plain(&window);
  here.setObjectName("lblHere");
  stray.setObjectName("lblStray");
  plain.setObjectName("nameHeading");
  QAction second(&window);
  second.setProperty("control", "mnuNone");
  EXPECT_THAT(WindowFaults(form, window),
              UnorderedElementsAre("frmTwo: nothing shows lblMember(3)", "frmTwo: no control for lblStray",
                                   "frmTwo: no control for mnuNone"));
}

}  // namespace
}  // namespace tarnview
