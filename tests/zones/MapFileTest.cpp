#include <numeric>

#include "support/MemoryFileSystem.h"
#include "support/Table.h"
#include "zones/ChipIdentity.h"
#include "zones/MapFile.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

/// Zone n is n, with a few that are not known.
ZoneMap Sample(Date chipDate) {
  ZoneMap map = MapWith({1.8, chipDate, 2}, 0);
  std::iota(map.zones.begin(), map.zones.end(), std::int16_t{0});
  map.zones[1] = -1;
  map.zones[255] = -7;
  map.strNotes = "Street,\r\nsummer";
  return map;
}

/// Everything that a reading gave; zones of the lines 1, 15 and 16 where they are not 7.
std::string Told(const MapReading& reading) {
  const ZoneMap& map = reading.map;
  std::string told = "none";
  if (reading.read)
    told = std::string(EngineSizeText(map.chip.dblEngineSize)) + " " +
           DateText(map.chip.datChipDate) + " v" + std::to_string(map.chip.intChipVersion) + " " +
           std::to_string(map.intAtmosphericPressure) + " kPa '" +
           Join(SplitAt(map.strNotes, "\r\n"), "/") + "'";
  if (!reading.error.empty()) told += " [" + reading.error + "]";
  for (const auto message : reading.messages)
    told += " " + std::to_string(static_cast<int>(message));
  for (std::size_t zone = 0; reading.read && zone <= 240; zone += zone == 15 ? 209 : 1)
    if (map.zones[zone] != 7)
      told += " " + ZoneName(static_cast<int>(zone)) + "=" + std::to_string(map.zones[zone]);
  return told;
}

/// Lines end with CR LF, told as ";", and a new line where one is empty; of the map of an old chip
/// the end.
TEST(MapFile, WrittenAndReadAgain) {
  std::string told;
  MemoryFileSystem disk;
  for (const Date chipDate : {kNewChipDate + 1, kNewChipDate}) {
    ZoneMap map = Sample(chipDate);
    if (chipDate == kNewChipDate) map.strNotes.clear();
    EXPECT_TRUE(WriteMapFile(disk, "a.map", map, {2026, 11, 24, 14, 5, 9}));
    const std::string& text = disk.files["a.map"];
    const auto from = chipDate == kNewChipDate ? text.find(" 224") : 0;
    for (const std::string& part : SplitAt(text.substr(from), "\r\n\r\n"))
      told += "\n" + Join(SplitAt(part, "\r\n"), ";");
    map.zones[255] = -1;
    if (chipDate == kNewChipDate) std::fill(map.zones.begin() + 240, map.zones.end(), 0);
    EXPECT_EQ(ReadMapFile(disk, "a.map", OwnChip(), false).map, map);
  }
  disk.broken.insert("a.map");
  EXPECT_FALSE(WriteMapFile(disk, "a.map", Sample(kNewChipDate), {}));
  ExpectTold(told, R"(
 Tarnview MAP File; File Created: 24-Nov-2026 14:05
 000  -1 002 003 004 005 006 007 008 009 010 011 012 013 014 015
 016 017 018 019 020 021 022 023 024 025 026 027 028 029 030 031
 032 033 034 035 036 037 038 039 040 041 042 043 044 045 046 047; 048 049 050 051 052 053 054 055 056 057 058 059 060 061 062 063; 064 065 066 067 068 069 070 071 072 073 074 075 076 077 078 079; 080 081 082 083 084 085 086 087 088 089 090 091 092 093 094 095; 096 097 098 099 100 101 102 103 104 105 106 107 108 109 110 111; 112 113 114 115 116 117 118 119 120 121 122 123 124 125 126 127
 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143; 144 145 146 147 148 149 150 151 152 153 154 155 156 157 158 159; 160 161 162 163 164 165 166 167 168 169 170 171 172 173 174 175; 176 177 178 179 180 181 182 183 184 185 186 187 188 189 190 191; 192 193 194 195 196 197 198 199 200 201 202 203 204 205 206 207; 208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223
 224 225 226 227 228 229 230 231 232 233 234 235 236 237 238 239; 240 241 242 243 244 245 246 247 248 249 250 251 252 253 254  -1
 Engine Size: 1.8; Chip Date: 2001-03-02; Chip Version: 2; Atmospheric Pressure: 101; Notes:;Street,;summer; End Of Notes;
 224 225 226 227 228 229 230 231 232 233 234 235 236 237 238 239
 Engine Size: 1.8; Chip Date: 2001-03-01; Chip Version: 2; Atmospheric Pressure: 101; Notes:
 End Of Notes;)");
}

