#include <gmock/gmock.h>

#include "app/frmAbout.h"
#include "app/frmNonModalMessage.h"
#include "qt/Gestures.h"
#include "qt/TestApplication.h"
#include "qt/host/Dialogs.h"
#include "qt/host/QtHost.h"
#include "samplegraph/frmNewPresetName.h"

namespace tarnview {
namespace {

using testing::EndsWith;

class QtHostTest : public testing::Test {
 protected:
  ~QtHostTest() override { Settle(); }

  /// Asks with a box, which `answer` answers once it is on show.
  Reply Asked(const Box& box, const std::function<void(QMessageBox& box)>& answer) {
    QTimer::singleShot(
        0, [&] { answer(*qobject_cast<QMessageBox*>(QApplication::activeModalWidget())); });
    return host.Ask(box);
  }
  static void Escape(QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }

  QApplication& application = TestApplication();
  QtHost host;
  const Box plain{1, "Line one\r\nline two", kBoxOk, "Tarnview"};
};

TEST_F(QtHostTest, AModalWindowHoldsItsCallerAndItsTextIsTypedOver) {
  Messages messages(host, [](int) { return std::string(); });
  frmNewPresetName form(host, messages, "Knock");
  QTimer::singleShot(0, [&] {
    QWidget& window = host.WindowOf(form)->window();
    EXPECT_TRUE(window.isModal());
    // The desktop gives the focus later than the window is on show.
    auto* field = window.findChild<QLineEdit*>("txtName");
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->hasFocus(); }));
    EXPECT_EQ(field->selectedText(), "Knock");
    QTest::keyClicks(field, "Idle");
    QTest::keyClick(field, Qt::Key_Return);
  });
  form.ShowModal();
  EXPECT_EQ(form.strName(), "Idle");
  EXPECT_FALSE(host.AnyWindow());
}

TEST_F(QtHostTest, AWindowMayBeDestroyedBeforeTheHostWithoutBeingUnloaded) {
  {
    frmAbout about(host, {}, [] {});
    about.Show();
    about.cmdOK.SetFocus();
  }
  EXPECT_FALSE(host.AnyWindow());
}

TEST_F(QtHostTest, BoxesAnswerWithTheirButtons) {
  const struct {
    int style;
    Qt::Key key;
    Reply reply;
  } rows[] = {{kBoxYesNo + kBoxQuestion, Qt::Key_Return, Reply::Yes},
              {kBoxYesNo + kBoxSecondIsDefault, Qt::Key_Return, Reply::No},
              {kBoxYesNo, Qt::Key_Escape, Reply::No},
              {kBoxYesNoCancel + kBoxExclamation, Qt::Key_Escape, Reply::Cancel},
              {kBoxOk, Qt::Key_Escape, Reply::Ok}};
  for (const auto& [style, key, reply] : rows) {
    const auto press = [key = key](QMessageBox& box) { QTest::keyClick(&box, key); };
    EXPECT_EQ(Asked({1, "Text", style, "Tarnview"}, press), reply) << style;
  }
}

TEST_F(QtHostTest, AnOfferOfABoxIsTakenByItsButtonAlone) {
  int taken = 0;
  const Box offer{83, "Text", kBoxExclamation, "Tarnview", "&Open Report", [&] { ++taken; }};
  EXPECT_EQ(Asked(offer, Escape), Reply::Ok);
  EXPECT_EQ(taken, 0);
  const auto take = [](QMessageBox& box) {
    for (auto* button : box.findChildren<QPushButton*>())
      if (button->text() == "&Open Report") button->click();
  };
  EXPECT_EQ(Asked(offer, take), Reply::Ok);
  EXPECT_EQ(taken, 1);
}

TEST_F(QtHostTest, ABoxIsPlainTextAndKeepsItsButtonsOnTheScreen) {
  const auto shown = [&](const std::string& text) {
    std::string all;
    Asked({1, text, kBoxOk, "Tarnview [*]"}, [&](QMessageBox& box) {
      const QSize screen = box.screen()->availableSize();
      EXPECT_TRUE(box.height() < screen.height() && box.width() < screen.width());
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      all = box.text().toStdString();
      Escape(box);
    });
    return all;
  };
  EXPECT_EQ(shown("<img src='/etc/x.png'> <b>a</b>"), "<img src='/etc/x.png'> <b>a</b>");
  EXPECT_THAT(shown(std::string(20000, 'x')), EndsWith("..."));
  EXPECT_THAT(shown(QString("a column\r\n").repeated(300).toStdString()), EndsWith("..."));
}

