// What would be sent to the ECU, and every setting: `upload --dry-run` and `options`.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/Commands.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

class UploadCommand : public ::testing::Test {
 protected:
  UploadCommand() {
    Put("own.ini",
        "[General]\nLog EXE=/link/L.exe\nSerial Com Port=2\nDefault Engine Size=1.8\nDefault Chip "
        "Date=2003-06-09\n"
        "Default Chip Version=2\nDefault Atmospheric Pressure=98\nUpload Default 1=0\n");
    Put("a.map", Map(1.8, 12));
    Put("b.map", Map(1.8, 12, " 013"));
    Put("c.map", Map(1.6, 12));
  }

  static std::string Map(double size, int value, const std::string& first = " 012") {
    std::string text;
    for (int row = 0; row < 16; ++row) {
      for (int column = 0; column < 16; ++column)
        text += row + column == 0 ? first : " 0" + std::to_string(value);
      text += "\n";
    }
    return text + " Engine Size: " + (size == 1.8 ? "1.8" : "1.6") +
           "\n Chip Date: 2003-06-09\n Chip Version: 2\n Atmospheric Pressure: 098\n";
  }
  std::string Path(const std::string& name) const { return folder_.Path(name); }
  void Put(const std::string& name, const std::string& text) { folder_.Put(name, text); }
  int Run(std::vector<std::string> words) {
    words.insert(words.end(), {"--settings", Path("own.ini")});
    std::vector<const char*> arguments{"tarnview-cli"};
    for (const auto& word : words) arguments.push_back(word.c_str());
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    const int status = RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
    out = ::testing::internal::GetCapturedStdout();
    err = ::testing::internal::GetCapturedStderr();
    return status;
  }
  std::string LastLine() const { return out.substr(out.rfind('\n', out.size() - 2) + 1); }

  std::string out, err;

 private:
  ScratchFolder folder_;
};

TEST_F(UploadCommand, PrintsTheMapAndTheCommandLine) {
  ASSERT_EQ(Run({"upload", Path("a.map"), "--dry-run"}), kDone);
  EXPECT_EQ(LastLine(), "/link/L.exe -q -s -p 2 -f TVW.map\n");
  EXPECT_EQ(out.find(" Tarnview MAP File\r\n"), 0u);
  EXPECT_NE(out.find("\r\n Chip Version: 0\r\n Atmospheric Pressure: 098\r\n"), std::string::npos);
  EXPECT_EQ(err, "");
  ASSERT_EQ(Run({"upload", Path("a.map"), "--dry-run", "--auto-tune", "fine_no_idle"}), kDone);
  EXPECT_EQ(LastLine(), "/link/L.exe -q -s -p 2 -a fine_no_idle -f TVW.map\n");
}

TEST_F(UploadCommand, PrintsChangesAlone) {
  ASSERT_EQ(Run({"upload", Path("b.map"), "--dry-run", "--compare", Path("a.map")}), kDone);
  EXPECT_NE(out.find("\r\n 013  -1  -1"), std::string::npos);
  EXPECT_EQ(out.find(" 012"), std::string::npos);
  ASSERT_EQ(Run({"upload", Path("b.map"), "--dry-run", "--compare", Path("c.map")}), kDone);
  EXPECT_EQ(err.find("message 21: "), 0u);
  EXPECT_NE(out.find(" 012"), std::string::npos);
  for (const std::string& none : {Path("none.map"), std::string()}) {
    ASSERT_EQ(Run({"upload", Path("b.map"), "--dry-run", "--compare", none}), kDone);
    EXPECT_EQ(err.find("message 23: "), 0u);
  }
}

TEST_F(UploadCommand, RefusesWhatCannotBeSent) {
  EXPECT_EQ(Run({"upload", Path("c.map"), "--dry-run"}), kFailed);
  EXPECT_EQ(err.find("message 5: "), 0u);
  EXPECT_EQ(out, "");
  EXPECT_EQ(Run({"upload", Path("own.ini"), "--dry-run"}), kFailed);
  EXPECT_EQ(err.find("message 56: "), 0u);
  EXPECT_EQ(Run({"upload", Path("a.map")}), kWrongCommandLine);
  EXPECT_EQ(Run({"upload", Path("none.map"), "--dry-run"}), kWrongCommandLine);
}

TEST_F(UploadCommand, OptionsListEachSetting) {
  ASSERT_EQ(Run({"options"}), kDone);
  const std::string plain = out;
  ASSERT_EQ(Run({"options", "--json"}), kDone);
  EXPECT_EQ(out, plain);
  const auto rows = nlohmann::json::parse(out)["options"];
  EXPECT_EQ(rows.size(), 55u);
  const auto row = [&](const std::string& key) {
    for (const auto& one : rows)
      if (one["key"] == key) return one.dump();
    return std::string();
  };
  EXPECT_EQ(
      row("Serial Com Port"),
      R"({"control":"frmOptions/txtComPort","default":"1","key":"Serial Com Port","limits":"1 to 9",)"
      R"("page":"FM Link ECU","section":"General","value":"2"})");
  EXPECT_EQ(
      row("Graph Y Max"),
      R"({"control":"frmDataLogViewer/txtYMax","default":"250","key":"Graph Y Max","limits":"10 to 1000",)"
      R"("page":"","section":"General","value":"250"})");
}

}  // namespace
}  // namespace tarnview
