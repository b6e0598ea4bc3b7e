// The windows in which a new file is named and a binary log is converted.

#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

#define PRACTICAL \
  "That's an interesting file name.  However, something more practical is required./64"
#define OVERWRITE "File already exists.  Overwrite?/36"
#define IN_TURN(actions) "user frmNewDownload " actions "; fails load; capture"
#define NEW "prompt | frmNewDownload | "

TEST(NewDownload, BringsTheNameIntoItsForm) {
  const Told rows[] = {
      // clang-format off
      {IN_TURN("type txtFileName run, show txtFileName"), NEW "run.txt | stays"},
      {IN_TURN("type txtFileName C:\\Logs\\run.dat, show txtFileName"), NEW "run.txt | stays"},
      {IN_TURN("type txtFileName /logs/a.b.map, show txtFileName"), NEW "a.b.txt | stays"},
      {IN_TURN("type txtFileName a*b, show txtFileName"), NEW "37/48 | a*b< | stays"},
      {IN_TURN("type txtFileName a:b, click cmdOK, show txtFileName"), NEW "37/48 | 37/48 | a:b< | stays"},
      {IN_TURN("type txtFileName a:b, click cmdCancel"), NEW "37/48"},
      {IN_TURN("type txtFileName run, click radFileType(1), show txtFileName, show chkRetainBIN, click radFileType(0), "
               "show txtFileName, show chkRetainBIN"), NEW "run.map |  not enabled | run.txt |  | stays"},
      {IN_TURN("click radFileType(1), show txtFileName"), NEW " | stays"},
      {IN_TURN("click cmdOK, show txtFileName"), NEW PRACTICAL " | < | stays"},
      {"answer no; " IN_TURN("type txtFileName old, click cmdOK, show txtFileName"), NEW OVERWRITE " | old.txt< | stays"},
      {"set Retain Binary Files=N; " IN_TURN("show chkRetainBIN, show radFileType(0), click cmdCancel"),
       NEW " not checked | "},
      {IN_TURN("tips, click cmdCancel"), NEW "Capture a full data log, Capture just the ECU zone settings, Name of the data log, "
       "Keep the binary file the data logging process generates as well as the final data log"},
      // clang-format on
  };
  ExpectStories(rows);
  const EcuStory story;
  const frmNewDownload map(story.World(), {NewFileType::ZoneSettings, "2026-11-24a", true});
  EXPECT_TRUE(map.radFileType(1).Value() && !map.chkRetainBIN.Enabled());
}

#define CONVERT(actions) "user frmConvertBIN " actions "; convert"
#define GOOD "type txtPath(0) /logs/run.bin, type txtPath(1) /logs/run, "
#define RAN "run /mdos/C.exe in /mdos/ | "
#define WINDOW "frmConvertBIN | "
#define STAYS " | stays | target none"
#define KEPT "file /logs/run.bin=binary; "

