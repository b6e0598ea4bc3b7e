// The small functions that a log's shape is found with.

#include <gtest/gtest.h>

#include "base/FileSystem.h"
#include "base/Numbers.h"
#include "model/Catalogue.h"
#include "universal/ShapeField.h"
#include "universal/TextEncoding.h"
#include "universal/TimeText.h"
#include "universal/TitleDictionary.h"
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
      {"cut \xE2\x82", "UTF-8", "cut ?"},
  };
  for (const auto& row : kRows) {
    const EncodingGuess guess = GuessEncoding(row.bytes);
    EXPECT_EQ(EncodingName(guess.encoding), row.encoding) << row.plain;
    EXPECT_EQ(PlainBytes(row.bytes, guess.encoding).substr(0, 5), row.plain.substr(0, 5));
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
  const struct {
    const char* text;
    const char* time;
  } kRows[] = {
      {"01:02:03.5", "3723.5c"},
      {"1:02", "3720c"},
      {"05:12.7", "312.7c"},
      {"22:34:39.62814", "81279.62814c"},
      {"12:00:01 AM", "1c"},
      {"1:00:00 pm", "46800c"},
      {"01:02:03:500", "3723.5c"},
      {"01:02:03,5", "3723.5c"},
      {"2026-01-02", "86400d"},
      {"2026-01-02T00:00:01Z", "86401dc"},
      {"2026/01/02 00:00:01.25", "86401.25dc"},
      {"2026-01-02 00:00:01+01:00", "86401dc"},
      {"02-Jan-2026 00:01:00", "86460dc"},
      {"2.1.2026 0:01", "86460dc"},
      {"01/13/2026 00:00:01", "1036801dc"},
      {"13/01/26", "1036800d"},
      {"Fri Jan 02 00:00:05 GMT+01:00 2026", "86405dc"},
      {"12.5", ""},
      {"1.2.3", ""},
      {"25 rpm", ""},
      {"12:61", ""},
      {"2026-13-40", ""},
      {"Jan", ""},
      {"12:00:00 x", ""},
      {"", ""},
  };
  for (const auto& row : kRows) EXPECT_EQ(TimeOf(row.text), row.time) << row.text;
}

TEST(ShapeField, Numbers) {
  const struct {
    const char* text;
    char sign;
    const char* number;  ///< value and places
  } kRows[] = {
      {"12.50", '.', "12.5 2"},
      {"-0", '.', "0 0"},
      {"+.5", '.', ".5"},
      {"1e3", '.', "1000 0"},
      {"2,000.00", '.', "2000 2"},
      {"1,234,567", '.', "1234567 0"},
      {"1,23", '.', ""},
      {"12,5", ',', "12.5 1"},
      {"1.234,5", ',', "1234.5 1"},
      {"0,980", '.', ""},
      {"1.5", ',', ""},
      {"45 %", '.', "45 0"},
      {"12kPa", '.', "12 0"},
      {"900 rpm", '.', "900 0"},
      {"85,5 \xB0\x43", ',', "85.5 1"},
      {"1.5e3 1/min", '.', "1500 1"},
      {"12 foo", '.', ""},
      {"12m", '.', ""},
      {"12:1", '.', ""},
      {"1,5,5", ',', ""},
      {"-", '.', ""},
      {"", '.', ""},
      {"0x10", '.', ""},
      {" 7 ", '.', "7 0"},
      {"1.2E-05", '.', "0.000012 1"},
  };
  for (const auto& row : kRows) {
    const auto number = ReadShapeNumber(row.text, row.sign);
    const std::string expected = std::string(row.number) == ".5" ? "0.5 1" : row.number;
    EXPECT_EQ(number ? NumberText(number->value) + " " + std::to_string(number->places) : "",
              expected)
        << row.text;
  }
}

TEST(ShapeField, LinesAreCut) {
  const struct {
    const char* line;
    FieldForm form;
    std::vector<std::string_view> fields;
  } kRows[] = {
      {"1, 2 ,,", {',', false, '.'}, {"1", "2", "", ""}},
      {"\"a,b\", \"c\"\"d\",e", {',', true, '.'}, {"a,b", "c\"\"d", "e"}},
      {"\"open,b", {',', true, '.'}, {"\"open", "b"}},
      {"  1  2\t3 ", {' ', false, '.'}, {"1", "2", "3"}},
      {"\"a b\" \"c\"d \"e f", {' ', true, '.'}, {"a b", "\"c\"d", "\"e", "f"}},
      {"\"1\";2", {';', false, '.'}, {"\"1\"", "2"}},
      {"", {',', false, '.'}, {}},
  };
  for (const auto& row : kRows)
    EXPECT_EQ(SplitShapeLine(row.line, row.form), row.fields) << row.line;
}

TEST(ShapeField, Kinds) {
  const std::pair<const char*, FieldKind> kRows[] = {{"", FieldKind::Empty},
                                                     {"NaN", FieldKind::NoValue},
                                                     {"-", FieldKind::NoValue},
                                                     {"n/a", FieldKind::NoValue},
                                                     {"--.-", FieldKind::NoValue},
                                                     {"./.", FieldKind::Text},
                                                     {"-2147483617", FieldKind::NoValue},
                                                     {"-2147483", FieldKind::Number},
                                                     {"12:30:01", FieldKind::Time},
                                                     {"off", FieldKind::Text},
                                                     {"5", FieldKind::Number}};
  for (const auto& [text, kind] : kRows) EXPECT_EQ(KindOfField(text, '.'), kind) << text;
}

