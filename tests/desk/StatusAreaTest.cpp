#include <gtest/gtest.h>

#include "desk/StatusArea.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(StatusArea, WorkThatFailsTakesItsWordAlong) {
  struct Window : Form {
    explicit Window(Host& itsHost) : Form(itsHost, "frmWindow", "") {}
    StatusBar bar{*this, "bar", 3};
    ProgressBar progress{*this, "progress"};
  };
  struct Desktop : RecordingHost {
    int paints = 0;
    void Repaint(Form&) override { ++paints; }
  } host;
  for (const bool fails : {false, true}) {
    Window window(host);
    StatusArea status(window, window.bar, window.progress);
    EXPECT_FALSE(window.progress.Visible());
    host.paints = 0;
    host.events.Run("", "", [&] {
      const AtWork work(window, status);
      status.Say("Drawing");
      status.ShowProgressInStatusBar(10);
      EXPECT_EQ(host.paints, 1);
      status.Progress("Drawing", 4);
      EXPECT_EQ(host.paints, 2) << "each step is seen";
      EXPECT_EQ(window.progress.Value() * 100 + window.progress.Max(), 410);
      EXPECT_EQ(window.Pointer(), MousePointer::Hourglass);
      if (fails) throw std::bad_alloc();
    });
    EXPECT_EQ(window.bar.Panel(1), fails ? "" : "Drawing");
    EXPECT_EQ(window.Pointer(), MousePointer::Default);
    EXPECT_FALSE(window.progress.Visible());
  }
}

}  // namespace
}  // namespace tarnview
