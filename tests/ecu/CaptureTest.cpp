#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

TEST(Capture, GoesFromStepToStep) {
  ExpectStories(R"(
set Serial Com Port=2; capture; list /; read /logs/run.txt; read /logs/run.bin; read /link/NewDataLogDescription.txt -> prompt; frmNewDownload; close; run /link/L.exe -p 2 -t in /link/; run /mdos/C.exe in /mdos/; load /logs/run.txt 1; /link/L.exe /link/NewDataLogDescription.txt /link/miata.dat /link/miata.map /logs/old.txt /logs/run.bin /logs/run.txt /mdos/C.exe /mdos/miatatmp.bin /mdos/miatatmp.txt ; text of binary; binary; [General]\nPath and Filename=/logs/run.txt\n
set Default Working Directory=/logs; set Retain Binary Files=N; exits 0; exits 7; capture; list /logs -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/run.txt 1; /logs/old.txt /logs/run.txt 
zones; capture; read /logs/run.map; list /logs -> prompt; frmNewDownload; close; run /link/L.exe -m -t in /link/; load /logs/run.map 2; save /logs/run.map; zones; /logs/old.txt /logs/run.map 
set Serial Com Port=9; zones; capture -> prompt; frmNewDownload; close; run /link/L.exe -m -p 9 -t in /link/; load /logs/run.map 2; save /logs/run.map
zones; fails save; capture -> prompt; frmNewDownload; close; run /link/L.exe -m -t in /link/; load /logs/run.map 2; save /logs/run.map; 12/64; say Loading failed
zones; fails load; capture -> prompt; frmNewDownload; close; run /link/L.exe -m -t in /link/; load /logs/run.map 2
zones; L nothing; capture -> prompt; frmNewDownload; close; run /link/L.exe -m -t in /link/; 14/48
L nothing; capture -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; 13/48
C nothing; capture; list /logs -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; 25/48; /logs/old.txt /logs/run.bin 
exits -22; capture; list /logs -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; Error opening comm port., -22/48; /logs/old.txt 
broken /logs/run.txt; capture -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; 38/48
broken /logs/run.bin; capture -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; 38/48
broken /mdos/miatatmp.bin; capture -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; 38/48
# The log that is open goes, too, once the user says so.
file /logs/run.txt=open; open /logs/run.txt; answer yes; capture; read /logs/run.txt -> prompt; frmNewDownload; File already exists.  Overwrite?/36; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/run.txt 1; text of binary
file /logs/run.txt=old; answer no; capture; read /logs/run.txt -> prompt; frmNewDownload; File already exists.  Overwrite?/36; stays; old
file /logs/run.txt=old; protected /logs/run.txt; capture -> prompt; frmNewDownload; Protected:\n/logs/run.txt\n\nPlease choose another name./48; stays
answer stop; capture; capture; ended; capture -> prompt; frmNewDownload; close; run /link/L.exe -t in /link/; L.exe was left alone and may still be at work, so nothing is known of its result./48; prompt; A program that was left alone is still running.\nWait until it has ended, then try again./48; prompt; frmNewDownload; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/run.txt 1
)");
}

TEST(Capture, IsRefusedBeforeAnythingIsTouched) {
  const std::string touched = "file /link/miata.dat=old; file /mdos/miatatmp.txt=old; ";
  const std::string before = EcuStory().Do(touched + "list /");
  ExpectTable(
      [&](const TableRow& row) {
        EcuStory story;
        const std::string told = InOneLine(story.Do(touched + row.All() + "; capture"));
        EXPECT_EQ(story.Do("file /link/L.exe=; file /mdos/C.exe=; list /"), before) << row.All();
        return told;
      },
      R"(
fails prompt -> prompt
gone /link/L.exe; gone /mdos/C.exe -> prompt; 6/64
set Log EXE= -> prompt; 6/64
gone /mdos/C.exe; set Default Working Directory=/nowhere -> prompt; 11/64
set Conversion EXE= -> prompt; 11/64
set Default Working Directory=/nowhere -> prompt; 32/48
set Default Working Directory= -> prompt; 32/48
user frmNewDownload type txtFileName run, click cmdCancel -> prompt; frmNewDownload
)");
}

TEST(Capture, MakesRoomAndGivesItBackWhereTheProgramDoesNotStart) {
  const std::string leftovers =
      "file /link/miata.dat=1; file /link/miata.map=2; file /link/miatatmp.bin=3; "
      "file /link/miatatmp.txt=4; file /mdos/miata.dat=5; file /mdos/miata.map=6; "
      "file /mdos/miatatmp.bin=7; file /mdos/miatatmp.txt=8; file /logs/run.txt=9; ";
  ExpectTable([&](const TableRow& row) { return InOneLine(EcuStory().Do(leftovers + row.All())); },
              R"(
L nothing; capture; list / -> prompt; frmNewDownload; File already exists.  Overwrite?/36; close; run /link/L.exe -t in /link/; 13/48; /link/L.exe /link/NewDataLogDescription.txt /logs/old.txt /mdos/C.exe 
trouble Permission denied; capture; list /; read /mdos/miatatmp.txt; read /logs/run.txt -> prompt; frmNewDownload; File already exists.  Overwrite?/36; close; run /link/L.exe -t in /link/; L.exe could not be started:\nPermission denied/48; /link/L.exe /link/NewDataLogDescription.txt /link/miata.dat /link/miata.map /link/miatatmp.bin /link/miatatmp.txt /logs/old.txt /logs/run.txt /mdos/C.exe /mdos/miata.dat /mdos/miata.map /mdos/miatatmp.bin /mdos/miatatmp.txt ; 8; 9
)");
}

TEST(Capture, ProposesNamesAndCountsThoseThatWereLoaded) {
  ExpectStories(R"(
# One that was not loaded keeps its number; a name is taken with any extension.
set Auto File Names=Y; user frmNewDownload show txtFileName, click cmdOK; capture; capture; file /logs/2026-11-24c.sam=; file /logs/2026-11-24d=; fails load; capture; gone /logs/2026-11-24e.txt; gone /logs/2026-11-24e.bin; capture; set Auto File Names=N; capture -> prompt; frmNewDownload; 2026-11-24a; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/2026-11-24a.txt 1; prompt; frmNewDownload; 2026-11-24b; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/2026-11-24b.txt 1; prompt; frmNewDownload; 2026-11-24e; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/2026-11-24e.txt 1; prompt; frmNewDownload; 2026-11-24e; close; run /link/L.exe -t in /link/; run /mdos/C.exe in /mdos/; load /logs/2026-11-24e.txt 1; prompt; frmNewDownload; ; That's an interesting file name.  However, something more practical is required./64; stays
set Auto File Names=Y; zones; capture; gone /logs/2026-11-24a.map; user frmNewDownload show txtFileName; capture -> prompt; frmNewDownload; close; run /link/L.exe -m -t in /link/; load /logs/run.map 2; save /logs/run.map; prompt; frmNewDownload; 2026-11-24b; stays
)");
}

}  // namespace
}  // namespace tarnview
