#include "power/CarFile.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/IniKeys.h"

namespace tarnview {
namespace {

using F = CarFields;

constexpr const char* kBanner = "Tarnview Car Definition File";
constexpr const char* kDetails = "Car Definition Details:";
constexpr const char* kLineEnd = "\r\n";

using Text = IniText<F>;
using Rule = IniRule<F>;

template <std::size_t gear>
constexpr Rule kRatio{[](F& f, std::string_view text) { f.ratios[gear] = RatioText(text); },
                      [](const F& f) { return f.ratios[gear]; }};
template <std::size_t gear>
constexpr Rule kLoss{[](F& f, std::string_view text) { f.losses[gear] = text; },
                     [](const F& f) { return f.losses[gear]; }};

constexpr Rule kUnits{[](F& f, std::string_view text) { f.imperial = text != "M"; },
                      [](const F& f) { return std::string(f.imperial ? "I" : "M"); }};
constexpr Rule kDiffRatio{[](F& f, std::string_view text) { f.diffRatio = RatioText(text); },
                          [](const F& f) { return f.diffRatio; }};

int TyreMethodOf(std::string_view text) {
  if (text == "1") return kTyreSize;
  if (text == "2") return kTyreRevolutions;
  return kTyreRadius;
}

constexpr Rule kTyreMethod{
    [](F& f, std::string_view text) { f.tyreSizeMethod = TyreMethodOf(text); },
    [](const F& f) { return std::to_string(f.tyreSizeMethod); }};
/// Files count gears from 1.
constexpr Rule kGear{
    [](F& f, std::string_view text) { f.gear = std::clamp(StringToLong(text), 1, kGears) - 1; },
    [](const F& f) { return std::to_string(f.gear + 1); }};

const IniKey<F> kKeys[] = {
    {"Name", Text{&F::name}},
    {"Description", Text{&F::description}},
    {"Units", kUnits},
    {"1st Gear Ratio", kRatio<0>},
    {"2nd Gear Ratio", kRatio<1>},
    {"3rd Gear Ratio", kRatio<2>},
    {"4th Gear Ratio", kRatio<3>},
    {"5th Gear Ratio", kRatio<4>},
    {"6th Gear Ratio", kRatio<5>},
    {"Diff Ratio", kDiffRatio},
    {"1st Gear Relative Loss", kLoss<0>},
    {"2nd Gear Relative Loss", kLoss<1>},
    {"3rd Gear Relative Loss", kLoss<2>},
    {"4th Gear Relative Loss", kLoss<3>},
    {"5th Gear Relative Loss", kLoss<4>},
    {"6th Gear Relative Loss", kLoss<5>},
    {"Drive Wheel Radius", Text{&F::radius}},
    {"Tyre Width", Text{&F::tyreWidth}},
    {"Tyre Profile", Text{&F::tyreProfile}},
    {"Wheel Diameter", Text{&F::wheelDiameter}},
    {"Tyre RPM", Text{&F::tyreRpm}},
    {"Tyre Size Method", kTyreMethod},
    {"Set Point Power", Text{&F::setPointPower}},
    {"Set Point Speed", Text{&F::setPointSpeed}},
    {"Use Drag Coefficient", IniFlag<F>{&F::useCd, IniFlagForm::OffUnlessY}},
    {"Drag Coefficient", Text{&F::cd}},
    {"Frontal Area", Text{&F::frontalArea}},
    {"Default Gear", kGear},
    {"Car Weight", Text{&F::carWeight}},
    {"Car Contents Weight", Text{&F::contentsWeight}},
    {"Smoothing Factor", Text{&F::smoothing}},
    {"Dyno Factor", Text{&F::dyno}},
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
  for (const auto& key : kKeys)
    text += std::string(key.name) + "=" + IniTextOf(key, fields) + kLineEnd;
  return text;
}

bool ReadCarFile(std::string_view text, CarFields& fields) {
  if (!PassTo(text, kDetails)) return false;
  std::string_view line;
  while (TakeLine(text, line)) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const auto named = [&](const IniKey<F>& key) { return line.substr(0, equals) == key.name; };
    const auto key = std::find_if(std::begin(kKeys), std::end(kKeys), named);
    if (key != std::end(kKeys)) ReadIniText(*key, line.substr(equals + 1), fields);
  }
  return true;
}

}  // namespace tarnview
