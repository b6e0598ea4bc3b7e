#include "LoadedLog.h"
#include "loaders/FMLinkLines.h"
#include "support/FMLinkLogBuilder.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

TEST(FMLinkLines, Kinds) {
  ExpectTable(
      [](const TableRow& row) {
        constexpr const char* kNames[] = {"other", "log", "summary", "unrecognised"};
        return kNames[static_cast<int>(KindOfFMLinkLine(row.All()))];
      },
      R"(
 -> other | 1       -> log | 123456  -> log | 123456 -> unrecognised | 1.8     -> log | *1.8 -> summary |  1.x  -> summary | 1.6x -> summary |   1.80 -> summary |  2.0 -> unrecognised | - -> unrecognised |  12345  -> unrecognised
)");
}

using Fields = std::vector<std::pair<std::size_t, std::string_view>>;

/// "27=c", "28= 25": what stands at which place, from the row's word n on.
Fields FieldsOf(const TableRow& row, std::size_t n) {
  Fields fields;
  for (; n < row.Count(); ++n) {
    const std::string_view word = row.Text(n);
    fields.emplace_back(std::stoul(row.Text(n)), word.substr(word.find('=') + 1));
  }
  return fields;
}

/// Cells of a line of some length, otherwise plain, behind a summary: version, length, fields.
std::string CellsOf(const TableRow& row, std::initializer_list<Column> columns) {
  Fields fields = FieldsOf(row, 2);
  fields.insert(fields.begin(), {1, "7"});
  const LoadedLog loaded(JoinLines(
      {"Sample", " " + row.Text(0), Placed(static_cast<std::size_t>(row.Int(1)), fields)}));
  std::string text;
  for (const Column column : columns) text += (text.empty() ? "" : " ") + loaded.Cells(column);
  return text;
}

TEST(FMLinkLines, LambdaWastegateThrottleAndAux) {
  ExpectTable(
      [](const TableRow& row) {
        return CellsOf(row, {kLambda, kL3, kL3Idle});
      },
      R"(
1.8, 57, 20=3 -> 4 3 0 | 1.8, 57, 20=0 -> 0 0 0 | 1.8, 57, 20=e -> 4 0 5 | 1.8, 57, 20=w -> 4 0 95 | 1.8, 57, 20=x -> 0 0 0
1.8, 57, 20=  -> 4 0 0 | 1.8, 57, 20=- -> 1 0 0 | 1.8, 57, 20=* -> 12 0 0 | 1.8, 19 -> 0 0 0
)");
  ExpectTable(
      [](const TableRow& row) {
        return CellsOf(row, {kWGCM, kWGPercent, kEGR});
      },
      R"(
1.8, 62, 28= 25 -> 0 0 25 | 1.8, 63, 28= 25 -> 0 25 0 | 1.8, 62, 27=c, 28= 25 -> 1 25 0 | 1.8, 62, 27=x, 28= 25, 16=116 -> 2 25 0
1.8, 62, 27=x, 28= 25, 16=115 -> 0 25 0 | 1.8, 26, 16=116 -> 2 0 0 | 1.8, 27, 16=116 -> 0 0 0
)");
  ExpectTable(
      [](const TableRow& row) {
        return CellsOf(row, {kIAC, kTPS, kAuxNF});
      },
      R"(
1.8, 57, 44=0.52 -> 0 5000 520 | 1.8, 57, 44=4.52, 43=w -> 0 10000 4520 | 1.8, 57, 44= 45 -> 40 4500 0 | 1.8, 57, 44=  0, 43=w -> 40 10000 0 | 1.8, 57, 44= 31, 43=* -> 31 1000 0
1.8, 63, 44= 45, 60=1.25 -> 40 4500 1250 | 1.8, 62, 44= 45, 60=1.2 -> 40 4500 0 | 1.x , 63, 44= 45, 60=1.25 -> 45 5000 1250 | 1.6 , 57, 44= 45 -> 40 4500 0 | 1.8b, 57, 44= 45 -> 40 4500 0
)");
}

TEST(FMLinkLines, NumbersAreReadTolerantly) {
  const auto all = [](const TableRow& row) {
    return CellsOf(row, {kRPM, kMAP, kInjW, kInjPercent, kIAdv, kDwell, kFuelP, kAF, kSecs, kCR});
  };
  ExpectTable(all, R"(
1.8, 57 -> 0 0 0 0 0 0 1 14700 5734 1000 | 1.8, 31 -> 0 0 0 0 0 0 1 14700 5734 1000 | 1.8, 57, 9= 9.5, 16=1.5, 33=1234, 38=4.5, 54=-2.5, 14=s, 32=x, 22= 85 -> 10 15 987 45 -25 1 0 14300 5734 1000
1.8, 57, 9=-850 -> -850 0 0 0 0 0 1 14700 5734 1000 | 1.8, 57, 9=1e3 , 14=L -> 1000 0 0 0 0 2 1 14700 5734 1000 | 1.8, 57, 9=9e99 -> 0 0 0 0 0 0 1 14700 5734 1000 | 1.8, 57, 9=12x4 -> 12 0 0 0 0 0 1 14700 5734 1000 | 1.8, 55, 54=12 -> 0 0 0 0 120 0 1 14700 5734 1000
)");
}

TEST(FMLinkLines, SummaryTails) {
  // Speed, L4, aux, air temperature, and the lowest of those so far.
  ExpectTable(
      [](const TableRow& row) {
        std::int32_t lowest = 200;
        Fields fields = FieldsOf(row, 0);
        fields.insert(fields.begin(), {2, "1.8"});
        const SummaryRow cells = ParseSummaryLine(Placed(64, fields), lowest).row;
        return std::to_string(cells[kSpeed]) + " " + std::to_string(cells[kL4]) + " " +
               std::to_string(cells[kAuxNS]) + " " + std::to_string(cells[kATemp]) + " " +
               std::to_string(lowest);
      },
      R"(
24= 57, 54=2.50v -> 57 0 2500 0 200 | 24= 57, 54=S= 61, 60=2.50v -> 61 0 2500 0 200 | 21=AT, 24= 57, 54=S= 61, 60=3 -> 61 3 0 57 57
21=AT, 24=-99, 54=3, 56=S= 61 -> 61 3 0 0 0 | 21=AT, 24=-40, 54=3 -> 0 3 0 -30 -30 | 24= 57 -> 57 0 0 0 200
)");
}

TEST(FMLinkLines, SummaryVersions) {
  ExpectTable(
      [](const TableRow& row) {
        std::int32_t lowest = 200;
        const Summary summary = ParseSummaryLine(row.All(), lowest);
        return std::string(EngineSizeText(summary.chip.dblEngineSize)) + " v" +
               std::to_string(summary.chip.intChipVersion) + (summary.version18 ? " 18" : "");
      },
      R"(
 1.x  -> 1.6 v1 |  1.8b -> 1.8 v3 18 |  1.6  -> 1.8 v2 18 |  1.xx -> 1.8 v2 18 |  1.x -> 1.8 v2 18
)");
}

}  // namespace
}  // namespace tarnview
