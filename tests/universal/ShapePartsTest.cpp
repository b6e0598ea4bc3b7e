// The small functions that a log's shape is found with.

#include "DefinitionText.h"
#include "support/Table.h"
#include "universal/ShapeField.h"
#include "universal/TextEncoding.h"
#include "universal/TimeBase.h"
#include "universal/TimeText.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

TEST(TextEncoding, IsGuessedAndMadePlain) {
  const struct {
    std::string_view bytes;
    const char* encoding;
    std::string_view plain;
  } kRows[] = {
      {"a\xC2\xB0\xE2\x82\xAC", "UTF-8", "a\xB0\x80"},
      {"\xEF\xBB\xBF\xC3\xBC", "UTF-8", "\xFC"},
      {"a\xB0,b", "WINDOWS-1252", "a\xB0,b"},
      {{"\xFF\xFE\xFC\x00\x61\x00", 6}, "UTF-16LE", "\xFC\x61"},
      {{"\xFE\xFF\x20\xAC\xD8\x3D\xDE\x00\x00\x7A", 10}, "UTF-16BE", "\x80?z"},
      {{"a\0b\0c\0d\0", 8}, "UTF-16LE", "abcd"},
      {{"\0a\0b\0c\0d\0", 9}, "UTF-16BE", "abcd"},
      {"cut \xE2\x82", "UTF-8", "cut ??"},
  };
  for (const auto& row : kRows) {
    const EncodingGuess guess = GuessEncoding(row.bytes);
    EXPECT_EQ(EncodingName(guess.encoding), row.encoding) << row.plain;
    EXPECT_EQ(PlainBytes(row.bytes, guess.encoding), row.plain);
    EXPECT_EQ(EncodingOfName(row.encoding), guess.encoding);
  }
  EXPECT_EQ(GuessEncoding({"ab\0\0\0\0\0\0cd", 10}).score, 0);
  EXPECT_EQ(EncodingOfName("EBCDIC"), std::nullopt);
}

/// Seconds since 1 January 2026, or of a clock; "" for no time.
std::string TimeOf(std::string_view text) {
  const auto time = ReadTimeText(text);
  if (!time) return "";
  const double since = time->moment.Since({time->date ? 46023 * std::int64_t{86400} : 0, 0});
  return NumberText(RoundPlaces(since, 5)) + (time->date ? "d" : "") + (time->clock ? "c" : "");
}

TEST(TimeText, AsLoggersWriteIt) {
  ExpectTable([](const TableRow& row) { return TimeOf(row.All()); }, R"(
01:02:03.5 -> 3723.5c | 1:02 -> 3720c | 05:12.7 -> 312.7c | 22:34:39.62814 -> 81279.62814c
12:00:01 AM -> 1c | 1:00:00 pm -> 46800c | 01:02:03:500 -> 3723.5c | 01:02:03,5 -> 3723.5c
2026-01-02 -> 86400d | 2026-01-02T00:00:01Z -> 86401dc | 2026/01/02 00:00:01.25 -> 86401.25dc | 2026-01-02 00:00:01+01:00 -> 86401dc
02-Jan-2026 00:01:00 -> 86460dc | 2.1.2026 0:01 -> 86460dc | 01/13/2026 00:00:01 -> 1036801dc | 13/01/26 -> 1036800d
Fri Jan 02 00:00:05 GMT+01:00 2026 -> 86405dc | 12.5 ->  | 1.2.3 ->  | 25 rpm -> 
12:61 ->  | 2026-13-40 ->  | Jan ->  | 12:00:00 x -> 

)");
}

TEST(TimeBase, TheRateThatAPreambleTells) {
  const auto rate = [](const TableRow& row) {
    const std::string text = TableRow(row.Text(1)).Lines();
    std::vector<std::string_view> lines;
    for (std::string_view rest = text, line; TakeLine(rest, line);) lines.push_back(line);
    return NumberText(RateOfPreamble(lines, row.Int(0)));
  };
  ExpectTable(rate, R"(
1, Sample rate: 50 Hz -> 50 | 1, x; Sample rate: 50 -> 0 | 2, x; Sample rate: 50 -> 50 | 3, x; Frequency (Hz),12.5 -> 12.5 | 3, none -> 0 | 2, 9 frequency; sample rate 5 -> 5 | 1, Frequency 0.1 -> 0.1 | 1, Frequency 0.09 -> 0 | 1, Frequency 1000 -> 1000 | 1, Frequency 1000.5 -> 0 | 1, frequency 7 sample rate 8 -> 7
)");
}

TEST(ShapeField, Numbers) {
  const auto read = [](const std::string& text, char decimalSign) {
    const auto number = ReadShapeNumber(text, decimalSign);
    return number ? NumberText(number->value) + " to " + std::to_string(number->places) : "none";
  };
  ExpectTable([&](const TableRow& row) { return read(row.All(), '.'); }, R"(
12.50 -> 12.5 to 2 | -0 -> 0 to 0 | +.5 -> 0.5 to 1 | 1e3 -> 1000 to 0 | 2,000.00 -> 2000 to 2
1,234,567 -> 1234567 to 0 | 1,23 -> none | 0,980 -> none | 45 % -> 45 to 0 | 12kPa -> 12 to 0
900 rpm -> 900 to 0 | 1.5e3 1/min -> 1500 to 1 | 12 foo -> none | 12m -> none | 12:1 -> none
- -> none |  -> none | 0x10 -> none |  7  -> 7 to 0 | 1.2E-05 -> 0.000012 to 1
)");
  ExpectTable([&](const TableRow& row) { return read(row.All(), ','); }, R"(
12,5 -> 12.5 to 1 | 1.234,5 -> 1234.5 to 1 | 1.5 -> none | 1,5,5 -> none
)");
  EXPECT_EQ(read("85,5 \xB0\x43", ','), "85.5 to 1");
}

