#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

#define ASKED "prompt | frmNewDownload | "
#define CLOSED ASKED "close | "
#define LOGGER "run /link/L.exe -t in /link/ | "
#define MAP_LOGGER "run /link/L.exe -m -t in /link/ | "
#define ZONES "user frmNewDownload type txtFileName run, click radFileType(1), click cmdOK; "
#define OVERWRITE "File already exists.  Overwrite?/36 | "

TEST(Capture, GoesFromStepToStep) {
  const Told rows[] = {
      // clang-format off
      {"set Serial Com Port=2; capture; list /; read /logs/run.txt; read /logs/run.bin; read /link/NewDataLogDescription.txt",
       CLOSED "run /link/L.exe -p 2 -t in /link/ | run /mdos/C.exe in /mdos/ | load /logs/run.txt 1 | "
       "/link/L.exe /link/NewDataLogDescription.txt /link/miata.dat /link/miata.map /logs/old.txt /logs/run.bin "
       "/logs/run.txt /mdos/C.exe /mdos/miatatmp.bin /mdos/miatatmp.txt  | text of binary | binary | "
       "[General]\r\nPath and Filename=/logs/run.txt\r\n"},
      {"set Default Working Directory=/logs; set Retain Binary Files=N; exits 0; exits 7; capture; list /logs",
       CLOSED LOGGER "run /mdos/C.exe in /mdos/ | load /logs/run.txt 1 | /logs/old.txt /logs/run.txt "},
      {ZONES "capture; read /logs/run.map; list /logs",
       CLOSED MAP_LOGGER "load /logs/run.map 2 | save /logs/run.map | zones | /logs/old.txt /logs/run.map "},
      {ZONES "fails save; capture", CLOSED MAP_LOGGER "load /logs/run.map 2 | save /logs/run.map | 12/64 | say Loading failed"},
      {ZONES "fails load; capture", CLOSED MAP_LOGGER "load /logs/run.map 2"},
      {ZONES "L nothing; capture", CLOSED MAP_LOGGER "14/48"},
      {"L nothing; capture", CLOSED LOGGER "13/48"},
      {"C nothing; capture; list /logs", CLOSED LOGGER "run /mdos/C.exe in /mdos/ | 25/48 | /logs/old.txt /logs/run.bin "},
      {"exits -22; capture; list /logs", CLOSED LOGGER "Error opening comm port., -22/48 | /logs/old.txt "},
      {"broken /logs/run.txt; capture", CLOSED LOGGER "run /mdos/C.exe in /mdos/ | 38/48"},
      {"broken /logs/run.bin; capture", CLOSED LOGGER "38/48"},
      {"broken /mdos/miatatmp.bin; capture", CLOSED LOGGER "38/48"},
      // The log that is open goes, too, once the user says so.
      {"file /logs/run.txt=open; open /logs/run.txt; answer yes; capture; read /logs/run.txt",
       ASKED OVERWRITE "close | " LOGGER "run /mdos/C.exe in /mdos/ | load /logs/run.txt 1 | text of binary"},
      {"file /logs/run.txt=old; answer no; capture; read /logs/run.txt", ASKED OVERWRITE "stays | old"},
      {"file /logs/run.txt=old; protected /logs/run.txt; capture", ASKED
       "Protected:\r\n/logs/run.txt\r\n\r\nPlease choose another name./48 | stays"},
      {"answer stop; capture; capture; ended; capture", CLOSED LOGGER
       "L.exe was left alone and may still be at work, so nothing is known of its result./48 | prompt | "
       "A program that was left alone is still running.\r\nWait until it has ended, then try again./48 | "
       CLOSED LOGGER "run /mdos/C.exe in /mdos/ | load /logs/run.txt 1"},
      // clang-format on
  };
  ExpectStories(rows);
}

TEST(Capture, IsRefusedBeforeAnythingIsTouched) {
  const std::string touched = "file /link/miata.dat=old; file /mdos/miatatmp.txt=old; ";
  const std::string before = EcuStory().Do(touched + "list /");
  const Told rows[] = {
      {"fails prompt", "prompt"},
      {"gone /link/L.exe; gone /mdos/C.exe", "prompt | 6/64"},
      {"set Log EXE=", "prompt | 6/64"},
      {"gone /mdos/C.exe; set Default Working Directory=/nowhere", "prompt | 11/64"},
      {"set Conversion EXE=", "prompt | 11/64"},
      {"set Default Working Directory=/nowhere", "prompt | 32/48"},
      {"set Default Working Directory=", "prompt | 32/48"},
      {"user frmNewDownload type txtFileName run, click cmdCancel", "prompt | frmNewDownload"},
  };
  for (const Told& row : rows) {
    EcuStory story;
    EXPECT_EQ(story.Do(touched + row.steps + "; capture"), row.told) << row.steps;
    EXPECT_EQ(story.Do("file /link/L.exe=; file /mdos/C.exe=; list /"), before) << row.steps;
  }
}

TEST(Capture, MakesRoomAndGivesItBackWhereTheProgramDoesNotStart) {
  const std::string leftovers =
      "file /link/miata.dat=1; file /link/miata.map=2; file /link/miatatmp.bin=3; "
      "file /link/miatatmp.txt=4; file /mdos/miata.dat=5; file /mdos/miata.map=6; "
      "file /mdos/miatatmp.bin=7; file /mdos/miatatmp.txt=8; file /logs/run.txt=9; ";
  EXPECT_EQ(EcuStory().Do(leftovers + "L nothing; capture; list /"),
            ASKED OVERWRITE "close | " LOGGER
                            "13/48 | /link/L.exe /link/NewDataLogDescription.txt /logs/old.txt "
                            "/mdos/C.exe ");
  EcuStory story;
  const std::string before = story.Do(leftovers + "list /");
  EXPECT_EQ(story.Do("trouble Permission denied; capture"), ASKED OVERWRITE
            "close | " LOGGER "L.exe could not be started:\r\nPermission denied/48");
  EXPECT_EQ(story.Do("gone /link/NewDataLogDescription.txt; list /"), before);
  EXPECT_EQ(story.Do("read /mdos/miatatmp.txt; read /logs/run.txt"), "8 | 9");
}

TEST(Capture, ProposesNamesAndCountsThoseThatWereLoaded) {
  EcuStory story;
  story.Do("set Auto File Names=Y; user frmNewDownload show txtFileName, click cmdOK");
  const auto proposed = [&](const std::string& steps) {
    const std::string told = story.Do(steps + "; capture");
    const std::string window = "frmNewDownload | ";
    const auto from = told.find(window) + window.size();
    return told.substr(from, told.find(' ', from) - from);
  };
  EXPECT_EQ(proposed("gone x"), "2026-11-24a");
  EXPECT_EQ(proposed("gone x"), "2026-11-24b");
  EXPECT_EQ(proposed("file /logs/2026-11-24c.sam=; file /logs/2026-11-24d=; fails load"),
            "2026-11-24e");
  EXPECT_EQ(proposed("gone /logs/2026-11-24e.txt; gone /logs/2026-11-24e.bin"), "2026-11-24e")
      << "the one before was not loaded";
  EXPECT_EQ(proposed("set Auto File Names=N"), "");
  const char* zones =
      "set Auto File Names=Y; capture; gone /logs/2026-11-24a.map; user frmNewDownload "
      "show txtFileName; capture";
  EXPECT_EQ(EcuStory().Do(ZONES + std::string(zones)),
            ASKED "close | " MAP_LOGGER "load /logs/run.map 2 | save /logs/run.map | " ASKED
                  "2026-11-24b | stays");
}

}  // namespace
}  // namespace tarnview
