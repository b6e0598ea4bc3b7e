#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

#define RUN "run /link/L.exe -q -s -c -f TVW.map in /link/"
#define SENT "frmUploadConf | " RUN
#define ALL "frmUpload | " SENT
#define CHANGES "user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; "
#define COMPARED "frmUpload | compare /logs/b.map | "
#define REFUSED "L.exe could not be started:\r\nPermission denied/48 | "

TEST(Upload, GoesFromStepToStep) {
  const Told rows[] = {
      // clang-format off
      {"upload; left; read /link/vstrUploadCommand.txt; list /logs/Uploads",
       ALL " | z720 | Tarnview Upload Command File\r\n\r\n/link/L.exe -q -s -c -f TVW.map\r\n | "
       "/logs/Uploads/TVW 2026-11-24 14-05-09.map "},
      {"set Serial Com Port=3; user frmUpload click chkOption(0), click chkOption(1), click chkOption(3), "
       "choose cboAutoTune Fine With Idle, click cmdOK; upload",
       "frmUpload | frmUploadConf | run /link/L.exe -q -p 3 -a fine_with_idle -v -f TVW.map in /link/"},
      // What ends it before anything is touched.
      {"form 1.6 2003-06-09; gone /link/L.exe; upload", "6/64"},
      {"form 1.6 2003-06-09; file /link/TVW.map=x; upload; read /link/TVW.map", "5/64 | x"},
      {"file /link/TVW.map=x; user frmUpload click cmdCancel; upload; read /link/TVW.map", "frmUpload | x"},
      {"broken /link/TVW.map; upload", "frmUpload | Problem creating temporary MAP file (/link/TVW.map)./48"},
      {"user frmUploadConf click cmdNo; upload; list /logs", "frmUpload | frmUploadConf | /logs/old.txt "},
      {"user frmUploadConf show cmdYes; upload", "frmUpload | frmUploadConf |  | stays"},
      // Measured against a comparison.
      {CHANGES "upload; left", "frmUpload | 23/48 | " SENT " | z720"},
      {"user frmUpload click chkOption(2), click cmdOK; upload", "frmUpload | 23/48 | " SENT},
      {CHANGES "file /logs/b.map=; upload; left", COMPARED "22/48 | " SENT " | z720"},
      {CHANGES "file /logs/b.map=; comparison 1.6 2003-06-09; upload; left", COMPARED "21/48 | " SENT " | z720"},
      {CHANGES "file /logs/b.map=; comparison 1.8 2003-06-08; upload; left", COMPARED "21/48 | " SENT " | z720"},
      {CHANGES "file /logs/b.map=; comparison 1.8 2003-06-10; upload; left", COMPARED "21/48 | " SENT " | z720"},
      {CHANGES "file /logs/b.map=; comparison 1.8 2003-06-09; upload; left", COMPARED SENT " | all but z1 z875"},
      // Chips from 1 March 2001 on measure the intake air.
      {"form 1.8 2001-02-28; upload; left", "frmUpload | 28/48 | " SENT " | z4 z720 z860 z865 z870 z875"},
      {"form 1.8 2001-03-01; upload; left", ALL " | z720"},
      {"set Default Chip Date=2001-02-28; form 1.8 2001-03-01; upload", "frmUpload | 28/48 | " SENT},
      {"set Default Chip Date=2001-02-28; form 1.8 2000-01-01; upload", ALL},
      // Offered again until it goes well or the user has enough; the same map is kept once.
      {"exits -25; exits -38; exits 0; upload; list /logs/Uploads",
       ALL " | Zone map verification failed., -25/48 | " SENT " | Unknown Error, -38/48 | " SENT
       " | /logs/Uploads/TVW 2026-11-24 14-05-09.map "},
      {"trouble Permission denied; user frmUploadConf click cmdYes then click cmdYes then click cmdNo; upload",
       ALL " | " REFUSED SENT " | " REFUSED "frmUploadConf"},
      {"answer stop; upload; upload; ended; upload",
       ALL " | L.exe was left alone and may still be at work, so nothing is known of its result./48 | "
       "A program that was left alone is still running.\r\nWait until it has ended, then try again./48 | "
       ALL},
      {"set Default Working Directory=; upload; list /logs", ALL " | /logs/old.txt "},
      {"broken /logs/Uploads/TVW 2026-11-24 14-05-09.map; upload",
       "frmUpload | frmUploadConf | No copy of the map could be kept in:\r\n/logs/Uploads/48 | " RUN},
      {"broken /logs/Uploads/; upload",
       "frmUpload | frmUploadConf | No copy of the map could be kept in:\r\n/logs/Uploads/48 | " RUN},
      // Its window begins with the user's defaults; the comparison goes with its box.
      {"set Upload Default 0=0; set Upload Default 2=1; set Upload Default 3=1; answer /logs/c.map; user frmUpload "
       "show chkOption(0), show chkOption(1), show chkOption(2), show chkOption(3), show cboAutoTune, click cmdCCF, "
       "show txtCCF, choose lstCCF #0, show txtCCF, click chkOption(2), show txtCCF, show lstCCF, show cmdCCF, "
       "show lblCCF, click cmdCancel; upload",
       "frmUpload |  not checked |  |  |  | None | Open from /logs/ | /logs/c.map | /logs/a.txt |  not enabled/logs/a.txt |  not enabled/logs/a.txt |  not enabled |  not enabledC&hange Comparison File"},
      {"user frmUploadConf show lblChipDate, show lblEngineSize, click cmdNo; upload",
       "frmUpload | frmUploadConf | 09-Jun-2003 | 1.8"},
      {"user frmUpload tips, click cmdCancel; upload", "frmUpload | Check to save the uploaded settings into the Link permanently, "
       "Check to verify settings reached the ECU after upload, Check to only upload the changed zones to the ECU, "
       "Check to show more information during the upload at the expense of upload time, Path and file name of change comparison file"},
      // clang-format on
  };
  ExpectStories(rows);
}

