#include "desk/ChartCommands.h"
#include "support/DeskTest.h"
#include "ui/ControlArray.h"

namespace tarnview {
namespace {

/// A window that gives its chart away by each of its menu entries.
class ChartOutputTest : public DeskTest {
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
      return at == text.npos ? "" : text.substr(at);
    });
  }
  ChartOutput output{host, messages, errors};
  Window window{host};
  Commands commands{errors, "frmAny"};
  bool drawn = false;

 private:
  std::size_t pages_ = 0, logged_ = 0;
};

/// Copy twice, print twice, preview, picture.
TEST_F(ChartOutputTest, AChartIsCopiedPrintedAndSaved) { EXPECT_STORY(story); }

}  // namespace
}  // namespace tarnview
