#include "LogInWords.h"
#include "loaders/FMLinkLog.h"
#include "support/FMLinkLogBuilder.h"

namespace tarnview {
namespace {

using Lines = std::vector<std::string>;

LoadOutcome Loud(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, false);
}
LoadOutcome Quiet(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, true);
}

std::string Tags(const OpenLog& log) {
  std::string told;
  for (int n = 1; n <= log.gcolLogTags.Count(); ++n)
    told += "tag " + std::to_string(log.gcolLogTags.Item(n).FromSequence) + "-" +
            std::to_string(log.gcolLogTags.Item(n).ToSequence) + ", ";
  return told;
}

TEST(FMLinkLog, AWholeLog) {
  const LoadedLog loaded(Loud, R"(Sample   RPM
1040     850 L  34 =  91    12   250   4  *0.52    3  9.5
1041    3250 S  90 +  88a   12  1225  98    45 nc 12!12.5
*1.8b   13.8     80 AT  20  EF CF AC HR CP        10 S= 57 2.50v
1042   *7900!S 101!4  88d c 25 x1225  98  w 45 nc 12!12.5  1.25
1043    3250 S 102 g  88    12  1225  98    45 nc 12!-2.5

 1.8b   13.3     90 AT -10           PR           12 S= 61 2.40v
1044     850 L  34 =  91    12   250   4  *0.52    3  9.5
Initial zone map
)" + JoinLines(ZoneSectionLines(CountingZoneRows())) +
                                   R"( ATM = 101            OBD209-Aug-05
No lambda/knock zone changes
)");
  ExpectTold(Tags(loaded.log) + loaded.Told(),
             R"(tag 1041-1043, samples zones changes, plots from 0, air from -10
Sample  CAS Err   RPM  Dwell   MAP  Lambda  O2  O2 A  WGCM  WG%  EGR  Fuel P  Inj W  Inj %  Throttle  IAC   TPS  Neutral  Comp  Knock  IAdv  Volt  C Temp
  1040        0   850      2   340       2  91     0     0    0   12       1    200     40         1    0  1000        0     0      3    95   138      80
  1041        0  3250      1   900       0  88     1     0    0   12       1    980    980         0   45  5000        1     1     12   125   138      80
  1042        1  7900      1  1010       4  88     2     1   25    0       0    980    980         2   40  4500        1     1     12   125   138      80
  1043        0  3250      1  1020       4  88     0     0    0   12       1    980    980         0   40  4500        1     1     12   -25   136      85
  1044        0   850      2   340       2  91     0     0    0   12       1    200     40         1    0  1000        0     0      3    95   133      90
Speed  Eng Fan  Cnd Fan  A/C  PRC  Ch Purge  Knock C  A Temp  Aux NS  Knock T  L3    A/F  Boost  Vacuum  Aux NF  Aux CS  Aux CF  Knock E  MAP Lmt  Rev Lmt
  570        1        1    1    1         1       10     200    2500       13   0  13000      0     198     520   11156    8867        0        0        0
  570        1        1    1    1         1       10     200    2500       13   0  13600      0      32       0   11156       0        1        0        0
  570        0        0    0    1         0       10     200    2500       32   4  13600      0       0    1250   11156    9612        1        1        1
  590        0        0    0    1         0       11      50    2450       13   0  13600      1       0       0   11082       0        1        0        0
  610        0        0    0    1         0       12    -100    2400       13   0  13000      0     198     520   11008    8867        0        0        0
  CR    Secs  Zone  Fuel ZV  Ign ZV  L3 Idle  Fuel% M  A/F Tgt
1000  851968   205       49     145        0     1000    14700
1000  852787   630      118      14        0     1000    14700
1000  853606   675      127      23        0     1000    14700
1000  854426   630      118      14       15     1000    14700
1000  855245   205       49     145        0     1000    14700
)");
  EXPECT_EQ(Join(loaded.progress.stages, ", "),
            "Preparing to load, Loading zone settings, Generating calculated data...");
}

