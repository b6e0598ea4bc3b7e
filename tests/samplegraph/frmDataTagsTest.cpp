#include <gtest/gtest.h>

#include <optional>

#include "samplegraph/frmDataTags.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class DataTagsTest : public ::testing::Test, protected frmDataTags::MainWindow {
 protected:
  bool CurrentRange(clsLogTag& tag) const override {
    if (range) tag = *range;
    return range.has_value();
  }
  void ShowRange(const clsLogTag& tag) override { shown = tag.FromSequence; }
  void TagsChanged() override {}

  RecordingHost host;
  clsLogTags tags;
  std::optional<clsLogTag> range;
  int shown = 0;
  frmDataTags window{host, tags, *this};
};

TEST_F(DataTagsTest, AddsTheRangeShowsItAndDeletesIt) {
  tags.Add(10, 20);
  window.Show();
  EXPECT_EQ(window.lvwTags.SelectedRow(), 1);
  window.cmdNew.Press();  // no range within the log
  EXPECT_EQ(tags.Count(), 1);
  range = clsLogTag{200, 100};
  window.cmdNew.Press();
  EXPECT_EQ(window.lvwTags.SelectedRow(), 2);
  EXPECT_EQ(window.lvwTags.At(2).texts, (std::vector<std::string>{"100", "200"}));

  window.lvwTags.Do({"double", {"1"}});
  EXPECT_EQ(shown, 10);
  window.lvwTags.Do({"row", {"2"}});
  window.Press({"Enter"});
  EXPECT_EQ(shown, 100);

  window.lvwTags.Do({"row", {"1"}});
  window.cmdDelete.Press();
  EXPECT_EQ(window.lvwTags.At(window.lvwTags.SelectedRow()).texts[0], "100");
  window.cmdDelete.Press();
  EXPECT_FALSE(window.cmdShow.Enabled());
  EXPECT_FALSE(window.cmdDelete.Enabled());
  window.Press({"F1"});
  EXPECT_EQ(host.helpTopics.back(), "DataTags");
  window.Press({"Escape"});
  EXPECT_FALSE(window.IsShown());
}

TEST_F(DataTagsTest, TheTagsOfALogThatIsGoneAreAListOfTheWindowAlone) {
  tags.Add(10, 20);
  tags.Add(30, 40);
  window.Show();
  window.LogIsClosing();
  tags.RemoveAll();
  tags.Add(500, 600);
  window.lvwTags.Do({"double", {"2"}});
  EXPECT_EQ(shown, 30);
  window.cmdDelete.Press();
  EXPECT_EQ(window.lvwTags.Count(), 1);
  EXPECT_EQ(tags.Count(), 1) << "the open log's";
  window.PopulateList(1);
  EXPECT_EQ(window.lvwTags.At(1).texts[0], "500");
  window.LogIsClosing();
  tags.RemoveAll();
  range = clsLogTag{200, 100};
  window.cmdNew.Press();
  EXPECT_EQ(window.lvwTags.Count(), 1) << "a new tag is one of the open log";
  EXPECT_EQ(window.lvwTags.At(1).texts[0], "100");
}

TEST_F(DataTagsTest, ASortedListShowsTheRowsOwnTag) {
  tags.Add(300, 400);
  tags.Add(20, 30);
  window.Show();
  window.lvwTags.Do({"sort", {"From"}});
  window.lvwTags.Do({"double", {"1"}});
  EXPECT_EQ(shown, 20);
}

}  // namespace
}  // namespace tarnview
