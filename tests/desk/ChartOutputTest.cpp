#include "desk/ChartCommands.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/Story.h"
#include "ui/ControlArray.h"

namespace tarnview {
namespace {

/// A window that gives its chart away by each of its menu entries.
class ChartOutputTest : public ::testing::Test {
 protected:
  struct Window : Form {
    explicit Window(Host& itsHost) : Form(itsHost, "frmAny", "Any") {}
    Chart chart{*this, "chAny"};
    ControlArray<MenuItem> items{*this, "mnu", UpTo(6), "", ""};
  };
  ChartOutputTest() {
    window.Show();
    const ChartSource source{window.chart,
                             [] {
                               return PrintDetails{" Sample Graph", {{"File", "/logs/run.txt"}}};
                             },
                             [] { return "/logs/run.1.txt"; }, [this] { return drawn; }};
    auto& items = window.items;
    commands.Bind(ChartCommands(
        output, {items(0), items(1), items(2), items(3), items(4), items(5)}, source));
    commands.Update();
    story.Verb("draw", [this](const auto&) {
      drawn = true;
      commands.Update();
    });
    story.Verb("kind", [this](const auto& words) {
      host.answers.push_back({Answer::Kind::File, words.at(0), 0, StringToLong(words.at(1))});
    });
    story.Event("page", [this] {
      std::string told;
      for (; pages_ < host.pages.size(); ++pages_) {
        for (const auto& text : host.pages[pages_].texts) told += text.text + "; ";
        told += std::to_string(host.pages[pages_].pictures.size()) + " picture";
      }
      return told;
    });
    story.Verb("refuse", [this](const auto& words) { host.refusal = words.at(0); });
    story.Event("logged", [this] {
      const std::string text(files.Read("/car/error.log").value_or(""));
      const auto at = text.find("Number", std::exchange(logged_, text.size()));
      return at == text.npos ? "" : text.substr(at, text.find("\r\n\r\n", at) - at);
    });
  }
  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, "/car/error.log"};
  Messages messages{host, [](int) { return ""; }};
  ChartOutput output{host, messages, errors};
  Window window{host};
  Commands commands{errors, "frmAny"};
  bool drawn = false;
  Story story{host};

 private:
  std::size_t pages_ = 0, logged_ = 0;
};

/// Copy twice, print twice, preview, picture.
TEST_F(ChartOutputTest, AChartIsCopiedPrintedAndSaved) {
  EXPECT_STORY(story, R"(
click mnu(0) -> cannot: mnu(0) is disabled
draw -> mnu(0) on, mnu(1) on, mnu(2) on, mnu(3) on, mnu(4) on, mnu(5) on
click mnu(0) -> copied=1
click mnu(1) -> copied=2
answer printer; click mnu(2) -> [printer "" ok], page Tarnview Sample Graph; File : ; /logs/run.txt; 1 picture, pages=1
answer printer; click mnu(3) -> [printer "" ok], page Tarnview Sample Graph; File : ; /logs/run.txt; 1 picture, pages=2
answer cancel; click mnu(3) -> [printer "" cancel]
click mnu(4) -> page Tarnview Sample Graph; File : ; /logs/run.txt; 1 picture, pages=3
# Named after the log, with the ending of the kind that is chosen.
answer ok; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) ok], pictures=/logs/run.1.png
answer file /out/a.svg; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) /out/a.svg], pictures=/logs/run.1.png /out/a.svg
kind /out/b 3; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) /out/b], pictures=/logs/run.1.png /out/a.svg /out/b.pdf
answer cancel; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) cancel]
refuse "The disk is full."; answer file /out/a.png; click mnu(5) -> [save "Save Picture As" of PNG picture (*.png) /out/a.png], [Problem saving the picture /out/a.png.\n\nThe disk is full. ok], logged Number       : 75 The disk is full.
answer printer; click mnu(2) -> [printer "" ok], [Problem printing the graph.\n\nThe disk is full. ok], logged Number       : 482 The disk is full.
)");
}

}  // namespace
}  // namespace tarnview