/// Lines by the names that the tables call them.
std::map<std::string, std::string> Pieces() {
  const Lines rows = CountingZoneRows();
  Lines unknown = rows, beyond16Bits = rows, tooMany = rows, changed(15, std::string(64, ' '));
  unknown[3].replace(1, 3, "  *");
  beyond16Bits[3].replace(1, 6, "99999 ");
  tooMany[15] = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17" + std::string(23, ' ');
  changed[0] = " 9 *";
  changed[1] = " -1 8";
  for (std::size_t row = 2; row < changed.size(); ++row)
    changed[row] = "   * 123" + Repeated("", "   *", 13, "") + "    ";
  const auto section = [](const Lines& lines) { return JoinLines(ZoneSectionLines(lines), "\n"); };
  const auto first = [&](long count) { return section({rows.begin(), rows.begin() + count}); };
  return {{"sample", Placed(57, {{1, "1"}, {9, "3000"}, {16, "100"}})},
          {"map", "Initial zone map\n"},
          {"zones", section(rows)},
          {"zones to 239", first(15)},
          {"zones to 31", first(2)},
          {"unknown zones", section(unknown)},
          {"zones of 99999", section(beyond16Bits)},
          {"17 zones in the last row", section(tooMany)},
          {"changed zones", section(changed)},
          {"heading", std::string(68, '-') + "\n"},
          {"settings", " ATM = 101            1.8 18-Sep-01 \n"},  // engine at 23, date at 27
          {"no changes", "No lambda/knock zone changes\n"},
          {"changes", "Lambda/knock zone changes\n"},
          {"NUL bytes", std::string(100, '\0') + "\n"},
          {"a long line", std::string(10'000'000, '1') + "\n"},
          {"a long line of zones", " ATM" + std::string(1'000'000, '9') + "\n"}};
}

/// Tags, chip and pressure, some zones, the first sample's boost and zone value, and which zones
/// changed.
std::string TagsAndZones(const LoadedLog& loaded) {
  const OpenLog& log = loaded.log;
  const LoadedZones& zones = log.zones;
  std::string told = ", " + Tags(log) + NumberText(zones.chip.dblEngineSize) + " v" +
                     std::to_string(zones.chip.intChipVersion) + " " +
                     DateText(zones.chip.datChipDate) + " " +
                     std::to_string(zones.intAtmosphericPressure) + " kPa, zones";
  for (const std::size_t zone : {31u, 32u, 239u, 255u})
    told += " " + std::to_string(zones.zones[zone]);
  if (log.glngDataLog.Rows() > 0)
    told += ", Boost " + std::to_string(log.glngDataLog(kBoost, 0)) + " Fuel ZV " +
            std::to_string(log.glngDataLog(kFuelZV, 0));
  if (log.gblnChangesLoaded && zones.original != zones.zones) told += ", not the original";
  for (std::size_t zone = 0; log.gblnChangesLoaded && zone < zones.zones.size(); ++zone)
    if (zones.changes[zone] != zones.zones[zone])
      told += ", " + std::to_string(zone) + " to " + std::to_string(zones.changes[zone]);
  return told;
}

std::string TellLoud(const TableRow& row) {
  static const std::map<std::string, std::string> pieces = Pieces();
  return TellOfLog(Loud, row.Words(), pieces, TagsAndZones);
}

