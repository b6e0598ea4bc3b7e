#include "model/ItemUnits.h"

#include "model/Column.h"

namespace tarnview {
namespace {

struct Row {
  Column column;
  std::string_view unit;
};

constexpr Row kUnits[] = {
    // clang-format off
    {kRPM, "rpm"},   {kMAP, "kPa"},   {kWGPercent, "%"}, {kEGR, "%"},   {kInjW, "ms"}, {kInjPercent, "%"},
    {kTPS, "%"},     {kIAdv, "deg"},  {kVolt, "V"},      {kCTemp, "C"}, {kATemp, "C"}, {kATR, "deg"},
    {kAF, "AFR"},    {kBoost, "psi"}, {kPWOFF, "ms"},    {kEGOV, "V"},  {kTDUTY, "%"}, {kTPWON, "ms"},
    {kTPWOFF, "ms"}, {kAD1, "V"},     {kAD2, "V"},       {kAD3, "V"},   {kAD4, "V"},   {kSIA, "deg"},
    {kKNR, "deg"},   {kSecs, "s"},    {kIAdvM, "deg"},   {kMAF, "V"},   {kMAFM, "V"},  {kMAFHz, "Hz"},
    {kMAFMHz, "Hz"}, {kAFTgt, "AFR"},
    // clang-format on
};

}  // namespace

std::string_view UnitOfFixedItem(int item) {
  for (const Row& row : kUnits)
    if (ItemOf(row.column) == item) return row.unit;
  return "";
}

}  // namespace tarnview
