#include <gtest/gtest.h>

#include "LoadedLog.h"
#include "loaders/FMLinkLog.h"
#include "support/FMLinkLogBuilder.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

using Lines = std::vector<std::string>;
using Ids = std::vector<int>;

constexpr const char* kSettingsLine =
    " ATM = 101            1.8 18-Sep-01 ";  // engine at 23, date at 27
constexpr const char* kNoChanges = "No lambda/knock zone changes";
constexpr const char* kChanges = "Lambda/knock zone changes";

std::string Log(Lines samples, const Lines& zones = {}, const Lines& behind = {}) {
  Lines lines{"Sample"};
  lines.insert(lines.end(), samples.begin(), samples.end());
  lines.push_back("Initial zone map");
  lines.insert(lines.end(), zones.begin(), zones.end());
  lines.insert(lines.end(), behind.begin(), behind.end());
  return JoinLines(lines);
}
Lines Samples(int count) {
  Lines lines;
  for (int i = 1; i <= count; ++i)
    lines.push_back(Placed(57, {{1, std::to_string(i)}, {9, "3000"}, {16, "100"}}));
  return lines;
}
const Lines kZones = ZoneSectionLines(CountingZoneRows());

TEST(FMLinkLog, AWholeLog) {
  const LoadedLog loaded(R"(Sample   RPM
1040     850 L  34 =  91    12   250   4  *0.52    3  9.5
1041    3250 S  90 +  88a   12  1225  98    45 nc 12!12.5
*1.8b   13.8     80 AT  20  EF CF AC HR CP        10 S= 57 2.50v
1042   *7900!S 101!4  88d c 25 x1225  98  w 45 nc 12!12.5  1.25
1043    3250 S 102 g  88    12  1225  98    45 nc 12!-2.5

 1.8b   13.3     90 AT -10           PR           12 S= 61 2.40v
1044     850 L  34 =  91    12   250   4  *0.52    3  9.5
Initial zone map
)" + JoinLines(kZones) + R"( ATM = 101            OBD209-Aug-05
No lambda/knock zone changes
)");
  EXPECT_EQ(loaded.Told(), " samples zones changes");
  ExpectTold(loaded.Table(), R"(
Sample: 1040 1041 1042 1043 1044 | CAS Err: 0 0 1 0 0 | RPM: 850 3250 7900 3250 850 | Dwell: 2 1 1 1 2 | MAP: 340 900 1010 1020 340
Lambda: 2 0 4 4 2 | O2: 91 88 88 88 91 | O2 A: 0 1 2 0 0 | WGCM: 0 0 1 0 0 | WG%: 0 0 25 0 0 | EGR: 12 12 0 12 12 | Fuel P: 1 1 0 1 1
Inj W: 200 980 980 980 200 | Inj %: 40 980 980 980 40 | Throttle: 1 0 2 0 1 | IAC: 0 45 40 40 0 | TPS: 1000 5000 4500 4500 1000
Neutral: 0 1 1 1 0 | Comp: 0 1 1 1 0 | Knock: 3 12 12 12 3 | IAdv: 95 125 125 -25 95 | Volt: 138 138 138 136 133
C Temp: 80 80 80 85 90 | Speed: 570 570 570 590 610 | Eng Fan: 1 1 0 0 0 | Cnd Fan: 1 1 0 0 0 | A/C: 1 1 0 0 0 | PRC: 1 1 1 1 1
Ch Purge: 1 1 0 0 0 | Knock C: 10 10 10 11 12 | A Temp: 200 200 200 50 -100 | Aux NS: 2500 2500 2500 2450 2400
Knock T: 13 13 32 13 13 | L3: 0 0 4 0 0 | A/F: 13000 13600 13600 13600 13000 | Boost: 0 0 0 1 0 | Vacuum: 198 32 0 0 198
Aux NF: 520 0 1250 0 520 | Aux CS: 11156 11156 11156 11082 11008 | Aux CF: 8867 0 9612 0 8867 | Knock E: 0 1 1 1 0
MAP Lmt: 0 0 1 0 0 | Rev Lmt: 0 0 1 0 0 | CR: 1000 1000 1000 1000 1000 | Secs: 851968 852787 853606 854426 855245
Zone: 205 630 675 630 205 | Fuel ZV: 49 118 127 118 49 | Ign ZV: 145 14 23 14 145 | L3 Idle: 0 0 0 15 0
Fuel% M: 1000 1000 1000 1000 1000 | A/F Tgt: 14700 14700 14700 14700 14700
)");
  EXPECT_EQ(loaded.log.glngFirstPlotSample, 0);
  EXPECT_EQ(loaded.log.glngLowestAirTemp, -10);
  ASSERT_EQ(loaded.log.gcolLogTags.Count(), 1);
  EXPECT_EQ(loaded.log.gcolLogTags.Item(1).FromSequence, 1041);
  EXPECT_EQ(loaded.log.gcolLogTags.Item(1).ToSequence, 1043);
  EXPECT_EQ(loaded.log.zones.chip.intChipVersion, 3);
  EXPECT_EQ(DateText(loaded.log.zones.chip.datChipDate), "2005-08-09");
  EXPECT_EQ(loaded.log.zones.intAtmosphericPressure, 101);
  EXPECT_EQ(loaded.progress.stages,
            (Lines{"Preparing to load", "Loading zone settings", "Generating calculated data..."}));
}

