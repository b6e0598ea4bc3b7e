// The settings on the command line: read and written whole by `settings`, and kept by `drive` where
// that is wanted.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/Commands.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

class SettingsCommand : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder_.Path(name); }
  void Put(const std::string& name, const std::string& text) { folder_.Put(name, text); }
  std::string Get(const std::string& name) const { return folder_.Get(name); }
  int Run(const std::vector<std::string>& words) {
    std::vector<const char*> arguments{"tarnview-cli"};
    for (const auto& word : words) arguments.push_back(word.c_str());
    ::testing::internal::CaptureStdout();
    const int status = RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
    out = ::testing::internal::GetCapturedStdout();
    return status;
  }

  std::string out;

 private:
  ScratchFolder folder_;
};

TEST_F(SettingsCommand, ReadsAsAStartAndWritesAsAnEnd) {
  Put("in.ini",
      "[General]\nZoom Amount=7\nSpeed Graph Window State=2\nSpeed Graph Window Left=-3\n"
      "[Recently Used Files]\nFile 0=|C:\\a.map\nFile 1=3|C:\\b\xE9.dat\n");
  ASSERT_EQ(Run({"settings", Path("in.ini"), Path("out.ini")}), kDone);
  const auto told = nlohmann::json::parse(out);
  EXPECT_EQ(told["messages"], nlohmann::json::array());
  EXPECT_EQ(told["window_placements"].dump(),
            R"({"Speed Graph":{"height":4760,"left":-3,"state":2,"top":0,"width":8970}})");
  EXPECT_EQ(told["recent"].dump(), "[\"2|C:\\\\a.map\",\"3|C:\\\\b\u00E9.dat\"]");
  EXPECT_NE(Get("out.ini").find("\r\nZoom Amount=2\r\n"), std::string::npos);
  EXPECT_NE(Get("out.ini").find("File 1=3|C:\\b\xE9.dat\r\n"), std::string::npos);
  ASSERT_EQ(Run({"settings", Path("out.ini"), Path("again.ini")}), kDone);
  EXPECT_EQ(Get("again.ini"), Get("out.ini"));
}

TEST_F(SettingsCommand, TellsWhatItCannotDo) {
  Put("bad.ini", "no settings");
  EXPECT_EQ(Run({"settings", Path("none.ini"), Path("out.ini")}), kWrongCommandLine);
  EXPECT_EQ(Run({"settings", Path("bad.ini"), Path("no/such/folder/out.ini")}), kFailed);
  EXPECT_EQ(nlohmann::json::parse(out)["messages"].back()["id"], 39);
  EXPECT_EQ(Get("bad.ini"), "no settings");
  EXPECT_EQ(Run({"settings", Path("bad.ini"), Path("out.ini")}), kDone);
  EXPECT_FALSE(std::filesystem::exists(Path("bad.ini.bad")));
}

TEST_F(SettingsCommand, AScriptKeepsItsSettingsWhereItIsTold) {
  const std::string before = "[General]\r\nQuick Graph=1\r\n";
  Put("in.ini", before);
  Put("script", "click chkQuickGraph\ntype cboZoomAmount 30\nopen " +
                    std::string(TARNVIEW_EXAMPLES "/na.txt") + " 1\n");
  ASSERT_EQ(Run({"drive", Path("script"), "--settings", Path("in.ini"), "--write-settings",
                 Path("out.ini")}),
            kDone);
  EXPECT_EQ(Get("in.ini"), before);
  for (const char* line :
       {"Quick Graph=0", "Zoom Amount=30", "File 0=1|" TARNVIEW_EXAMPLES "/na.txt"})
    EXPECT_NE(Get("out.ini").find(std::string(line) + "\r\n"), std::string::npos) << line;
  ASSERT_EQ(Run({"drive", Path("script"), "--settings", Path("out.ini")}), kDone);
  EXPECT_NE(Get("out.ini").find("Quick Graph=0\r\n"), std::string::npos);
  EXPECT_EQ(Run({"drive", Path("script"), "--write-settings", Path("no/such/folder/out.ini")}),
            kFailed);
}

}  // namespace
}  // namespace tarnview
