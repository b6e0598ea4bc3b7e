// The main window and the Data Tags window: logs that come and go while it is open.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using DataTags = ProgramFixture;

TEST_F(DataTags, TheWindowOutlivesItsLogAndOpensWhereThereAreTags) {
  files.files["/logs/run.txt"] = SmallLog(60);
  files.files["/logs/other.csv"] =
      std::string_view(*RealFileSystem().Read(TARNVIEW_EXAMPLES "/utec.csv"));
  Start();
  Fact("tags", [this] { return std::to_string(Log().gcolLogTags.Count()); });
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
