#include "zones/ZoneGrid.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/Numbers.h"

namespace tarnview {
namespace {

struct Row {
  std::string_view heading;
  std::int32_t MAP;      ///< tenths of kPa
  std::int32_t fromMAP;  ///< as the row below a MAP: for values above this, tenths of kPa
  std::int32_t fromKPa;  ///< a sample's zone lies in the row from this MAP on
};

constexpr Row kNormallyAspirated[kGridRows] = {
    {"30 kPa 100", 300, 0, 0},    {"44 kPa 200", 440, 430, 34}, {"57 kPa 300", 570, 560, 48},
    {"70 kPa 400", 700, 690, 61}, {"84 kPa 500", 840, 830, 74}, {"97 kPa 600", 960, 0, 88}};
constexpr Row kTurbo[kGridRows] = {{"20 kPa 100", 200, 0, 0},     {"60 kPa 200", 600, 0, 41},
                                   {"100 kPa 300", 1000, 0, 81},  {"140 kPa 400", 1400, 0, 121},
                                   {"180 kPa 500", 1800, 0, 161}, {"220 kPa 600", 2200, 0, 201}};

constexpr const Row (&Rows(bool normallyAspirated))[kGridRows] {
  if (normallyAspirated) return kNormallyAspirated;
  return kTurbo;
}

/// Columns below 0 RPM are negative.
std::int32_t Column(std::int32_t RPM) {
  if (RPM >= 0) return RPM / kRPMPerColumn;
  return -((kRPMPerColumn - 1 - RPM) / kRPMPerColumn);
}

}  // namespace

std::string_view ZoneRowHeading(bool normallyAspirated, int row) {
  return Rows(normallyAspirated)[row - 1].heading;
}

std::string ZoneColumnHeading(int column) { return PaddedText(column * 5, 2); }

std::int32_t RowMAPfromRow(bool normallyAspirated, int row) {
  if (!normallyAspirated) return (row - 1) * 400 + 200;
  if (row >= 1 && row <= kGridRows) return kNormallyAspirated[row - 1].MAP;
  return 300;
}

ZoneRows RowAndRowMAPCalc(bool normallyAspirated, std::int32_t MAP) {
  if (!normallyAspirated) return {(MAP - 200) / 400 + 1, (MAP + 200) / 400 + 1};
  for (int row = 5; row > 1; --row)
    if (MAP > kNormallyAspirated[row - 1].fromMAP) return {row, row + 1};
  return {1, 2};
}

ZoneRows CalcZoneRowBoundaries(std::int32_t MAP, bool normallyAspirated, std::string_view O2Sensor,
                               std::string_view autoTuneType, std::int32_t RPM) {
  constexpr std::int32_t kNarrowBandBelow = 640;
  std::int32_t held = std::clamp(MAP, 200, 2190);
  if (normallyAspirated) held = std::clamp(MAP, 300, 960);
  ZoneRows rows;
  if (O2Sensor == "NB+WB" && held < kNarrowBandBelow &&
      (autoTuneType == "L3" || autoTuneType == "L3+L4")) {
    rows.lower = rows.upper = 1;
  } else {
    rows = RowAndRowMAPCalc(normallyAspirated, held);
    if (rows.upper < 3) rows.lower = rows.upper = RPM < 2001 ? 1 : 2;
  }
  rows.lowerMAP = RowMAPfromRow(normallyAspirated, rows.lower);
  rows.upperMAP = RowMAPfromRow(normallyAspirated, rows.upper);
  return rows;
}

int ZoneRowOfSample(bool normallyAspirated, std::int32_t kPa) {
  const auto& rows = Rows(normallyAspirated);
  int row = 1;
  while (row < kGridRows && kPa >= rows[row].fromKPa) ++row;
  return row;
}

std::int32_t ZoneNumber(int row, std::int32_t RPM) {
  // Row and column are two texts side by side, read as one number: behind the row's digit a minus
  // sign ends it.
  if (RPM < 0) return row;
  const std::int32_t column = Column(RPM) * 5;
  std::int32_t digits = 100;
  while (digits <= column) digits *= 10;
  return static_cast<std::int32_t>(std::int64_t{row} * digits + column);
}

int ZoneColumnOfSample(std::int32_t RPM) { return std::clamp(Column(RPM), 0, kGridColumns - 1); }

}  // namespace tarnview
