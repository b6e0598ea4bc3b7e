#include "power/CarFile.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

using F = CarFields;

constexpr const char* kBanner = "Tarnview Car Definition File";
constexpr const char* kDetails = "Car Definition Details:";
constexpr const char* kLineEnd = "\r\n";

/// One line: its key, and how its text is written and read.
struct Row {
  const char* key;
  std::string (*write)(const F&);
  void (*read)(F&, std::string_view);
};

template <std::string F::*member>
Row TextRow(const char* key) {
  return {key, [](const F& f) { return f.*member; },
          [](F& f, std::string_view text) { f.*member = text; }};
}
template <std::size_t gear>
Row RatioRow(const char* key) {
  return {key, [](const F& f) { return f.ratios[gear]; },
          [](F& f, std::string_view text) { f.ratios[gear] = RatioText(text); }};
}
template <std::size_t gear>
Row LossRow(const char* key) {
  return {key, [](const F& f) { return f.losses[gear]; },
          [](F& f, std::string_view text) { f.losses[gear] = text; }};
}

int TyreMethodOf(std::string_view text) {
  if (text == "1") return kTyreSize;
  if (text == "2") return kTyreRevolutions;
  return kTyreRadius;
}

const Row kUnitsRow{"Units", [](const F& f) { return std::string(f.imperial ? "I" : "M"); },
                    [](F& f, std::string_view text) { f.imperial = text != "M"; }};
const Row kDiffRow{"Diff Ratio", [](const F& f) { return f.diffRatio; },
                   [](F& f, std::string_view text) { f.diffRatio = RatioText(text); }};
const Row kMethodRow{"Tyre Size Method",
                     [](const F& f) { return std::to_string(f.tyreSizeMethod); },
                     [](F& f, std::string_view text) { f.tyreSizeMethod = TyreMethodOf(text); }};
const Row kDragRow{"Use Drag Coefficient",
                   [](const F& f) { return std::string(f.useCd ? "Y" : "N"); },
                   [](F& f, std::string_view text) { f.useCd = text == "Y"; }};
/// Files count gears from 1.
const Row kGearRow{
    "Default Gear", [](const F& f) { return std::to_string(f.gear + 1); },
    [](F& f, std::string_view text) { f.gear = std::clamp(StringToLong(text), 1, kGears) - 1; }};

const Row kRows[] = {
    TextRow<&F::name>("Name"),
    TextRow<&F::description>("Description"),
    kUnitsRow,
    RatioRow<0>("1st Gear Ratio"),
    RatioRow<1>("2nd Gear Ratio"),
    RatioRow<2>("3rd Gear Ratio"),
    RatioRow<3>("4th Gear Ratio"),
    RatioRow<4>("5th Gear Ratio"),
    RatioRow<5>("6th Gear Ratio"),
    kDiffRow,
    LossRow<0>("1st Gear Relative Loss"),
    LossRow<1>("2nd Gear Relative Loss"),
    LossRow<2>("3rd Gear Relative Loss"),
    LossRow<3>("4th Gear Relative Loss"),
    LossRow<4>("5th Gear Relative Loss"),
    LossRow<5>("6th Gear Relative Loss"),
    TextRow<&F::radius>("Drive Wheel Radius"),
    TextRow<&F::tyreWidth>("Tyre Width"),
    TextRow<&F::tyreProfile>("Tyre Profile"),
    TextRow<&F::wheelDiameter>("Wheel Diameter"),
    TextRow<&F::tyreRpm>("Tyre RPM"),
    kMethodRow,
    TextRow<&F::setPointPower>("Set Point Power"),
    TextRow<&F::setPointSpeed>("Set Point Speed"),
    kDragRow,
    TextRow<&F::cd>("Drag Coefficient"),
    TextRow<&F::frontalArea>("Frontal Area"),
    kGearRow,
    TextRow<&F::carWeight>("Car Weight"),
    TextRow<&F::contentsWeight>("Car Contents Weight"),
    TextRow<&F::smoothing>("Smoothing Factor"),
    TextRow<&F::dyno>("Dyno Factor"),
};

bool PassTo(std::string_view& text, std::string_view heading) {
  std::string_view line;
  while (TakeLine(text, line))
    if (line == heading) return true;
  return false;
}

}  // namespace

std::string CarFileText(const CarFields& fields, const Moment& now) {
  std::string text = std::string(kBanner) + kLineEnd + "File Created: " + LogTime(now) + kLineEnd +
                     kLineEnd + kDetails + kLineEnd;
  for (const Row& row : kRows) text += std::string(row.key) + "=" + row.write(fields) + kLineEnd;
  return text;
}

bool ReadCarFile(std::string_view text, CarFields& fields) {
  if (!PassTo(text, kDetails)) return false;
  std::string_view line;
  while (TakeLine(text, line)) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const auto row = std::find_if(std::begin(kRows), std::end(kRows),
                                  [&](const Row& r) { return line.substr(0, equals) == r.key; });
    if (row != std::end(kRows)) row->read(fields, line.substr(equals + 1));
  }
  return true;
}

}  // namespace tarnview
