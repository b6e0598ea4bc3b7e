#include <gmock/gmock.h>

#include "app/MainWindowControls.h"
#include "qt/Gestures.h"
#include "qt/TestApplication.h"
#include "qt/binder/Binder.h"
#include "qt/binder/UpDownWidget.h"
#include "qt/chart/ChartWidget.h"
#include "qt/host/FormWindow.h"
#include "ui/RecordingHost.h"
#include "ui/Timer.h"

namespace tarnview {
namespace {

using testing::ElementsAre;

/// The main window's controls with no behaviour, and the window that shows them.
class BinderTest : public testing::Test {
 protected:
  BinderTest() {
    window_.Raise(false);
    Settle();
  }
  ~BinderTest() override { Settle(); }

  template <class Widget>
  Widget& Find(const char* name) {
    auto* found = window_.window().findChild<Widget*>(name);
    if (!found) throw std::runtime_error(name);
    return *found;
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWidget* focus = window_.window().focusWidget();
    QTest::keyClick(focus ? focus : &window_.window(), key, held);
    Settle();
  }

  QApplication& application_ = TestApplication();
  RecordingHost host_;
  struct Controls : MainWindowControls {
    using MainWindowControls::MainWindowControls;
    std::vector<std::string> keys;
    bool Form_KeyDown(const KeyPress& key) override {
      keys.push_back((key.ctrl ? "Ctrl+" : "") + key.key);
      return key.key == "Left";
    }
    bool Form_KeyUp(const KeyPress& key) override {
      keys.push_back(std::string("up ") + (key.ctrl ? "Ctrl+" : "") + key.key);
      return false;
    }
  } form_{host_};
  FormWindow window_{form_, nullptr, [](Form&) {}};
};

TEST_F(BinderTest, ShowsAChangeOnceTheLoopTurns) {
  form_.PlotRangeFrom.Text = std::string("17");
  form_.cmdDrawGraph.Enabled = false;
  form_.lblZoomAmount.Caption = std::string("Weite in \xB5s");
  form_.chkQuickGraph.Value = true;
  form_.chkQuickGraph.Caption = std::string("      &Quick ");
  form_.staDataLogViewer.SetPanel(1, "Loading");
  form_.fraPicture.Visible = false;
  form_.Caption = std::string("Tarnview - run.txt");
  EXPECT_EQ(Find<QLineEdit>("PlotRangeFrom").text(), "");
  Settle();
  EXPECT_EQ(Find<QLineEdit>("PlotRangeFrom").text(), "17");
  EXPECT_FALSE(Find<QPushButton>("cmdDrawGraph").isEnabled());
  EXPECT_FALSE(Find<QAction>("tbrDraw").isEnabled()) << "the toolbar's view of the same control";
  EXPECT_EQ(Find<QAction>("tbrDraw").text(), "Draw") << "it keeps its own text";
  EXPECT_EQ(Find<QLabel>("lblZoomAmount").text(), QString::fromUtf8("Weite in \xC2\xB5s"));
  EXPECT_TRUE(Find<QCheckBox>("chkQuickGraph").isChecked());
  EXPECT_EQ(Find<QCheckBox>("chkQuickGraph").text(), "&Quick");
  EXPECT_EQ(Find<QStatusBar>("staDataLogViewer").findChild<QLabel*>()->text(), "Loading");
  EXPECT_FALSE(Find<QWidget>("fraPicture").isVisible());
  EXPECT_EQ(window_.window().windowTitle(), "Tarnview - run.txt");
}

TEST_F(BinderTest, StateWithinADisabledFrameIsNotLost) {
  form_.fraGraphSeriesFrame.Enabled = false;
  Settle();
  form_.cmdZoomOut.Enabled = false;
  Settle();
  form_.fraGraphSeriesFrame.Enabled = true;
  Settle();
  EXPECT_TRUE(Find<QPushButton>("cmdZoomIn").isEnabled());
  EXPECT_FALSE(Find<QPushButton>("cmdZoomOut").isEnabled());
}

TEST_F(BinderTest, TypingAndLeavingAFieldReachesItsControl) {
  std::vector<std::string> events;
  form_.PlotRangeFrom.Change = [&] { events.push_back("change " + form_.PlotRangeFrom.Text()); };
  form_.PlotRangeFrom.LostFocus = [&] {
    events.push_back("left");
    form_.PlotRangeFrom.Text = std::string("9");
  };
  Find<QLineEdit>("PlotRangeFrom").setFocus();
  QTest::keyClicks(&Find<QLineEdit>("PlotRangeFrom"), "12");
  EXPECT_EQ(form_.ActiveControl(), &form_.PlotRangeFrom);
  Find<QLineEdit>("PlotRangeTo").setFocus();
  Settle();
  EXPECT_THAT(events, ElementsAre("change 1", "change 12", "left", "change 9"));
  EXPECT_EQ(Find<QLineEdit>("PlotRangeFrom").text(), "9") << "a correction is shown";
  form_.PlotRangeFrom.SetFocus();
  Settle();
  EXPECT_TRUE(Find<QLineEdit>("PlotRangeFrom").hasFocus());
}

TEST_F(BinderTest, ButtonsMenusAndArrowsReachTheirControls) {
  std::vector<std::string> events;
  form_.cmdZoomIn.Click = Telling(events, "in");
  form_.mnuFileOpen.Click = Telling(events, "open");
  form_.mnuRecentlyUsed(2).Click = Telling(events, "recent 2");
  form_.updYMax.DownClick = Telling(events, "down");
  form_.chkFixY.Click = [&] { events.push_back(form_.chkFixY.Value ? "fixed" : "free"); };
  form_.cboZoomAmount.SetList({"2", "3"});
  form_.cboZoomAmount.Click = [&] { events.push_back("amount " + form_.cboZoomAmount.Text()); };
  Settle();
  Find<QPushButton>("cmdZoomIn").click();
  Find<QAction>("tbrZoomIn").trigger();
  Find<QAction>("tbrOpen").trigger();
  Find<QToolButton>("recentFile2").click();
  Find<UpDownWidget>("updYMax").findChildren<QToolButton*>().last()->click();
  Find<QCheckBox>("chkFixY").click();
  emit Find<QComboBox>("cboZoomAmount").activated(1);
  Press(Qt::Key_L, Qt::ControlModifier);
  EXPECT_THAT(events,
              ElementsAre("in", "in", "open", "recent 2", "down", "fixed", "amount 3", "open"));
  form_.mnuViewZoneInfl.Click = [] {};  // the form decides whether an entry is ticked
  Find<QAction>("mnuViewZoneInfl").trigger();
  Settle();
  EXPECT_FALSE(Find<QAction>("mnuViewZoneInfl").isChecked());
}

TEST_F(BinderTest, AListGoesBothWays) {
  std::vector<std::string> events;
  ListView& list = form_.lvwSampleDetails;
  list.ItemClick = [&](int row) { events.push_back("click " + list.At(row).tag); };
  list.DblClick = [&](int row) { events.push_back("double " + list.At(row).tag); };
  list.ItemCheck = [&](int row) {
    events.push_back("check " + list.At(row).tag);
    if (list.At(row).tag == "a") list.SetChecked(row, false);
  };
  list.SetRows(
      {{{"RPM", "900"}, "a", "", false, 0, 0x0000FF}, {{"MAP", "31"}, "b", "", true, 0, 0x00FF00}});
  list.Select(2);
  Settle();
  auto& tree = Find<QTreeWidget>("lvwSampleDetails");
  ASSERT_EQ(tree.topLevelItemCount(), 2);
  EXPECT_EQ(tree.topLevelItem(0)->text(1), "900");
  EXPECT_TRUE(tree.topLevelItem(0)->textAlignment(1) & Qt::AlignRight);
  EXPECT_EQ(tree.topLevelItem(1)->checkState(0), Qt::Checked);
  EXPECT_EQ(tree.currentItem(), tree.topLevelItem(1));
  EXPECT_THAT(events, ElementsAre()) << "what code sets is no click";

  const QPoint first = tree.visualItemRect(tree.topLevelItem(0)).center();
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, first);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, first);
  tree.topLevelItem(0)->setCheckState(0, Qt::Checked);
  emit tree.itemDoubleClicked(tree.topLevelItem(1), 0);
  emit tree.header()->sectionClicked(0);
  Settle();
  EXPECT_THAT(events, ElementsAre("click a", "click a", "check a", "check a", "double b"));
  EXPECT_EQ(tree.topLevelItem(0)->text(0), "MAP") << "sorted by the heading";
  EXPECT_EQ(tree.topLevelItem(1)->checkState(0), Qt::Unchecked) << "the check was taken back";
}

