#include <algorithm>

#include "support/MemoryFileSystem.h"
#include "support/Table.h"
#include "zones/MapFile.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

/// Zone n is n, with a few that are not known.
ZoneMap Sample() {
  ZoneMap map;
  for (int zone = 0; zone < 256; ++zone)
    map.zones[static_cast<std::size_t>(zone)] = static_cast<std::int16_t>(zone);
  map.zones[1] = -1;
  map.zones[255] = -7;
  map.chip = {1.8, MakeDate(2001, 3, 2), 2};
  map.intAtmosphericPressure = 85;
  map.strNotes = "Street,\r\nsummer";
  return map;
}

std::string Written(const ZoneMap& map) {
  std::string text = MapText(map, {2026, 11, 24, 14, 5, 9});
  for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.erase(at, 1);
  return text;
}

/// So many lines of zones, each zone 7.
std::string Lines(int count) {
  std::string line;
  for (int c = 0; c < 16; ++c) line += " 007";
  std::string text;
  for (int i = 0; i < count; ++i) text += line + "\n";
  return text;
}

/// Everything that a reading gave, on one line.
std::string Told(const MapReading& reading) {
  if (!reading.read) return "none" + (reading.error.empty() ? "" : " [" + reading.error + "]");
  std::string text = std::string(reading.map.chip.dblEngineSize == 1.8 ? "1.8 " : "1.6 ") +
                     DateText(reading.map.chip.datChipDate) + " v" +
                     std::to_string(reading.map.chip.intChipVersion) + " " +
                     std::to_string(reading.map.intAtmosphericPressure) + " kPa '" +
                     Join(SplitAt(reading.map.strNotes, "\r\n"), "|") + "'";
  if (!reading.error.empty()) text += " [" + reading.error + "]";
  for (const auto message : reading.messages)
    text += " " + std::to_string(static_cast<int>(message));
  return text;
}
std::string Told(const std::string& text, bool quiet = false) {
  return Told(ParseMap(text, OwnChip(), quiet));
}

TEST(MapFile, WritesAndReadsBack) {
  ExpectTold("\n" + Written(Sample()), R"(
 Tarnview MAP File
 File Created: 24-Nov-2026 14:05

 000  -1 002 003 004 005 006 007 008 009 010 011 012 013 014 015

 016 017 018 019 020 021 022 023 024 025 026 027 028 029 030 031

 032 033 034 035 036 037 038 039 040 041 042 043 044 045 046 047
 048 049 050 051 052 053 054 055 056 057 058 059 060 061 062 063
 064 065 066 067 068 069 070 071 072 073 074 075 076 077 078 079
 080 081 082 083 084 085 086 087 088 089 090 091 092 093 094 095
 096 097 098 099 100 101 102 103 104 105 106 107 108 109 110 111
 112 113 114 115 116 117 118 119 120 121 122 123 124 125 126 127

 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143
 144 145 146 147 148 149 150 151 152 153 154 155 156 157 158 159
 160 161 162 163 164 165 166 167 168 169 170 171 172 173 174 175
 176 177 178 179 180 181 182 183 184 185 186 187 188 189 190 191
 192 193 194 195 196 197 198 199 200 201 202 203 204 205 206 207
 208 209 210 211 212 213 214 215 216 217 218 219 220 221 222 223

 224 225 226 227 228 229 230 231 232 233 234 235 236 237 238 239
 240 241 242 243 244 245 246 247 248 249 250 251 252 253 254  -1

 Engine Size: 1.8
 Chip Date: 2001-03-02
 Chip Version: 2
 Atmospheric Pressure: 085
 Notes:
Street,
summer
 End Of Notes
)");
  const std::string bytes = MapText(Sample(), {});
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'),
            std::count(bytes.begin(), bytes.end(), '\n'));

  ZoneMap expected = Sample();
  expected.zones[255] = -1;
  const MapReading reading = ParseMap(bytes, OwnChip(), false);
  EXPECT_EQ(reading.map, expected);
  EXPECT_EQ(Told(reading), "1.8 2001-03-02 v2 85 kPa 'Street,|summer'");
}

TEST(MapFile, LastLineOfZonesByDateAndTheNotesOfNone) {
  ZoneMap map = Sample();
  map.chip.datChipDate = MakeDate(2001, 3, 1);
  map.strNotes.clear();
  const std::string text = Written(map);
  EXPECT_NE(text.find(" 239\n\n Engine Size: 1.8\n Chip Date: 2001-03-01\n"), std::string::npos);
  EXPECT_TRUE(text.ends_with(" Notes:\n\n End Of Notes\n"));
  const MapReading reading = ParseMap(text, OwnChip(), false);
  EXPECT_EQ(reading.map.zones[239], 239);
  EXPECT_EQ(reading.map.zones[240], 0);
  EXPECT_EQ(reading.map.strNotes, "");
}

