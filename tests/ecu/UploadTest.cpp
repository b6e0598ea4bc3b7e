#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

TEST(Upload, GoesFromStepToStep) {
  ExpectStories(R"(
upload; left; read /link/vstrUploadCommand.txt; list /logs/Uploads -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720; Tarnview Upload Command File\n\n/link/L.exe -q -s -c -f TVW.map\n; /logs/Uploads/TVW 2026-11-24 14-05-09.map 
set Serial Com Port=3; user frmUpload click chkOption(0), click chkOption(1), click chkOption(3), choose cboAutoTune Fine With Idle, click cmdOK; upload -> frmUpload; frmUploadConf; run /link/L.exe -q -p 3 -a fine_with_idle -v -f TVW.map in /link/
user frmUpload click chkOption(1), choose cboAutoTune Coarse No Idle, click cmdOK; upload -> frmUpload; frmUploadConf; run /link/L.exe -q -s -a coarse_no_idle -f TVW.map in /link/
user frmUpload click chkOption(0), choose cboAutoTune Fine No Idle, click cmdOK; upload -> frmUpload; frmUploadConf; run /link/L.exe -q -c -a fine_no_idle -f TVW.map in /link/
# What ends it before anything is touched.
form 1.6 2003-06-09; gone /link/L.exe; upload -> 6/64
form 1.6 2003-06-09; file /link/TVW.map=x; upload; read /link/TVW.map -> 5/64; x
file /link/TVW.map=x; user frmUpload click cmdCancel; upload; read /link/TVW.map -> frmUpload; x
broken /link/TVW.map; upload -> frmUpload; Problem creating temporary MAP file (/link/TVW.map)./48
user frmUploadConf click cmdNo; upload; list /logs -> frmUpload; frmUploadConf; /logs/old.txt 
user frmUploadConf whole, show cmdYes; upload -> frmUpload; frmUploadConf; ; stays
# Measured against a comparison.
user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; upload; left -> frmUpload; 23/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720
user frmUpload click chkOption(2), click cmdOK; upload -> frmUpload; 23/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/
user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; file /logs/b.map=; upload; left -> frmUpload; compare /logs/b.map; 22/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720
user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; file /logs/b.map=; comparison 1.6 2003-06-09; upload; left -> frmUpload; compare /logs/b.map; 21/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720
user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; file /logs/b.map=; comparison 1.8 2003-06-08; upload; left -> frmUpload; compare /logs/b.map; 21/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720
user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; file /logs/b.map=; comparison 1.8 2003-06-10; upload; left -> frmUpload; compare /logs/b.map; 21/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720
user frmUpload click chkOption(2), choose lstCCF #1, click cmdOK; file /logs/b.map=; comparison 1.8 2003-06-09; upload; left -> frmUpload; compare /logs/b.map; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; all but z1 z875
# Chips from 1 March 2001 on measure the intake air.
form 1.8 2001-02-28; upload; left -> frmUpload; 28/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z4 z720 z860 z865 z870 z875
form 1.8 2001-03-01; upload; left -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; z720
set Default Chip Date=2001-02-28; form 1.8 2001-03-01; upload -> frmUpload; 28/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/
set Default Chip Date=2001-02-28; form 1.8 2000-01-01; upload -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/
# Offered again until it goes well or the user has enough; the same map is kept once.
exits -25; exits -38; exits 0; upload; list /logs/Uploads -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; Zone map verification failed., -25/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; Unknown Error, -38/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; /logs/Uploads/TVW 2026-11-24 14-05-09.map 
trouble Permission denied; user frmUploadConf click cmdYes then click cmdYes then click cmdNo; upload -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; L.exe could not be started:\nPermission denied/48; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; L.exe could not be started:\nPermission denied/48; frmUploadConf
answer stop; upload; upload; ended; upload -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; L.exe was left alone and may still be at work, so nothing is known of its result./48; A program that was left alone is still running.\nWait until it has ended, then try again./48; frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/
set Default Working Directory=; upload; list /logs -> frmUpload; frmUploadConf; run /link/L.exe -q -s -c -f TVW.map in /link/; /logs/old.txt 
broken /logs/Uploads/TVW 2026-11-24 14-05-09.map; upload -> frmUpload; frmUploadConf; No copy of the map could be kept in:\n/logs/Uploads/48; run /link/L.exe -q -s -c -f TVW.map in /link/
broken /logs/Uploads/; upload -> frmUpload; frmUploadConf; No copy of the map could be kept in:\n/logs/Uploads/48; run /link/L.exe -q -s -c -f TVW.map in /link/
# Its window begins with the user's defaults; the comparison goes with its box.
set Upload Default 0=0; set Upload Default 2=1; set Upload Default 3=1; answer /logs/c.map; user frmUpload show chkOption(0), show chkOption(1), show chkOption(2), show chkOption(3), show cboAutoTune, click cmdCCF, show txtCCF, choose lstCCF #0, show txtCCF, click chkOption(2), show txtCCF, show lstCCF, show cmdCCF, show lblCCF, click cmdCancel; upload -> frmUpload;  not checked; ; ; ; None; Open from /logs/; /logs/c.map; /logs/a.txt;  not enabled/logs/a.txt;  not enabled/logs/a.txt;  not enabled;  not enabledC&hange Comparison File
user frmUploadConf show lblChipDate, show lblEngineSize, click cmdNo; upload -> frmUpload; frmUploadConf; 09-Jun-2003; 1.8
user frmUpload whole, click cmdCancel; upload -> frmUpload
)");
}