TEST_F(BinderTest, AScrollBarCountsWhenItsThumbIsLetGo) {
  std::vector<int> values;
  form_.hsbGraphScroll.Max = 1000;
  form_.hsbGraphScroll.LargeChange = 100;
  Settle();
  form_.hsbGraphScroll.Change = [&] { values.push_back(form_.hsbGraphScroll.Value); };
  auto& bar = Find<QScrollBar>("hsbGraphScroll");
  bar.setSliderDown(true);
  bar.setSliderPosition(300);
  Settle();
  EXPECT_THAT(values, ElementsAre());
  bar.setSliderDown(false);
  bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_THAT(values, ElementsAre(300, 400));
  form_.hsbGraphScroll.Value = 50;
  Settle();
  EXPECT_EQ(bar.value(), 50);
  EXPECT_THAT(values, ElementsAre(300, 400, 50)) << "no echo";
  // While it is held it stays in the hand, and is looked at again when that lets go.
  bar.setSliderDown(true);
  form_.hsbGraphScroll.Value = 500;
  form_.lblZoomAmount.Caption = std::string("Zoomed");
  Settle();
  EXPECT_EQ(Find<QLabel>("lblZoomAmount").text(), "Zoomed");
  EXPECT_EQ(bar.value(), 50);
  bar.setSliderDown(false);
  Settle();
  EXPECT_EQ(bar.value(), 500);
}

