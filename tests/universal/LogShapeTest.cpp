#include "LoadedUniversal.h"
#include "MadeLogs.h"
#include "support/Table.h"
#include "universal/DefinitionWriter.h"
#include "universal/LogShape.h"
#include "universal/ShapeDefinition.h"

namespace tarnview {
namespace {

LogShape ShapeOf(std::string_view text, const ShapeChoices& choices = {}) {
  return ReadLogShape(text, BuiltInDictionary(), BuiltInItems(), choices);
}

std::string PrintedItem(const ShapeItem& item) {
  std::string text = std::to_string(item.item) + " " + item.name;
  if (!item.unit.empty()) text += " [" + item.unit + "]";
  if (item.factor != 1 || item.offset != 0)
    text += " x" + NumberText(RoundPlaces(item.factor, 4)) + "+" +
            NumberText(RoundPlaces(item.offset, 2));
  return text + (item.list ? " list" : "");
}

std::string Printed(const LogShape& shape) {
  const auto number = [](double value) { return NumberText(RoundPlaces(value, 5)); };
  std::string text(EncodingName(shape.encoding));
  text += " " + std::string(DelimiterName(shape.form.delimiter)) + " " + shape.form.decimalSign;
  text += shape.form.quoted ? " quoted" : "";
  text += " titles " + std::to_string(shape.rows.titleLine + 1) + " units " +
          std::to_string(shape.rows.unitsLine + 1) + " data " +
          std::to_string(shape.rows.dataLine + 1) + ", time " + std::to_string(shape.time.column) +
          " " + std::string(TimeFormName(shape.time.form)) + " " + number(shape.time.step) +
          " rate " + number(shape.lineFrequency) + "\n";
  for (const ShapeItem& item : shape.items)
    text += (&item == shape.items.data() ? "| " : " | ") + PrintedItem(item);
  return text + "\n";
}

TEST(LogShape, LogsInTheMannerOfLoggersOfTheField) {
  for (const MadeLog& log : MadeLogs()) {
    const LogShape shape = ShapeOf(log.text);
    EXPECT_EQ(Printed(shape), log.shape) << log.name;
    EXPECT_GE(shape.score, 80) << log.name;
  }
}

/// A cell as an export shows it.
std::string Cell(const OpenLog& log, int item, int row) {
  return log.glngDataLog.IsLogged(item - 1, row) ? log.FormatDataItem(item, row) : "";
}

/// Seconds of all samples, engine speeds, and the last sample: what the log's columns have become.
std::string PrintedLog(const LogShape& shape, const OpenLog& log) {
  const int rows = log.glngDataLog.Rows();
  std::string text = std::to_string(rows) + " x " + std::to_string(shape.columns.size()) + ":";
  for (int row = 0; row < rows; ++row) text += " " + log.FormatDataItem(63, row);
  text += "; rpm";
  for (int row = 0; row < rows; ++row) text += " " + Cell(log, 3, row);
  text += "; last";
  for (const ShapeItem& item : shape.items)
    if (item.item != 63)
      text += " " + std::to_string(item.item) + ":" + Cell(log, item.item, rows - 1);
  return text;
}

TEST(LogShape, ALogLoadsByTheDefinitionOfItsShapeAndByTheFileOfThat) {
  for (const MadeLog& made : MadeLogs()) {
    const LogShape shape = ShapeOf(made.text);
    const clsDataLog direct = DefinitionOfShape(shape, "Made", "csv", 10);
    const std::string file = DefinitionFileText(direct);
    const clsDataLog read = ReadDataLogDefinition(file, "made.txt", BuiltInItems());
    EXPECT_EQ(DefinitionFileText(read), file) << made.name;
    for (const clsDataLog* definition : {&direct, &read}) {
      const LoadedUniversal loaded(*definition, made.text);
      EXPECT_TRUE(loaded.outcome.loaded && loaded.outcome.unknownColumns.size() < 3) << made.name;
      EXPECT_EQ(PrintedLog(shape, loaded.log), made.loaded) << made.name;
    }
  }
}

TEST(LogShape, WhatIsNoLogHasALowScore) {
  std::string numbers, prose, code, bytes;
  for (int line = 0; line < 50; ++line) {
    numbers += std::to_string(line * 7 % 10) + "," + std::to_string(line * 3 % 11) + "\n";
    prose += "The quick brown fox, it is said; jumps over 12 lazy dogs.\nNobody saw it\n";
    code += "  for (int i = 0; i < 10; ++i) {\n    sum += values[i];\n  }\n";
  }
  for (int byte = 0; byte < 5000; ++byte) bytes += static_cast<char>(byte * 37 % 256);
  for (const std::string& text :
       {numbers, prose, code, bytes, std::string(), std::string("a,b\n1,2\n"),
        std::string(9000, '\n'), std::string(9000, ',')})
    EXPECT_FALSE(ShapeOf(text).Found()) << text.substr(0, 40) << ShapeOf(text).score;
}

TEST(LogShape, TheUnitOfATimeIsThePlausibleOneWhereNoneIsTold) {
  const auto form = [](const TableRow& row) {
    std::string text = "Time,RPM\n";
    for (int line = 0; line < 8; ++line)
      text += FixedText(line * row.Number(0), 6) + "," + std::to_string(900 + line) + "\n";
    return std::string(TimeFormName(ShapeOf(text).time.form));
  };
  ExpectTable(form, R"(
0.02 -> SECONDS | 1 -> SECONDS | 2 -> SECONDS | 20 -> MILLISECONDS | 250 -> MILLISECONDS | 20000 -> MICROSECONDS | 0.000002 -> DAYS | 1e9 -> 
)");
}

TEST(LogShape, PressuresAreToldApartByTheirValues) {
  ExpectTable(
      [](const TableRow& row) {
        const std::string first = row.Text(1), second = row.Text(2);
        return PrintedItem(ShapeOf("Time (s)," + row.Text(0) + "\n0," + first + "\n0.1," + second +
                                   "\n0.2," + second + "\n0.3," + first + "\n")
                               .items.at(1));
      },
      R"(
MAP (kPa), 33, 180 -> 5 MAP [kPa] | MAP (psi), -9, 12 -> 37 Boost [psi]
Boost (kPa), 35, 210 -> 5 MAP [kPa] | Boost (kPa), 0, 110 -> 37 Boost [psi] x0.145+0
Ladedruck (hPa), 950, 2100 -> 5 MAP [kPa] x0.1+0 | MAP, 0.35, 1.8 -> 5 MAP [kPa] x100+0
MAP, 350, 1800 -> 5 MAP [kPa] x0.1+0 | Ladedruck, -0.4, 0.8 -> 37 Boost [psi] x14.5038+0
Boost kPa, 0, 110 -> 37 Boost [psi] x0.145+0 | Intake_Pressure_PSI, 5, 30 -> 5 MAP [kPa] x6.8948+0
Knock Count, 0, 3 -> 30 Knock C | Feedback Knock (deg), -2.8, 0 -> 62 KNR [deg] x-1+0
Ignition Timing (KW), 5, 30 -> 21 IAdv [deg] | Power (KW), 5, 30 -> 101 Power [KW]
Coolant (*C), 80, 90 -> 23 C Temp [C] | AFR, 0.8, 1.1 -> 36 A/F [AFR] x14.7+0
Lambda, 11.5, 14.7 -> 36 A/F [AFR] | CLT, 170, 190 -> 23 C Temp [C] x0.5556+-17.78
CLT, 100, 130 -> 23 C Temp [C] | CLT, 100, 131 -> 23 C Temp [C] x0.5556+-17.78 | MAP, 40, 500 -> 5 MAP [kPa] | MAP, 40, 501 -> 5 MAP [kPa] x0.1+0 | MAP, 4, 5 -> 5 MAP [kPa] | MAP, 4, 4.9 -> 5 MAP [kPa] x100+0 | Boost (psi), 2, 75 -> 37 Boost [psi] | Boost, 2, 75 -> 37 Boost [psi] | Boost, 2, 76 -> 37 Boost [psi] x0.145+0
Throttle Position (V), 1, 4 -> 101 Throttle Position [V] | Target Engine Speed (rpm), 1, 4 -> 101 Target Engine Speed [rpm]
)");
}

TEST(LogShape, RowsOfTitlesAndTheDecimalSignAreToldApart) {
  const auto tell = [](const TableRow& row) {
    std::string head = row.All();
    std::replace(head.begin(), head.end(), '/', '\n');
    const LogShape shape = ShapeOf(head + "\n0,900,80\n1,950,81\n2,980,82\n3,990,83\n");
    std::string told = "titles " + std::to_string(shape.rows.titleLine + 1) + " data " +
                       std::to_string(shape.rows.dataLine + 1) + ":";
    for (const ShapeItem& item : shape.items) told += " " + PrintedItem(item);
    return told;
  };
  ExpectTable(tell, R"(
Engine,,Temps/Time (s),RPM,CLT (C) -> titles 2 data 3: 63 Secs [s] 3 RPM [rpm] 23 C Temp [C]
Engine,Engine,Temps/Time (s),RPM,CLT (C) -> titles 2 data 3: 63 Secs [s] 3 RPM [rpm] 23 C Temp [C]
Pump A,Pump B,Pump B/Time,Flow,Flow -> titles 2 data 3: 63 Secs [s] 101 Flow 102 Flow 2
[1],[2],[3] -> titles 0 data 2: 63 Secs [s] 101 Column 2 102 Column 3
Time,Time (s),CLT -> titles 1 data 2: 101 Time 63 Secs [s] 23 C Temp [C]
Time (s),Time,CLT -> titles 1 data 2: 63 Secs [s] 101 Time 23 C Temp [C]
s,rpm,C/Time,RPM,CLT -> titles 2 data 3: 63 Secs [s] 3 RPM [rpm] 23 C Temp [C]
)");
  EXPECT_EQ(Printed(ShapeOf(",Group A:,'003,\n,Clock,Load,Boost\n,TIME,,\nMarker,STAMP, %, mbar\n"
                            ",0,40,800\n,1,50,900\n,2,55,1100\n,3,60,1200\n")),
            "UTF-8 comma . titles 2 units 4 data 5, time 1 SECONDS 1 rate 0\n"
            "| 101 Column 1 [Marker] | 63 Secs [s] | 102 Load [%] | 5 MAP [kPa] x0.1+0\n");
  const LogShape untitled = ShapeOf("0.5,900,80\n0.6,950,81\n# 1,2\n0.7,980,82\n0.8,990,83\n");
  EXPECT_EQ(untitled.rows.commentPrefix + " " + NumberText(untitled.rows.dataShare), "# 0.8");
  EXPECT_EQ(ShapeOf("t;Lambda\n0;0,980\n1;1,012\n2;1,100\n").form.decimalSign, ',');
  EXPECT_EQ(ShapeOf("t;RPM\n0;1,980\n1;1,012\n2;1,100\n").form.decimalSign, ',');
  EXPECT_EQ(ShapeOf("t;RPM\n0.1;1,980\n0.2;1,012\n0.3;1,100\n").form.decimalSign, '.');
}

TEST(LogShape, WhatAUserSettlesStands) {
  const std::string log =
      "note\nTime;RPM;Load\ns;rpm;%\n0;900;1,5\n1;901;1,6\n2;902;1,7\n3;903;1,8\n";
  ShapeChoices choices;
  choices.timeColumn = -1;
  choices.lineFrequency = 25;
  choices.unitsLine = -1;
  choices.decimalSign = '.';
  EXPECT_EQ(Printed(ShapeOf(log, choices)),
            "UTF-8 semicolon . titles 2 units 0 data 4, time -1  0 rate 25\n"
            "| 101 Time | 3 RPM [rpm] | 102 Load list\n");
  ShapeChoices others;
  others.titleLine = -1;
  others.timeForm = TimeForm::Minutes;
  EXPECT_EQ(Printed(ShapeOf(log, others)),
            "UTF-8 semicolon , titles 0 units 0 data 4, time 0 MINUTES 1 rate 0\n"
            "| 63 Secs [s] | 101 Column 2 | 102 Column 3\n");
}

TEST(LogShape, OfALargeLogBothEndsAreLookedAt) {
  std::string log = "Time (s),RPM,Late\n";
  for (int line = 0; line < 60000; ++line)
    log += std::to_string(line) + ".5,900," + (line > 59000 ? std::to_string(line) : "") + "\n";
  const LogShape shape = ShapeOf(log);
  EXPECT_EQ(shape.columns.at(2).content, ColumnContent::Number);
  EXPECT_EQ(shape.columns.at(2).highest, 59999);
  EXPECT_EQ(shape.time.step, 1);
}

}  // namespace
}  // namespace tarnview
