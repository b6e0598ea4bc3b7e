#include <gtest/gtest.h>

#include "desk/StatusArea.h"
#include "support/Accept.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

struct Window : Form {
  explicit Window(Host& itsHost) : Form(itsHost, "frmWindow", "") {}
  StatusBar bar{*this, "bar", 3};
  ProgressBar progress{*this, "progress"};
};
struct Desktop : RecordingHost {
  int paints = 0;
  void Repaint(Form&) override { ++paints; }
};

/// Panels, the bar as far as it is seen, an hourglass, and how often the window was painted.
std::string Told(const Window& window, const Desktop& host) {
  std::string told = window.bar.Panel(1) + "|" + window.bar.Panel(2) + "|" + window.bar.Panel(3);
  if (window.progress.Visible())
    told += " " + std::to_string(window.progress.Value()) + " of " +
            std::to_string(window.progress.Max());
  if (window.Pointer() == MousePointer::Hourglass) told += " hourglass";
  return told + " " + std::to_string(host.paints) + "\n";
}

TEST(StatusArea, WorkThatFailsTakesItsWordAlong) {
  Desktop host;
  std::string told;
  for (const bool fails : {false, true}) {
    Window window(host);
    StatusArea status(window, window.bar, window.progress);
    const auto tell = [&] { told += Told(window, host); };
    status.SayLoaded("1 - 9");
    tell();
    host.events.Run("", "", [&] {
      const AtWork work(window, status);
      status.Say("Drawing");
      status.ShowProgressInStatusBar(10);
      tell();
      status.Progress("Scaling", 4);
      tell();
      status.ProgressFull();
      tell();
      status.ShowProgressInStatusBar(20);
      tell();
      if (fails) throw std::bad_alloc();
    });
    tell();
  }
  ExpectTold(told, R"(||1 - 9 0
Drawing||1 - 9 0 of 10 hourglass 1
Scaling||1 - 9 4 of 10 hourglass 2
Scaling||1 - 9 10 of 10 hourglass 2
Scaling||1 - 9 0 of 20 hourglass 3
Scaling||1 - 9 3
||1 - 9 3
Drawing||1 - 9 0 of 10 hourglass 4
Scaling||1 - 9 4 of 10 hourglass 5
Scaling||1 - 9 10 of 10 hourglass 5
Scaling||1 - 9 0 of 20 hourglass 6
||1 - 9 6
)");
}

}  // namespace
}  // namespace tarnview
