#include <gmock/gmock.h>

#include <map>
#include <set>

#include "qt/TestApplication.h"
#include "qt/binder/FormTable.h"
#include "qt/binder/PictureWidget.h"
#include "qt/binder/WindowWalk.h"
#include "qt/host/FormWindow.h"
#include "qt/pictures/AllWindows.h"
#include "ui/Label.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(WindowWalkTest, EveryControlOfEveryWindowHasItsWidgetAndTheOtherWayRound) {
  TestApplication();
  RecordingHost host;
  AllWindows windows(host);
  std::set<std::string> walked, drawn;  // of some windows several are walked
  for (Form* form : windows.Forms()) {
    walked.insert(form->name);
    const std::unique_ptr<QWidget> window(MakeWindow(form->name, nullptr));
    ASSERT_TRUE(window) << form->name;
    EXPECT_THAT(WindowFaults(*form, *window), IsEmpty());
  }
  for (const FormRow& row : FormTable()) drawn.insert(row.name);
  EXPECT_EQ(walked, drawn) << "a window that nobody walks, or one without a file";
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
  EXPECT_THAT(WindowFaults(form, window), UnorderedElementsAre("frmTwo: nothing shows lblMember(3)",
                                                               "frmTwo: no control for lblStray",
                                                               "frmTwo: no control for mnuNone"));
}

/// A reader of the screen says a name for whatever can be looked at or worked.
TEST(WindowWalkTest, WhatCanBeWorkedHasANameToBeReadOut) {
  TestApplication();
  RecordingHost host;
  AllWindows windows(host);
  for (Form* form : windows.Forms()) {
    FormWindow shown(*form, nullptr, [](Form&) {});
    for (QWidget* widget : shown.window().findChildren<QWidget*>()) {
      const bool own = !widget->objectName().startsWith("qt_") && !widget->objectName().isEmpty();
      const bool silent =
          qobject_cast<QFrame*>(widget) && !qobject_cast<QAbstractScrollArea*>(widget);
      const bool worked =
          widget->focusPolicy() != Qt::NoFocus || qobject_cast<QScrollBar*>(widget) ||
          qobject_cast<QProgressBar*>(widget) || qobject_cast<PictureWidget*>(widget);
      if (!own || silent || !worked || widget->isHidden()) continue;
      const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(widget);
      EXPECT_NE(read->text(QAccessible::Name).trimmed(), "")
          << form->name << " " << widget->objectName().toStdString();
    }
  }
  Settle();
}

QString Plain(QString caption) { return caption.remove('&').remove("...").section('\t', 0, 0); }

/// Every menu of every window, as the user sees it.
class MenuWalkTest : public testing::Test {
 protected:
  MenuWalkTest() {
    TestApplication();
    for (Form* form : windows_.Forms()) {
      shown_.push_back(std::make_unique<FormWindow>(*form, nullptr, [](Form&) {}));
      for (QMenu* menu : shown_.back()->window().findChildren<QMenu*>()) menus_.push_back(menu);
    }
  }
  ~MenuWalkTest() override { Settle(); }

  RecordingHost host_;
  AllWindows windows_{host_};
  std::vector<std::unique_ptr<FormWindow>> shown_;
  std::vector<QMenu*> menus_;
};

TEST_F(MenuWalkTest, NoTwoEntriesOfAMenuShareALetter) {
  for (const QMenu* menu : menus_) {
    std::map<QString, QString> letters;
    for (const QAction* action : menu->actions()) {
      const QString key = QKeySequence::mnemonic(action->text()).toString();
      if (key.isEmpty()) continue;
      const auto [other, isFirst] = letters.emplace(key, action->text());
      EXPECT_TRUE(isFirst) << menu->objectName().toStdString() << ": "
                           << action->text().toStdString() << " and "
                           << other->second.toStdString();
    }
  }
}

TEST_F(MenuWalkTest, TheManualNamesNoEntryThatIsNotThere) {
  std::set<QString> entries, titles;
  for (const QMenu* menu : menus_)
    for (const QAction* action : menu->actions()) {
      titles.insert(Plain(menu->title()));
      entries.insert(Plain(menu->title()) + ", " + Plain(action->text()));
    }
  QFile manual(TARNVIEW_DATA "/Documentation/Instructions.htm");
  ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
  static const QRegularExpression path("<em>(\\w+), ([^<,]+)[^<]*</em>");
  auto found = path.globalMatch(QString::fromUtf8(manual.readAll()).replace('\n', ' '));
  int checked = 0;
  while (found.hasNext()) {
    const QRegularExpressionMatch match = found.next();
    if (!titles.count(match.captured(1))) continue;
    ++checked;
    EXPECT_TRUE(entries.count(match.captured(1) + ", " + match.captured(2)))
        << match.captured(0).toStdString();
  }
  EXPECT_GT(checked, 10);
}

}  // namespace
}  // namespace tarnview
