// The settings on the command line: read and written whole by `settings`, and kept by `drive` where
// that is wanted.

#include "cli/RunCli.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

TEST(SettingsCommand, ReadsAsAStartAndWritesAsAnEnd) {
  const ScratchFolder folder;
  folder.Put("in.ini",
             "[General]\nZoom Amount=7\nSpeed Graph Window State=2\nSpeed Graph Window Left=-3\n"
             "[Recently Used Files]\nFile 0=|C:\\a.map\nFile 1=3|C:\\b\xE9.dat\n");
  folder.Put("bad.ini", "no settings");
  ExpectRuns(R"(
settings in.ini out.ini, /messages /window_placements /recent -> 0 [] {"Speed Graph":{"state":2,"left":-3,"top":0,"width":8970,"height":4760}} ["2|C:\\a.map","3|C:\\bé.dat"]
settings out.ini again.ini -> 0
settings none.ini lost.ini -> 2; IN.ini: File does not exist: none.ini
settings bad.ini no/such/folder/out.ini, /messages/0/id /messages/1/id -> 1 0 39; message 0: This is no settings file, so every setting has its default: bad.ini
settings bad.ini fresh.ini, /messages -> 0 [{"id":0,"text":"This is no settings file, so every setting has its default:\r\nbad.ini","style":48}]; message 0: This is no settings file, so every setting has its default: bad.ini
)",
             folder.path.string());
  EXPECT_EQ(folder.Get("again.ini"), folder.Get("out.ini"));
  EXPECT_NE(folder.Get("out.ini").find("\r\nZoom Amount=2\r\n"), std::string::npos);
  EXPECT_NE(folder.Get("out.ini").find("File 1=3|C:\\b\xE9.dat\r\n"), std::string::npos);
  EXPECT_EQ(folder.Get("bad.ini"), "no settings");
  EXPECT_FALSE(std::filesystem::exists(folder.Path("bad.ini.bad")));
}

TEST(SettingsCommand, AScriptKeepsItsSettingsWhereItIsTold) {
  const ScratchFolder folder;
  const std::string before = "[General]\r\nQuick Graph=1\r\n";
  folder.Put("in.ini", before);
  folder.Put("script",
             "click chkQuickGraph\ntype cboZoomAmount 30\nopen " TARNVIEW_EXAMPLES "/na.txt 1\n");
  ExpectRuns(R"(
drive script --settings in.ini --write-settings out.ini -> 0
drive script --settings out.ini -> 0
drive script --write-settings no/such/folder/out.ini -> 1; message 39: Problem updating application settings file.
)",
             folder.path.string());
  EXPECT_EQ(folder.Get("in.ini"), before);
  for (const std::string line :
       {"Quick Graph=0", "Zoom Amount=30", "File 0=1|" TARNVIEW_EXAMPLES "/na.txt"})
    EXPECT_NE(folder.Get("out.ini").find(line + "\r\n"), std::string::npos) << line;
}

TEST(DriveCommand, APictureThatCannotBeSavedIsTold) {
  const ScratchFolder folder;
  folder.Put("script", "open " TARNVIEW_EXAMPLES
                       "/utec.csv 6\nclick cmdDrawGraph\n"
                       "answer file /no/such/folder/a.png\nclick mnuFileSavePicture\n");
  EXPECT_TRUE(RunCli("drive script", folder.path.string())
                  .err.starts_with("message 0: Problem saving the picture /no/such/folder/a.png."));
}

}  // namespace
}  // namespace tarnview
