#include "power/CarDefSettings.h"

#include "model/IniKeys.h"

namespace tarnview {
namespace {

using C = clsCarDef;
using Text = IniText<C>;
using Whole = IniWhole<C>;
using Number = IniNumber<C>;
using Rule = IniRule<C>;

constexpr const char* kSection = "Power Graph";
constexpr int kTopGear = 5;  // of lngPowerRunGear, which counts from 0

const Rule kUnits{[](C& car, std::string_view text) { car.blnImperialUnits = text != "M"; },
                  [](const C& car) { return std::string(car.blnImperialUnits ? "I" : "M"); }};

/// Files count gears from 1.
const Rule kGearFromOne{[](C& car, std::string_view text) {
                          car.lngPowerRunGear = std::clamp(StringToLong(text), 1, kTopGear + 1) - 1;
                        },
                        [](const C& car) { return std::to_string(car.lngPowerRunGear + 1); }};

const Rule kTyreMethod{[](C& car, std::string_view text) {
                         const int method = StringToLong(text);
                         if (method == kTyreSize || method == kTyreRevolutions)
                           car.lngTyreSizeMethod = method;
                         else
                           car.lngTyreSizeMethod = kTyreRadius;
                       },
                       [](const C& car) { return std::to_string(car.lngTyreSizeMethod); }};

const IniKey<C> kKeys[] = {
    {"Name", Text{&C::strName}},
    {"Description", Text{&C::strDesc}},
    {"Units", kUnits},
    {"1st Gear Ratio", Number{&C::dbl1stGearRatio}},
    {"2nd Gear Ratio", Number{&C::dbl2ndGearRatio}},
    {"3rd Gear Ratio", Number{&C::dbl3rdGearRatio}},
    {"4th Gear Ratio", Number{&C::dbl4thGearRatio}},
    {"5th Gear Ratio", Number{&C::dbl5thGearRatio}},
    {"6th Gear Ratio", Number{&C::dbl6thGearRatio}},
    {"Diff Ratio", Number{&C::dblDiffRatio}},
    {"1st Gear Relative Loss", Whole{&C::lng1stGearLoss}},
    {"2nd Gear Relative Loss", Whole{&C::lng2ndGearLoss}},
    {"3rd Gear Relative Loss", Whole{&C::lng3rdGearLoss}},
    {"4th Gear Relative Loss", Whole{&C::lng4thGearLoss}},
    {"5th Gear Relative Loss", Whole{&C::lng5thGearLoss}},
    {"6th Gear Relative Loss", Whole{&C::lng6thGearLoss}},
    {"Drive Wheel Radius", Number{&C::dblDriveWheelRadius}},
    {"Tyre Width", Whole{&C::lngTyreWidth}},
    {"Tyre Profile", Whole{&C::lngTyreProfile}},
    {"Wheel Diameter", Whole{&C::lngWheelDiameter}},
    {"Tyre RPM", Whole{&C::lngTyreRPM}},
    {"Tyre Size Method", kTyreMethod},
    {"Set Point Power", Whole{&C::lngAeroLossPower}},
    {"Set Point Speed", Whole{&C::lngAeroLossSpeed}},
    {"Use Drag Coefficient", IniFlag<C>{&C::blnUseCD, IniFlagForm::OffUnlessY}},
    {"Drag Coefficient", Number{&C::dblCD, 0.01, 0.99}},
    {"Frontal Area", Number{&C::dblFrontalArea, 0.01, 49.99}},
    {"Default Gear", kGearFromOne},
    {"Car Weight", Whole{&C::lngCarWeight}},
    {"Car Contents Weight", Whole{&C::lngCarContentsWeight}},
    {"Smoothing Factor", Whole{&C::lngSmoothingFactor}},
    {"Dyno Factor", Whole{&C::lngDynoCorrectionFactor}},
};

/// The keys of the one car of older files; its default gear counts from 0. They are never written.
const IniKey<C> kOldKeys[] = {
    {"Units", kUnits},
    {"Gear Ratio 0", Number{&C::dbl1stGearRatio}},
    {"Gear Ratio 1", Number{&C::dbl2ndGearRatio}},
    {"Gear Ratio 2", Number{&C::dbl3rdGearRatio}},
    {"Gear Ratio 3", Number{&C::dbl4thGearRatio}},
    {"Gear Ratio 4", Number{&C::dbl5thGearRatio}},
    {"Gear Ratio 5", Number{&C::dbl6thGearRatio}},
    {"Gear Ratio 6", Number{&C::dblDiffRatio}},
    {"Gear Loss 0", Whole{&C::lng1stGearLoss}},
    {"Gear Loss 1", Whole{&C::lng2ndGearLoss}},
    {"Gear Loss 2", Whole{&C::lng3rdGearLoss}},
    {"Gear Loss 3", Whole{&C::lng4thGearLoss}},
    {"Gear Loss 4", Whole{&C::lng5thGearLoss}},
    {"Gear Loss 5", Whole{&C::lng6thGearLoss}},
    {"Drive Wheel Radius", Number{&C::dblDriveWheelRadius}},
    {"Set Point Power", Whole{&C::lngAeroLossPower}},
    {"Set Point Speed", Whole{&C::lngAeroLossSpeed}},
    {"Use Drag Coefficient", IniFlag<C>{&C::blnUseCD, IniFlagForm::OffUnlessY}},
    {"Default Gear", Whole{&C::lngPowerRunGear, 0, kTopGear}},
    {"Default Car Weight", Whole{&C::lngCarWeight}},
    {"Default Dyno Factor", Whole{&C::lngDynoCorrectionFactor}},
};

IniPlace PlaceOf(int n) { return {kSection, "", " Car Def " + std::to_string(n)}; }

clsCarDef OriginalCar(const IniTable& table) {
  clsCarDef car;
  ReadIniKeys<C>(kOldKeys, table, {kSection}, car);
  car.strName = "Original";
  car.strDesc = "QVX original power graph settings";
  car.lngTyreWidth = 185;
  car.lngTyreProfile = 60;
  car.lngWheelDiameter = 14;
  car.lngTyreRPM = 887;
  car.lngTyreSizeMethod = kTyreRadius;
  car.lngCarContentsWeight = 0;
  car.lngSmoothingFactor = 6;
  return car;
}

}  // namespace

void ReadCarDefs(const IniTable& table, clsCarDefs& cars) {
  for (int n = 1; table.Find(kSection, PlaceOf(n).KeyOf("Units")); ++n) {
    clsCarDef car;
    ReadIniKeys<C>(kKeys, table, PlaceOf(n), car);
    cars.AddDirect(std::move(car));
  }
  if (cars.Count() == 0) cars.AddDirect(OriginalCar(table));
}

void WriteCarDefs(const clsCarDefs& cars, IniWriter& file) {
  int n = 0;
  for (const clsCarDef& car : cars) WriteIniKeys<C>(kKeys, PlaceOf(++n), car, file);
}

}  // namespace tarnview
