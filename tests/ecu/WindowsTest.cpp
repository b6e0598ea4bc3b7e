// The windows in which a new file is named and a binary log is converted.

#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

TEST(NewDownload, BringsTheNameIntoItsForm) {
  ExpectStories(R"(
user frmNewDownload type txtFileName run, show txtFileName; fails load; capture -> prompt; frmNewDownload; run.txt; stays
user frmNewDownload type txtFileName C:\Logs\run.dat, show txtFileName; fails load; capture -> prompt; frmNewDownload; run.txt; stays
user frmNewDownload type txtFileName /logs/a.b.map, show txtFileName; fails load; capture -> prompt; frmNewDownload; a.b.txt; stays
user frmNewDownload type txtFileName a*b, show txtFileName; fails load; capture -> prompt; frmNewDownload; 37/48; a*b<; stays
user frmNewDownload type txtFileName a:b, click cmdOK, show txtFileName; fails load; capture -> prompt; frmNewDownload; 37/48; 37/48; a:b<; stays
user frmNewDownload type txtFileName a:b, click cmdCancel; fails load; capture -> prompt; frmNewDownload; 37/48
user frmNewDownload type txtFileName run, click radFileType(1), show txtFileName, show chkRetainBIN, click radFileType(0), show txtFileName, show chkRetainBIN; fails load; capture -> prompt; frmNewDownload; run.map;  not enabled; run.txt; ; stays
user frmNewDownload click radFileType(1), show txtFileName; fails load; capture -> prompt; frmNewDownload; ; stays
user frmNewDownload click cmdOK, show txtFileName; fails load; capture -> prompt; frmNewDownload; That's an interesting file name.  However, something more practical is required./64; <; stays
answer no; user frmNewDownload type txtFileName old, click cmdOK, show txtFileName; fails load; capture -> prompt; frmNewDownload; File already exists.  Overwrite?/36; old.txt<; stays
set Retain Binary Files=N; user frmNewDownload show chkRetainBIN, show radFileType(0), click cmdCancel; fails load; capture -> prompt; frmNewDownload;  not checked; 
user frmNewDownload whole, click cmdCancel; fails load; capture -> prompt; frmNewDownload
)");
  const EcuStory story;
  const frmNewDownload map(story.World(), {NewFileType::ZoneSettings, "2026-11-24a", true});
  EXPECT_TRUE(map.radFileType(1).Value() && !map.chkRetainBIN.Enabled());
}

