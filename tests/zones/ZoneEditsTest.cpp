#include "support/Table.h"
#include "zones/EditHistory.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneNames.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

const ChipIdentity kThird = Chip("1.8 2005-02-10 3");

/// The zones of "32+33+112".
std::vector<int> Cells(const std::string& words) {
  std::vector<int> cells;
  for (const std::string& cell : Split(words, '+')) cells.push_back(StringToLong(cell));
  return cells;
}

/// "cell 26 127", "offset 32+33 -5", "tick 3": an edit by its name, what it edits, its text.
ZoneSheet Edited(const ZoneSheet& sheet, const std::string& edit) {
  ZoneSettings benchmark{};
  benchmark.fill(250);
  const std::vector<std::string> words = Split(edit, ' ');
  const std::string& verb = words[0];
  const std::string last = edit.substr(edit.find(' ', words.size() > 2 ? verb.size() + 1 : 0) + 1);
  const std::vector<int> cells = Cells(words[1]);
  const int number = StringToLong(last);
  if (verb == "field") return WithField(sheet, cells[0], last);
  if (verb == "cell") return WithCell(sheet, cells[0], last);
  if (verb == "tick") return WithTick(sheet, Tick{cells[0]}, true);
  if (verb == "untick") return WithTick(sheet, Tick{cells[0]}, false);
  if (verb == "trim") return WithTrim(sheet, last);
  if (verb == "size") return WithEngineSize(sheet, StringToDouble(last));
  if (verb == "date") return WithChipDate(sheet, StringToDate(last, kNoDate));
  if (verb == "type") return WithAutoTuneType(sheet, last);
  if (verb == "sensor") return WithSensor(sheet, last);
  if (verb == "unit") return WithBoostTargets(sheet, last == "kPa");
  if (verb == "all") return WithFirstBoostTargetInAll(sheet);
  if (verb == "offset") return WithOffset(sheet, cells, number);
  if (verb == "copy") return WithCellsOf(sheet, cells, benchmark);
  if (verb == "difference") return WithDifference(sheet, cells, benchmark);
  if (verb == "interpolate") return WithInterpolation(sheet, {cells, number});
  if (verb == "smooth") return WithSmoothing(sheet, {cells, number});
  if (verb == "is") {
    ZoneSheet after = sheet;
    after.Shown(cells[0]) = number;
    return after;
  }
  ADD_FAILURE() << verb;
  return sheet;
}

