// What a definition may tell of a log's form, key by key.

#include <gtest/gtest.h>

#include <cmath>

#include "LoadedUniversal.h"
#include "universal/LogTimes.h"
#include "universal/PlainLog.h"

namespace tarnview {
namespace {

/// Cells of item 5 of a log with the columns "Time" and "A": "10 20~" where no value was logged in
/// the second row.
std::string CellsOf(const std::string& header, const std::string& text,
                    const std::string& column = "", const char* time = "Time") {
  const DefinitionText file{header, {ColumnText(time, 63, 3), ColumnText("A", 5, 0, column)}, ""};
  return LoadedUniversal(file, text).Cells(5, /*marked=*/true);
}

TEST(FormedLog, EachKeyByItself) {
  const struct {
    const char* header;
    std::string text;
    const char* cells;
  } kRows[] = {
      // clang-format off
      {"", "Time,A\n1,7\n2,\n3,x\n", "7 0 0"},
      {"NOVALUETEXTS=x|n/a\n", "Time,A\n1,\n2,7\n3,X\n4, n/a\n5,8\n", "7~ 7 7~ 7~ 8"},
      {"NOVALUETEXTS=x\nTIMEFORM=SECONDS\n", "Time,A\n1,9\n2\n3,-2147483617\n", "9 9~ 9~"},
      {"NOVALUETEXTS=a long text\n", "Time,A\n1,9\n2,A long text\n3,1\n", "9 9~ 1"},
      {"DECIMALSIGN=,\nDELIMITERASCIICHARACTER=59\n", "Time;A\n1;7,6\n2;8,4\n3;9\n", "8 8 9"},
      {"DECIMALSIGN=,\nDELIMITERASCIICHARACTER=59\n", "Time;A\n1;1.234,6\n2;1.234.567\n3;01.250\n4;22.8.202\n", "1235 1234567 1 23"},
      {"TIMEFORM=SECONDS\n", "Time,A\n1,9.26e+02\n2.0E0,12E-1\n3,1.5E\n4,7e1x\n5,2e30\n", "926 1 2 7 2"},
      {"QUOTED=Y\n", "\"Time\",\"A\"\n\"1\",\"2,000\"\n\"2\",\"7\"\n3,8\n", "2000 7 8"},
      {"QUOTED=Y\nDECIMALSIGN=,\n", "Time,A\n\"1\",\"1.234,6\"\n2,\"7,4\"\n3,8\n", "1235 7 8"},
      {"QUOTED=Y\n", "Time,A\n\"1,\"7\"\n\"2\",\"8\"\n3,9\n", "8 9"},
      {"DELIMITERRUNS=Y\nDELIMITERASCIICHARACTER=32\n", "  Time   A \n 1 \t 7\n 2   8 \n3 9\n", "7 8 9"},
      {"COMMENTPREFIX=#\nLINEFREQUENCY=5\n", "Time,A\n#a,b\n1,7\n2,8\n3,9\n", "7 8 9"},
      {"TITLESSTART=Time,A\nDATALINESBEFORE=2\n", "note, of it\n# Time, A\ns,kPa\n1,7\n2,8\n3,9\n", "7 8 9"},
      {"TITLEROWS=2\nDATALINESBEFORE=2\n", "Time,\n,A\n1,7\n2,8\n3,9\n", "7 8 9"},
      {"TITLESSTART=Time,\nTITLEROWS=2\nDATALINESBEFORE=3\n", "note\nTime,\n,A\ns,kPa\n1,7\n2,8\n3,9\n", "7 8 9"},
      {"TITLESSTART=Other,A\n", "Time,A\n1,7\n2,8\n3,9\n", "7 8 9"},
      {"ENCODING=UTF-16LE\n",
       std::string("T\0i\0m\0e\0,\0A\0\n\0", 14) + std::string("1\0,\0", 4) + std::string("7\0\n\0", 4) +
           std::string("2\0,\0"
                       "8\0\n\0"
                       "3\0,\0"
                       "9\0",
                       14),
       "7 8 9"},
      {"ENCODING=UTF-8\n", "\xEF\xBB\xBFTime,A\r1,7\r2,8\r3,9\r", "7 8 9"},
      {"TIMEFORM=SECONDS\n", "Time,A\n1,7\nMARK,5\n# 2,3\n\n-2,8\nTime,A\n3,9\n", "7 8 9"},
      {"TIMEFORM=SECONDS\nTITLESFROM=CHANNELS\n", "Channel : A\nType : x\nChannel : B\n1,7\n2,8\n3,9\n", "7 8 9"},
      // clang-format on
  };
  for (const auto& row : kRows) {
    std::string header = row.header;
    EXPECT_EQ(CellsOf(header, row.text), row.cells) << row.header;
  }
}

std::string Replaced(const std::string& text, char from, const std::string& to) {
  std::string replaced;
  for (const char c : text) replaced += c == from ? to : std::string(1, c);
  return replaced;
}

std::string Wide(const std::string& text, bool bigEndian) {
  std::string wide;
  for (const char c : text) wide += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
  return wide;
}

/// Text is written anew in blocks of 128 KiB.
TEST(FormedLog, LongOnesAreReadAsShortOnes) {
  std::string plain = "Time,A\n", cells, note(400, 'n'), semicolons;
  for (int line = 0; line < 9000; ++line) {
    plain += std::to_string(line * 40) + "," + std::to_string(line % 777) + ".0,x" + note + "\n";
    cells += (line ? " " : "") + std::to_string(line % 777);
    note.resize(static_cast<std::size_t>(line % 83));
  }
  semicolons = Replaced(Replaced(plain, ',', ";"), '.', ",");
  const struct {
    const char* header;
    std::string text;
  } kRows[] = {
      {"TIMEFORM=SECONDS\n", plain},
      {"TIMEFORM=SECONDS\n", Replaced(plain, '.', "E")},
      {"TIMEFORM=SECONDS\n", Replaced(plain, '\n', "\r")},
      {"QUOTED=Y\n", "\"" + Replaced(Replaced(plain, ',', "\",\""), '\n', "\"\n\"")},
      {"DECIMALSIGN=,\nDELIMITERASCIICHARACTER=59\n", semicolons},
      {"DELIMITERRUNS=Y\nDELIMITERASCIICHARACTER=32\n",
       Replaced(Replaced(plain, ',', "  "), '\n', "\n ")},
      {"ENCODING=UTF-16LE\n", Wide(plain, false)},
      {"ENCODING=UTF-16BE\n", Wide(Replaced(plain, '\n', "\r"), true)},
  };
  for (const auto& row : kRows) {
    const bool same = CellsOf(row.header, row.text) == cells;  // too long to be printed
    EXPECT_TRUE(same) << row.header << row.text.substr(0, 40);
  }
}

TEST(FormedLog, OfLikeTitlesOneCanBeMeant) {
  const std::string log = "Time,A,A\n1,7,70\n2,8,80\n3,9,90\n";
  EXPECT_EQ(CellsOf("TIMEFORM=SECONDS\n", log, "TITLEOCCURRENCE=1\n"), "7 8 9");
  EXPECT_EQ(CellsOf("TIMEFORM=SECONDS\n", log, "TITLEOCCURRENCE=2\n"), "70 80 90");
}

TEST(FormedLog, WithoutTitlesTheColumnsAreNumbered) {
  EXPECT_EQ(CellsOf("TITLESFROM=NONE\nDATALINESBEFORE=0\nTIMEFORM=SECONDS\n", "1,7\n2,8\n3,9\n",
                    "COLUMNTITLE=Column 2\n", "Column 1"),
            "7 8 9");
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
