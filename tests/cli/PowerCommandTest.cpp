// Power of a pull in the example log: what each option changes, and what comes of a wrong one.

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/Text.h"
#include "cli/Commands.h"

namespace tarnview {
namespace {

using Json = nlohmann::json;

std::string Example(const char* name) { return std::string(TARNVIEW_EXAMPLES) + "/" + name; }

/// The exit status, and of the printed object the curves, how far their axis reaches, how many
/// speeds there are, and the messages.
std::string Told(const std::string& options) {
  std::vector<std::string> words{"tarnview-cli", "power", Example("turbo.txt"), "--json"};
  for (const auto& word : Split(options, ' '))
    if (!word.empty())
      words.push_back(word == "turbo.pow" ? Example("turbo.pow") : std::string(word));
  std::vector<const char*> arguments;
  for (const auto& word : words) arguments.push_back(word.c_str());
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  const int status = RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
  const std::string out = ::testing::internal::GetCapturedStdout();
  ::testing::internal::GetCapturedStderr();
  std::string told = std::to_string(status);
  if (out.empty()) return told;
  const Json json = Json::parse(out);
  for (const auto& series : json["series"])
    told += " | " + series["name"].get<std::string>() + " of " + std::to_string(series["x"].size());
  if (!json["series"].empty())
    told += " | to " + json["y_axis"]["max"].dump() + ", " + std::to_string(json["speed"].size()) +
            " speeds";
  for (const auto& message : json["messages"]) told += " | message " + message["id"].dump();
  return told;
}

TEST(PowerCommand, EachOptionFillsItsFieldIn) {
  const char* const kBenchmark =
      " | Benchmark Power (382.5 hp @ 6278 rpm, Vmax 179.8 mph) of 32 | Benchmark Torque (324.4 "
      "lbft @ 5899 rpm) of 32";
  const struct {
    const char* options;
    const char* power;
    const char* torque;
    const char* beside;
    const char* axis;
  } kRows[] = {
      {"--gear 3", "382.5 hp @ 6278 rpm, Vmax 179.9 mph", "324.4 lbft @ 5899 rpm", "", "400"},
      {"--gear 3 --weight 180 --smoothing 0 --units metric", "315.0 kW @ 6552 rpm, Vmax 299.2 kmh",
       "480.4 Nm @ 5995 rpm", "", "500"},
      {"--gear 2 --sae 35 90 wet:20", "220.5 hp @ 6278 rpm, Vmax 149.7 mph",
       "187.7 lbft @ 5899 rpm", "", "240"},
      {"--gear 4 --sae 35 90 20 --benchmark turbo.pow", "752.9 hp @ 6278 rpm, Vmax 225.4 mph",
       "636.3 lbft @ 5995 rpm", kBenchmark, "800"},
      {"--gear 4 --benchmark turbo.pow --average", "516.9 hp @ 6278 rpm, Vmax 198.8 mph",
       "437.4 lbft @ 5995 rpm", kBenchmark, "600"},
  };
  for (const auto& row : kRows)
    EXPECT_EQ(Told(std::string("--from 4357 --to 4389 ") + row.options),
              std::string("0 | Your Power (") + row.power + ") of 32 | Your Torque (" + row.torque +
                  ") of 32" + row.beside + " | to " + row.axis + ", 32 speeds");
}

TEST(PowerCommand, WhatCannotBeDoneIsTold) {
  EXPECT_EQ(Told("--car Nobody's"), "1");
  EXPECT_EQ(Told("--car-file none.car"), "1 | message 57");
  EXPECT_EQ(Told("--benchmark none.pow"), "1 | message 33 | message 0");
  EXPECT_EQ(Told("--from 4357 --to 4360"), "1 | message 26");
  for (const char* wrong : {"--gear 7", "--units furlong", "--sae 20 100 damp", "--average",
                            "--car A --car-file B", "--out a.gif"})
    EXPECT_EQ(Told(wrong), "2") << wrong;
}

}  // namespace
}  // namespace tarnview