TEST(FMLinkLog, BadInputsAndWhatTheyTell) {
  Lines unknownZone = CountingZoneRows(), beyond16Bits = CountingZoneRows(),
        tooMany = CountingZoneRows();
  unknownZone[3].replace(1, 3, "  *");
  beyond16Bits[3].replace(1, 6, "99999 ");
  tooMany[15] = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17" + std::string(23, ' ');
  const Lines heading{std::string(68, '-')};
  const struct {
    const char* what;
    std::string text;
    const char* told;
  } cases[] = {
      // clang-format off
      {"empty", "", "52"},
      {"wrong kind", "SAMPLE\n", "52"},
      {"heading alone", "Sample", "16"},
      {"two samples", Log(Samples(2)), "16"},
      {"no zones", Log(Samples(3)), "16 samples"},
      {"heading without an ATM row", Log(Samples(3), heading), "16 samples"},
      {"two samples and zones", Log(Samples(2), kZones, {kSettingsLine, kNoChanges}), " zones changes"},
      {"unknown zone", Log(Samples(3), ZoneSectionLines(unknownZone)), "16 samples"},
      {"zone beyond 16 bits", Log(Samples(3), ZoneSectionLines(beyond16Bits)), "16 samples"},
      {"too many zones", Log(Samples(3), ZoneSectionLines(tooMany)), "16 samples"},
      {"no settings line", Log(Samples(3), kZones, {kNoChanges}), "7, 8, 9 samples zones changes"},
      {"no changes heading", Log(Samples(3), kZones, {kSettingsLine}), "17 samples zones"},
      {"changes cut off", Log(Samples(3), kZones, {kSettingsLine, kChanges, " ATM 1"}), "17 samples zones"},
      {"NUL bytes", Log({std::string(100, '\0')}), "16"},
      {"a long line", "Sample" + std::string(10'000'000, '1'), "16"},
      {"a long line of zones", Log(Samples(3), {" ATM" + std::string(1'000'000, '9')}), "16 samples"},
      // clang-format on
  };
  for (const auto& c : cases) EXPECT_EQ(LoadedLog(c.text).Told(), c.told) << c.what;
}

TEST(FMLinkLog, EveryTruncationIsHarmless) {
  const std::string text = Log(Samples(3), kZones, {kSettingsLine, kNoChanges});
  for (std::size_t length = 0; length < text.size(); ++length) {
    const LoadedLog loaded(std::string_view(text).substr(0, length));
    EXPECT_LE(loaded.outcome.messages.size(), 4u);
  }
}

TEST(FMLinkLog, AFailedZoneSectionKeepsWhatItReadAndTheSummarysChip) {
  Lines zones = kZones;
  zones.resize(4);
  Lines samples = Samples(3);
  samples.push_back(" 1.8b");
  const LoadedLog loaded(Log(samples, zones));
  EXPECT_EQ(loaded.log.zones.zones[31], 31);
  EXPECT_EQ(loaded.log.zones.zones[32], -1);
  EXPECT_EQ(loaded.log.zones.chip.intChipVersion, 3);
  EXPECT_EQ(loaded.log.zones.intAtmosphericPressure, 0);
  EXPECT_EQ(loaded.Cells(kFuelZV), "-1 -1 -1");
  EXPECT_EQ(loaded.Cells(kBoost), "145 145 145");
}

TEST(FMLinkLog, WithoutTheLastRowTheLineBehindIsStillLookedAt) {
  Lines rows = CountingZoneRows();
  rows.pop_back();
  for (const char* line : {kSettingsLine, kNoChanges}) {
    const LoadedLog loaded(Log(Samples(3), ZoneSectionLines(rows), {line, kNoChanges}));
    EXPECT_TRUE(loaded.log.gblnChangesLoaded);
    EXPECT_EQ(loaded.log.zones.zones[240], 0);
    EXPECT_EQ(loaded.log.zones.intAtmosphericPressure, line == kSettingsLine ? 101 : 75);
  }
}

TEST(FMLinkLog, ChangesKeepTheZonesOwnValues) {
  Lines rows(15, std::string(64, ' '));
  rows[0] = " 9 *";
  rows[1] = " -1 8";
  for (std::size_t row = 2; row < 15; ++row) {
    rows[row].clear();
    for (int c = 0; c < 16; ++c) rows[row] += c == 1 ? "   7" : "   *";
  }
  Lines changes{kSettingsLine, kChanges, "on the way"};
  const Lines section = ZoneSectionLines(rows);
  changes.insert(changes.end(), section.begin(), section.end());
  const LoadedLog loaded(Log(Samples(3), kZones, changes));
  ASSERT_TRUE(loaded.log.gblnChangesLoaded);
  const LoadedZones& zones = loaded.log.zones;
  const std::pair<std::size_t, int> cells[] = {{0, 9},    {1, 1},   {2, 2},   {16, 16},
                                               {17, 8},   {32, 32}, {33, 7},  {209, 7},
                                               {224, 24}, {225, 7}, {240, 40}};
  for (const auto& [zone, value] : cells) EXPECT_EQ(zones.changes[zone], value) << zone;
  EXPECT_EQ(zones.original, zones.zones);
}

