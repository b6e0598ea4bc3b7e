#include "LoadedLog.h"
#include "loaders/FMLinkLines.h"
#include "loaders/FMLinkLog.h"
#include "support/FMLinkLogBuilder.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(FMLinkLines, Kinds) {
  const auto tell = [](const TableRow& row) {
    const std::string& bracketed = row.Text(0);
    const char* const kinds[] = {"Log", "Summary", "Other", "Unrecognised"};
    const FMLinkLine known[] = {FMLinkLine::Log, FMLinkLine::Summary, FMLinkLine::Other};
    const FMLinkLine kind = KindOfFMLinkLine(bracketed.substr(1, bracketed.size() - 2));
    return kinds[std::find(std::begin(known), std::end(known), kind) - known];
  };
  ExpectTable(tell, R"(
[] -> Other | [1      ] -> Log | [123456 ] -> Log | [123456] -> Unrecognised | [1.8    ] -> Log | [*1.8] -> Summary | [ 1.x ] -> Summary | [1.6x] -> Summary
[  1.80] -> Summary | [ 2.0] -> Unrecognised | [-] -> Unrecognised | [ 12345 ] -> Unrecognised | [:00000 ] -> Unrecognised | [/00000 ] -> Unrecognised | [01.600] -> Summary
)");
}

/// A log of a summary and a sample.
struct TwoLines {
  std::string summary = Placed(64, {{2, "1.8"}}), line = Placed(57, {{1, "7"}});

  /// "44= 45" puts a text at 44 of the sample, "s24= 57" at 24 of the summary; "length=19" and
  /// "slength=4" cut a line off or lengthen it.
  void Change(std::string word) {
    std::string& changed = word[0] == 's' ? summary : line;
    if (word[0] == 's') word.erase(0, 1);
    const std::string value = word.substr(word.find('=') + 1);
    if (word.starts_with("length=")) return changed.resize(std::stoul(value), ' ');
    const std::size_t at = std::stoul(word) - 1;
    changed.resize(std::max(changed.size(), at + value.size()), ' ');
    changed.replace(at, value.size(), value);
  }
};

/// What is not as in a log of plain lines: "Lambda 4, L3 3".
std::string Differences(const LoadedLog& loaded, const LoadedLog& plain) {
  std::vector<std::string> told;
  for (int column = 0; column < loaded.log.glngDataLog.Columns(); ++column)
    if (loaded.Cells(column) != plain.Cells(column))
      told.push_back(loaded.catalogue.gcolFixedDataItems.Item(column + 1).strShortName + " " +
                     loaded.Cells(column));
  const ChipIdentity &chip = loaded.log.zones.chip, &plainChip = plain.log.zones.chip;
  if (chip.dblEngineSize != plainChip.dblEngineSize ||
      chip.intChipVersion != plainChip.intChipVersion)
    told.push_back("chip " + NumberText(chip.dblEngineSize) + " v" +
                   std::to_string(chip.intChipVersion));
  if (loaded.log.glngLowestAirTemp != plain.log.glngLowestAirTemp)
    told.push_back("air from " + std::to_string(loaded.log.glngLowestAirTemp));
  return told.empty() ? "nothing" : Join(told, ", ");
}

LoadOutcome Load(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, true);
}

