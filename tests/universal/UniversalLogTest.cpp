#include <gtest/gtest.h>

#include <set>

#include "LoadedUniversal.h"
#include "support/LoadMessages.h"
#include "support/Table.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/HeaderMap.h"
#include "universal/Smoothing.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;
using Loaded = LoadedUniversal;

/// The cells of one column "A" of item 5, for fields one a line.
std::string CellsOf(const std::string& attributes, const std::vector<std::string>& fields,
                    int places = 0, int type = 1) {
  std::string text = "A,B\n";
  for (const std::string& field : fields) text += field + ",x\n";
  return Loaded(
             DefinitionText{
                 "LINEFREQUENCY=10\n", {ColumnText("A", 5, places, attributes, type)}, ""},
             text)
      .Cells(5);
}

const std::string kLatin1 = "Temp\xe9rature", kUtf8 = "Temp\u00e9rature";

TEST(UniversalLog, TitlesAndListedValuesAreOneInEitherCaseAndEncoding) {
  const std::string upper = "TEMP\xc9RATURE", upperUtf8 = "TEMP\u00c9RATURE";
  for (const std::string& title : {kLatin1, kUtf8})
    for (const std::string& inLog : {kLatin1, kUtf8, upper, upperUtf8}) {
      const std::string column =
          ColumnText(title, 5, 0, "", 2) + "[VALUES]\nfroid\n" + title + "\n";
      const Loaded loaded({"LINEFREQUENCY=10\n", {column}, ""},
                          inLog + ",B\nfroid,1\n" + inLog + ",1\n" + inLog + ",1\n");
      EXPECT_EQ(loaded.Cells(5), "0 1 1") << title << inLog;
    }
}

TEST(UniversalLog, ColumnsBeyondAllMeasureArePassedOver) {
  const std::string titles = "A" + std::string(kMostFields + 9, ',');
  const Loaded loaded({"LINEFREQUENCY=10\n", {ColumnText("A", 5, 0)}, ""}, titles + "\n7\n8\n9\n");
  EXPECT_EQ(loaded.Cells(5), "7 8 9");
  EXPECT_EQ(loaded.outcome.unknownColumns.size(), kMostFields - 1);
}

const std::string kTime = ColumnText("Time", 63, 3);
const std::string kPressure = ColumnText("MAP", 5, 1);

TEST(UniversalLog, AWholeLogOfTheBuiltInDefinition) {
  const Loaded loaded(
      DefaultDataLogDefinition(),
      "timestamp,engine speed (rpm), Boost (PSI) ,vacuum (mmHg),Vehicle Speed (KPH),Foo\r\n"
      "0,1000,0,100,100,1\r\n"
      "100,1500,-1,200,100,2\r\n"
      "\r\n"
      "200,2000,5,0\r\n"
      "300,2500.5,5,0,50,3,4,5");
  EXPECT_EQ(loaded.outcome.messages, Ids{});
  std::string cells;
  for (const int item : {1, 63, 3, 37, 5, 24}) cells += loaded.Cells(item) + "; ";
  EXPECT_EQ(cells,
            "1 2 3 4 5; 0 100 101 200 300; 1000 1500 0 2000 2500; 0 0 0 50 50; 87 73 0 134 134; "
            "62 62 0 0 31; ");
  EXPECT_EQ(loaded.outcome.unknownColumns, std::vector<std::string>{"Foo"});
}

/// The stored number of a field in brackets.
TEST(UniversalLog, NumbersAreConverted) {
  const auto tell = [](const TableRow& row) {
    std::string attributes;
    int places = 0;
    for (std::size_t n = 1; n < row.Count(); ++n)
      if (row.Text(n).ends_with(" places"))
        places = row.Int(n);
      else
        attributes += row.Text(n) + "\n";
    const std::string field = row.Text(0).substr(1, row.Text(0).size() - 2);
    return CellsOf(attributes, {field}, places);
  };
  ExpectTable(tell, R"(
[10], CONVERSIONFACTOR=2, CONVERSIONOFFSET=3 -> 26
[10], CONVERSIONFACTOR=2, CONVERSIONOFFSET=3, CONVERSIONFACTORFIRST=Y -> 23
[10], CONVERSIONFACTOR=0, CONVERSIONOFFSET=3 -> 13
[5], COLUMNMINIMUMVALUE=5, ALLOWSETTOMINIMUMVALUE=N -> 0
[5.6], COLUMNMINIMUMVALUE=5, ALLOWSETTOMINIMUMVALUE=N -> 6
[-1], COLUMNMINIMUMVALUE=5 -> 5
[7], COLUMNMAXIMUMVALUE=5 -> 5
[5], COLUMNMAXIMUMVALUE=5, ALLOWSETTOMAXIMUMVALUE=N -> 0
[-3] -> 0
[-3], 2 places, SIGNED=Y -> -300
[-2.5], 1 places, SIGNED=Y, CONVERSIONFACTOR=2 -> -50
[-2147483647], SIGNED=Y -> -2147483647
[-3], SIGNED=Y, COLUMNMINIMUMVALUE=-1 -> -1
[-3], 2 places, OFFSET=10 -> 700
[-30], 2 places, OFFSET=10 -> 0
[2.5] -> 2
[ 12.345kPa], 1 places -> 123
[1e3] -> 1
[2147483647.4] -> 2147483647
[99999999999] -> 0
[] -> 0
[rubbish], CONVERSIONTYPE=1 -> 0
)");
}

