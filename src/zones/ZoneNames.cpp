#include "zones/ZoneNames.h"

#include <tuple>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/ZoneSettings.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

/// Runs of zones: the name of the first, and the step from one name to the next.
struct Run {
  int first, end, name, step;
};
constexpr Run kRuns[] = {{0, 224, 0, 1}, {224, 240, 700, 5}, {240, 256, 800, 5}};

}  // namespace

std::string ZoneName(int index) {
  for (const Run& run : kRuns)
    if (index >= run.first && index < run.end)
      return "z" + std::to_string(run.name + run.step * (index - run.first));
  return "";
}

std::string GridCellName(int index) {
  constexpr int kCells = kGridRows * kGridColumns;
  const int cell = index - kFirstGridZone;
  if (cell < 0 || cell >= 2 * kCells) return "";
  const int row = cell % kCells / kGridColumns, column = cell % kGridColumns;
  return (cell < kCells ? "zf" : "zi") + std::to_string(row + 1) + ZoneColumnHeading(column);
}

int ZoneIndex(std::string_view name) {
  constexpr int kZones = std::tuple_size_v<ZoneSettings>;
  for (int index = 0; index < kZones; ++index)
    if (SameIgnoringCase(name, ZoneName(index)) ||
        (!name.empty() && SameIgnoringCase(name, GridCellName(index))))
      return index;
  return -1;
}

}  // namespace tarnview