TEST(MapFile, WhatOtherFilesHold) {
  // lines, "15x" for 15 lines of zones that are 7; and what else is so
  ExpectTable(
      [](const TableRow& row) {
        const std::string line = Join(std::vector<std::string>(17), " 007") + "\n";
        std::map<std::string, bool> is{{"missing", false}, {"broken", false}, {"quiet", false},
                                       {"silent", false},  {"BOM", false},    {"no end", false}};
        std::string text;
        for (const std::string& part : SplitAt(row.All(), "; ")) {
          const int count = part.ends_with("x") ? StringToLong(part) : 0;
          for (int i = 0; i < count; ++i) text += line;
          if (is.contains(part))
            is[part] = true;
          else if (count == 0)
            text += part + "\n";
        }
        if (is["no end"]) text.pop_back();
        if (is["BOM"]) text = "\xEF\xBB\xBF" + text;
        MemoryFileSystem disk;
        if (!is["missing"]) disk.files["a.map"] = text;
        if (is["broken"]) disk.broken.insert("a.map");
        Settings settings = OwnChip();
        settings.gblnSilentDefaults = is["silent"];
        return Told(ReadMapFile(disk, "a.map", settings, is["quiet"]));
      },
      R"(
missing -> none [53, File not found] | 15x; broken -> none [75, Path/File access error] | Sample -> none |  -> none | 14x -> none
15x -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9 z800=0 | 15x; no end -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9 z800=0 | banner; ; 16x -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9 | 15x; quiet -> 1.8 2001-09-18 v3 99 kPa '' z800=0 | 15x; silent -> 1.8 2001-09-18 v3 99 kPa '' z800=0
# The rest is not read.
17x; 15x -> 1.8 2001-09-18 v3 99 kPa '' [9, Subscript out of range] 7 8 9
# A gap of other text ends the zones.
14x; x; 1x -> none
# The trailer in any order, without a gap.
15x;  Atmospheric Pressure: 101;  Chip Version: 1;  Notes:; a;  End Of Notes;  Chip Date: X18-Sep-02; else;  Engine Size: 1.6 -> 1.6 2002-09-18 v1 101 kPa 'a' z800=0
# Fields that do not parse, or are none.
15x;  Engine Size: 1.7;  Chip Date: 2000-01-01;  Atmospheric: 5 -> 1.8 2000-01-01 v3 99 kPa '' 7 9 z800=0
15x;  Engine Size: 1.6;  Chip Date: 2003-01-01;  Chip Version: 1;  Chip Version: 9 -> 1.6 2003-01-01 v2 99 kPa '' 9 z800=0
15x;  Engine Size: x;  Chip Date: x;  Chip Version: x -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9 z800=0
15x;  Atmospheric Pressure: 40000;  Engine Size: 1.6 -> 1.8 2001-09-18 v3 99 kPa '' [6, Overflow] 7 8 9 z800=0
# Notes with an empty first line, one with more behind its colon, and the mark of UTF-8.
15x; quiet;  Notes:; ; ; a; ; b -> 1.8 2001-09-18 v3 99 kPa 'a//b' z800=0 | 15x; quiet;  Notes: x; a -> 1.8 2001-09-18 v3 99 kPa '' z800=0
BOM; quiet; 15x;  Notes:; a; ; b;  End Of Notes -> 1.8 2001-09-18 v3 99 kPa 'a//b' z800=0
# Fields of a line by position.
9 12x-05  1.5ab  007 007 007 007 007 007 007 007 007 007 007 007; quiet; 13x;  x25 1e2 007 007 007 007 007 007 007 007 007 007 007 007 007 007 -> 1.8 2001-09-18 v3 99 kPa '' z0=12 z1=-5 z2=1 z3=0 z700=0 z705=100 z800=0
 001 1e5 007 007 007 007 007 007 007 007 007 007 007 007 007 007; quiet; 15x -> none [6, Overflow]
)");
}

TEST(ZoneMap, OfABenchmark) {
  ZoneMap map = Sample(kNewChipDate);
  clsBenchmark benchmark;
  benchmark.strName = "Mine";
  SetMap(benchmark, map);
  map.strNotes.clear();
  EXPECT_EQ(MapOf(benchmark), map);
  EXPECT_EQ(benchmark.strName, "Mine");
}

}  // namespace
}  // namespace tarnview