TEST(UniversalLog, RepeatedFieldsAndOddOnesMix) {
  EXPECT_EQ(CellsOf("",
                    {"5", "5",
                     std::string("\0"
                                 "5",
                                 2),
                     "5", "abc", "5", "123456789", "5.5", "5.5", "", "-5.5", "55"},
                    1),
            "50 50 0 50 0 50 1234567890 55 55 0 0 550");
}

TEST(UniversalLog, ListedTextsAreTranslated) {
  // The blank line that ends the definition is an entry too.
  EXPECT_EQ(CellsOf("[VALUES]\nOff\non\nOFF\n", {"On", " off ", "other", ""}, 0, 2), "1 0 0 3");
  EXPECT_EQ(CellsOf("[VALUES]\nOff\n\n", {"x", "", "Off"}, 0, 2), "0 1 0");
  EXPECT_EQ(CellsOf("", {"1", "2", "3"}, 0, 3), "0 0 0");  // an unknown type
}

/// A definition's header, its columns by title, item, places and attributes, and a log's lines: the
/// cells of its items, and what else came of it.
TEST(UniversalLog, WhatColumnsAndHeaderMakeOfALog) {
  Settings settings;
  settings.gintPlotFromTemperature = 60;
  const auto tell = [&](const TableRow& row) {
    DefinitionText text{TableRow(row.Text(0)).Lines() + "\n", {}, ""};
    std::set<int> items{63};
    for (const std::string& column : SplitAt(row.Text(1), "; ")) {
      const auto words = Split(column, ' ');
      const int item = StringToLong(words[1]);
      std::string attributes;
      for (std::size_t n = 3; n < words.size(); ++n) attributes += words[n] + "\n";
      text.columns.push_back(ColumnText(words[0], item, StringToLong(words[2]), attributes));
      items.insert(item);
    }
    const Loaded loaded(text, TableRow(row.Text(2)).Lines() + "\n", settings);
    std::vector<std::string> told;
    for (const int item : items) told.push_back(std::to_string(item) + ": " + loaded.Cells(item));
    if (loaded.log.glngLowestAirTemp != kNoAirTemp)
      told.push_back("air from " + std::to_string(loaded.log.glngLowestAirTemp));
    told.push_back("plots from " + std::to_string(loaded.log.glngFirstPlotSample));
    if (const auto& unknown = loaded.outcome.unknownColumns; !unknown.empty())
      told.push_back("unknown " + Join(unknown, " "));
    return Join(told, "; ");
  };
  ExpectTable(tell, R"(
# Times never fall; dates count from the first of the log.
COLOUR=0, Time 63 3, Time,x; 1,; 0.5,; 1.005,; 1.005,; ; , -> 63: 1000 1001 1005 1005 1006 1007; plots from -1; unknown x
COLOUR=0, Time 63 3 CONVERSIONTYPE=1; GPS 5 0 CONVERSIONTYPE=1, GPS,Time; bad,24-Nov-2026 23:59:59.500; 2026-11-25 00:00:01,25-Nov-2026 00:00:00.125; 2026/11/25 00:00:05,bad -> 5: 0 2 6; 63: 0 625 626; plots from -1
# Without a column of times the frequency sets them, by the factor of the definition's own column.
LINEFREQUENCY=3, MAP 5 1, MAP,x; 1; 1; 1 -> 5: 10 10 10; 63: 0 3333 6667; plots from -1; unknown x
LINEFREQUENCY=10, MAP 5 1; Time 63 3, MAP,x; 1; 1; 1 -> 5: 10 10 10; 63: 0 100 200; plots from -1; unknown x
# A title that feeds two items, an item of two titles; then duplicates are passed over.
LINEFREQUENCY=1, A 5 0; B 5 0; A 7 0, A,B,A; 1,2,3; 4; 5,6 -> 5: 3 4 6; 7: 3 4 5; 63: 0 10000 20000; plots from -1
LINEFREQUENCY=1; IGNOREDUPLICATECOLUMNS=Y, A 5 0; B 5 0; A 7 0, A,B,A; 1,2,3; 4; 5,6 -> 5: 2 4 6; 7: 1 4 5; 63: 0 10000 20000; plots from -1; unknown A
# An item with an offset that a log lacks reads as zero.
LINEFREQUENCY=1, MAP 5 1; Temp 7 1 OFFSET=40; Low 11 1 OFFSET=40 COLUMNMINIMUMVALUE=5, MAP,x; 1; 2;  -> 5: 10 20 0; 7: 400 400 400; 11: 450 450 450; 63: 0 10000 20000; plots from -1; unknown x
LINEFREQUENCY=1, MAP 5 1; Temp 7 1 OFFSET=40; Low 11 1 OFFSET=40 COLUMNMINIMUMVALUE=5, MAP,Temp; 1,5; 2,5;  -> 5: 10 20 0; 7: 450 450 0; 11: 450 450 450; 63: 0 10000 20000; plots from -1
# The coldest air, and the first sample as warm as the settings want.
LINEFREQUENCY=1, Air 31 1 OFFSET=40; Water 23 1, Air,Water; 20.5,59.9; -7.5,60; 9,70 -> 23: 599 600 700; 31: 605 325 490; 63: 0 10000 20000; air from -8; plots from 1
LINEFREQUENCY=1, Air 31 1 OFFSET=40; Water 23 1, Air,x; 20.5; 20.5; 20.5 -> 23: 0 0 0; 31: 605 605 605; 63: 0 10000 20000; air from 20; plots from -1; unknown x
LINEFREQUENCY=1, MAP 5 0 SMOOTH=Y, MAP,x; 10; 10; 13; 13 -> 5: 10 12 13 13; 63: 0 10000 20000 30000; plots from -1; unknown x
)");
}

