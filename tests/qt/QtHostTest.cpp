#include <gmock/gmock.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/frmAbout.h"
#include "app/frmNonModalMessage.h"
#include "qt/TestApplication.h"
#include "qt/host/Dialogs.h"
#include "qt/host/QtHost.h"

namespace tarnview {
namespace {

TEST(QtHostTest, AModalWindowHoldsItsCallerUntilItIsUnloaded) {
  TestApplication();
  QtHost host;
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
  Settle();
}

TEST(QtHostTest, TheCloseBoxAsksTheFormAndEscapePressesCancel) {
  TestApplication();
  QtHost host;
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
  Settle();
}

TEST(QtHostTest, AWindowMayBeDestroyedBeforeTheHostWithoutBeingUnloaded) {
  TestApplication();
  QtHost host;
  {
    frmAbout about(host, {}, [] {});
    about.Show();
    about.cmdOK.SetFocus();
  }
  EXPECT_FALSE(host.AnyWindow());
  Settle();
}

TEST(QtHostTest, BoxesAnswerWithTheirButtons) {
  TestApplication();
  const struct {
    int style;
    Qt::Key key;
    Reply reply;
  } rows[] = {{kBoxYesNo + kBoxQuestion, Qt::Key_Return, Reply::Yes},
              {kBoxYesNo + kBoxSecondIsDefault, Qt::Key_Return, Reply::No},
              {kBoxYesNo, Qt::Key_Escape, Reply::No},
              {kBoxYesNoCancel + kBoxExclamation, Qt::Key_Escape, Reply::Cancel},
              {kBoxOk, Qt::Key_Escape, Reply::Ok}};
  for (const auto& row : rows) {
    QTimer::singleShot(0, [&] { QTest::keyClick(QApplication::activeModalWidget(), row.key); });
    QtHost host;
    EXPECT_EQ(host.Ask({1, "Line one\r\nline two", row.style, "Tarnview"}), row.reply) << row.style;
  }
}

TEST(QtHostTest, AnOfferOfABoxIsTakenByItsButtonAlone) {
  TestApplication();
  for (const bool take : {true, false}) {
    QTimer::singleShot(0, [&] {
      QWidget* const box = QApplication::activeModalWidget();
      if (!take) return QTest::keyClick(box, Qt::Key_Escape);
      for (auto* button : box->findChildren<QPushButton*>())
        if (button->text() == "&Open Report") button->click();
    });
    QtHost host;
    int taken = 0;
    EXPECT_EQ(host.Ask({83, "Text", kBoxExclamation, "Tarnview", "&Open Report", [&] { ++taken; }}), Reply::Ok);
    EXPECT_EQ(taken, take);
  }
}

TEST(QtHostTest, ABoxIsPlainTextAndKeepsItsButtonsOnTheScreen) {
  TestApplication();
  const struct {
    std::string text, shown;
  } rows[] = {{"<img src='/etc/x.png'> <b>a</b>", "<img src='/etc/x.png'> <b>a</b>"},
              {std::string(20000, 'x'), ""},
              {[] {
                 std::string lines;
                 for (int i = 0; i < 300; ++i) lines += "column " + std::to_string(i) + "\r\n";
                 return lines;
               }(),
               ""}};
  for (const auto& row : rows) {
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      const QSize screen = box->screen()->availableSize();
      EXPECT_LT(box->height(), screen.height());
      EXPECT_LT(box->width(), screen.width());
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      if (row.shown.empty())
        EXPECT_TRUE(box->text().endsWith("..."));
      else
        EXPECT_EQ(box->text().toStdString(), row.shown);
      QTest::keyClick(box, Qt::Key_Return);
    });
    QtHost host;
    EXPECT_EQ(host.Ask({1, row.text, kBoxOk, "Tarnview [*]"}), Reply::Ok);
  }
}

TEST(DialogsTest, FiltersTakeTheToolkitsForm) {
  EXPECT_EQ(ToNameFilters("Logs (*.txt)|*.txt;*.csv|All|*.*"), (QStringList{"Logs (*.txt *.csv)", "All (*)"}));
  EXPECT_EQ(ToNameFilters(""), QStringList());
}

}  // namespace
}  // namespace tarnview