TEST(Units, TurnIntoEachOther) {
  const struct {
    const char *from, *to;
    double value;
    const char* result;
  } kRows[] = {
      // clang-format off
      {"psi", "kPa", 10, "68.9476"},    {"bar", "psi", 1, "14.5038"}, {"inHg", "kPa", 30, "101.5917"},
      {"mmHg", "kPa", 760, "101.325"},  {"hPa", "bar", 1000, "1"},    {"F", "C", 212, "100"},
      {"degC", "\xB0\x46", 100, "212"}, {"K", "C", 273.15, "0"},      {"mph", "km/h", 100, "160.9344"},
      {"m/s", "KPH", 10, "36"},         {"lambda", ":1", 1, "14.7"},  {"lb/min", "g/s", 1, "7.5599"},
      {"kg/h", "g/s", 3.6, "1"},        {"msec", "s", 1500, "1.5"},   {"mV", "V", 500, "0.5"},
      {"[psi]", "psig", 3, "3"},        {"Nm", "N.m", 3, "3"},        {"psi", "C", 1, ""},
      {"Nm", "ft-lb", 1, ""},
      // clang-format on
  };
  for (const auto& row : kRows) {
    const Unit *from = FindUnit(row.from), *to = FindUnit(row.to);
    ASSERT_TRUE(from && to) << row.from << row.to;
    const auto it = ConversionOf(*from, *to);
    EXPECT_EQ(it ? NumberText(RoundPlaces(row.value * it->factor + it->offset, 4)) : "", row.result)
        << row.from;
  }
  EXPECT_FALSE(IsUnit("SAE"));
}

TEST(Units, StandInTheLastBracketsOfATitle) {
  const struct {
    const char *title, *left, *unit;
  } kRows[] = {{"Boost (psi)", "Boost", "psi"},
               {"Throttle Position(Manifold)(%)", "Throttle Position(Manifold)", "%"},
               {"Engine RPM (SAE)", "Engine RPM (SAE)", ""},
               {"AFR [:1]", "AFR", ":1"},
               {"(rpm)", "(rpm)", ""},
               {"RPM", "RPM", ""}};
  for (const auto& row : kRows) {
    std::string title = row.title;
    EXPECT_EQ(TakeUnit(title), row.unit) << row.title;
    EXPECT_EQ(title, row.left);
  }
}

const TitleDictionary& Dictionary() {
  static const TitleDictionary dictionary(
      *RealFileSystem().Read(std::string(TARNVIEW_DATA) + "/Log Titles.txt"));
  return dictionary;
}

TEST(TitleDictionary, KnowsTitlesByTheirWords) {
  const std::pair<const char*, const char*> kRows[] = {
      {"Engine Speed", "RPM"},
      {"engine/rpm", "RPM"},
      {"ENGINE_RPM", "RPM"},
      {"nmot", "RPM"},
      {"Motor-Drehzahl", "RPM"},
      {"XYZ Engine Speed", "RPM"},
      {"2ByteRPM", "RPM"},
      {"Engine RPM (SAE)", "RPM"},
      {"Target Engine Speed", ""},
      {"MGP", "Boost"},
      {"Lambda 1", "A/F"},
      {"AFR1", "A/F"},
      {"wboAFR", "A/F"},
      {"Target AFR", "A/F Tgt"},
      {"sensors/tps1", "TPS"},
      {"SPK: Spark Advance", "IAdv"},
      {"K\xFChlmitteltemperatur", "C Temp"},
      {"Z\xDCNDWINKEL", "IAdv"},
      {"KM/H", "Speed"},
      {"Widget", ""},
      {"Pressure, intake manifold", "MAP"},
      {"Target, engine speed", ""},
      {"Boost pressure actual value", "Boost"},
      {"GPS Speed", "Speed"},
      {"Air/Fuel Ratio", "A/F"},
      {"Turbo Boost & Vacuum Gauge", "Boost"},
      {"", ""},
  };
  for (const auto& [title, item] : kRows) EXPECT_EQ(Dictionary().Find(title).item, item) << title;
}

TEST(TitleDictionary, ItsItemsAreThoseOfTheCatalogueAndItsUnitsKnown) {
  EXPECT_GT(Dictionary().Count(), 500);
  const Catalogue catalogue = BuildDataItemCatalogue();
  for (const std::string& item : Dictionary().Items())
    EXPECT_TRUE(catalogue.gcolFixedDataItems.ByShortName(item)) << item;
}

TEST(TitleDictionary, ALineMayBeAddedAndTheLastOfTwoCounts) {
  const TitleDictionary dictionary("# comment ; RPM\nfoo;RPM;rpm\nFOO ; MAP ; psi\nrubbish\n;x\n");
  EXPECT_EQ(dictionary.Count(), 1);
  EXPECT_EQ(dictionary.Find("Foo").item + dictionary.Find("Foo").unit, "MAPpsi");
}

}  // namespace
}  // namespace tarnview
