// What a definition may tell of a log's form, key by key.

#include <gtest/gtest.h>

#include <cmath>

#include "LoadedUniversal.h"
#include "MadeLogs.h"
#include "universal/LogTimes.h"
#include "universal/PlainLog.h"

namespace tarnview {
namespace {

/// Cells of item 5 of a log with the columns "Time" and "A": "10 20~" where no value was logged in
/// the second row.
std::string CellsOf(const std::string& header, const std::string& text,
                    const std::string& column = "") {
  const DefinitionText file{header, {ColumnText("Time", 63, 3), ColumnText("A", 5, 0, column)}, ""};
  return LoadedUniversal(file, text).Cells(5, /*marked=*/true);
}

std::string Replaced(const std::string& text, char from, const std::string& to) {
  return Join(Split(text, from), to);
}

/// Keys of a definition, the lines of a log, and what its column tells besides.
TEST(FormedLog, EachKeyByItself) {
  const auto cells = [](const TableRow& row) {
    auto parts = SplitAt(row.All(), " & ");
    parts.resize(3);
    for (std::string& part : parts)
      if (!part.empty()) part = TableRow(part).Lines() + "\n";
    return CellsOf(parts[0], parts[1], parts[2]);
  };
  ExpectTable(cells, R"(
COLOUR=0 & Time,A; 1,7; 2,; 3,x -> 7 0 0
NOVALUETEXTS=x|n/a & Time,A; 1,; 2,7; 3,X; 4, n/a; 5,8 -> 7~ 7 7~ 7~ 8
NOVALUETEXTS=x; TIMEFORM=SECONDS & Time,A; 1,9; 2; 3,-2147483617 -> 9 9~ 9~
NOVALUETEXTS=a long text & Time,A; 1,9; 2,A long text; 3,1 -> 9 9~ 1
DECIMALSIGN=,; DELIMITERASCIICHARACTER=59 & Time;A; 1;7,6; 2;8,4; 3;9 -> 8 8 9
DECIMALSIGN=,; DELIMITERASCIICHARACTER=59 & Time;A; 1;1.234,6; 2;1.234.567; 3;01.250; 4;22.8.202 -> 1235 1234567 1 23
TIMEFORM=SECONDS & Time,A; 1,9.26e+02; 2.0E0,12E-1; 3,1.5E; 4,7e1x; 5,2e30 -> 926 1 2 7 2
QUOTED=Y & "Time","A"; "1","2,000"; "2","7"; 3,8 -> 2000 7 8
QUOTED=Y; DECIMALSIGN=, & Time,A; "1","1.234,6"; 2,"7,4"; 3,8 -> 1235 7 8
QUOTED=Y & Time,A; "1,"7"; "2","8"; 3,9 -> 8 9
DELIMITERRUNS=Y; DELIMITERASCIICHARACTER=32 &   Time   A ; 1 	 7; 2   8 ; 3 9 -> 7 8 9
COMMENTPREFIX=#; LINEFREQUENCY=5 & Time,A; #a,b; 1,7; 2,8; 3,9 -> 7 8 9
TITLESSTART=Time,A; DATALINESBEFORE=2 & note, of it; # Time, A; s,kPa; 1,7; 2,8; 3,9 -> 7 8 9
TITLEROWS=2; DATALINESBEFORE=2 & Time,; ,A; 1,7; 2,8; 3,9 -> 7 8 9
TITLESSTART=Time,; TITLEROWS=2; DATALINESBEFORE=3 & note; Time,; ,A; s,kPa; 1,7; 2,8; 3,9 -> 7 8 9
TITLESSTART=Other,A & Time,A; 1,7; 2,8; 3,9 -> 7 8 9
TIMEFORM=SECONDS & Time,A; 1,7; MARK,5; # 2,3; ; -2,8; Time,A; 3,9 -> 7 8 9
TIMEFORM=SECONDS; TITLESFROM=CHANNELS & Channel : A; Type : x; Channel : B; 1,7; 2,8; 3,9 -> 7 8 9
# Of like titles one can be meant; without titles the columns are numbered.
TIMEFORM=SECONDS & Time,A,A; 1,7,70; 2,8,80; 3,9,90 & TITLEOCCURRENCE=1 -> 7 8 9
TIMEFORM=SECONDS & Time,A,A; 1,7,70; 2,8,80; 3,9,90 & TITLEOCCURRENCE=2 -> 70 80 90
TITLESFROM=NONE; DATALINESBEFORE=0; LINEFREQUENCY=1 & 1,7; 2,8; 3,9 & COLUMNTITLE=Column 2 -> 7 8 9
)");
  EXPECT_EQ(CellsOf("ENCODING=UTF-16LE\n", AsUtf16("Time,A\n1,7\n2,8\n3,9", false)), "7 8 9");
  EXPECT_EQ(CellsOf("ENCODING=UTF-8\n", "\xEF\xBB\xBFTime,A\r1,7\r2,8\r3,9\r"), "7 8 9");
}

/// Text is written anew in blocks of 128 KiB.
TEST(FormedLog, LongOnesAreReadAsShortOnes) {
  std::string plain = "Time,A\n", cells, note(400, 'n');
  for (int line = 0; line < 9000; ++line) {
    plain += std::to_string(line * 40) + "," + std::to_string(line % 777) + ".0,x" + note + "\n";
    cells += (line ? " " : "") + std::to_string(line % 777);
    note.resize(static_cast<std::size_t>(line % 83));
  }
  const struct {
    const char* header;
    std::string text;
  } kRows[] = {
      {"TIMEFORM=SECONDS\n", plain},
      {"TIMEFORM=SECONDS\n", Replaced(plain, '.', "E")},
      {"TIMEFORM=SECONDS\n", Replaced(plain, '\n', "\r")},
      {"QUOTED=Y\n", "\"" + Replaced(Replaced(plain, ',', "\",\""), '\n', "\"\n\"")},
      {"DECIMALSIGN=,\nDELIMITERASCIICHARACTER=59\n",
       Replaced(Replaced(plain, ',', ";"), '.', ",")},
      {"DELIMITERRUNS=Y\nDELIMITERASCIICHARACTER=32\n",
       Replaced(Replaced(plain, ',', "  "), '\n', "\n ")},
      {"ENCODING=UTF-16LE\n", AsUtf16(plain, false)},
      {"ENCODING=UTF-16BE\n", AsUtf16(Replaced(plain, '\n', "\r"), true)},
  };
  for (const auto& row : kRows) {
    const bool same = CellsOf(row.header, row.text) == cells;  // too long to be printed
    EXPECT_TRUE(same) << row.header << row.text.substr(0, 40);
  }
}

/// Stamps of a column, "x" where a line has none; of a clock behind that word.
TEST(LogTimes, CountFromTheFirstAndNeverFall) {
  const auto times = [](const TableRow& row) {
    std::vector<double> stamps;
    auto form = TimeForm::Seconds;
    for (const std::string& word : Split(row.All(), ' ')) {
      if (word == "clock")
        form = TimeForm::Clock;
      else
        stamps.push_back(word == "x" ? std::nan("") : std::stod(word));
    }
    std::string text;
    for (const double time : TimesOfLines(stamps, form))
      text += NumberText(RoundPlaces(time, 3)) + " ";
    return text;
  };
  ExpectTable(times, R"(
38.5 38.6 38.7 -> 0 0.1 0.2  | clock 86399.5 86399.9 0.3 0.7 -> 0 0.4 0.8 1.2  | x 5 x 7 -> 0 0.667 1.333 2 
# Whole seconds; cut at both ends; a pause is no span; started anew; lines changed places.
10 10 11 11 12 12 -> 0 0.5 1 1.5 2 2.5  | 58 59 59 60 60 61 -> 0 0.5 1 1.5 2 2.5  | 10 10 11 11 50 51 -> 0 0.5 1 2.5 40 41  | 5 6 7 0 1 2 -> 0 1 2 3 4 5  | 5 6 5.9 7 -> 0 1 1.5 2 
)");
  std::vector<double> none;
  EXPECT_TRUE(TimesOfLines(none, TimeForm::Seconds).empty());
}

}  // namespace
}  // namespace tarnview
