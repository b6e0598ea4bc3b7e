#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/Commands.h"

namespace tarnview {
namespace {

using Json = nlohmann::json;

Json Told(const std::vector<const char*>& words, int status) {
  std::vector<const char*> arguments{"tarnview-cli"};
  arguments.insert(arguments.end(), words.begin(), words.end());
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(RunCommandLine(static_cast<int>(arguments.size()), arguments.data()), status);
  ::testing::internal::GetCapturedStderr();
  return Json::parse(::testing::internal::GetCapturedStdout());
}

const std::string kTorque = std::string(TARNVIEW_DATA) + "/Universal Data Log Formats/Torque.txt";
const std::string kTorqueLog = std::string(TARNVIEW_EXAMPLES) + "/universal/torque.csv";

TEST(DefinitionCommand, TellsOfADefinition) {
  EXPECT_EQ(Told({"definition", "-"}, kDone), Json({{"ok", true},
                                                    {"messages", Json::array()},
                                                    {"name", "Hydra Nemesis 2.1 (MX-5 Miata)"},
                                                    {"extension", "csv"},
                                                    {"columns", 19},
                                                    {"sample_presets", 6},
                                                    {"scatter_presets", 12}}));
  const Json full = Told({"definition", "-", "--full"}, kDone);
  EXPECT_EQ(full["columns"][18]["dblConversionFactor"], -0.133333);
  EXPECT_EQ(full["columns"][18]["blnMaxValueSet"], true);
  EXPECT_EQ(full["columns"][18]["blnMinValueSet"], false);
  EXPECT_EQ(full["sample_presets"][0]["colDataItems"], Json({20, 5, 3, 17, 37, 38}));
  EXPECT_EQ(full["scatter_presets"][6]["objFilters"],
            Json::array({{{"lngDataItemSeq", 5}, {"dblFrom", 60}, {"dblTo", 100}}}));
}

TEST(DefinitionCommand, AFaultIsToldAndFails) {
  const Json told = Told({"definition", "/no/such/file"}, kFailed);
  EXPECT_EQ(told["ok"], false);
  EXPECT_EQ(told["messages"][0]["id"], 70);
}

TEST(DefinitionCommand, ALogIsReadThroughTheDefinitionThatIsNamed) {
  const Json told = Told({"load", kTorqueLog.c_str(), "--definition", kTorque.c_str()}, kDone);
  EXPECT_EQ(told["file_type"], 8);
  EXPECT_EQ(told["definition"], "Torque");
  EXPECT_EQ(told["samples"], 12);
}

}  // namespace
}  // namespace tarnview
