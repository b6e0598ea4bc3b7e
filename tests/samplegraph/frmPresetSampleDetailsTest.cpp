#include "samplegraph/frmPresetSampleDetails.h"
#include "support/PresetWindows.h"
#include "support/Story.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class PresetDetailsTest : public PresetWindowsTest {
 protected:
  PresetDetailsTest() {
    preset.strName = "Boost";
    preset.lngLogFamily = 1;
    preset.colDataItems = {5, 3};
    preset.lngGraphMax = 10;
    window.emplace(host, Surroundings(), preset);
    story.Fact("ticked", [this] { return Ticked(); });
    story.Fact("disk", [this] { return Join(files.accesses, ", "); });
    story.PassOver("lvwDataItems");
    window->Show();
  }
  std::string Ticked() const {
    std::vector<std::string> items;
    for (const auto& row : window->lvwDataItems.Rows())
      if (row.checked) items.push_back(row.tag);
    return Join(items, " ");
  }
  void File(const std::string& name, const std::string& lines) {
    files.files[name] = "Preset Sample Graph Details:\n" + lines;
  }

  clsSampleGraphPreset preset;
  std::optional<frmPresetSampleDetails> window;
  Story story{host};
};

TEST_F(PresetDetailsTest, EditsAPreset) {
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story, R"(
show txtName txtYMax chkFixY -> txtName=Boost, txtYMax off, txtYMax=10, chkFixY=Fi&x Graph Max, chkFixY unchecked
sort lvwDataItems Item; double lvwDataItems 20 -> ticked=66 5 3
click chkFixY -> chkFixY checked, txtYMax on
type txtYMax 33 -> txtYMax=35
type txtYMax 0; click chkFixY; click chkFixY -> txtYMax=250
type txtYMax 33; type txtName "  "; click cmdOK -> [41 ok], txtName=  , txtYMax=35
type txtName All -> txtName=All
choose cboLogFamily #5 -> ticked=5 3, cboLogFamily=TurboXS UTEC Data Log
click cmdOK -> -frmPresetSampleDetails
)");
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(window->ColItem().strName, "All");
  EXPECT_EQ(window->ColItem().lngLogFamily, 6);
  EXPECT_EQ(window->ColItem().lngGraphMax, 35);
  EXPECT_TRUE(window->ColItem().blnFixGraphMax);
}

TEST_F(PresetDetailsTest, SavesAndProposesTheSameFileAgain) {
  EXPECT_STORY(story, R"(
# The name is proposed, and then the file used last.
answer no; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? no], [save "Save As" of Preset Sample Graph files (*.sam) ok], disk=write /logs/Boost.sam
answer yes; answer file /p/b.sam; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Sample Graph files (*.sam) /p/b.sam], disk=write /logs/Boost.sam, write /p/b.sam
write txtName a/b; answer yes; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Sample Graph files (*.sam) ok], disk=write /logs/Boost.sam, write /p/b.sam, write /p/b.sam, txtName=a/b
)");
  EXPECT_TRUE(files.files["/logs/Boost.sam"].ends_with(
      "Graph 1 Data Items=5,3\r\nGraph 1 Fix Graph Max=N\r\nGraph 1 Graph Max=10\r\n"));
  EXPECT_TRUE(files.files["/p/b.sam"].ends_with("Graph 1 Log Family=1\r\n"));
  files.failWrites = true;
  EXPECT_STORY(story, R"(
answer yes; answer ok; click cmdSave -> [Do you want to include the Log Family in the preset graph file? yes], [save "Save As" of Preset Sample Graph files (*.sam) ok], [19 ok], disk=write /logs/Boost.sam, write /p/b.sam, write /p/b.sam, write /p/b.sam
)");
}

TEST_F(PresetDetailsTest, LoadsExactlyTheItemsOfAFile) {
  File("/p/a.sam",
       "Graph 1 Name=Knock\nGraph 1 Data Items=20,99,47,21\nGraph 1 Fix Graph Max=Y\n"
       "Graph 1 Graph Max=120");
  File("/p/b.sam", "Graph 1 Name=Other\nGraph 1 Log Family=6");
  EXPECT_STORY(story, R"(
answer file /p/a.sam; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/a.sam], [92 ok], ticked=21 20, disk=read /p/a.sam, txtName=Knock, chkFixY checked, txtYMax on, txtYMax=120
answer file /p/b.sam; answer no; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/b.sam], [The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue? no], disk=read /p/a.sam, read /p/b.sam
answer file /p/b.sam; answer yes; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/b.sam], [The preset graph definition you are loading is for a different Log Family than that\ncurrently selected, and may contain data items that are not relevant.\n\nAre you sure you want to continue? yes], ticked=, disk=read /p/a.sam, read /p/b.sam, read /p/b.sam, txtName=Other, chkFixY unchecked, txtYMax off, txtYMax=0
answer file /p/none.sam; click cmdLoad -> [open "Load" of Preset Sample Graph files (*.sam) /p/none.sam], [58 ok], disk=read /p/a.sam, read /p/b.sam, read /p/b.sam, read /p/none.sam
)");
}

}  // namespace
}  // namespace tarnview
