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

class QtHostTest : public testing::Test {
 protected:
  ~QtHostTest() override { Settle(); }

  /// A box, which that answers once it is on show.
  Reply Asked(const std::function<void(QMessageBox& box)>& answer, Box box) {
    QTimer::singleShot(
        0, [&] { answer(*qobject_cast<QMessageBox*>(QApplication::activeModalWidget())); });
    return host.Ask(box);
  }

  QApplication& application = TestApplication();
  QtHost host;
};

TEST_F(QtHostTest, AModalWindowHoldsItsCallerUntilItIsUnloaded) {
  frmAbout about(host, {}, [] {});
  bool wasModal = false;
  QTimer::singleShot(0, [&] {
    QWidget& window = host.WindowOf(about)->window();
    wasModal = window.isModal();
    QTest::mouseClick(window.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  about.ShowModal();
  EXPECT_TRUE(wasModal);
  EXPECT_FALSE(host.AnyWindow());
}

TEST_F(QtHostTest, WhatIsTypedFirstTakesThePlaceOfTheTextThere) {
  Messages messages(host, [](int) { return std::string(); });
  frmNewPresetName form(host, messages, "Knock");
  QTimer::singleShot(0, [&] {
    // The desktop gives the focus later than the window is on show.
    auto* field = host.WindowOf(form)->window().findChild<QLineEdit*>("txtName");
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->hasFocus(); }));
    EXPECT_EQ(field->selectedText(), "Knock");
    QTest::keyClicks(field, "Idle");
    QTest::keyClick(field, Qt::Key_Return);
  });
  form.ShowModal();
  EXPECT_EQ(form.strName(), "Idle");
}

TEST_F(QtHostTest, TheCloseBoxAsksTheFormAndEscapePressesCancel) {
  struct Stubborn : frmNonModalMessage {
    using frmNonModalMessage::frmNonModalMessage;
    bool mayClose = false;
    bool Form_QueryUnload() override { return mayClose; }
  } form(host, [](int) {});
  form.Show();
  QWidget& window = host.WindowOf(form)->window();
  window.close();
  Settle();
  EXPECT_TRUE(form.IsShown());
  EXPECT_TRUE(window.isVisible());
  form.mayClose = true;
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(form.IsShown());
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
  for (const auto& row : rows)
    EXPECT_EQ(Asked([&](QMessageBox& box) { QTest::keyClick(&box, row.key); },
                    {1, "Line one\r\nline two", row.style, "Tarnview"}),
              row.reply)
        << row.style;
}

TEST_F(QtHostTest, AnOfferOfABoxIsTakenByItsButtonAlone) {
  for (const bool take : {true, false}) {
    const auto answer = [&](QMessageBox& box) {
      if (!take) return QTest::keyClick(&box, Qt::Key_Escape);
      for (auto* button : box.findChildren<QPushButton*>())
        if (button->text() == "&Open Report") button->click();
    };
    int taken = 0;
    EXPECT_EQ(
        Asked(answer, {83, "Text", kBoxExclamation, "Tarnview", "&Open Report", [&] { ++taken; }}),
        Reply::Ok);
    EXPECT_EQ(taken, take);
  }
}

TEST_F(QtHostTest, ABoxIsPlainTextAndKeepsItsButtonsOnTheScreen) {
  const struct {
    std::string text, shown;
  } rows[] = {{"<img src='/etc/x.png'> <b>a</b>", "<img src='/etc/x.png'> <b>a</b>"},
              {std::string(20000, 'x'), ""},
              {QString("a column\r\n").repeated(300).toStdString(), ""}};
  for (const auto& row : rows) {
    const auto answer = [&](QMessageBox& box) {
      const QSize screen = box.screen()->availableSize();
      EXPECT_TRUE(box.height() < screen.height() && box.width() < screen.width());
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      const std::string shown = box.text().toStdString();
      EXPECT_EQ(row.shown.empty() ? shown.substr(shown.size() - 3) : shown,
                row.shown.empty() ? "..." : row.shown);
      QTest::keyClick(&box, Qt::Key_Return);
    };
    EXPECT_EQ(Asked(answer, {1, row.text, kBoxOk, "Tarnview [*]"}), Reply::Ok);
  }
}