/// Which definition, and the lines of a log: the first message.
TEST(UniversalLog, WhatDoesNotLoadSaysWhy) {
  const std::map<std::string, DefinitionText> definitions = {
      {"timed",
       {"FILEIDTEXT=ID\nFILEIDTEXTLINESBEFORE=1\nFILEIDTEXTCOLUMNSBEFORE=2\n"
        "COLUMNHEADERSLINESBEFORE=2\nDATALINESBEFORE=4\n",
        {kTime, kPressure},
        ""}},
      {"plain", {"", {kTime, kPressure}, ""}},
      {"ticking", {"LINEFREQUENCY=1\n", {kPressure}, ""}}};
  const auto tell = [&](const TableRow& row) {
    const Loaded loaded(definitions.at(row.Text(0)), TableRow(row.Text(1)).Lines());
    EXPECT_FALSE(loaded.outcome.loaded || loaded.log.gblnSamplesLoaded);
    return Join(SplitAt(loaded.FirstMessage(), "\r\n"), "/");
  };
  ExpectTable(tell, R"(
timed,  -> 90: Lines before: 1/Columns before: 2/ID Text: ID/Line read from data log: / | timed, x;  -> 90: Lines before: 1/Columns before: 2/ID Text: ID/Line read from data log: / | timed, x; _id;  -> 90: Lines before: 1/Columns before: 2/ID Text: ID/Line read from data log: /_id
timed, x; __ID -> 74: /run.csv | timed, x; __IDx; Time;  -> 73: Time | timed, x; __IDx; MAP,x;  -> 89: MAP,x | timed, x; __IDx; Time,x;  -> 15: /run.csv
timed, x; __IDx; Time,x; units;  ->  | plain,  -> 74: /run.csv | plain, ; 1,2;  -> 73:  | plain, Time,MAP; 1,2; 2,3;  ->  | ticking, a,b; 1,2;  -> 83: a,b
)");
}

TEST(UniversalLog, AtMost300000LinesAreRead) {
  std::string text = "MAP,x\n";
  for (int n = 0; n < kMostSamples; ++n) text += "1\n";
  const DefinitionText definition{"LINEFREQUENCY=1\n", {kPressure}, ""};
  EXPECT_EQ(Loaded(definition, text).outcome.messages, Ids{}) << "every line was taken";
  const Loaded loaded(definition, text + "7\n");
  EXPECT_EQ(loaded.outcome.messages, Ids{51});
  EXPECT_EQ(loaded.log.glngDataLog.Rows(), kMostSamples);
  EXPECT_EQ(loaded.log.glngDataLog(kMAP, kMostSamples - 1), 10);
}

TEST(UniversalLog, WideLogsLoad) {
  std::string header = "Time", line = "1";
  for (int n = 0; n < 100000; ++n) {
    header += n % 2 ? ",Column " : ",MAP";
    line += ",42.5";
  }
  const Loaded loaded(DefinitionText{"", {kTime, kPressure}, ""},
                      header + "\n" + line + "\n\n" + line + "\n1");
  EXPECT_EQ(loaded.Cells(5), "425 0 425 0");
  EXPECT_EQ(loaded.outcome.unknownColumns.size(), 50000u);
}

TEST(Smoothing, TurnsStairsIntoRamps) {
  const auto smoothed = [](const TableRow& row) {
    SampleStore store;
    store.Prepare(1, 0);
    for (const std::string& value : Split(row.All(), ' '))
      store.Set(0, store.AddRow(), StringToLong(value));
    SmoothColumn(store, 0);
    std::string told;
    for (const std::int32_t value : store.Column(0)) told += std::to_string(value) + " ";
    return told;
  };
  ExpectTable(smoothed, R"(
0 0 0 30 -> 0 10 20 30  | 30 30 60 60 61 61 -> 30 45 60 60 61 61  | 7 7 7 -> 7 7 7 
)");
  SampleStore none;
  none.Prepare(1, 0);
  SmoothColumn(none, 0);
}

}  // namespace
}  // namespace tarnview