TEST(Upload, WritesTheMapOfTheUsersOwnChip) {
  EcuStory story;
  story.Do("set Default Chip Version=3; upload");
  const std::string map = InOneLine(story.Do("read /link/TVW.map"));
  ExpectTold(
      map.substr(0, map.find(" 000")) + "..." + map.substr(map.find(" Engine")),
      R"( Tarnview MAP File\n File Created: 24-Nov-2026 14:05\n\n... Engine Size: 1.8\n Chip Date: 2003-06-09\n Chip Version: 0\n Atmospheric Pressure: 098\n Notes:\n\n End Of Notes\n)");
}

TEST(Upload, KeepsTheLastFiftyMaps) {
  // "YEAR; STEPS": with fifty maps of that year. One of a clock that was years ahead is later.
  ExpectTable(
      [](const TableRow& row) {
        const std::string uploads = "/logs/Uploads/";
        EcuStory story;
        story.Do("file " + uploads + "mine.map=; file " + uploads + "TVW.map=");
        for (int n = 10; n < 60; ++n)
          story.Do("file " + uploads + "TVW " + row.Text(0) + "-01-01 00-00-" + std::to_string(n) +
                   ".map=");
        story.Do(row.Text(1));
        return Join(
            SplitAt(story.Do("list " + uploads), uploads + "TVW " + row.Text(0) + "-01-01 00-00-"),
            "");
      },
      R"(
2025, upload; upload -> 12.map 13.map 14.map 15.map 16.map 17.map 18.map 19.map 20.map 21.map 22.map 23.map 24.map 25.map 26.map 27.map 28.map 29.map 30.map 31.map 32.map 33.map 34.map 35.map 36.map 37.map 38.map 39.map 40.map 41.map 42.map 43.map 44.map 45.map 46.map 47.map 48.map 49.map 50.map 51.map 52.map 53.map 54.map 55.map 56.map 57.map 58.map 59.map /logs/Uploads/TVW 2026-11-24 14-05-09 (2).map /logs/Uploads/TVW 2026-11-24 14-05-09.map /logs/Uploads/TVW.map /logs/Uploads/mine.map 
2031, upload -> /logs/Uploads/TVW 2026-11-24 14-05-09.map 11.map 12.map 13.map 14.map 15.map 16.map 17.map 18.map 19.map 20.map 21.map 22.map 23.map 24.map 25.map 26.map 27.map 28.map 29.map 30.map 31.map 32.map 33.map 34.map 35.map 36.map 37.map 38.map 39.map 40.map 41.map 42.map 43.map 44.map 45.map 46.map 47.map 48.map 49.map 50.map 51.map 52.map 53.map 54.map 55.map 56.map 57.map 58.map 59.map /logs/Uploads/TVW.map /logs/Uploads/mine.map 
)");
}

}  // namespace
}  // namespace tarnview
