#include "samplegraph/frmDataTags.h"
#include "support/Story.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

/// The window stays while logs come and go.
class DataTagsTest : public ::testing::Test, protected frmDataTags::MainWindow {
 protected:
  DataTagsTest() {
    const auto whole = [](const std::string& word) { return std::stoi(word); };
    story.Verb("tag", [=, this](const auto& to) { tags.Add(whole(to[0]), whole(to[1])); });
    story.Verb("range", [=, this](const auto& to) { range = {whole(to[1]), whole(to[0])}; });
    story.Verb("no_log", [this](const auto&) {
      window.LogIsClosing();
      tags.RemoveAll();
    });
    story.Verb("follow", [this](const auto&) { window.FollowOpenLog(); });
    story.Verb("open", [this](const auto&) { window.Show(); });
    story.Fact("graph", [this] { return shown; });
    story.Fact("told", [this] { return std::to_string(told); });
    story.Fact("tags", [this] { return Tags(); });
  }
  bool CurrentRange(clsLogTag& tag) const override {
    tag = range;
    return range.ToSequence > 0;
  }
  void ShowRange(const clsLogTag& tag) override {
    shown = std::to_string(tag.FromSequence) + "-" + std::to_string(tag.ToSequence);
  }
  void TagsChanged() override { ++told; }
  std::string Tags() const {
    std::string all;
    for (int n = 1; n <= tags.Count(); ++n)
      all += (n > 1 ? " " : "") + std::to_string(tags.Item(n).FromSequence);
    return all;
  }

  RecordingHost host;
  clsLogTags tags;
  clsLogTag range{0, 0};
  std::string shown;
  int told = 0;
  frmDataTags window{host, tags, *this};
  Story story{host};
};

TEST_F(DataTagsTest, AddsTheRangeShowsItAndDeletesIt) {
  ExpectWhole(window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
}

TEST_F(DataTagsTest, TheTagsOfALogThatIsGoneAreAListOfTheWindowAlone) { EXPECT_STORY(story); }

}  // namespace
}  // namespace tarnview