/// The delimiter, "quoted" and a line: its fields.
TEST(ShapeField, LinesAreCut) {
  const auto cut = [](const TableRow& row) {
    const auto parts = SplitAt(row.All(), " & ");
    const FieldForm form{parts[0][0], parts[0].ends_with("quoted"), '.'};
    std::string told;
    for (const std::string_view field : SplitShapeLine(parts[1], form))
      told += "[" + std::string(field) + "]";
    return told;
  };
  ExpectTable(cut, R"(
, & 1, 2 ,, -> [1][2][][]
, quoted & "a,b", "c""d",e -> [a,b][c""d][e]
, quoted & "open,b -> ["open][b]
  &   1  2	3  -> [1][2][3]
  quoted & "a b" "c"d "e f -> [a b]["c"d]["e][f]
; & "1";2 -> ["1"][2]
, &  -> 
)");
}

TEST(ShapeField, Kinds) {
  ExpectTable(
      [](const TableRow& row) {
        constexpr const char* kNames[] = {"empty", "no value", "number", "time", "text"};
        return kNames[static_cast<int>(KindOfField(row.All(), '.'))];
      },
      R"(
 -> empty | NaN -> no value | - -> no value | n/a -> no value | --.- -> no value | ./. -> text | -2147483617 -> no value | -2147483 -> number | 12:30:01 -> time | off -> text | 5 -> number
)");
}

TEST(Units, TurnIntoEachOther) {
  const auto turned = [](const std::string& value, const std::string& from, const std::string& to) {
    const auto it = ConversionOf(*FindUnit(from), *FindUnit(to));
    return it ? NumberText(RoundPlaces(std::stod(value) * it->factor + it->offset, 4)) : "never";
  };
  ExpectTable([&](const TableRow& row) { return turned(row.Text(0), row.Text(1), row.Text(2)); },
              R"(
10, psi, kPa -> 68.9476 | 1, bar, psi -> 14.5038 | 30, inHg, kPa -> 101.5917 | 760, mmHg, kPa -> 101.325 | 1000, hPa, bar -> 1
212, F, C -> 100 | 273.15, K, C -> 0 | 100, mph, km/h -> 160.9344 | 10, m/s, KPH -> 36 | 1, lambda, :1 -> 14.7
1, lb/min, g/s -> 7.5599 | 3.6, kg/h, g/s -> 1 | 1500, msec, s -> 1.5 | 500, mV, V -> 0.5 | 3, [psi], psig -> 3
3, Nm, N.m -> 3 | 1, psi, C -> never | 1, Nm, ft-lb -> never
)");
  EXPECT_EQ(turned("100", "degC", "\xB0\x46"), "212");
  EXPECT_FALSE(IsUnit("SAE"));
}

TEST(Units, StandInTheLastBracketsOfATitle) {
  ExpectTable(
      [](const TableRow& row) {
        std::string title = row.All();
        const std::string unit = TakeUnit(title);
        return title + " in " + unit;
      },
      R"(
Boost (psi) -> Boost in psi | Throttle Position(Manifold)(%) -> Throttle Position(Manifold) in % | Engine RPM (SAE) -> Engine RPM (SAE) in  | AFR [:1] -> AFR in :1 | (rpm) -> (rpm) in  | RPM -> RPM in 
)");
}

TEST(TitleDictionary, KnowsTitlesByTheirWords) {
  ExpectTable([](const TableRow& row) { return BuiltInDictionary().Find(row.All()).item; }, R"(
Engine Speed -> RPM | engine/rpm -> RPM | ENGINE_RPM -> RPM | nmot -> RPM
Motor-Drehzahl -> RPM | XYZ Engine Speed -> RPM | 2ByteRPM -> RPM | Engine RPM (SAE) -> RPM
Target Engine Speed ->  | MGP -> Boost | Lambda 1 -> A/F | AFR1 -> A/F
wboAFR -> A/F | Target AFR -> A/F Tgt | sensors/tps1 -> TPS | SPK: Spark Advance -> IAdv
KM/H -> Speed | Widget ->  | Pressure, intake manifold -> MAP | Target, engine speed -> 
Boost pressure actual value -> Boost | GPS Speed -> Speed | Air/Fuel Ratio -> A/F | Turbo Boost & Vacuum Gauge -> Boost

)");
  EXPECT_EQ(BuiltInDictionary().Find("K\xFChlmitteltemperatur").item, "C Temp");
  EXPECT_EQ(BuiltInDictionary().Find("Z\xDCNDWINKEL").item, "IAdv");
}

TEST(TitleDictionary, ItsItemsAreThoseOfTheCatalogueAndItsUnitsKnown) {
  EXPECT_GT(BuiltInDictionary().Count(), 500);
  for (const std::string& item : BuiltInDictionary().Items())
    EXPECT_TRUE(BuiltInItems().ByShortName(item)) << item;
}

TEST(TitleDictionary, ALineMayBeAddedAndTheLastOfTwoCounts) {
  const TitleDictionary dictionary("# comment ; RPM\nfoo;RPM;rpm\nFOO ; MAP ; psi\nrubbish\n;x\n");
  EXPECT_EQ(dictionary.Count(), 1);
  EXPECT_EQ(dictionary.Find("Foo").item + dictionary.Find("Foo").unit, "MAPpsi");
}

}  // namespace
}  // namespace tarnview