/// A window whose one command takes long: it lets the window be drawn, as a load or a draw does.
struct Working : frmNonModalMessage {
  explicit Working(Host& itsHost) : frmNonModalMessage(itsHost, [](int) {}) {
    cmdClose.Click = [this] {
      Note("begins");
      if (const auto once = std::exchange(during, nullptr)) once();
      for (int i = 0; i < 3; ++i) {
        QTest::qSleep(40);  // repaints come at most every 30 ms
        Refresh();
        host.DoEvents();
      }
      Note("ends");
      if (fails) throw std::runtime_error("broken");
    };
  }
  void Note(const std::string& what) { notes += what + " "; }
  bool DropFile(const std::string& path) override {
    Note("drop:" + path);
    return true;
  }
  bool Form_QueryUnload() override {
    Note("close");
    return false;
  }
  void Form_Activate() override { Note("activate"); }
  std::string notes;
  std::function<void()> during;
  bool fails = false;
};

TEST_F(QtHostTest, WhatComesWhileAnEventIsAtWorkWaitsForItsEnd) {
  Working form(host);
  form.Show();
  QWidget& window = host.WindowOf(form)->window();
  auto* button = window.findChild<QPushButton*>("cmdClose");
  Settle();
  form.notes.clear();
  form.during = [&] {
    DropFile(window, "/logs/run.txt");
    window.close();
    QTimer::singleShot(0, [&] { QTest::keyClick(&window, Qt::Key_F9); });
    QTimer::singleShot(0, button, &QPushButton::click);
  };
  button->click();
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
  form.Show();
  QWidget& window = host.WindowOf(form)->window();
  form.fails = true;
  form.DefaultButton = &form.cmdClose;
  QTest::mouseClick(window.findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
  QTest::keyClick(window.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(told, "frmNonModalMessage/cmdClose:broken frmNonModalMessage/Enter:broken ");
  EXPECT_FALSE(host.events.Busy());
}

TEST_F(QtHostTest, AFileDroppedBehindADialogIsRefused) {
  Working form(host);
  form.Show();
  QWidget& window = host.WindowOf(form)->window();
  const auto answer = [&](QMessageBox& box) {
    DropFile(window, "/logs/run.txt");
    Settle();
    QTest::keyClick(&box, Qt::Key_Escape);
  };
  Asked(answer, {1, "Text", kBoxOk, "Tarnview"});
  Settle();
  EXPECT_EQ(form.notes.find("drop"), std::string::npos) << form.notes;
  DropFile(window, "/logs/run.txt");
  Settle();
  EXPECT_NE(form.notes.find("drop:/logs/run.txt"), std::string::npos);
}

TEST_F(QtHostTest, ABoxBelongsToTheWindowThatTheUserIsIn) {
  Working main(host), graph(host);
  main.Show();
  graph.Show();
  const auto ownerOfBox = [&] {
    const QWidget* owner = nullptr;
    const auto answer = [&](QMessageBox& box) {
      owner = box.parentWidget();
      QTest::keyClick(&box, Qt::Key_Escape);
    };
    Asked(answer, {1, "Text", kBoxOk, "Tarnview"});
    return owner;
  };
  EXPECT_EQ(ownerOfBox(), &host.WindowOf(graph)->window());
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(&host.WindowOf(main)->window(), &activated);
  EXPECT_EQ(ownerOfBox(), &host.WindowOf(main)->window());
  EXPECT_EQ(host.WindowOf(graph)->window().parentWidget(), &host.WindowOf(main)->window());
}

TEST(DialogsTest, FiltersTakeTheToolkitsForm) {
  EXPECT_EQ(ToNameFilters("Logs (*.txt)|*.txt;*.csv|All|*.*"),
            (QStringList{"Logs (*.txt *.csv)", "All (*)"}));
  EXPECT_EQ(ToNameFilters(""), QStringList());
}

}  // namespace
}  // namespace tarnview