TEST(FMLinkLog, SettingsLines) {
  ExpectTable(
      [](const TableRow& row) {
        const LoadedLog loaded(
            Log(Samples(3), kZones, {kSettingsLine, " ATM = " + row.All(), kNoChanges}));
        const LoadedZones& zones = loaded.log.zones;
        return std::string(EngineSizeText(zones.chip.dblEngineSize)) + " v" +
               std::to_string(zones.chip.intChipVersion) + " " + DateText(zones.chip.datChipDate) +
               " " + std::to_string(zones.intAtmosphericPressure);
      },
      R"(
 98  1.8 18-Sep-01 -> 1.8 v2 2001-09-18 98 |  98  MK-II 18-Sep-01 -> 1.6 v2 2001-09-18 98 |  98  1.6  18-Sep-01 -> 1.6 v1 2001-09-18 98
 98            MK-2X18-Sep-01 -> 1.6 v2 2001-09-18 98 |  98            OBD218Sep2001 -> 1.8 v3 2001-09-18 98 |   0            1.6 01-Jan-00 -> 1.6 v1 2000-01-01 75
)");
}

TEST(FMLinkLog, DefaultsAreSilentWhereAsked) {
  const std::string text = Log(Samples(3), kZones, {kNoChanges});
  EXPECT_EQ(LoadedLog(text, {}, /*silent=*/true).outcome.messages, Ids{});
  Settings settings;
  settings.gblnSilentDefaults = true;
  settings.gintDefaultAtmosphericPressure = 99;
  const LoadedLog loaded(text, settings);
  EXPECT_EQ(loaded.outcome.messages, Ids{});
  EXPECT_EQ(loaded.log.zones.intAtmosphericPressure, 99);
}

TEST(FMLinkLog, FirstPlotSampleComesFromSummariesAlone) {
  Settings settings;
  settings.gintPlotFromTemperature = 70;
  Lines samples = Samples(8);
  samples.insert(samples.begin() + 5, Placed(54, {{2, "1.8"}, {17, " 80"}}));
  samples.insert(samples.begin() + 1, Placed(54, {{2, "1.8"}, {17, " 60"}}));
  const LoadedLog loaded(Log(samples), settings);
  EXPECT_EQ(loaded.Cells(kCTemp), "60 60 65 70 75 80 80 80");
  EXPECT_EQ(loaded.log.glngFirstPlotSample, 3);
  settings.gintPlotFromTemperature = 80;
  EXPECT_EQ(LoadedLog(Log(samples), settings).log.glngFirstPlotSample, -1);
}

TEST(FMLinkLog, AnOpenTagEndsWithTheLog) {
  Lines samples = Samples(4);
  samples.insert(samples.begin() + 2, "*1.8");
  samples.insert(samples.begin(), "*1.8");
  const LoadedLog loaded(Log(samples));
  ASSERT_EQ(loaded.log.gcolLogTags.Count(), 1);
  EXPECT_EQ(loaded.log.gcolLogTags.Item(1).FromSequence, 1);
  EXPECT_EQ(loaded.log.gcolLogTags.Item(1).ToSequence, 4);
}

TEST(FMLinkLog, StopsAt300000SamplesAndTellsProgressAboutFiftyTimes) {
  std::string text = "Sample\n";
  for (int i = 1; i <= 300001; ++i) {
    if (i == 300001) {
      EXPECT_EQ(LoadedLog(text).outcome.messages, (Ids{16})) << "every line was taken";
    }
    text += Placed(59, {{1, std::to_string(i)}, {9, "3000"}}) + "\n";
  }
  const LoadedLog loaded(text);
  EXPECT_EQ(loaded.log.glngDataLog.Rows(), 300000);
  EXPECT_EQ(loaded.log.Sample(299999), 300000);
  EXPECT_EQ(loaded.outcome.messages, (Ids{16, 51}));
  EXPECT_EQ(loaded.progress.lines.size(), 50u);
}

TEST(FMLinkLog, LineEndsAreCRLFOrLFOrNone) {
  std::string text = Log(Samples(3), kZones, {kSettingsLine, kNoChanges});
  const std::string table = LoadedLog(text).Table();
  std::erase(text, '\r');
  text.pop_back();
  const LoadedLog loaded(text);
  EXPECT_TRUE(loaded.log.gblnChangesLoaded);
  EXPECT_EQ(loaded.Table(), table);
}

}  // namespace
}  // namespace tarnview
