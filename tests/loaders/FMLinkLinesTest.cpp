#include <gtest/gtest.h>

#include "LoadedLog.h"
#include "loaders/FMLinkLines.h"
#include "support/FMLinkLogBuilder.h"

namespace tarnview {
namespace {

TEST(FMLinkLines, Kinds) {
  const struct {
    const char* line;
    FMLinkLine kind;
  } cases[] = {
      {"", FMLinkLine::Other},         {"1      ", FMLinkLine::Log},
      {"123456 ", FMLinkLine::Log},    {"123456", FMLinkLine::Unrecognised},
      {"1.8    ", FMLinkLine::Log},    {"*1.8", FMLinkLine::Summary},
      {" 1.x ", FMLinkLine::Summary},  {"1.6x", FMLinkLine::Summary},
      {"  1.80", FMLinkLine::Summary}, {" 2.0", FMLinkLine::Unrecognised},
      {"-", FMLinkLine::Unrecognised}, {" 12345 ", FMLinkLine::Unrecognised},
  };
  for (const auto& c : cases) EXPECT_EQ(KindOfFMLinkLine(c.line), c.kind) << c.line;
}

/// A field put into an otherwise plain line of some length, and the cells that come of it.
struct Case {
  std::size_t length;
  std::vector<std::pair<std::size_t, std::string_view>> fields;
  const char* cells;
};

/// `columns` of one LOG LINE behind a summary of `version`.
std::string CellsOf(const Case& c, const char* version, const std::vector<Column>& columns) {
  auto fields = c.fields;
  fields.insert(fields.begin(), {1, "7"});
  const LoadedLog loaded(
      JoinLines({"Sample", std::string(" ") + version, Placed(c.length, fields)}));
  std::string text;
  for (const Column column : columns) text += (text.empty() ? "" : " ") + loaded.Cells(column);
  return text;
}

TEST(FMLinkLines, LambdaCharacter) {
  for (const Case& c : std::vector<Case>{{57, {{20, "3"}}, "4 3 0"},
                                         {57, {{20, "0"}}, "0 0 0"},
                                         {57, {{20, "e"}}, "4 0 5"},
                                         {57, {{20, "w"}}, "4 0 95"},
                                         {57, {{20, "x"}}, "0 0 0"},
                                         {57, {{20, " "}}, "4 0 0"},
                                         {57, {{20, "-"}}, "1 0 0"},
                                         {57, {{20, "*"}}, "12 0 0"},
                                         {57, {{20, "\xff"}}, "0 0 0"},
                                         {19, {}, "0 0 0"}})
    EXPECT_EQ(CellsOf(c, "1.8", {kLambda, kL3, kL3Idle}), c.cells) << c.length << c.fields.size();
}

TEST(FMLinkLines, WastegateOrEGR) {
  for (const Case& c : std::vector<Case>{{62, {{28, " 25"}}, "0 0 25"},
                                         {63, {{28, " 25"}}, "0 25 0"},
                                         {62, {{27, "c"}, {28, " 25"}}, "1 25 0"},
                                         {62, {{27, "x"}, {28, " 25"}, {16, "116"}}, "2 25 0"},
                                         {62, {{27, "x"}, {28, " 25"}, {16, "115"}}, "0 25 0"},
                                         {26, {{16, "116"}}, "2 0 0"},
                                         {27, {{16, "116"}}, "0 0 0"}})
    EXPECT_EQ(CellsOf(c, "1.8", {kWGCM, kWGPercent, kEGR}), c.cells) << c.length;
}

TEST(FMLinkLines, ThrottleIdleValveAndAuxByVersion) {
  const struct {
    const char* version;
    Case c;
  } cases[] = {
      {"1.8", {57, {{44, "0.52"}}, "0 5000 520"}},
      {"1.8", {57, {{44, "4.52"}, {43, "w"}}, "0 10000 4520"}},
      {"1.8", {57, {{44, " 45"}}, "40 4500 0"}},
      {"1.8", {57, {{44, "  0"}, {43, "w"}}, "40 10000 0"}},
      {"1.8", {57, {{44, " 31"}, {43, "*"}}, "31 1000 0"}},
      {"1.8", {63, {{44, " 45"}, {60, "1.25"}}, "40 4500 1250"}},
      {"1.8", {62, {{44, " 45"}, {60, "1.2"}}, "40 4500 0"}},
      {"1.x ", {63, {{44, " 45"}, {60, "1.25"}}, "45 5000 1250"}},
      {"1.6 ", {57, {{44, " 45"}}, "40 4500 0"}},
      {"1.8b", {57, {{44, " 45"}}, "40 4500 0"}},
  };
  for (const auto& [version, c] : cases)
    EXPECT_EQ(CellsOf(c, version, {kIAC, kTPS, kAuxNF}), c.cells)
        << version << " " << c.fields[0].second;
}

TEST(FMLinkLines, NumbersAreReadTolerantly) {
  const struct {
    Case c;
    Column column;
  } cases[] = {
      {{57, {{9, " 9.5"}}, "10"}, kRPM},
      {{57, {{9, "-850"}}, "-850"}, kRPM},
      {{57, {{9, "1e3 "}}, "1000"}, kRPM},
      {{57, {{9, "9e99"}}, "0"}, kRPM},
      {{57, {{9, "12x4"}}, "12"}, kRPM},
      {{57, {{16, "1.5"}}, "15"}, kMAP},
      {{57, {{33, "1234"}}, "987"}, kInjW},
      {{57, {{38, "4.5"}}, "45"}, kInjPercent},
      {{57, {{54, "-2.5"}}, "-25"}, kIAdv},
      {{55, {{54, "12"}}, "120"}, kIAdv},
      {{57, {{14, "s"}}, "1"}, kDwell},
      {{57, {{14, "L"}}, "2"}, kDwell},
      {{57, {{32, "x"}}, "0"}, kFuelP},
      {{31, {}, "1"}, kFuelP},
      {{57, {{22, " 85"}}, "14300"}, kAF},
      {{57, {}, "5734"}, kSecs},
      {{57, {}, "1000"}, kCR},
  };
  for (const auto& [c, column] : cases) EXPECT_EQ(CellsOf(c, "1.8", {column}), c.cells) << column;
}

TEST(FMLinkLines, SummaryTails) {
  const struct {
    std::vector<std::pair<std::size_t, std::string_view>> fields;
    std::int32_t speed, L4, aux, airTemp;
  } cases[] = {
      {{{24, " 57"}, {54, "2.50v"}}, 57, 0, 2500, 0},
      {{{24, " 57"}, {54, "S= 61"}, {60, "2.50v"}}, 61, 0, 2500, 0},
      {{{21, "AT"}, {24, " 57"}, {54, "S= 61"}, {60, "3"}}, 61, 3, 0, 57},
      {{{21, "AT"}, {24, "-99"}, {54, "3"}, {56, "S= 61"}}, 61, 3, 0, 0},
      {{{21, "AT"}, {24, "-40"}, {54, "3"}}, 0, 3, 0, -30},
      {{{24, " 57"}}, 57, 0, 0, 0},
  };
  for (const auto& c : cases) {
    std::int32_t lowest = 200;
    auto fields = c.fields;
    fields.insert(fields.begin(), {2, "1.8"});
    const SummaryRow row = ParseSummaryLine(Placed(64, fields), lowest).row;
    EXPECT_TRUE(row[kSpeed] == c.speed && row[kL4] == c.L4 && row[kAuxNS] == c.aux &&
                row[kATemp] == c.airTemp)
        << row[kSpeed] << " " << row[kL4] << " " << row[kAuxNS] << " " << row[kATemp];
    EXPECT_EQ(lowest, c.fields[0].second == "AT" ? c.airTemp : 200);
  }
}

TEST(FMLinkLines, SummaryVersions) {
  const struct {
    const char* line;
    double size;
    int chipVersion;
    bool version18;
  } cases[] = {{" 1.x ", 1.6, 1, false},
               {" 1.8b", 1.8, 3, true},
               {" 1.6 ", 1.8, 2, true},
               {" 1.xx", 1.8, 2, true},
               {" 1.x", 1.8, 2, true}};
  for (const auto& c : cases) {
    std::int32_t lowest = 200;
    const Summary summary = ParseSummaryLine(c.line, lowest);
    EXPECT_EQ(summary.chip.dblEngineSize, c.size) << c.line;
    EXPECT_EQ(summary.chip.intChipVersion, c.chipVersion) << c.line;
    EXPECT_EQ(summary.version18, c.version18) << c.line;
  }
}

}  // namespace
}  // namespace tarnview
