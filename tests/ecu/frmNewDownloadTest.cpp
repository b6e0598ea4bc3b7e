#include "ecu/EcuTest.h"
#include "ecu/frmNewDownload.h"

namespace tarnview {
namespace {

using NewDownload = EcuTest;

TEST_F(NewDownload, BringsTheNameIntoItsForm) {
  struct Row {
    const char* actions;
    const char* name;
    bool retain, open;
    const char* told;
  };
  const Row rows[] = {
      // clang-format off
      {"type txtFileName run", "run.txt", true, true, ""},
      {"type txtFileName C:\\Logs\\run.dat", "run.txt", true, true, ""},
      {"type txtFileName /logs/a.b.map", "a.b.txt", true, true, ""},
      {"type txtFileName ", "", true, true, ""},
      {"type txtFileName a*b", "a*b", true, true, "box 37 [48]\n"},
      {"type txtFileName a:b\nclick cmdOK", "a:b", true, true, "box 37 [48]\nbox 37 [48]\n"},
      {"type txtFileName run\nclick radFileType(1)", "run.map", false, true, ""},
      {"type txtFileName run\nclick radFileType(1)\nclick radFileType(0)", "run.txt", true, true, ""},
      {"click radFileType(1)", "", false, true, ""},
      {"click cmdOK", "", true, true,
       "box That's an interesting file name.  However, something more practical is required. [64]\n"},
      {"type txtFileName old\nclick cmdOK", "old.txt", true, true, "box File already exists.  Overwrite? [36]\n"},
      {"type txtFileName new\nclick cmdOK", "new.txt", true, false, ""},
      {"type txtFileName new\nclick chkRetainBIN\nclick cmdCancel", "new.txt", true, false, ""},
      // clang-format on
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.actions);
    host.answers = {{Answer::Kind::No}};
    frmNewDownload window(world, {NewFileType::DataLog, "", true});
    window.Show();
    Act(window, row.actions);
    EXPECT_EQ(window.txtFileName.Text(), row.name);
    EXPECT_EQ(window.chkRetainBIN.Enabled(), row.retain);
    EXPECT_EQ(window.IsShown(), row.open);
    EXPECT_EQ(window.Accepted(), !row.open && window.chkRetainBIN.Value());
    EXPECT_EQ(Told(), row.told);
    EXPECT_EQ(window.ActiveControl() == &window.txtFileName, *row.told != 0);
  }
}

TEST_F(NewDownload, TakesAndGivesBackTheThree) {
  frmNewDownload window(world, {NewFileType::ZoneSettings, "2026-11-24a", false});
  EXPECT_TRUE(window.radFileType(1).Value());
  EXPECT_EQ(window.txtFileName.Text(), "2026-11-24a");
  EXPECT_FALSE(window.chkRetainBIN.Enabled());
  window.Show();
  Act(window, "click cmdOK");
  const NewFile chosen = window.Chosen();
  EXPECT_EQ(chosen.type, NewFileType::ZoneSettings);
  EXPECT_EQ(chosen.strFileName, "2026-11-24a.map");
  EXPECT_FALSE(chosen.blnRetain);
}

}  // namespace
}  // namespace tarnview
