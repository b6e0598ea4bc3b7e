// What would be sent to the ECU, and every setting: `upload --dry-run` and `options`.

#include "cli/RunCli.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

class UploadCommand : public ::testing::Test {
 protected:
  UploadCommand() {
    folder_.Put("own.ini",
                "[General]\nLog EXE=/link/L.exe\nSerial Com Port=2\nDefault Engine Size=1.8\n"
                "Default Chip Date=2003-06-09\nDefault Chip Version=2\n"
                "Default Atmospheric Pressure=98\nUpload Default 0=1\nUpload Default 1=0\n"
                "Upload Default 2=0\nUpload Default 3=1\n");
    folder_.Put("a.map", Map("1.8", " 012"));
    folder_.Put("b.map", Map("1.8", " 013"));
    folder_.Put("c.map", Map("1.6", " 012"));
  }
  static std::string Map(const std::string& size, const std::string& first) {
    std::string text = first;
    for (int zone = 1; zone < 256; ++zone) text += zone % 16 == 0 ? "\n 012" : " 012";
    return text + "\n Engine Size: " + size +
           "\n Chip Date: 2003-06-09\n Chip Version: 2\n Atmospheric Pressure: 098\n";
  }
  Ran Run(const std::string& line) {
    return RunCli(line + " --settings own.ini", folder_.path.string());
  }

 private:
  ScratchFolder folder_;
};

/// Of the printed map its head, the first zones, how many are sent, and the chip; the command line.
TEST_F(UploadCommand, PrintsTheMapAndTheCommandLine) {
  const auto upload = [&](const TableRow& row) {
    Ran ran = Run("upload " + row.All());
    std::string told;
    for (const std::string& line : Split(ran.out, '\n')) {
      if (line.starts_with(" 01") && told.find(" 01") == told.npos)
        told +=
            line.substr(0, 12) + " of " + std::to_string(SplitAt(ran.out, " 01").size() - 1) + "\n";
      for (const char* kind : {" Tarnview", " Chip", " Atmospheric", "/"})
        if (line.starts_with(kind)) told += line + "\n";
    }
    ran.out = told;
    return ran.Told("all");
  };
  ExpectTable(upload, R"(
a.map --dry-run -> 0  Tarnview MAP File\r/ 012 012 012 of 254/ Chip Date: 2003-06-09\r/ Chip Version: 0\r/ Atmospheric Pressure: 098\r//link/L.exe -q -s -p 2 -v -f TVW.map/
a.map --dry-run --auto-tune fine_no_idle -> 0  Tarnview MAP File\r/ 012 012 012 of 254/ Chip Date: 2003-06-09\r/ Chip Version: 0\r/ Atmospheric Pressure: 098\r//link/L.exe -q -s -p 2 -a fine_no_idle -v -f TVW.map/
b.map --dry-run --compare a.map -> 0  Tarnview MAP File\r/ 013  -1  -1 of 1/ Chip Date: 2003-06-09\r/ Chip Version: 0\r/ Atmospheric Pressure: 098\r//link/L.exe -q -s -p 2 -v -f TVW.map/
b.map --dry-run --compare c.map -> 0  Tarnview MAP File\r/ 013 012 012 of 254/ Chip Date: 2003-06-09\r/ Chip Version: 0\r/ Atmospheric Pressure: 098\r//link/L.exe -q -s -p 2 -v -f TVW.map/; message 21: The Change Comparison File is from a different ECU chip date and/or engine size. A full upload will take place instead.
b.map --dry-run --compare none.map -> 0  Tarnview MAP File\r/ 013 012 012 of 254/ Chip Date: 2003-06-09\r/ Chip Version: 0\r/ Atmospheric Pressure: 098\r//link/L.exe -q -s -p 2 -v -f TVW.map/; message 23: The Change Comparison File does not exist. A full upload will take place instead.
b.map --dry-run --compare "" -> 0  Tarnview MAP File\r/ 013 012 012 of 254/ Chip Date: 2003-06-09\r/ Chip Version: 0\r/ Atmospheric Pressure: 098\r//link/L.exe -q -s -p 2 -v -f TVW.map/; message 23: The Change Comparison File does not exist. A full upload will take place instead.
c.map --dry-run -> 1 ; message 5: Cannot upload Zone Data from a different engine size to your own.
own.ini --dry-run -> 1 ; message 56: That doesn't look like a FM Link MAP File file to me. Please ensure correct file type is chosen when opening a file.
a.map -> 2 ; --dry-run is required
none.map --dry-run -> 2 ; MAP: File does not exist: none.map
)");
}

TEST_F(UploadCommand, AMapHasZonesAlone) {
  const auto run = [&](const TableRow& row) { return Run(row.Text(0)).Told(row.Text(1)); };
  ExpectTable(run, R"(
zones a.map --type 2 --json, /chip -> 0 {"engine_size":1.8,"chip_date":"2003-06-09","chip_version":2,"atmospheric_pressure":98}
zones b.map --type 2 --compare a.map, names /differences/0 -> 0 differences chip_here chip_there {"index":0,"name":"z0","here":"16","there":"15"}
scatter a.map --type 2 --json, all -> 1 
graph a.map --type 2 --json, all -> 1 
table a.map --type 2, all -> 1 
)");
}

TEST_F(UploadCommand, OptionsListEachSetting) {
  const std::string plain = Run("options").out;
  EXPECT_EQ(Run("options --json").out, plain);
  const auto rows = nlohmann::json::parse(plain)["options"];
  EXPECT_EQ(rows.size(), 55u);
  const auto option = [&](const TableRow& key) {
    for (const auto& one : rows)
      if (one["key"] == key.All()) return one.dump();
    return std::string("none");
  };
  ExpectTable(option, R"(
Serial Com Port -> {"control":"frmOptions/txtComPort","default":"1","key":"Serial Com Port","limits":"1 to 9","page":"FM Link ECU","section":"General","value":"2"}
Graph Y Max -> {"control":"frmDataLogViewer/txtYMax","default":"250","key":"Graph Y Max","limits":"10 to 1000","page":"","section":"General","value":"250"}
)");
}

}  // namespace
}  // namespace tarnview
