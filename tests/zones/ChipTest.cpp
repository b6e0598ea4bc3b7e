#include "support/Table.h"
#include "zones/ChipIdentity.h"
#include "zones/ChipRules.h"

namespace tarnview {
namespace {

TEST(ChipIdentity, TypesAndTheirTexts) {
  EXPECT_EQ(DecipherChipType("1.8 Mk1").intChipVersion, 2);
  for (const ChipType& type : ChipTypes())
    EXPECT_EQ(SetChipTypeCombo(type.dblEngineSize, type.intChipVersion), type.text);
  EXPECT_EQ(SetChipTypeCombo(1.6, 3), "1.8 Mk1");
  EXPECT_EQ(DecipherChipType("?").text, "1.8 Mk1");
  EXPECT_EQ(EngineSizeText(1.8), "1.8");
  EXPECT_EQ(EngineSizeText(2.0), "1.6");
  EXPECT_EQ(ValidateChipVersion("3"), 3);
  for (const char* text : {"0", "4", "", "-1", "x"})
    EXPECT_EQ(ValidateChipVersion(text), 2) << text;
}

TEST(ChipIdentity, DatesOfChips) {
  ExpectTable(
      [](const TableRow& row) {
        return DateText(ParseChipDate(row.Text(0), MakeDate(1999, 5, 5)));
      },
      R"(
18-Sep-2001 -> 2001-09-18 |  X18-Sep-2001  -> 2001-09-18 | x18-SEP-01 -> 2001-09-18 | 18Sep2001 -> 2001-09-18
2001-09-18 -> 2001-09-18 | 31-Feb-2003 -> 2003-03-03 | 01-Jan-2000 -> 2000-01-01 | 01Jan2000 -> 2000-01-01
XX-YYY-ZZ -> 1999-05-05 | 00-Sep-2001 -> 1999-05-05
)");
  EXPECT_EQ(ParseChipDate("", kNoDate), kNoDate);
}

/// When the rule holds for that chip: "2001-03-01 to 2003-02-14".
std::string Days(ChipRule rule, double size, int version) {
  std::string days;
  bool held = false;
  for (Date day = MakeDate(1999, 1, 1); day < MakeDate(2010, 1, 1); ++day) {
    const bool holds = ChipAllows(rule, size, day, version);
    if (holds != held) days += holds ? DateText(day) + " to " : DateText(day - 1) + " ";
    held = holds;
  }
  return days;
}

TEST(ChipRules, DaysOfEachRule) {
  const std::vector<std::string> names = Split(
      "ClosedLoop AdvanceLimit AdvanceLimitAvailable RunIACLabels AirTemperature SecurityAndName "
      "OvershootAndDroop IACRate DecelScale BoostHysteresis MixtureFuelFlag EnablePrimeDelay "
      "SpeedoCalibration L3LowMAPLabels FuelLowSlopeOrL3LowMAP InjectorOffset VICSActivation "
      "IgnitionStartAndSlope Enable18TPSOn16 EnableIdleStabilisation EnableQuadInjection "
      "KnockLight AltEGRCurve EnableIATBoostTarget FanAndTPS EGRFlag OffsetSlope",
      ' ');
  constexpr std::size_t kAll = 36;  // six chips
  std::string told = "\n";
  for (std::size_t rule = 0; rule < names.size(); ++rule) {
    std::map<std::string, std::string> chipsOf;
    for (const double size : {1.6, 1.8})
      for (const int version : {1, 2, 3})
        chipsOf[Days(ChipRule(rule), size, version)] +=
            (size < 1.7 ? "1.6/" : "1.8/") + std::to_string(version) + " ";
    told += names[rule] + ":";
    for (const auto& [days, chips] : chipsOf)
      if (!days.empty()) told += " " + (chips.size() < kAll ? chips : "") + "from " + days;
    told += rule % 2 ? "\n" : "| ";
  }
  ExpectTold(told, R"(
ClosedLoop: from 2000-12-06 to | AdvanceLimit: from 1999-01-01 to 2001-02-28 
AdvanceLimitAvailable: from 1999-01-01 to 2000-12-05 | RunIACLabels: from 2001-03-01 to 
AirTemperature: from 2001-03-01 to | SecurityAndName: from 2001-03-01 to 
OvershootAndDroop: from 2001-03-11 to | IACRate: 1.6/2 1.6/3 1.8/2 1.8/3 from 2001-09-18 to  1.6/1 1.8/1 from 2003-06-09 to 
DecelScale: 1.6/2 1.6/3 1.8/2 1.8/3 from 2001-12-19 to  1.6/1 1.8/1 from 2003-06-09 to | BoostHysteresis: 1.6/2 1.6/3 1.8/2 1.8/3 from 2002-02-10 to 
MixtureFuelFlag: from 1999-01-01 to 2002-06-09 | EnablePrimeDelay: 1.6/3 1.8/3 from 1999-01-01 to  1.8/2 from 2003-01-25 to  1.6/1 1.8/1 from 2003-06-09 to  1.6/2 from 2005-02-20 to 
SpeedoCalibration: from 2003-01-25 to | L3LowMAPLabels: from 2003-02-15 to 
FuelLowSlopeOrL3LowMAP: 1.6/1 1.6/3 1.8/1 1.8/3 from 2001-03-01 to  1.6/2 1.8/2 from 2001-03-01 to 2003-02-14 | InjectorOffset: 1.6/3 1.8/3 from 1999-01-01 to  1.6/1 1.6/2 1.8/1 1.8/2 from 2003-06-09 to 
VICSActivation: 1.6/3 1.8/3 from 2004-04-19 to | IgnitionStartAndSlope: 1.6/2 1.6/3 1.8/2 1.8/3 from 2001-03-01 to  1.6/1 1.8/1 from 2003-06-09 to 
Enable18TPSOn16: 1.8/3 from 2003-04-18 to  1.8/2 from 2004-06-27 to | EnableIdleStabilisation: 1.6/1 1.8/1 from 2003-01-01 to  1.6/3 1.8/3 from 2003-05-01 to 
EnableQuadInjection: 1.6/2 from 2001-03-11 to | KnockLight: 1.6/1 1.8/1 from 2003-06-20 to  1.6/3 1.8/3 from 2003-08-30 to 
AltEGRCurve: 1.6/3 1.8/3 from 2004-07-02 to | EnableIATBoostTarget: 1.6/3 1.8/3 from 2005-02-10 to 
FanAndTPS: 1.8/1 1.8/2 1.8/3 from 1999-01-01 to | EGRFlag: 1.6/1 1.8/1 1.8/2 1.8/3 from 1999-01-01 to 
OffsetSlope: 1.6/3 1.8/3 from 1999-01-01 to | )");
  EXPECT_TRUE(EnablePrimeDelay(1.6, MakeDate(2005, 2, 20), 2));
  EXPECT_TRUE(Enable18TPSOn16(1.8, MakeDate(2004, 6, 27), 2));
  EXPECT_TRUE(EnableIdleStabilisation(1.6, MakeDate(2003, 1, 1), 1));
  EXPECT_TRUE(EnableQuadInjection(1.6, MakeDate(2001, 3, 11), 2));
  EXPECT_TRUE(EnableIATBoostTarget(1.8, MakeDate(2005, 2, 10), 3));
}

}  // namespace
}  // namespace tarnview
