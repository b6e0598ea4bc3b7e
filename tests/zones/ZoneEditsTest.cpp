#include <gtest/gtest.h>

#include <functional>

#include "zones/EditHistory.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

const ChipIdentity kThird = Chip("1.8 2005-02-10 3"), kSecond16 = Chip("1.6 2002-06-09 2");

/// What an edit changed: "z33 100>250 ...", and the words that changed.
std::string Changes(const ZoneSheet& before, const ZoneSheet& after) {
  std::string told;
  for (int zone = 0; zone < 256; ++zone)
    if (before.Shown(zone) != after.Shown(zone))
      told += ZoneName(zone) + " " + FieldText(before, zone) + ">" + FieldText(after, zone) + " ";
  for (int i = 0; i < kTicks; ++i)
    if (before.Ticked(Tick{i}) != after.Ticked(Tick{i}))
      told += (after.Ticked(Tick{i}) ? "+" : "-") + std::to_string(i) + " ";
  if (before.autoTuneType != after.autoTuneType) told += "type '" + after.autoTuneType + "' ";
  if (before.O2Sensor != after.O2Sensor) told += "sensor " + after.O2Sensor + " ";
  if (before.boostTargets != after.boostTargets) told += after.boostTargets ? "kPa " : "Pct ";
  return told.empty() ? told : told.substr(0, told.size() - 1);
}

struct Edit {
  const char* what;
  std::function<ZoneSheet(ZoneSheet)> edit;
  const char* changes;
};

void Expect(const ZoneSheet& sheet, std::initializer_list<Edit> edits) {
  for (const Edit& edit : edits)
    EXPECT_EQ(Changes(sheet, edit.edit(sheet)), edit.changes) << edit.what;
}

using S = ZoneSheet;

TEST(ZoneEdits, Fields) {
  Expect(
      // clang-format off
      OpenSheet(MapWith(kThird, 2)),
      {{"off", [](S s) { return WithField(s, 3, " off"); }, "z3 100>OFF"},
       {"255 is off", [](S s) { return WithField(s, 13, "255"); }, "z13 100>OFF"},
       {"off elsewhere is no number", [](S s) { return WithField(s, 6, "OFF"); }, "z6 100>0"},
       {"step", [](S s) { return WithField(s, 2, "7250"); }, "z2 10000>7300"},
       {"left as it was", [](S s) { return WithField(s, 0, "103"); }, "z0 103>85"},
       {"negative", [](S s) { return WithField(s, 17, "-70"); }, "z17 30>-70"},
       {"no text", [](S s) { return WithField(s, 14, ""); }, "z14 100>15"},
       {"trim", [](S s) { return WithTrim(s, "-1.3"); }, "z21 80>-5"},
       {"closed loop as a field", [](S s) { return WithField(s, 112, "99"); }, "z112 100>40"},
       {"date before air temperatures", [](S s) { return WithChipDate(s, MakeDate(2001, 2, 28)); }, "z4 80>50 -4 -6"},
       {"to 1.6", [](S s) { return WithEngineSize(s, 1.6); }, ""}});
  // clang-format on
}

TEST(ZoneEdits, AnotherEngineSizeKeepsTheNumbersInTheirNewRanges) {
  S sheet = OpenSheet(MapWith(kThird, 2));
  sheet.Shown(17) = -50;
  sheet.Shown(225) = 139;
  sheet.Shown(0) = 200;
  const S small = WithEngineSize(sheet, 1.6);
  EXPECT_EQ(small.Shown(17), 0);
  EXPECT_EQ(small.Shown(225), 138);
  EXPECT_EQ(small.Shown(0), 200);
  S large = small;
  large.Shown(17) = 250;
  EXPECT_EQ(WithEngineSize(large, 1.8).Shown(17), 185);
}

TEST(ZoneEdits, BoxesAndLists) {
  ZoneMap map = MapWith(kThird, 2 + 0x91);
  const S sheet = OpenSheet(map);
  ASSERT_EQ(sheet.autoTuneType + " " + sheet.O2Sensor, "L3+L4 WB");
  const S both = WithSensor(sheet, "NB+WB");
  Expect(
      // clang-format off
      both,
      {{"EGR takes wide band off the list", [](S s) { return WithTick(s, Tick::EGR, true); }, "+0 sensor NB"},
       {"the place on the list stays", [](S s) { return WithAutoTuneType(s, "Lambda"); }, "type 'Lambda' sensor WB"},
       {"type that a date lacks", [](S s) { return WithChipDate(s, MakeDate(2002, 1, 1)); }, "-4 -6 type '' sensor NB"},
       {"box that the chip lacks", [](S s) { return WithTick(s, Tick::QuadInjection, true); }, ""},
       {"curve without EGR", [](S s) { return WithTick(s, Tick::AltEGRCurve, true); }, ""},
       {"sensor off the list", [](S s) { return WithSensor(s, "?"); }, "sensor NB"}});
  // clang-format on
  const S curve = WithTick(WithTick(sheet, Tick::EGR, true), Tick::AltEGRCurve, true);
  EXPECT_EQ(Changes(curve, WithTick(curve, Tick::EGR, false)), "-0 -3");
  EXPECT_EQ(
      Changes(sheet, WithChipDate(WithChipDate(sheet, MakeDate(2002, 1, 1)), MakeDate(2002, 1, 2))),
      "-4 -6 type 'Off' sensor NB");
}