TEST(ConvertBIN, GoesFromStepToStep) {
  ExpectStories(R"(
user frmConvertBIN show txtPath(0), show txtPath(1), show chkAutoLoad; convert -> frmConvertBIN; ; ; ; stays; target none
open C:\Logs\a.txt; user frmConvertBIN show txtPath(0), show txtPath(1); convert -> frmConvertBIN; C:\Logs\; C:\Logs\; stays; target none
open /a/b; set Last Converted Binary File=/old/b.bin; user frmConvertBIN show txtPath(0); convert -> frmConvertBIN; /old/; stays; target none
user frmConvertBIN whole, click cmdCancel; convert -> frmConvertBIN; target none
# A path that is none keeps its text, and the focus.
user frmConvertBIN type txtPath(0) /nowhere/*.bin, show txtPath(0); convert -> frmConvertBIN; 36/48; /nowhere/*.bin<; stays; target none
user frmConvertBIN type txtPath(0) run.bin; convert -> frmConvertBIN; 36/48; stays; target none
user frmConvertBIN type txtPath(0) /logs/ru?.xxx, show txtPath(0); convert -> frmConvertBIN; 37/48; /logs/ru?.xxx<; stays; target none
user frmConvertBIN type txtPath(0) /logs/old.txt; convert -> frmConvertBIN; 35/48; stays; target none
user frmConvertBIN type txtPath(0) /logs/none.bin; convert -> frmConvertBIN; 35/48; stays; target none
file /logs/K.Dat=; user frmConvertBIN type txtPath(0) /logs/K.Dat, show txtPath(0); convert -> frmConvertBIN; /logs/K.Dat; stays; target none
user frmConvertBIN type txtPath(1) /nowhere/a; convert -> frmConvertBIN; 36/48; stays; target none
user frmConvertBIN type txtPath(1) /logs/a|b, show txtPath(1); convert -> frmConvertBIN; 37/48; /logs/a|b<; stays; target none
user frmConvertBIN type txtPath(1) /logs/, show txtPath(1); convert -> frmConvertBIN; 37/48; /logs/<; stays; target none
user frmConvertBIN type txtPath(1) /logs/a, show txtPath(1); convert -> frmConvertBIN; /logs/a.txt; stays; target none
user frmConvertBIN type txtPath(1) /logs/a.b.c, show txtPath(1); convert -> frmConvertBIN; /logs/a.b.txt; stays; target none
# Nobody is stopped on the way to its own Browse or to Cancel.
user frmConvertBIN type txtPath(0) x, click cmdBrowse(0), click cmdCancel; convert -> frmConvertBIN; 36/48; Open from x; target none
user frmConvertBIN type txtPath(0) x, click cmdBrowse(1), click chkAutoLoad, click cmdOK; convert -> frmConvertBIN; 36/48; 36/48; 36/48; 36/48; stays; target none
answer /logs/old.txt; answer cancel; answer /logs/b; user frmConvertBIN click cmdBrowse(0), show txtPath(0), click cmdBrowse(1), show txtPath(1), click cmdBrowse(1), show txtPath(1); convert -> frmConvertBIN; Open from ; /logs/old.txt; Save As from ; ; Save As from ; /logs/b; stays; target none
open /logs/b.txt; answer /logs/b.txt; user frmConvertBIN click cmdBrowse(1), show txtPath(1); convert -> frmConvertBIN; Save As from /logs/; /logs/b.txt; stays; target none
protected /logs/b.txt; answer /logs/b.txt; answer cancel; user frmConvertBIN click cmdBrowse(1), show txtPath(1); convert -> frmConvertBIN; Save As from ; Protected:\n/logs/b.txt\n\nPlease choose another name./48; Save As from /logs/b.txt; ; stays; target none
# OK.
file /logs/run.bin=binary; file /mdos/miata.map=x; file /link/miata.map=y; convert; read /logs/run.txt; list /; setting Last Converted Binary File -> frmConvertBIN; run /mdos/C.exe in /mdos/; target /logs/run.txt; text of binary; /link/L.exe /link/miata.map /logs/old.txt /logs/run.bin /logs/run.txt /mdos/C.exe /mdos/miatatmp.bin /mdos/miatatmp.txt ; /logs/run.bin
file /logs/run.bin=binary; gone /mdos/C.exe; file /logs/run.txt=x; convert -> frmConvertBIN; 11/64; stays; target none
file /logs/run.bin=binary; file /logs/run.txt=open; open /logs/run.txt; answer no; convert; answer yes; convert; read /logs/run.txt -> frmConvertBIN; File already exists.  Overwrite?/36; stays; target none; frmConvertBIN; File already exists.  Overwrite?/36; run /mdos/C.exe in /mdos/; target /logs/run.txt; text of binary
file /logs/run.bin=binary; C nothing; file /logs/run.txt=x; file /mdos/miatatmp.txt=old; convert; list /logs; setting Last Converted Binary File -> frmConvertBIN; File already exists.  Overwrite?/36; run /mdos/C.exe in /mdos/; 25/48; target none; /logs/old.txt /logs/run.bin ; 
file /logs/run.bin=binary; exits 5; broken /logs/run.txt; convert -> frmConvertBIN; run /mdos/C.exe in /mdos/; 38/48; target none
file /logs/run.bin=binary; broken /mdos/miatatmp.bin; convert -> frmConvertBIN; 38/48; stays; target none
file /logs/run.bin=binary; answer stop; convert; convert -> frmConvertBIN; run /mdos/C.exe in /mdos/; C.exe was left alone and may still be at work, so nothing is known of its result./48; target none; frmConvertBIN; A program that was left alone is still running.\nWait until it has ended, then try again./48; stays; target none
file /logs/run.bin=binary; trouble Exec format error; file /logs/run.txt=x; file /mdos/miatatmp.bin=old; convert; read /logs/run.txt; read /mdos/miatatmp.bin -> frmConvertBIN; File already exists.  Overwrite?/36; run /mdos/C.exe in /mdos/; C.exe could not be started:\nExec format error/48; stays; target none; x; old
# What lies among the leftovers is converted and not deleted.
file /mdos/miata.dat=captured; user frmConvertBIN type txtPath(0) /mdos/miata.dat, type txtPath(1) /logs/run, click cmdOK; convert; read /logs/run.txt; read /mdos/miata.dat -> frmConvertBIN; run /mdos/C.exe in /mdos/; target /logs/run.txt; text of captured; captured
file /mdos/miatatmp.bin=kept; user frmConvertBIN type txtPath(0) /mdos/miatatmp.bin, type txtPath(1) /logs/run, click cmdOK; convert; read /logs/run.txt -> frmConvertBIN; run /mdos/C.exe in /mdos/; target /logs/run.txt; text of kept
)");
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