/// A window on show whose one command takes long: it lets the window be drawn, as a load or a draw
/// does.
struct Working : frmNonModalMessage {
  explicit Working(QtHost& itsHost) : frmNonModalMessage(itsHost, [](int) {}) {
    cmdClose.Click = [this] {
      notes += "begins ";
      if (const auto once = std::exchange(during, nullptr)) once();
      for (int i = 0; i < 3; ++i) {
        QTest::qSleep(40);  // repaints come at most every 30 ms
        Refresh();
        host.DoEvents();
      }
      notes += "ends ";
      if (fails) throw std::runtime_error("broken");
    };
    Show();
    window = &itsHost.WindowOf(*this)->window();
    button = window->findChild<QPushButton*>("cmdClose");
  }
  bool DropFile(const std::string& path) override {
    notes += "drop:" + path + " ";
    return true;
  }
  bool Form_QueryUnload() override {
    notes += "close ";
    return mayClose;
  }
  QWidget* window;
  QPushButton* button;
  std::string notes;
  std::function<void()> during;
  bool fails = false, mayClose = false;
};

TEST_F(QtHostTest, TheCloseBoxAsksTheFormAndEscapePressesCancel) {
  Working form(host);
  form.window->close();
  Settle();
  EXPECT_EQ(form.notes, "close ");
  EXPECT_TRUE(form.IsShown() && form.window->isVisible());
  form.mayClose = true;
  form.cmdClose.Click = [&] { form.Unload(); };
  QTest::keyClick(form.window, Qt::Key_Escape);
  EXPECT_FALSE(form.IsShown());
  EXPECT_FALSE(host.AnyWindow());
}

TEST_F(QtHostTest, WhatComesWhileAnEventIsAtWorkWaitsForItsEnd) {
  Working form(host);
  Settle();
  form.during = [&] {
    DropFile(*form.window, "/logs/run.txt");
    form.window->close();
    QTimer::singleShot(0, [&] { QTest::keyClick(form.window, Qt::Key_F9); });
    QTimer::singleShot(0, form.button, &QPushButton::click);
  };
  form.button->click();
  Settle();
  EXPECT_EQ(form.notes, "begins ends close drop:/logs/run.txt begins ends ");
}

TEST_F(QtHostTest, AnErrorThatNothingEndedEndsAtItsEvent) {
  std::string told;
  host.events.Failed = [&](const std::string& module, const std::string& procedure,
                           const std::exception& error) {
    told += module + "/" + procedure + ":" + error.what() + " ";
  };
  Working form(host);
  form.fails = true;
  form.DefaultButton = &form.cmdClose;
  QTest::mouseClick(form.button, Qt::LeftButton);
  QTest::keyClick(form.window->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(told, "frmNonModalMessage/cmdClose:broken frmNonModalMessage/Enter:broken ");
  EXPECT_FALSE(host.events.Busy());
}

TEST_F(QtHostTest, AFileDroppedBehindADialogIsRefused) {
  Working form(host);
  const auto drop = [&] {
    DropFile(*form.window, "/logs/run.txt");
    Settle();
    return form.notes;
  };
  Asked(plain, [&](QMessageBox& box) {
    EXPECT_EQ(drop(), "");
    Escape(box);
  });
  Settle();
  EXPECT_EQ(form.notes, "");
  EXPECT_EQ(drop(), "drop:/logs/run.txt ");
}

TEST_F(QtHostTest, ABoxBelongsToTheWindowThatTheUserIsIn) {
  Working main(host), graph(host);
  const auto ownerOfBox = [&] {
    const QWidget* owner = nullptr;
    Asked(plain, [&](QMessageBox& box) {
      owner = box.parentWidget();
      Escape(box);
    });
    return owner;
  };
  EXPECT_EQ(ownerOfBox(), graph.window);
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(main.window, &activated);
  EXPECT_EQ(ownerOfBox(), main.window);
  EXPECT_EQ(graph.window->parentWidget(), main.window);
}

TEST(DialogsTest, FiltersTakeTheToolkitsForm) {
  EXPECT_EQ(ToNameFilters("Logs (*.txt)|*.txt;*.csv|All|*.*"),
            (QStringList{"Logs (*.txt *.csv)", "All (*)"}));
  EXPECT_EQ(ToNameFilters(""), QStringList());
}

}  // namespace
}  // namespace tarnview
