#include <gtest/gtest.h>

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
  const Date other = MakeDate(1999, 5, 5);
  const struct {
    const char* text;
    Date date;
  } cases[] = {
      {"18-Sep-2001", MakeDate(2001, 9, 18)},
      {" X18-Sep-2001 ", MakeDate(2001, 9, 18)},
      {"x18-SEP-01", MakeDate(2001, 9, 18)},
      {"18Sep2001", MakeDate(2001, 9, 18)},
      {"2001-09-18", MakeDate(2001, 9, 18)},
      {"31-Feb-2003", MakeDate(2003, 3, 3)},
      {"01-Jan-2000", MakeDate(2000, 1, 1)},
      {"01Jan2000", MakeDate(2000, 1, 1)},
      {"", other},
      {"XX-YYY-ZZ", other},
      {"00-Sep-2001", other},
  };
  for (const auto& c : cases)
    EXPECT_EQ(DateText(ParseChipDate(c.text, other)), DateText(c.date)) << c.text;
  EXPECT_EQ(ParseChipDate("nonsense", kNoDate), kNoDate);
}

TEST(ChipRules, EachRuleOnBothSidesOfItsDate) {
  const struct {
    ChipRule rule;
    double size;
    int version;
    Date from;  ///< the first day on which the rule says `since`
    bool since;
  } cases[] = {
      {ChipRule::ClosedLoop, 1.6, 1, MakeDate(2000, 12, 6), true},
      {ChipRule::AdvanceLimit, 1.6, 1, MakeDate(2001, 3, 1), false},
      {ChipRule::AirTemperature, 1.8, 2, kNewChipDate, true},
      {ChipRule::OvershootAndDroop, 1.8, 3, MakeDate(2001, 3, 11), true},
      {ChipRule::IACRate, 1.6, 1, MakeDate(2003, 6, 9), true},
      {ChipRule::IACRate, 1.6, 2, MakeDate(2001, 9, 18), true},
      {ChipRule::DecelScale, 1.8, 3, MakeDate(2001, 12, 19), true},
      {ChipRule::BoostHysteresis, 1.8, 2, MakeDate(2002, 2, 10), true},
      {ChipRule::MixtureFuelFlag, 1.8, 2, MakeDate(2002, 6, 10), false},
      {ChipRule::EnablePrimeDelay, 1.8, 2, MakeDate(2003, 1, 25), true},
      {ChipRule::EnablePrimeDelay, 1.6, 2, MakeDate(2005, 2, 20), true},
      {ChipRule::FuelLowSlopeOrL3LowMAP, 1.8, 2, MakeDate(2003, 2, 15), false},
      {ChipRule::InjectorOffset, 1.8, 2, MakeDate(2003, 6, 9), true},
      {ChipRule::VICSActivation, 1.8, 3, MakeDate(2004, 4, 19), true},
      {ChipRule::IgnitionStartAndSlope, 1.6, 1, MakeDate(2003, 6, 9), true},
      {ChipRule::Enable18TPSOn16, 1.8, 2, MakeDate(2004, 6, 27), true},
      {ChipRule::Enable18TPSOn16, 1.8, 3, MakeDate(2003, 4, 18), true},
      {ChipRule::EnableIdleStabilisation, 1.6, 1, MakeDate(2003, 1, 1), true},
      {ChipRule::EnableQuadInjection, 1.6, 2, MakeDate(2001, 3, 11), true},
      {ChipRule::KnockLight, 1.8, 3, MakeDate(2003, 8, 30), true},
      {ChipRule::AltEGRCurve, 1.8, 3, MakeDate(2004, 7, 2), true},
      {ChipRule::EnableIATBoostTarget, 1.8, 3, MakeDate(2005, 2, 10), true},
  };
  for (const auto& c : cases) {
    const auto name = static_cast<int>(c.rule);
    EXPECT_EQ(ChipAllows(c.rule, c.size, c.from, c.version), c.since) << name;
    EXPECT_EQ(ChipAllows(c.rule, c.size, c.from - 1, c.version), !c.since) << name;
  }
}

TEST(ChipRules, WhatSomeChipsNeverOrAlwaysHave) {
  const Date late = MakeDate(2010, 1, 1);
  EXPECT_TRUE(EnablePrimeDelay(1.8, MakeDate(1999, 1, 1), 3));
  EXPECT_TRUE(ChipAllows(ChipRule::FuelLowSlopeOrL3LowMAP, 1.8, late, 3));
  EXPECT_TRUE(ChipAllows(ChipRule::InjectorOffset, 1.8, MakeDate(1999, 1, 1), 3));
  EXPECT_TRUE(ChipAllows(ChipRule::EGRFlag, 1.6, late, 1));
  EXPECT_FALSE(ChipAllows(ChipRule::EGRFlag, 1.6, late, 2));
  EXPECT_FALSE(ChipAllows(ChipRule::FanAndTPS, 1.6, late, 1));
  EXPECT_FALSE(Enable18TPSOn16(1.6, late, 2));
  EXPECT_FALSE(Enable18TPSOn16(1.8, late, 1));
  EXPECT_FALSE(EnableIdleStabilisation(1.8, late, 2));
  EXPECT_FALSE(EnableQuadInjection(1.8, late, 2));
  EXPECT_FALSE(EnableIATBoostTarget(1.8, late, 2));
  EXPECT_FALSE(ChipAllows(ChipRule::BoostHysteresis, 1.8, late, 1));
}

}  // namespace
}  // namespace tarnview