TEST(MapFile, WhatOtherFilesHold) {
  // lines, "15x" for 15 lines of zones
  ExpectTable(
      [](const TableRow& row) {
        std::string text;
        for (const std::string& line : SplitAt(row.All(), "; "))
          text += line.ends_with("x") && StringToLong(line) > 0 ? Lines(StringToLong(line))
                                                                : line + "\n";
        return Told(text);
      },
      R"(
Sample -> none
 -> none
14x -> none
15x -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9
banner; ; 16x -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9
# The rest is not read.
17x; 15x -> 1.8 2001-09-18 v3 99 kPa '' [9, Subscript out of range] 7 8 9
# A gap of other text ends the zones.
14x; x; 1x -> none
# The trailer in any order, without a gap.
15x;  Atmospheric Pressure: 101;  Chip Version: 1;  Notes:; a;  End Of Notes;  Chip Date: X18-Sep-02; else;  Engine Size: 1.6 -> 1.6 2002-09-18 v1 101 kPa 'a'
# Fields that do not parse, or are none.
15x;  Engine Size: 1.7;  Chip Date: 2000-01-01;  Atmospheric: 5 -> 1.8 2000-01-01 v3 99 kPa '' 7 9
15x;  Engine Size: 1.6;  Chip Date: 2003-01-01;  Chip Version: 1;  Chip Version: 9 -> 1.6 2003-01-01 v2 99 kPa '' 9
15x;  Engine Size: x;  Chip Date: x;  Chip Version: x -> 1.8 2001-09-18 v3 99 kPa '' 7 8 9
15x;  Atmospheric Pressure: 40000;  Engine Size: 1.6 -> 1.8 2001-09-18 v3 99 kPa '' [6, Overflow] 7 8 9
# Notes with an empty first line, and one with more behind its colon.
15x;  Engine Size: 1.6;  Chip Date: 2003-01-01;  Chip Version: 1;  Notes:; ; ; a; ; b -> 1.6 2003-01-01 v1 99 kPa 'a||b' 9
15x;  Engine Size: 1.6;  Chip Date: 2003-01-01;  Chip Version: 1;  Notes: x; a -> 1.6 2003-01-01 v1 99 kPa '' 9
)");
  const std::string user = "1.8 2001-09-18 v3 99 kPa ''";
  EXPECT_EQ(Told(Lines(15).substr(0, 65 * 15 - 1)), user + " 7 8 9") << "no end of the last line";
  EXPECT_EQ(Told(Lines(15), true), user);
  Settings silent = OwnChip();
  silent.gblnSilentDefaults = true;
  EXPECT_EQ(Told(ParseMap(Lines(15), silent, false)), user);
}

TEST(MapFile, FieldsOfALineByPosition) {
  std::string text = Lines(16);
  text.replace(0, 16, "9 12x-05  1.5ab ");
  text.replace(65, 8, " x25 1e2");
  const ZoneSettings zones = ParseMap(text, OwnChip(), true).map.zones;
  // " 12", "-05", " 1.", "ab " and "x25", "1e2"
  const std::int16_t expected[] = {12, -5, 1, 0};
  for (std::size_t zone = 0; zone < 4; ++zone) EXPECT_EQ(zones[zone], expected[zone]) << zone;
  EXPECT_EQ(zones[16], 0);
  EXPECT_EQ(zones[17], 100);
  text.replace(65, 8, " 001 1e5");
  EXPECT_EQ(Told(text), "none [6, Overflow]");
}

TEST(MapFile, OnDisk) {
  MemoryFileSystem disk;
  EXPECT_EQ(Told(ReadMapFile(disk, "a.map", OwnChip(), false)), "none [53, File not found]");
  EXPECT_TRUE(WriteMapFile(disk, "a.map", Sample(), {}));
  EXPECT_EQ(ReadMapFile(disk, "a.map", OwnChip(), false).map.strNotes, "Street,\r\nsummer");
  const std::string notes = " Notes:\na\n\nb\n End Of Notes\n";
  std::string inCR = Lines(15) + notes;
  std::replace(inCR.begin(), inCR.end(), '\n', '\r');
  for (const auto& [text, read] : {std::pair{"\xEF\xBB\xBF" + Lines(15) + notes, "a\r\n\r\nb"},
                                   {inCR, "a\r\n\r\nb"},
                                   {Lines(15) + " Notes:\r\na\rb\r\n", "a\rb"}}) {
    disk.files["a.map"] = text;
    EXPECT_EQ(ReadMapFile(disk, "a.map", OwnChip(), true).map.strNotes, read) << text;
  }
  disk.broken.insert("a.map");
  EXPECT_EQ(Told(ReadMapFile(disk, "a.map", OwnChip(), false)),
            "none [75, Path/File access error]");
  EXPECT_FALSE(WriteMapFile(disk, "a.map", Sample(), {}));
}

TEST(ZoneMap, ToAndFromTheOpenFileAndBenchmarks) {
  LoadedZones loaded;
  loaded.changes[3] = 9;
  SetMap(loaded, Sample());
  EXPECT_EQ(MapOf(loaded), Sample());
  EXPECT_EQ(loaded.changes[3], 9);

  clsBenchmark benchmark;
  benchmark.strName = "Mine";
  SetMap(benchmark, Sample());
  ZoneMap expected = Sample();
  expected.strNotes.clear();
  EXPECT_EQ(MapOf(benchmark), expected);
  EXPECT_EQ(benchmark.strName, "Mine");
}

}  // namespace
}  // namespace tarnview