TEST(Upload, WritesTheMapOfTheUsersOwnChip) {
  const std::string map = EcuStory()
                              .Do("set Default Chip Version=3; upload; read /link/TVW.map")
                              .substr(sizeof ALL + 2);
  EXPECT_EQ(map.substr(0, map.find(" 000")),
            " Tarnview MAP File\r\n File Created: 24-Nov-2026 14:05\r\n\r\n");
  EXPECT_EQ(map.substr(map.find(" Engine")),
            " Engine Size: 1.8\r\n Chip Date: 2003-06-09\r\n Chip Version: 0\r\n Atmospheric "
            "Pressure: 098\r\n Notes:\r\n\r\n End Of Notes\r\n");
}

TEST(Upload, KeepsTheLastFiftyMaps) {
  const std::string uploads = "/logs/Uploads/", old = uploads + "TVW 2025-01-01 00-00-";
  EcuStory story;
  story.Do("file " + uploads + "mine.map=; file " + uploads + "TVW.map=");
  for (int n = 10; n < 60; ++n) story.Do("file " + old + std::to_string(n) + ".map=");
  story.Do("upload; upload");
  EXPECT_EQ(story.Do("list " + old + "1"), old + "12.map " + old + "13.map " + old + "14.map " +
                                               old + "15.map " + old + "16.map " + old + "17.map " +
                                               old + "18.map " + old + "19.map ");
  EXPECT_EQ(
      story.Do("list " + uploads + "TVW 2026; list " + uploads + "m; list " + uploads + "TVW."),
      uploads + "TVW 2026-11-24 14-05-09 (2).map " + uploads + "TVW 2026-11-24 14-05-09.map  | " +
          uploads + "mine.map  | " + uploads + "TVW.map ");
  // A clock that was years ahead made all others later.
  EcuStory late;
  for (int n = 10; n < 60; ++n)
    late.Do("file " + uploads + "TVW 2031-01-01 00-00-" + std::to_string(n) + ".map=");
  EXPECT_EQ(late.Do("upload; list " + uploads + "TVW 2026"),
            ALL " | " + uploads + "TVW 2026-11-24 14-05-09.map ");
  EXPECT_EQ(late.Do("list " + uploads + "TVW 2031-01-01 00-00-1").find("10.map"),
            std::string::npos);
}

}  // namespace
}  // namespace tarnview