TEST(ZoneEdits, WhatTheyChange) {
  // chip, z5, edits with "; " between them, of which the last one's changes are told
  ExpectTable(
      [](const TableRow& row) {
        ZoneSheet before,
            after = OpenSheet(MapWith(Chip(row.Text(0)), std::stoi(row.Text(1), nullptr, 16)));
        for (const std::string& edit : SplitAt(row.Text(2), "; ")) {
          before = after;
          after = Edited(before, edit);
        }
        return Changes(before, after);
      },
      R"(
1.8 2005-02-10 3, 02, field 3  off -> z3 100>OFF | 1.8 2005-02-10 3, 02, field 13 255 -> z13 100>OFF | 1.8 2005-02-10 3, 02, field 6 OFF -> z6 100>0
1.8 2005-02-10 3, 02, field 2 7250 -> z2 10000>7300 | 1.8 2005-02-10 3, 02, field 0 103 -> z0 103>85 | 1.8 2005-02-10 3, 02, field 17 -70 -> z17 30>-70 | 1.8 2005-02-10 3, 02, field 14  -> z14 100>15
1.8 2005-02-10 3, 02, trim -1.3 -> z21 80>-5 | 1.8 2005-02-10 3, 02, field 112 99 -> z112 100>40 | 1.8 2005-02-10 3, 02, cell 112 7 -> 
1.8 2005-02-10 3, 02, date 2001-02-28 -> z4 80>50 -4 -6 chip | 1.8 2005-02-10 3, 02, size 1.6 -> chip
# Numbers stay where the other size has them, too.
1.8 2005-02-10 3, 02, is 17 -50; size 1.6 -> z17 -50>0 chip | 1.8 2005-02-10 3, 02, is 225 139; size 1.6 -> z705 139>138 chip | 1.8 2005-02-10 3, 02, is 0 200; size 1.6 -> chip | 1.8 2005-02-10 3, 02, size 1.6; is 17 250; size 1.8 -> z17 250>185 chip
# The place on a list stays, whatever stands there.
1.8 2005-02-10 3, 93, sensor NB+WB; tick 0 -> +0 sensor NB | 1.8 2005-02-10 3, 93, sensor NB+WB; type Lambda -> type 'Lambda' sensor WB | 1.8 2005-02-10 3, 93, sensor NB+WB; sensor ? -> sensor NB
1.8 2005-02-10 3, 93, sensor NB+WB; date 2002-01-01 -> -4 -6 type '' sensor NB chip | 1.8 2005-02-10 3, 93, date 2002-01-01; date 2002-01-02 -> type 'Off' chip
1.8 2005-02-10 3, 93, date 2002-01-02 -> -4 -6 type '' sensor NB chip
# A box that the chip lacks; the curve without EGR.
1.8 2005-02-10 3, 93, tick 2 ->  | 1.8 2005-02-10 3, 93, tick 3 ->  | 1.8 2005-02-10 3, 93, tick 0; tick 3; untick 0 -> -0 -3 | 1.8 2005-02-10 3, 93, tick 0; tick 3 -> +3
# Cells that are blacked out, and what is no cell, are left.
1.8 2005-02-10 3, 02, offset 32+33+112+113+114 200 -> z32 100>255 z33 100>255 z114 100>255 | 1.8 2005-02-10 3, 02, offset 32+33+112 -101 -> z32 100>0 z33 100>0 | 1.8 2005-02-10 3, 02, offset 128+208+210 200 -> z128 100>239 z210 100>239
1.8 2005-02-10 3, 02, offset 229+230 -5 ->  | 1.8 2005-02-10 3, 02, offset 0 0 ->  | 1.8 2005-02-10 3, 02, copy 128+208+210 -> z128 100>250 z210 100>250 | 1.8 2005-02-10 3, 02, difference 128+208+210 -> z128 100>239 z210 100>239
1.8 2005-02-10 3, 00, copy 128+208+210 -> z128 100>250 z208 100>250 z210 100>250 | 1.8 2005-02-10 3, 00, cell 112 200 -> z112 100>200 | 1.8 2005-02-10 3, 02, cell 128 240 -> z128 100>239
1.8 2005-02-10 3, 02, cell 229 x ->  | 1.8 2005-02-10 3, 02, cell 26 12x -> z26 100>0 | 1.6 2002-06-09 2, 02, cell 26 127 -> z26 100>110 | 1.6 2002-06-09 2, 02, tick 9 -> +9
1.8 2005-02-10 3, 02, unit Pct; cell 239 150 -> z775 0>99 | 1.8 2005-02-10 3, 02, unit Pct -> z725 100>0 z730 100>0 z735 100>0 z740 100>0 z745 100>0 z750 100>0 z755 100>0 z760 100>0 z765 100>0 z770 100>0 z775 100>0 Pct
1.8 2005-02-10 3, 02, cell 229 120; all 229 -> z730 100>120 z735 100>120 z740 100>120 z745 100>120 z750 100>120 z755 100>120 z760 100>120 z765 100>120 z770 100>120 z775 100>120
# So many columns, and their cells.
1.8 2005-02-10 3, 00, is 32 10; is 34 30; is 64 50; is 66 71; interpolate 32+33+34+48+49+50+64+65+66 3 -> z33 100>20 z48 100>30 z49 100>40 z50 100>50 z65 100>60 | 1.8 2005-02-10 3, 00, interpolate 32 1 ->  | 1.8 2005-02-10 3, 00, interpolate  0 -> 
1.8 2005-02-10 3, 00, is 32 10; is 34 30; is 64 50; is 66 71; smooth 32+33+34+48+49+50+64+65+66 3 -> z32 10>55 z33 100>68 z34 30>65 z48 100>72 z50 100>80 z64 50>75 z65 100>84 z66 71>86 | 1.8 2005-02-10 3, 00, smooth 32 1 ->  | 1.8 2005-02-10 3, 00, smooth  0 -> 
)");
}

TEST(EditHistory, AStepAfterUndoForgetsWhatWasUndone) {
  const ZoneSheet opened = OpenSheet(MapWith(kThird, 2));
  EditHistory history(opened);
  // A letter is a step of that name; then what can be undone and redone, and the number in z6.
  ExpectTable(
      [&](const TableRow& row) {
        const std::string& step = row.All();
        if (step == "undo")
          history.Undo();
        else if (step == "redo")
          history.Redo();
        else if (step == "start")
          history.GoTo(0);
        else if (!history.Do(step, WithField(opened, 6, std::to_string(100 + step[0] - 'a'))))
          return std::string("nothing");
        return history.UndoName() + "/" + history.RedoName() + (history.CanRedo() ? " " : "! ") +
               FieldText(history.Now(), 6);
      },
      R"(
undo -> /! 100 | redo -> /! 100 | a -> nothing | undo -> /! 100 | redo -> /! 100 | b -> b/! 101 | b -> nothing | c -> c/! 102 | undo -> b/c 101 | undo -> /b 100 | redo -> b/c 101 | d -> d/! 103 | redo -> d/! 103 | start -> /b 100 | undo -> /b 100
)");
}

}  // namespace
}  // namespace tarnview
