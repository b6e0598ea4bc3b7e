// The main window and the Data Tags window: logs that come and go while it is open.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class DataTags : public ProgramFixture {
 protected:
  DataTags() {
    files.files["/logs/run.txt"] = SmallLog(60);
    files.files["/logs/other.csv"] =
        std::string_view(*RealFileSystem().Read(TARNVIEW_EXAMPLES "/utec.csv"));
    Start();
  }
  void OpenLog(const char* path, int type) {
    Main().LoadDataFile(path, type);
    if (Log().gblnSamplesLoaded) Do("click cmdDrawGraph");
  }
  frmDataTags& Tags() {
    Do("click mnuViewTags");
    return dynamic_cast<frmDataTags&>(*host.Front());
  }
};

TEST_F(DataTags, TheWindowOutlivesItsLog) {
  for (const auto& [path, type] : {std::pair{"/logs/none.txt", 1}, {"/logs/other.csv", 6}}) {
    OpenLog("/logs/run.txt", 1);
    Do("click mnuViewNewDataTag");
    frmDataTags& window = Tags();
    ASSERT_EQ(window.lvwTags.Count(), 1) << path;
    OpenLog(path, type);
    window.cmdShow.Press();
    window.cmdNew.Press();
    window.cmdDelete.Press();
    window.cmdDelete.Press();
    EXPECT_EQ(Log().gcolLogTags.Count(), 0) << path;
    window.Unload();
  }
}

TEST_F(DataTags, OpenForEveryFamilyThatHasOne) {
  const auto mayOpen = [&](const char* path, int type) {
    OpenLog(path, type);
    return Main().mnuViewTags.Enabled();
  };
  EXPECT_TRUE(mayOpen("/logs/run.txt", 1));
  EXPECT_FALSE(mayOpen("/logs/none.txt", 1));
  EXPECT_FALSE(mayOpen("/logs/other.csv", 6));
  Do("click mnuViewNewDataTag");
  ASSERT_TRUE(Main().mnuViewTags.Enabled());
  Tags().cmdDelete.Press();
  EXPECT_FALSE(Main().mnuViewTags.Enabled());
}

}  // namespace
}  // namespace tarnview
