#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/Commands.h"

namespace tarnview {
namespace {

using Json = nlohmann::json;

struct Ran {
  int status;
  std::string out, err;
};

Ran RunCli(std::vector<std::string> words) {
  std::vector<const char*> arguments{"tarnview-cli"};
  for (const auto& word : words) arguments.push_back(word.c_str());
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  const int status = RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
  const std::string out = ::testing::internal::GetCapturedStdout();
  return {status, out, ::testing::internal::GetCapturedStderr()};
}

std::string Example(const char* name) { return std::string(TARNVIEW_EXAMPLES) + "/" + name; }

TEST(CommandLineProgram, LoadTellsWhatALogHolds) {
  const Ran ran = RunCli({"load", Example("turbo.txt")});
  EXPECT_EQ(ran.status, kDone);
  const Json told = Json::parse(ran.out);
  EXPECT_EQ(told["title"], "Tarnview - turbo.txt (FM Link Data Log)");
  EXPECT_EQ(told["engine_size"], 1.8);
  EXPECT_EQ(told["normally_aspirated"], false);
  EXPECT_EQ(told["zones"].size(), 256u);
  EXPECT_EQ(told["changes"].size(), 2u);
  EXPECT_EQ(told["changes"][1], told["zones"]);
}

TEST(CommandLineProgram, AFailedLoadTellsWhy) {
  const Ran ran = RunCli({"load", Example("none.txt")});
  EXPECT_EQ(ran.status, kFailed);
  const Json told = Json::parse(ran.out);
  EXPECT_EQ(told["ok"], false);
  EXPECT_EQ(told["messages"],
            (Json{{{"id", 15}, {"text", "File could not be loaded."}, {"style", 64}}}));
  EXPECT_EQ(ran.err, "message 15: File could not be loaded.\n");
  EXPECT_EQ(RunCli({"table", Example("none.txt")}).status, kFailed);
}

TEST(CommandLineProgram, ZonesTellWhatADriveSaysOfThem) {
  const Ran ran = RunCli({"zones", Example("turbo.txt"), "--grid", "visits", "--json"});
  EXPECT_EQ(ran.status, kDone);
  const Json told = Json::parse(ran.out);
  EXPECT_EQ(told["rows"][5], "220 kPa 600");
  EXPECT_EQ(told["columns"][15], "75");
  EXPECT_EQ(told["count"][3][10], 18);
  EXPECT_EQ(told["value"][3][10], 18);
  EXPECT_EQ(told["count"][3][11], 8);
  EXPECT_EQ(told["value"][3][11], Json()) << "too few to say anything";
  const auto knock = RunCli({"zones", Example("turbo.txt"), "--grid", "knock"});
  EXPECT_EQ(Json::parse(knock.out)["value"][3][10], 75);
  const auto visited = [](std::vector<std::string> range) {
    std::vector<std::string> words{"zones", Example("turbo.txt"), "--grid", "visits"};
    words.insert(words.end(), range.begin(), range.end());
    int count = 0;
    const Json grid = Json::parse(RunCli(words).out);
    for (const Json& row : grid["count"])
      for (const Json& cell : row) count += cell.get<int>();
    return count;
  };
  EXPECT_EQ(visited({}), 6988);
  EXPECT_EQ(visited({"--type", "auto", "--from", "300", "--to", "900"}), 601);
  EXPECT_EQ(RunCli({"zones", Example("turbo.txt"), "--grid", "knock", "--to", "a.map"}).status,
            kWrongCommandLine);
  EXPECT_EQ(RunCli({"zones", Example("turbo.txt"), "--grid", "heat"}).status, kWrongCommandLine);
  const Ran none = RunCli({"zones", Example("utec.csv"), "--type", "6", "--grid", "knock"});
  EXPECT_EQ(none.status, kFailed);
  EXPECT_EQ(none.err, "message 16: Problem loading zone settings.\n");
}

TEST(CommandLineProgram, TablePrintsARangeOfItems) {
  EXPECT_EQ(RunCli({"table", Example("na.txt"), "--items", "63,1", "--from", "2", "--to", "4"}).out,
            "Sample,Secs\n2,0.164\n3,0.246\n4,0.328\n");
  EXPECT_EQ(RunCli({"table", Example("na.txt"), "--items", "63", "--raw", "--to", "1"}).out,
            "Secs\n819\n");
}

TEST(CommandLineProgram, GraphTellsWhatTheChartReceives) {
  const Ran ran = RunCli({"graph", Example("na.txt"), "--items", "1,3,47,20", "--json", "--from",
                          "100", "--to", "1600", "--fix-max", "33"});
  EXPECT_EQ(ran.status, kDone);
  const Json told = Json::parse(ran.out);
  EXPECT_EQ(told["from"], 100);
  EXPECT_EQ(told["thin_step"], 3);
  EXPECT_EQ(told["rows"], told["series"][0]["x"].size());
  ASSERT_EQ(told["series"].size(),
            2u);  // "Sample" cannot be plotted, item 47 is no item of this log
  EXPECT_EQ(told["series"][0]["item"], 20);
  EXPECT_EQ(told["series"][1], Json({{"item", 3},
                                     {"name", "RPM"},
                                     {"colour", 0x408000},
                                     {"style", 1},
                                     {"width", 3},
                                     {"x", told["series"][1]["x"]},
                                     {"y", told["series"][1]["y"]}}));
  EXPECT_EQ(told["y_axis"], Json({{"max", 35}, {"divisions", 7}}));
  EXPECT_EQ(told["messages"], Json::array());
}

TEST(CommandLineProgram, ScatterTellsDrawsAndExportsWhatTheWindowDoes) {
  const std::vector<std::string> words{"scatter",  Example("turbo.txt"),
                                       "--x",      "3",
                                       "--y",      "5",
                                       "--filter", "5:100:",
                                       "--to",     "900",
                                       "--json",   "--export"};
  const auto with = [&](std::vector<std::string> more) {
    std::vector<std::string> all = words;
    all.insert(all.end(), more.begin(), more.end());
    return RunCli(all);
  };
  const std::string out = ::testing::TempDir() + "scatter.csv";
  const Ran ran = with({out, "--items", "3,20", "--filter", "3:1:2000"});
  EXPECT_EQ(ran.status, kDone);
  const Json told = Json::parse(ran.out);
  EXPECT_EQ(told["x_item"], 3);
  EXPECT_EQ(told["y_item"], 5);
  EXPECT_EQ(told["filters"],
            (Json{"Sample [Sample No.] from 1 to 900", "MAP [Manifold Air Pressure] from 100",
                  "RPM [RPM] from 1 to 2000"}));
  std::ifstream file(out, std::ios::binary);
  const std::string text(std::istreambuf_iterator<char>(file), {});
  EXPECT_NE(text.find("RPM [RPM] from 1 to 2000\r\n\r\nSample,RPM,MAP,Knock\r\n"), text.npos)
      << text.substr(0, 400);
  EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')),
            10 + told["points"].size());
  for (const Json& point : told["points"]) {
    EXPECT_GE(point[1], 100);
    EXPECT_LE(point[2], 900);
  }
}

TEST(CommandLineProgram, ScatterRefusesAsTheWindowsDo) {
  const struct {
    std::vector<std::string> words;
    int status;
    const char* told;
  } kRows[] = {
      {{}, kFailed, "message 3: "},
      {{"--filter", "3:99999:"}, kFailed, "message 46: "},
      {{"--filter", "3:9:5"}, kFailed, "message 45: "},
      {{"--filter", "3::"}, kFailed, "message 44: "},
      {{"--filter", "25:7:"}, kFailed, "message 42: "},
      {{"--filter", "99:1:"}, kFailed, "data item 99"},
      {{"--filter", "3:1"}, kWrongCommandLine, "ITEM:FROM:TO"},
      {{"--x", "99"}, kFailed, "axes"},
      {{"--preset", "None such"}, kFailed, "None such"},
      {{"--size-of-points", "11"}, kWrongCommandLine, "--size-of-points"},
  };
  for (const auto& row : kRows) {
    std::vector<std::string> words{"scatter", Example("turbo.txt"), "--json"};
    words.insert(words.end(), row.words.begin(), row.words.end());
    const Ran ran = RunCli(words);
    EXPECT_EQ(ran.status, row.status) << row.told;
    EXPECT_NE(ran.err.find(row.told), std::string::npos) << ran.err;
  }
}

TEST(CommandLineProgram, ALogWithoutZonesIsNotNormallyAspirated) {
  EXPECT_EQ(Json::parse(RunCli({"load", Example("na.txt")}).out)["normally_aspirated"], true);
  EXPECT_EQ(
      Json::parse(RunCli({"load", Example("na.txt"), "--type", "3"}).out)["normally_aspirated"],
      false);
}

TEST(CommandLineProgram, AnExportNeverGoesOverItsLog) {
  const std::string log = ::testing::TempDir() + "own.txt";
  std::filesystem::copy_file(Example("na.txt"), log,
                             std::filesystem::copy_options::overwrite_existing);
  const Ran ran = RunCli({"export", log, ::testing::TempDir() + "./own.txt"});
  EXPECT_EQ(ran.status, kFailed);
  EXPECT_NE(ran.err.find("message 0: The log that is open is never written over:"),
            std::string::npos)
      << ran.err;
  EXPECT_EQ(std::filesystem::file_size(log), std::filesystem::file_size(Example("na.txt")));
}

TEST(CommandLineProgram, AResultThatCannotBeWrittenIsAFailure) {
  const std::string cli = TARNVIEW_CLI;
  for (const std::string& command : {"load " + Example("na.txt"), std::string("--help")}) {
    const int status = std::system((cli + " " + command + " >/dev/full 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), kFailed) << command;
  }
}

TEST(CommandLineProgram, AWrongCommandLineSaysSo) {
  const std::string na = Example("na.txt");
  const std::vector<std::vector<std::string>> kRows{
      {},
      // clang-format off
                                                    {"fly"},
                                                    {"load"},
                                                    {"load", "a", "--type", "9"},
                                                    {"graph", "a"},
                                                    {"graph", "a", "--out", "a.bmp"},
                                                    {"graph", "a", "--out", "a.png", "--size", "1x1"},
                                                    {"table", na, "--items", "abc"},
                                                    {"table", na, "--items", "3;5"},
                                                    {"table", na, "--items", "3,"},
                                                    {"table", na, "--items", ""},
                                                    {"table", na, "--items", "0"},
                                                    {"table", na, "--items", "84"},
                                                    {"graph", na, "--json", "--items", "999"},
                                                    {"table", na, "--from", "abc"},
                                                    {"load", na, "--to", "1x"},
                                                    {"scatter", na, "--json", "--filter", "3:abc:"},
                                                    {"scatter", na, "--json", "--filter", "3:1:2b"},
                                                    {"drive", "no-such-script"}};
  // clang-format on
  for (const auto& words : kRows) {
    const Ran ran = RunCli(words);
    EXPECT_EQ(ran.status, kWrongCommandLine) << (words.empty() ? "" : words.back());
    EXPECT_NE(ran.err, "");
    EXPECT_EQ(ran.out, "");
  }
  EXPECT_EQ(RunCli({"load", "--help"}).status, kDone);
}

}  // namespace
}  // namespace tarnview
