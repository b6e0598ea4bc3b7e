#pragma once

#include <string>

#include "base/Text.h"
#include "support/Accept.h"

namespace tarnview {

/// NAME.story beside NAME.cpp: what tests of that source do and what comes of it, each under a line
/// "== TEST", the second of one test under "== TEST 2".
class StoryFile {
 public:
  StoryFile(const std::string& folder, const std::string& source) {
    const auto room = source.rfind('/', source.rfind('/') - 1);
    path_ = folder + source.substr(room, source.rfind('.') - room) + ".story";
    text_ = FileText(path_);
    for (const std::string& line : Split(text_, '\n'))
      if (line.starts_with("== ")) ExpectTest(line.substr(3, line.find(' ', 3) - 3));
  }
  /// Does the story of the test that runs: its `number`th, from 1. With TARNVIEW_ACCEPT=1 the file
  /// takes what came: read the difference.
  template <class Story>
  void Expect(Story& story, int number) {
    std::string heading = "== " + TestName();
    if (number > 1) heading += " " + std::to_string(number);
    heading += "\n";
    const auto at = text_.find(heading);
    ASSERT_NE(at, std::string::npos) << path_ << " without " << heading;
    const auto from = at + heading.size();
    const auto to = std::min(text_.find("\n\n== ", from), text_.size() - 1) + 1;
    const std::string told = text_.substr(from, to - from), came = story.Play(told);
    EXPECT_EQ(came, told) << path_ << ": " << heading;
    if (!std::getenv("TARNVIEW_ACCEPT") || came == told) return;
    std::ofstream(path_, std::ios::binary) << text_.replace(from, to - from, came);
  }

 private:
  /// That a story is of a test that there is: it is played.
  void ExpectTest(const std::string& name) const {
    const auto& all = *::testing::UnitTest::GetInstance();
    int found = 0;
    for (int suite = 0; suite < all.total_test_suite_count(); ++suite)
      for (int n = 0; n < all.GetTestSuite(suite)->total_test_count(); ++n)
        found += all.GetTestSuite(suite)->GetTestInfo(n)->name() == name;
    EXPECT_GT(found, 0) << path_ << ": no test " << name;
  }
  static std::string TestName() {
    return ::testing::UnitTest::GetInstance()->current_test_info()->name();
  }
  std::string path_, text_;
};

}  // namespace tarnview