TEST(ConvertBIN, GoesFromStepToStep) {
  const Told rows[] = {
      // clang-format off
      {CONVERT("show txtPath(0), show txtPath(1), show chkAutoLoad"), WINDOW " |  | " STAYS},
      {"open C:\\Logs\\a.txt; " CONVERT("show txtPath(0), show txtPath(1)"), WINDOW "C:\\Logs\\ | C:\\Logs\\" STAYS},
      {"open /a/b; set Last Converted Binary File=/old/b.bin; " CONVERT("show txtPath(0)"), WINDOW "/old/" STAYS},
      {CONVERT("tips, click cmdCancel"), WINDOW "Path and File Name of Binary File, Path and File Name of New Data Log, "
       "Click to select the file to load, Click to select the file to load | target none"},
      // A path that is none keeps its text, and the focus.
      {CONVERT("type txtPath(0) /nowhere/*.bin, show txtPath(0)"), WINDOW "36/48 | /nowhere/*.bin<" STAYS},
      {CONVERT("type txtPath(0) run.bin"), WINDOW "36/48" STAYS},
      {CONVERT("type txtPath(0) /logs/ru?.xxx, show txtPath(0)"), WINDOW "37/48 | /logs/ru?.xxx<" STAYS},
      {CONVERT("type txtPath(0) /logs/old.txt"), WINDOW "35/48" STAYS},
      {CONVERT("type txtPath(0) /logs/none.bin"), WINDOW "35/48" STAYS},
      {"file /logs/K.Dat=; " CONVERT("type txtPath(0) /logs/K.Dat, show txtPath(0)"), WINDOW "/logs/K.Dat" STAYS},
      {CONVERT("type txtPath(1) /nowhere/a"), WINDOW "36/48" STAYS},
      {CONVERT("type txtPath(1) /logs/a|b, show txtPath(1)"), WINDOW "37/48 | /logs/a|b<" STAYS},
      {CONVERT("type txtPath(1) /logs/, show txtPath(1)"), WINDOW "37/48 | /logs/<" STAYS},
      {CONVERT("type txtPath(1) /logs/a, show txtPath(1)"), WINDOW "/logs/a.txt" STAYS},
      {CONVERT("type txtPath(1) /logs/a.b.c, show txtPath(1)"), WINDOW "/logs/a.b.txt" STAYS},
      // Nobody is stopped on the way to its own Browse or to Cancel.
      {CONVERT("type txtPath(0) x, click cmdBrowse(0), click cmdCancel"), WINDOW "36/48 | Open from x | target none"},
      {CONVERT("type txtPath(0) x, click cmdBrowse(1), click chkAutoLoad, click cmdOK"),
       WINDOW "36/48 | 36/48 | 36/48 | 36/48" STAYS},
      {"answer /logs/old.txt; answer cancel; answer /logs/b; " CONVERT("click cmdBrowse(0), show txtPath(0), "
       "click cmdBrowse(1), show txtPath(1), click cmdBrowse(1), show txtPath(1)"), WINDOW "Open from  | /logs/old.txt | Save As from  |  | Save As from  | /logs/b" STAYS},
      {"open /logs/b.txt; answer /logs/b.txt; " CONVERT("click cmdBrowse(1), show txtPath(1)"), WINDOW "Save As from /logs/ | /logs/b.txt" STAYS},
      {"protected /logs/b.txt; answer /logs/b.txt; answer cancel; " CONVERT("click cmdBrowse(1), show txtPath(1)"),
       WINDOW "Save As from  | Protected:\r\n/logs/b.txt\r\n\r\nPlease choose another name./48 | Save As from /logs/b.txt | " STAYS},
      // OK.
      {KEPT "file /mdos/miata.map=x; file /link/miata.map=y; convert; read /logs/run.txt; list /; setting Last Converted Binary File",
       WINDOW RAN "target /logs/run.txt | text of binary | /link/L.exe /link/miata.map /logs/old.txt /logs/run.bin "
       "/logs/run.txt /mdos/C.exe /mdos/miatatmp.bin /mdos/miatatmp.txt  | /logs/run.bin"},
      {KEPT "gone /mdos/C.exe; file /logs/run.txt=x; convert", WINDOW "11/64" STAYS},
      {KEPT "file /logs/run.txt=open; open /logs/run.txt; answer no; convert; answer yes; convert; read /logs/run.txt",
       WINDOW OVERWRITE STAYS " | " WINDOW OVERWRITE " | " RAN "target /logs/run.txt | text of binary"},
      {KEPT "C nothing; file /logs/run.txt=x; file /mdos/miatatmp.txt=old; convert; list /logs; setting Last Converted Binary File",
       WINDOW OVERWRITE " | " RAN "25/48 | target none | /logs/old.txt /logs/run.bin  | "},
      {KEPT "exits 5; broken /logs/run.txt; convert", WINDOW RAN "38/48 | target none"},
      {KEPT "broken /mdos/miatatmp.bin; convert", WINDOW "38/48" STAYS},
      {KEPT "answer stop; convert; convert", WINDOW RAN
       "C.exe was left alone and may still be at work, so nothing is known of its result./48 | target none | " WINDOW
       "A program that was left alone is still running.\r\nWait until it has ended, then try again./48" STAYS},
      {KEPT "trouble Exec format error; file /logs/run.txt=x; file /mdos/miatatmp.bin=old; convert; read /logs/run.txt; read /mdos/miatatmp.bin",
       WINDOW OVERWRITE " | " RAN "C.exe could not be started:\r\nExec format error/48" STAYS " | x | old"},
      // What lies among the leftovers is converted and not deleted.
      {"file /mdos/miata.dat=captured; " CONVERT("type txtPath(0) /mdos/miata.dat, type txtPath(1) /logs/run, click cmdOK")
       "; read /logs/run.txt; read /mdos/miata.dat", WINDOW RAN "target /logs/run.txt | text of captured | captured"},
      {"file /mdos/miatatmp.bin=kept; " CONVERT("type txtPath(0) /mdos/miatatmp.bin, type txtPath(1) /logs/run, click cmdOK")
       "; read /logs/run.txt", WINDOW RAN "target /logs/run.txt | text of kept"},
      // clang-format on
  };
  ExpectStories(rows);
  // Enter presses OK with the caret still in the field.
  EcuStory story;
  frmConvertBIN window(story.World(), "");
  window.Show();
  window.txtPath(0).Text = std::string("x");
  window.cmdOK.Press();
  EXPECT_EQ(story.Do("gone x"), "36/48");
}

}  // namespace
}  // namespace tarnview