TEST(ZoneEdits, Cells) {
  const int fuel[] = {32, 33, 112, 113, 114}, ignition[] = {128, 208, 210}, targets[] = {229, 230};
  ZoneSettings benchmark{};
  benchmark.fill(250);
  const S turbo = OpenSheet(MapWith(kThird, 2));
  Expect(turbo,
         // clang-format off
         {{"offset", [&](S s) { return WithOffset(s, fuel, 200); }, "z32 100>255 z33 100>255 z114 100>255"},
          {"offset down", [&](S s) { return WithOffset(s, fuel, -101); }, "z32 100>0 z33 100>0 z114 100>0"},
          {"ignition ends at 239", [&](S s) { return WithOffset(s, ignition, 200); }, "z128 100>239 z210 100>239"},
          {"boost targets", [&](S s) { return WithOffset(s, targets, -5); }, ""},
          {"no offset leaves what is out of range", [](S s) { return WithOffset(s, std::vector{0}, 0); }, ""},
          {"copy holds to no range", [&](S s) { return WithCellsOf(s, ignition, benchmark); },
           "z128 100>250 z210 100>250"},
          {"difference does", [&](S s) { return WithDifference(s, ignition, benchmark); }, "z128 100>239 z210 100>239"},
          {"typed", [](S s) { return WithCell(s, 128, "240"); }, "z128 100>239"},
          {"typed, no number", [](S s) { return WithCell(s, 229, "x"); }, ""},
          {"typed, no number of a target", [](S s) { return WithCell(s, 26, "12x"); }, "z26 100>0"},
          {"typed in a blacked-out cell", [](S s) { return WithCell(s, 112, "7"); }, ""},
          {"unit", [](S s) { return WithCell(WithBoostTargets(s, false), 239, "150"); },
           "z725 100>0 z730 100>0 z735 100>0 z740 100>0 z745 100>0 z750 100>0 z755 100>0 z760 100>0 z765 100>0 "
           "z770 100>0 z775 100>99 Pct"}});
  // clang-format on
  EXPECT_EQ(Changes(turbo, WithFirstBoostTargetInAll(WithCell(turbo, 229, "120"))).substr(0, 36),
            "z725 100>120 z730 100>120 z735 100>1");
  const S aspirated = OpenSheet(MapWith(kThird, 0));
  Expect(aspirated,
         {{"all are cells", [&](S s) { return WithCellsOf(s, ignition, benchmark); },
           "z128 100>250 z208 100>250 z210 100>250"},
          {"with the grid's range", [](S s) { return WithCell(s, 112, "200"); }, "z112 100>200"}});
  const S old = OpenSheet(MapWith(kSecond16, 2));
  Expect(old, {{"targets of old chips", [](S s) { return WithCell(s, 26, "127"); }, "z26 100>110"},
               {"mixture fuel", [](S s) { return WithTick(s, Tick::MixtureFuel, true); }, "+9"}});
}

TEST(ZoneEdits, InterpolationAndSmoothing) {
  S sheet = OpenSheet(MapWith(kThird, 0));
  const CellBlock block{{32, 33, 34, 48, 49, 50, 64, 65, 66}, 3};
  const auto told = [&](const S& after) {
    std::string text;
    for (const int cell : block.cells) text += FieldText(after, cell) + " ";
    return text;
  };
  sheet.Shown(32) = 10;
  sheet.Shown(34) = 30;
  sheet.Shown(64) = 50;
  sheet.Shown(66) = 71;
  EXPECT_EQ(told(WithInterpolation(sheet, block)), "10 20 30 30 40 50 50 60 71 ");
  EXPECT_EQ(told(WithSmoothing(sheet, block)), "55 68 65 72 100 80 75 84 86 ");
  const CellBlock one{{32}, 1};
  EXPECT_EQ(WithInterpolation(sheet, one), sheet);
  EXPECT_EQ(WithSmoothing(sheet, one), sheet);
  EXPECT_EQ(WithInterpolation(sheet, {}), sheet);
}

TEST(EditHistory, AStepAfterUndoForgetsWhatWasUndone) {
  const S opened = OpenSheet(MapWith(kThird, 2));
  EditHistory history(opened);
  EXPECT_FALSE(history.Do("nothing", opened));
  history.Undo();
  history.Redo();
  EXPECT_TRUE(history.Do("a", WithField(opened, 6, "1")));
  EXPECT_TRUE(history.Do("b", WithField(opened, 6, "2")));
  EXPECT_EQ(history.UndoName() + history.RedoName(), "b");
  history.Undo();
  EXPECT_EQ(history.Now().Shown(6), 1);
  EXPECT_EQ(history.UndoName() + history.RedoName(), "ab");
  EXPECT_TRUE(history.Do("c", WithField(opened, 6, "3")));
  EXPECT_FALSE(history.CanRedo());
  history.GoTo(0);
  EXPECT_EQ(history.Now(), opened);
  EXPECT_EQ(history.RedoName(), "a");
}

}  // namespace
}  // namespace tarnview
