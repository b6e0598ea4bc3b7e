#include <gmock/gmock.h>

#include "app/MainWindowControls.h"
#include "qt/ScreenStory.h"
#include "qt/binder/Binder.h"
#include "qt/binder/UpDownWidget.h"
#include "qt/chart/ChartWidget.h"
#include "qt/host/FormWindow.h"
#include "ui/Timer.h"

namespace tarnview {
namespace {

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
    return story_.Find<Widget>(name);
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
  ScreenStory story_{form_, host_, window_.window()};
};

TEST_F(BinderTest, ShowsAChangeOnceTheLoopTurns) {
  story_.Verb("code", [&](const auto&) {
    form_.PlotRangeFrom.Text = std::string("17");
    form_.cmdDrawGraph.Enabled = false;
    form_.lblZoomAmount.Caption = std::string("Weite in \xB5s");
    form_.chkQuickGraph.Value = true;
    form_.chkQuickGraph.Caption = std::string("      &Quick ");
    form_.staDataLogViewer.SetPanel(1, "Loading");
    form_.fraPicture.Visible = false;
    form_.Caption = std::string("Tarnview - run.txt");
    EXPECT_EQ(Find<QLineEdit>("PlotRangeFrom").text(), "");
  });
  story_.PassOver("lblZoomAmount");  // its own bytes: the screen tells them
  EXPECT_STORY(story_);
  EXPECT_EQ(Find<QStatusBar>("staDataLogViewer").findChild<QLabel*>()->text(), "Loading");
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
  form_.PlotRangeFrom.LostFocus = [&] { form_.PlotRangeFrom.Text = std::string("9"); };
  EXPECT_STORY(story_);
}

TEST_F(BinderTest, ButtonsMenusAndArrowsReachTheirControls) {
  story_.Hear(&CommandButton::Click);
  story_.Hear(&MenuItem::Click);
  story_.Hear(&UpDown::DownClick);
  form_.cboZoomAmount.SetList({"2", "3"});
  story_.Hand("down", [&](const auto&) {
    Find<UpDownWidget>("updYMax").findChildren<QToolButton*>().last()->click();
  });
  story_.Hand("amount", [&](const auto&) { emit Find<QComboBox>("cboZoomAmount").activated(1); });
  EXPECT_STORY(story_);
}

TEST_F(BinderTest, AListGoesBothWays) {
  ListView& list = form_.lvwSampleDetails;
  const auto tell = [&](const std::string& what) {
    return [&, what](int row) { story_.raised.push_back(what + list.At(row).tag); };
  };
  list.ItemClick = tell("click ");
  list.DblClick = tell("double ");
  list.ItemCheck = tell("check ");
  list.ItemCheck += [&](int row) {
    if (list.At(row).tag == "a") list.SetChecked(row, false);
  };
  auto& tree = Find<QTreeWidget>("lvwSampleDetails");
  story_.Hand("code", [&](const auto&) {
    list.SetRows({{{"RPM", "900"}, "a", "", false, 0, 0x0000FF},
                  {{"MAP", "31"}, "b", "", true, 0, 0x00FF00}});
    list.Select(2);
  });
  story_.Hand("tick", [&](const auto&) { tree.topLevelItem(0)->setCheckState(0, Qt::Checked); });
  story_.Hand("heading", [&](const auto&) { emit tree.header()->sectionClicked(0); });
  EXPECT_STORY(story_);
  EXPECT_TRUE(tree.topLevelItem(0)->textAlignment(1) & Qt::AlignRight);
}

TEST_F(BinderTest, AScrollBarCountsWhenItsThumbIsLetGo) {
  form_.hsbGraphScroll.Max = 1000;
  form_.hsbGraphScroll.LargeChange = 100;
  Settle();
  story_.Hear(&ScrollBar::Change);
  auto& bar = Find<QScrollBar>("hsbGraphScroll");
  story_.Hand("hold", [&](const auto&) { bar.setSliderDown(true); });
  story_.Hand("drag", [&](const auto& to) { bar.setSliderPosition(StringToLong(to[0])); });
  story_.Hand("release", [&](const auto&) { bar.setSliderDown(false); });
  story_.Hand("page", [&](const auto&) { bar.triggerAction(QScrollBar::SliderPageStepAdd); });
  EXPECT_STORY(story_);
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
  form_.DefaultButton = &form_.cmdDrawGraph;
  story_.Hear(&CommandButton::Click);
  story_.Event("keys", [&] { return Join(std::exchange(form_.keys, {}), ", "); });
  story_.Hand("late", [&](const auto&) {
    auto& field = Find<QLineEdit>("PlotRangeFrom");
    QTest::keyPress(&field, Qt::Key_I, Qt::ControlModifier);
    QTest::keyRelease(&field, Qt::Key_I);
  });
  EXPECT_STORY(story_);
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
  const QPointF near(chart.xAxis->coordToPixel(5.4), chart.yAxis->coordToPixel(7));
  QTest::mouseClick(&chart, Qt::LeftButton, {}, near.toPoint());
  QTest::mouseClick(&chart, Qt::RightButton, {}, near.toPoint());
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
  form_.PlotRangeFrom.HoldsPath = true;
  EXPECT_STORY(story_);
}

TEST_F(BinderTest, AFrameHasAPictureBehindIt) {
  const QTemporaryDir folder;
  QImage red(8, 8, QImage::Format_RGB32);
  red.fill(Qt::red);
  const QString picture = folder.filePath("red.png"), pipe = folder.filePath("pipe.png");
  ASSERT_TRUE(red.save(picture));
  ASSERT_EQ(mkfifo(pipe.toStdString().c_str(), 0600), 0);
  auto& frame = Find<QWidget>("fraPicture");
  const auto foot = [&](const QString& path) {
    form_.fraPicture.BackgroundPicture = path.toStdString();
    Settle();
    return frame.grab().toImage().pixelColor(frame.width() / 2, frame.height() - 8);
  };
  const QColor bare = foot("");
  EXPECT_LT(foot(picture).green(), bare.green() - 50);
  EXPECT_EQ(foot(pipe), bare) << "nobody waits for a pipe";
  EXPECT_LT(foot(picture).green(), bare.green() - 50);
  EXPECT_EQ(foot("/gone.png"), bare);
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
