#include "model/GeneralSettings.h"

#include <algorithm>

#include "base/Numbers.h"
#include "model/Column.h"
#include "model/IniKeys.h"
#include "model/clsFileTypes.h"

namespace tarnview {
namespace {

using S = Settings;
using Text = IniText<S>;
using Whole = IniWhole<S>;
using Flag = IniFlag<S>;
using Day = IniDate<S>;
using Rule = IniRule<S>;
using enum IniFlagForm;
using enum IniBeyond;

constexpr const char* kGeneral = "General";

/// Degrees C: the air around the car, and the wet bulb's reading in it.
constexpr int kColdest = -30, kHottest = 60;
constexpr int kWetBulb = 1;  ///< gintHumidityType

void ReadCheckedItems(S& settings, std::string_view text) {
  auto items = ReadItemNumbers(text);
  std::erase_if(items, [](int item) { return item < 1 || item > kColumnCount; });
  if (!items.empty()) settings.gcolCheckedDataItems = std::move(items);
}

void ReadEngineSize(S& settings, std::string_view text) {
  if (const double size = StringToDouble(text); size == 1.6 || size == 1.8) settings.gdblDefaultEngineSize = size;
}

void ReadComPort(S& settings, std::string_view text) {
  const int port = StringToLong(text);
  settings.gstrSerialComPort = std::to_string(port >= 1 && port <= 9 ? port : 1);
}

void ReadLineFrequency(S& settings, std::string_view text) {
  if (const double lines = StringToDouble(text); lines > 0) settings.gdblDataLogLineFrequency = lines;
}

void ReadGearFactor(S& settings, std::string_view text) {
  if (const double factor = StringToDouble(text); factor >= 0 && factor < 100)
    settings.gdblGearSpeedConvFactor = factor;
}

template <std::size_t N>
constexpr Rule kUploadDefault{
    [](S& settings, std::string_view text) { settings.gblnUploadDefaults[N] = StringToDouble(text) != 0; },
    [](const S& settings) { return std::string(settings.gblnUploadDefaults[N] ? "1" : "0"); }};

const IniKey<S> kUpToWindows[] = {
    {"Initial Directory", Text{&S::gstrInitialDirectory}},
    {"Default File Type", Whole{&S::gintDefaultFileType, kFMLinkLog, kUniversalLog}},
    {"Zoom Amount", Rule{[](S& s, std::string_view text) { s.gintZoomAmount = ZoomAmount(StringToLong(text)); },
                         [](const S& s) { return std::to_string(s.gintZoomAmount); }}},
    {"Quick Graph", Flag{&S::gblnQuickGraph, Number}},
    {"Checked Data Items", Rule{ReadCheckedItems, [](const S& s) { return ItemNumbersText(s.gcolCheckedDataItems); }},
     true},
    {"Log EXE", Text{&S::gstrLogEXE}, true},
    {"Conversion EXE", Text{&S::gstrConversionEXE}, true},
    {"Alternative Background Picture", Text{&S::gstrAlternativeBackgroundPicture}},
    {"Default Working Directory", Text{&S::gstrDefaultWorkingDirectory}, true},
    {"Aux Input Conversion File", Text{&S::gstrAuxInputConversionFile}},
    {"O2 Input Conversion File", Text{&S::gstrO2InputConversionFile}},
    {"Generic Data Log Definition File", Text{&S::gstrGenericDefinitionFile}},
    {"Last Converted Binary File", Text{&S::gstrLastConvertedBinary}},
    {"Serial Com Port", Rule{ReadComPort, [](const S& s) { return s.gstrSerialComPort; }}},
    {"Default Engine Size", Rule{ReadEngineSize, [](const S& s) { return ShortestText(s.gdblDefaultEngineSize); }}},
    {"Default Chip Date", Day{&S::gdatDefaultChipDate}},
    {"Default Chip Version", Whole{&S::gintDefaultChipVersion, 1, 3, Left}},
    {"Default Atmospheric Pressure", Whole{&S::gintDefaultAtmosphericPressure, 75, 115}},
    {"Silent Defaults", Flag{&S::gblnSilentDefaults, OffUnlessY}},
    {"Default Benchmark", Text{&S::gstrDefaultBenchmark}},
    {"Plot From Temperature", Whole{&S::gintPlotFromTemperature, -99, 99}},
    {"Display Zone Influence", Flag{&S::gblnDisplayZoneInfluence, OnUnlessN}},
    {"Display Sample Details in Scatter Graph", Flag{&S::gblnDisplaySampleInScatter, OnUnlessN}},
    {"Upload Default 0", kUploadDefault<0>},
    {"Upload Default 1", kUploadDefault<1>},
    {"Upload Default 2", kUploadDefault<2>},
    {"Upload Default 3", kUploadDefault<3>},
    {"Retain Binary Files", Flag{&S::gblnRetainBinary, OnUnlessN}},
    {"Auto Open Data Tags Window", Flag{&S::gblnAutoOpenDataTags, OnUnlessN}},
};

struct WindowRow {
  WindowKeys keys;
  std::optional<clsWindowConfig> WindowPlacements::*window;
};

constexpr WindowRow kWindows[] = {
    {{"", 6640, 6370}, &WindowPlacements::main},
    {{"Scatter Graph ", 11880, 4760}, &WindowPlacements::scatterGraph},
    {{"Power Graph ", 12390, 7845}, &WindowPlacements::powerGraph},
    {{"Speed Graph ", 8970, 4760}, &WindowPlacements::speedGraph},
    {{"Maintenance Form ", 4185, 4425}, &WindowPlacements::maintenance},
};

const IniKey<S> kBehindWindows[] = {
    {"Fix Graph Max", Flag{&S::gblnFixGraphMax, Number}},
    {"Graph Y Max", Whole{&S::gintGraphYMax, 10, 1000}},
    {"Show Checked Only", Flag{&S::gblnShowCheckedOnly, OffUnlessY}},
    {"Auto File Names", Flag{&S::gblnAutoFileNames, OffUnlessY}},
    {"Scatter Graph Auto Draw", Flag{&S::gblnScatterGraphAutoDraw, OffUnlessY}},
    {"Auto Scatter Graph Sample Filter", Flag{&S::gblnAutoScatterFilter, OnUnlessN}},
    {"Show Point Sample Graph Width", Whole{&S::glngShowPointWidth, 50, 1000}},
    {"Data Log Line Frequency",
     Rule{ReadLineFrequency, [](const S& s) { return ShortestText(s.gdblDataLogLineFrequency); }}},
    {"Auto Gear Selection", Flag{&S::gblnAutoGearSelection, OnUnlessN}},
    {"Auto Gear Selection Speed Units", Whole{&S::gintGearSpeedUnits, 1, 3, Left}},
    {"Auto Gear Selection Speed Conversion Factor",
     Rule{ReadGearFactor, [](const S& s) { return ShortestText(s.gdblGearSpeedConvFactor); }}},
    {"Initial Plot Width", Whole{&S::glngInitialPlotWidth, 0, 300000}},
    {"Ambient Temp", Whole{&S::gintAmbientTemp, kColdest, kHottest}},
    {"Humidity Type", Rule{[](S& s, std::string_view text) { s.gintHumidityType = StringToLong(text) == kWetBulb; },
                           [](const S& s) { return std::to_string(s.gintHumidityType); }}},
    {"Relative Humidity", Whole{&S::gintRelativeHumidity}},
    {"SAE Correction", Flag{&S::gblnSAECorrection, OffUnlessY}},
    {"Graph Colour Scheme", Whole{&S::gintGraphColourScheme, 1, 3}},
};

/// Older files have one key for both: "1" correction by relative humidity, "2" by the wet bulb, else none.
void ReadOldSAEType(const IniTable& table, S& settings) {
  const auto type = GetINIValue(table, kGeneral, "SAE Type");
  if (!type) return;
  if (!table.Find(kGeneral, "SAE Correction")) settings.gblnSAECorrection = *type == "1" || *type == "2";
  if (!table.Find(kGeneral, "Humidity Type")) settings.gintHumidityType = *type == "2" ? kWetBulb : 0;
}

/// What the humidity means, its default and its limits hang on its type and on the air's temperature.
void SettleHumidity(const IniTable& table, S& settings) {
  constexpr int kUsualWetBulb = 15;  // degrees C
  const bool missing = !table.Find(kGeneral, "Relative Humidity");
  int& humidity = settings.gintRelativeHumidity;
  if (settings.gintHumidityType == kWetBulb)
    humidity = std::clamp(missing ? kUsualWetBulb : humidity, kColdest, settings.gintAmbientTemp);
  else
    humidity = std::clamp(humidity, 0, 100);
}

using A = GraphAngles;
constexpr int kGreatestAngle = 359;

const IniKey<A> kAngles[] = {
    {"Initial Fuel Rotation", IniWhole<A>{&A::lngFuelRotation, 0, kGreatestAngle}},
    {"Initial Fuel Elevation", IniWhole<A>{&A::lngFuelElevation, 0, kGreatestAngle}},
    {"Initial Ignition Rotation", IniWhole<A>{&A::lngIgnitionRotation, 0, kGreatestAngle}},
    {"Initial Ignition Elevation", IniWhole<A>{&A::lngIgnitionElevation, 0, kGreatestAngle}},
};

constexpr int kMostRecentFiles = 9;

std::string FileKey(int n) { return "File " + std::to_string(n); }

}  // namespace

int ZoomAmount(int wanted) {
  constexpr auto& amounts = kZoomBoxAmounts;
  if (wanted > amounts.back()) return amounts.back();
  return std::find(amounts.begin(), amounts.end(), wanted) == amounts.end() ? amounts.front() : wanted;
}

void ReadGeneralSettings(const IniTable& table, const IniTable* install, Settings& settings) {
  ReadIniKeys<S>(kUpToWindows, table, {kGeneral}, settings, IniMissing::Keeps, install);
  for (const WindowRow& row : kWindows) settings.windows.*row.window = ReadWindowConfig(table, kGeneral, row.keys);
  ReadIniKeys<S>(kBehindWindows, table, {kGeneral}, settings);
  ReadOldSAEType(table, settings);
  SettleHumidity(table, settings);
  settings.firstRun = GetINIValue(table, kGeneral, "First Run Indicator") == "Y";
}

void WriteGeneralSettings(const Settings& settings, IniWriter& file) {
  WriteIniKeys<S>(kUpToWindows, {kGeneral}, settings, file);
  for (const WindowRow& row : kWindows)
    if (const auto& config = settings.windows.*row.window) config->WriteIniFileEntry(file, row.keys.prefix);
  WriteIniKeys<S>(kBehindWindows, {kGeneral}, settings, file);
}

void ReadGraphAngles(const IniTable& table, GraphAngles& angles) {
  ReadIniKeys<A>(kAngles, table, {"3D Graph"}, angles);
}

void WriteGraphAngles(const GraphAngles& angles, IniWriter& file) {
  WriteIniKeys<A>(kAngles, {"3D Graph"}, angles, file);
}

std::vector<std::string> ReadFileList(const IniTable& table, const char* section) {
  std::vector<std::string> files;
  for (int n = 0; n < kMostRecentFiles; ++n) {
    const auto entry = GetINIValue(table, section, FileKey(n));
    if (entry && !entry->empty()) files.emplace_back(*entry);
  }
  return files;
}

void WriteFileList(const std::vector<std::string>& files, IniWriter& file) {
  const int count = std::min(static_cast<int>(files.size()), kMostRecentFiles);
  for (int n = 0; n < count; ++n) file.Line(FileKey(n), files[static_cast<std::size_t>(n)]);
}

std::vector<NamedPlacement> AllPlacements() {
  std::vector<NamedPlacement> placements;
  for (const WindowRow& row : kWindows) placements.push_back({row.keys.prefix, row.window});
  return placements;
}

Settings ReadSettings(std::string_view text) {
  const IniTable table = ReadINIFileToArray(text);
  Settings settings;
  ReadGeneralSettings(table, nullptr, settings);
  ReadGraphAngles(table, settings.angles);
  settings.recentFiles = ReadFileList(table, "Recently Used Files");
  settings.recentPowerGraphFiles = ReadFileList(table, "Recently Used Power Graph Files");
  return settings;
}

}  // namespace tarnview