TEST(FMLinkLines, WhatAFieldTells) {
  const auto load = [](const TwoLines& lines) {
    return LoadedLog(Load, JoinLines({"Sample", lines.summary, lines.line}));
  };
  const LoadedLog plain = load({});
  const auto tell = [&](const TableRow& row) {
    TwoLines lines;
    for (std::size_t n = 0; n < row.Count(); ++n) lines.Change(row.Text(n));
    return Differences(load(lines), plain);
  };
  ExpectTable(tell, R"(
# Lambda's mark, or the L3 correction.
20=3 -> L3 3 | 20=0 -> Lambda 0 | 20=9 -> L3 9 | 20=e -> L3 Idle 5 | 20=w -> L3 Idle 95 | 20=d -> Lambda 0 | 20=x -> Lambda 0 | 20=- -> Lambda 1 | 20=* -> Lambda 12
length=19 -> Lambda 0
# Wastegate or EGR.
28= 25 -> EGR 25
28= 25, length=62 -> EGR 25
28= 25, length=63 -> WG% 25
28= 25, 27=c -> WGCM 1, WG% 25
28= 25, 27=x, 16=116 -> MAP 1160, WGCM 2, WG% 25, Boost 168, Zone 300
28= 25, 27=x, 16=115 -> MAP 1150, WG% 25, Boost 167, Zone 300
length=26, 16=116 -> MAP 1160, WGCM 2, Boost 168, Zone 300
length=27, 16=116 -> MAP 1160, Boost 168, Zone 300
# Throttle, idle valve and auxiliary input, by the version of the summary.
44=0.52 -> IAC 0, Aux NF 520, Aux CF 8867 | 44=4.52, 43=w -> Throttle 2, IAC 0, TPS 10000, Aux NF 4520, Aux CF 16512
44= 45 -> TPS 4500 | 44= 451 -> TPS 4500 | 44=  0, 43=w -> Throttle 2, TPS 10000 | 44= 31, 43=* -> Throttle 1, IAC 31, TPS 1000
44= 45, 60=1.25, length=63 -> TPS 4500, Aux NF 1250, Aux CF 9612
44= 45, 60=1.2, length=62 -> TPS 4500
44= 45, 60=1.25, length=63, s2=1.x  -> IAC 45, Aux NF 1250, Aux CF 9612, chip 1.6 v1
44= 45, s2=1.6  -> TPS 4500
44= 45, s2=1.8b -> TPS 4500, chip 1.8 v3
# Numbers are read tolerantly.
9= 9.5 -> RPM 10 | 9=-850 -> RPM -850, Zone 1 | 9=1e3 -> RPM 1000, Zone 110 | 9=9e99 -> nothing | 9=12x4 -> RPM 12 | 1=123456 -> Sample 123456, Secs 101135155
16=1.5 -> MAP 15, Boost 2 | 19=! -> MAP Lmt 1 | 13=! -> Rev Lmt 1 | 8=* -> CAS Err 1
33=1234 -> Inj W 987 | 38=4.5 -> Inj % 45 | 32=x -> Fuel P 0 | length=31 -> nothing
50=123 -> Knock 123 | 53=! -> Knock E 1 | 54=-2.5 -> IAdv -25 | 54=12, length=55 -> IAdv 120
14=s -> Dwell 1 | 14=L -> Dwell 2 | 14=x -> nothing | 22= 85 -> O2 85, A/F 14300 | 25=a -> O2 A 1 | 25=d -> O2 A 2 | 25=x -> nothing | 48=n -> Neutral 1 | 49=c -> Comp 1
# The summary.
s2=1.x  -> IAC 0, chip 1.6 v1 | s2=1.8b -> chip 1.8 v3 | s2=1.6  -> nothing | s2=1.xx -> nothing | s2=1.x, slength=4 -> nothing
s9=13.8 -> Volt 138 | s17= 80 -> C Temp 80 | s50=123 -> Knock C 123
s29=EF -> Eng Fan 1 | s32=CF -> Cnd Fan 1 | s35=AC -> A/C 1 | s38=HR -> PRC 1 | s38=PR -> PRC 1 | s41=CP -> Ch Purge 1 | s38=CP -> nothing
s24= 57, s54=2.50v -> Speed 570, Aux NS 2500, Aux CS 11156
s24= 57, s54=S= 61, s60=2.50v -> Speed 610, Aux NS 2500, Aux CS 11156
s21=AT, s24= 57, s54=S= 61, s60=3 -> Speed 610, A Temp 570, L4 3, air from 57
s21=AT, s24=-99, s54=3, s56=S= 61 -> Speed 610, L4 3, air from 0
s21=AT, s24=-40, s54=3 -> A Temp -300, L4 3, air from -30
s24= 57 -> Speed 570 | s24=1234 -> Speed 1230
)");
}

}  // namespace
}  // namespace tarnview