TEST_F(BinderTest, AFlushEndsThoughSomethingMarksItselfInIt) {
  struct SelfMarking : Adapter {
    SelfMarking(Control& control, QObject* view, Binder& binder) : Adapter(control, view, binder) {}
    void ShowContent() override {
      ++shown;
      if (again) MarkDirty(What::Content);
    }
    int shown = 0;
    bool again = true;
  } marking(form_.lblZoomAmount, &Find<QLabel>("lblZoomAmount"), window_.binder());
  marking.MarkDirty(What::Content);
  window_.binder().Flush();
  const int first = marking.shown;
  EXPECT_GT(first, 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return marking.shown > first; })) << "it is not forgotten";
  marking.again = false;
  window_.binder().Flush();
}

TEST_F(BinderTest, KeysGoThroughTheFormFirst) {
  int draws = 0;
  form_.DefaultButton = &form_.cmdDrawGraph;
  form_.cmdDrawGraph.Click = [&] { ++draws; };
  form_.PlotRangeFrom.Text = std::string("12");
  form_.PlotRangeFrom.SetFocus();
  Settle();
  Press(Qt::Key_End);
  Press(Qt::Key_Left);
  Press(Qt::Key_Backspace);
  EXPECT_EQ(form_.PlotRangeFrom.Text(), "1") << "the form ate Left, so the caret stood at the end";
  Press(Qt::Key_Return);
  EXPECT_EQ(draws, 1);
  form_.keys.clear();
  Press(Qt::Key_O, Qt::ControlModifier);
  // Let go after its modifier, a key counts as it was pressed.
  auto& field = Find<QLineEdit>("PlotRangeFrom");
  QTest::keyPress(&field, Qt::Key_I, Qt::ControlModifier);
  QTest::keyRelease(&field, Qt::Key_I);
  EXPECT_THAT(form_.keys, ElementsAre("Ctrl+O", "up Ctrl+O", "Ctrl+I", "up Ctrl+I"));
}

TEST_F(BinderTest, AClickOnTheChartSelectsTheNearestPoint) {
  ChartDescription data;
  data.x = {0, 10, 10, "#######0"};
  data.y = {0, 10, 10, "#######0"};
  std::get<Curves>(data.kind).series = {{1, "A", {0, 5, 10}, {2, 2, 2}, {}},
                                        {2, "B", {0, 5, 10}, {8, 8, 8}, {}}};
  form_.fraPicture.Visible = false;
  form_.chSampleGraph.SetData(data);
  Settle();
  int rightClicks = 0;
  form_.chSampleGraph.RightClick = [&] { ++rightClicks; };
  auto& chart = Find<ChartWidget>("chSampleGraph");
  const QPoint near(static_cast<int>(chart.xAxis->coordToPixel(5.4)),
                    static_cast<int>(chart.yAxis->coordToPixel(7)));
  QTest::mouseClick(&chart, Qt::LeftButton, {}, near);
  QTest::mouseClick(&chart, Qt::RightButton, {}, near);
  EXPECT_EQ(form_.chSampleGraph.SelectedSeries(), 3);
  EXPECT_EQ(form_.chSampleGraph.SelectedPoint(), 2);
  EXPECT_EQ(rightClicks, 1);
}