TEST(FMLinkLog, WhatComesOfPartsOfALog) {
  ExpectTable(TellLoud, R"(
, no end -> nothing, says 52, 0 v0  0 kPa, zones 0 0 0 0 | Sample, no end -> nothing, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1 | SAMPLE -> nothing, says 52, 0 v0  0 kPa, zones 0 0 0 0 | Sample -> nothing, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1 | Sample, NUL bytes -> nothing, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1 | Sample, a long line -> nothing, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1
Sample, 3*sample, map -> samples, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1, Boost 145 Fuel ZV -1 | Sample, 3*sample, map, heading -> samples, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1, Boost 145 Fuel ZV -1
Sample, 3*sample, map, heading, zones, settings, no changes -> samples, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1, Boost 145 Fuel ZV -1 | Sample, 3*sample, map, unknown zones, settings, no changes -> samples, says 16, 0 v0  0 kPa, zones 31 32 39 55, Boost 145 Fuel ZV 118
Sample, 3*sample, map, zones of 99999, settings, no changes -> samples, says 16, 0 v0  0 kPa, zones 31 32 -1 -1, Boost 145 Fuel ZV -1 | Sample, 3*sample, map, 17 zones in the last row, settings, no changes -> samples, says 16, 0 v0  0 kPa, zones 31 32 39 16, Boost 145 Fuel ZV 118
Sample, 3*sample, map, a long line of zones -> samples, says 16, 0 v0  0 kPa, zones -1 -1 -1 -1, Boost 145 Fuel ZV -1 | Sample, 2*sample, map, zones, settings, no changes -> zones changes, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118
Sample, 3*sample, map, zones, settings, no changes -> samples zones changes, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118 | Sample, 3*sample, map, zones, no changes -> samples zones changes, says 7 8 9, 1.6 v2 2000-01-01 75 kPa, zones 31 32 39 55, Boost 36 Fuel ZV 118
Sample, 3*sample, map, zones, settings -> samples zones, says 17, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118 | Sample, 3*sample, map, zones, settings, changes,  ATM 1 -> samples zones, says 17, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118
Sample, 3*sample, map, zones to 239, settings, no changes -> samples zones changes, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 0, Boost 0 Fuel ZV 118 | Sample, 3*sample,  1.8b, map, zones to 31 -> samples, plots from 0, says 16, 1.8 v3  0 kPa, zones 31 -1 -1 -1, Boost 145 Fuel ZV -1
Sample, 3*sample, map, zones, settings, no changes, CRLF -> samples zones changes, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118 | Sample, 3*sample, map, zones, settings, no changes, CRLF, no end, no end -> samples zones changes, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118
Sample, 3*sample, map, zones, settings, changes, on the way, changed zones -> samples zones changes, 1.8 v2 2001-09-18 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 118, 0 to 9, 17 to 8, 33 to 123, 47 to 0, 49 to 123, 63 to 0, 65 to 123, 79 to 0, 81 to 123, 95 to 0, 97 to 123, 111 to 0, 113 to 123, 127 to 0, 129 to 123, 143 to 0, 145 to 123, 159 to 0, 161 to 123, 175 to 0, 177 to 123, 191 to 0, 193 to 123, 207 to 0, 209 to 123, 223 to 0, 225 to 123, 239 to 0
Sample, 3*sample, map, zones to 239, no changes -> samples zones changes, says 7 8 9, 1.6 v2 2000-01-01 75 kPa, zones 31 32 39 0, Boost 36 Fuel ZV 118
# The line of settings; of two, the last one counts.
Sample, 3*sample, map, zones, settings,  ATM =  98  1.8 18-Sep-01    , no changes -> samples zones changes, 1.8 v2 2001-09-18 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
Sample, 3*sample, map, zones, settings,  ATM =  98  1.8 18-Sep-01, no changes -> samples zones changes, 1.8 v2 2001-09-18 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
Sample, 3*sample, map, zones, settings,  ATM =  98  MK-II 18-Sep-01, no changes -> samples zones changes, 1.6 v2 2001-09-18 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
Sample, 3*sample, map, zones, settings,  ATM =  98  1.6  18-Sep-01, no changes -> samples zones changes, 1.6 v1 2001-09-18 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
Sample, 3*sample, map, zones, settings,  ATM =  98            MK-2X18-Sep-01, no changes -> samples zones changes, 1.6 v2 2001-09-18 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
Sample, 3*sample, map, zones, settings,  ATM =  98            OBD218Sep2001 , no changes -> samples zones changes, 1.8 v3 2001-09-18 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
Sample, 3*sample, map, zones, settings,  ATM =   0            1.6 01-Jan-00 , no changes -> samples zones changes, says 9, 1.6 v1 2000-01-01 75 kPa, zones 31 32 39 55, Boost 36 Fuel ZV 118
Sample, 3*sample, map, zones,  ATM =  98            OBD2 ~30, no changes -> samples zones changes, says 8, 1.8 v3 2000-01-01 98 kPa, zones 31 32 39 55, Boost 3 Fuel ZV 118
# From 1 March 2001 on a chip's knock threshold rises with the revolutions.
Sample, 3*1       7900 ~57, map, zones,  ATM = 101            1.8 28-Feb-01 , no changes, ?Knock T -> samples zones changes, Knock T 13 13 13, 1.8 v2 2001-02-28 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 47
Sample, 3*1       7900 ~57, map, zones,  ATM = 101            1.8 01-Mar-01 , no changes, ?Knock T -> samples zones changes, Knock T 32 32 32, 1.8 v2 2001-03-01 101 kPa, zones 31 32 39 55, Boost 0 Fuel ZV 47
# Zones that are not known whole, or without their chip, use the defaults, and say so unless told not to.
Sample, 99 kPa, silent, 3*sample, map, zones, no changes -> samples zones changes, 1.6 v2 2000-01-01 99 kPa, zones 31 32 39 55, Boost 1 Fuel ZV 118
# It plots from the first sample as warm as that, by summaries alone; a tag that is open ends with the log.
Sample, plot from 70, 1*sample,  1.8             60, 4*sample,  1.8             80, 3*sample -> samples, plots from 3, says 16, 1.8 v2  0 kPa, zones -1 -1 -1 -1, Boost 145 Fuel ZV -1
Sample, plot from 80, 1*sample,  1.8             60, 4*sample,  1.8             80, 3*sample -> samples, says 16, 1.8 v2  0 kPa, zones -1 -1 -1 -1, Boost 145 Fuel ZV -1 | Sample, *1.8, 1 ~57, 2 ~57, *1.8, 3 ~57, 4 ~57 -> samples, plots from 0, says 16, tag 1-4, 1.8 v2  0 kPa, zones -1 -1 -1 -1, Boost 0 Fuel ZV -1
)");
  const auto quietly = [](const TableRow& row) {
    return TellOfLog(Quiet, row.Words(), Pieces(), TagsAndZones);
  };
  ExpectTable(quietly,
              "Sample, 3*sample, map, zones, no changes -> samples zones changes, 1.6 v2 "
              "2000-01-01 75 kPa, zones 31 32 39 55, Boost 36 Fuel ZV 118");
}

}  // namespace
}  // namespace tarnview