TEST_F(BinderTest, TextsOfFilesAreShownAsTheyAre) {
  const QString title = "<img src='x.png'> run[*] \u00E9";
  const std::string text = title.toStdString();
  form_.Caption = text;
  form_.cmdDrawGraph.ToolTip = text;
  form_.lvwSampleDetails.SetRows({{{"RPM", "900"}, "a", text, false, 0, -1}});
  form_.mnuRecentlyUsed(0).Caption = "&1 " + text;
  Settle();
  EXPECT_EQ(window_.window().windowTitle(), "<img src='x.png'> run[*][*] \u00E9")
      << "doubled, the toolkit shows it once";
  const auto shownTip = [](const QString& tip) {
    return QTextDocumentFragment::fromHtml(tip).toPlainText();
  };
  EXPECT_EQ(shownTip(Find<QPushButton>("cmdDrawGraph").toolTip()), title);
  EXPECT_EQ(shownTip(Find<QTreeWidget>("lvwSampleDetails").topLevelItem(0)->toolTip(0)), title);
  EXPECT_EQ(Find<QToolButton>("recentFile0").text(), "&1 " + title);
  form_.cmdDrawGraph.ToolTip = std::string("Draws & shows");
  Settle();
  EXPECT_EQ(Find<QPushButton>("cmdDrawGraph").toolTip(), "Draws & shows");
}

TEST_F(BinderTest, AFieldThatHoldsAPathKeepsItsBytes) {
  Find<QLineEdit>("PlotRangeTo").setFocus();
  form_.PlotRangeFrom.HoldsPath = true;
  form_.PlotRangeFrom.Text = std::string("/caf\xC3\xA9/");
  form_.PlotRangeFrom.SetFocus();
  Settle();
  auto& field = Find<QLineEdit>("PlotRangeFrom");
  EXPECT_EQ(field.text(), QString::fromUtf8("/caf\xC3\xA9/"));
  EXPECT_EQ(field.selectedText(), field.text()) << "the next text typed takes its place";
  QTest::keyClick(&field, Qt::Key_End);
  emit field.textEdited(field.text() + QString::fromUtf8("\xC5\x82"));
  EXPECT_EQ(form_.PlotRangeFrom.Text(), "/caf\xC3\xA9/\xC5\x82") << "a letter beyond Windows-1252";
}

TEST_F(BinderTest, AFrameHasAPictureBehindIt) {
  QTemporaryDir folder;
  const QString path = folder.filePath("red.png");
  QImage red(8, 8, QImage::Format_RGB32);
  red.fill(Qt::red);
  ASSERT_TRUE(red.save(path));
  auto& frame = Find<QWidget>("fraPicture");
  const auto foot = [&] {
    return frame.grab().toImage().pixelColor(frame.width() / 2, frame.height() - 8);
  };
  const QColor bare = foot();
  form_.fraPicture.BackgroundPicture = path.toStdString();
  Settle();
  EXPECT_LT(foot().green(), bare.green() - 50);
  const std::string pipe = folder.filePath("pipe.png").toStdString();
  ASSERT_EQ(std::system(("mkfifo '" + pipe + "'").c_str()), 0);
  form_.fraPicture.BackgroundPicture = pipe;
  Settle();
  EXPECT_EQ(foot(), bare) << "nobody waits for a pipe";
  form_.fraPicture.BackgroundPicture = std::string("/gone.png");
  Settle();
  EXPECT_EQ(foot(), bare);
}

TEST_F(BinderTest, ATimerRunsOnlyWhileItIsEnabled) {
  struct Ticking : Form {
    explicit Ticking(Host& itsHost) : Form(itsHost, "frmTicking", "") {}
    Timer tmrTimer{*this, "tmrTimer", 1};
  } form(host_);
  QWidget window;
  Binder binder(form, window);
  int ticks = 0;
  form.tmrTimer.Tick = [&] { form.tmrTimer.Enabled = ++ticks < 2; };
  QTest::qWait(20);
  EXPECT_EQ(ticks, 0);
  form.tmrTimer.Enabled = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 2; }));
  QTest::qWait(20);
  EXPECT_EQ(ticks, 2);
}

}  // namespace
}  // namespace tarnview
