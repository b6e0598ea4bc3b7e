#include "model/GeneralSettings.h"

#include <algorithm>

#include "base/Numbers.h"
#include "model/BeyondKeys.h"
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
constexpr int kWetBulb = 1;  ///< gintHumidityType

// Where settings are set: the pages of the Options window, and other windows.
constexpr const char* kGeneralPage = "frmOptions/General";
constexpr const char* kLinkPage = "frmOptions/FM Link ECU";
constexpr const char* kFilesPage = "frmOptions/File Locations";
constexpr const char* kMain = "frmDataLogViewer";

void ReadCheckedItems(S& settings, std::string_view text) {
  auto items = ReadItemNumbers(text);
  std::erase_if(items, [](int item) { return item < 1 || item > kColumnCount; });
  if (!items.empty()) settings.gcolCheckedDataItems = std::move(items);
}

void ReadEngineSize(S& settings, std::string_view text) {
  if (const double size = StringToDouble(text); size == 1.6 || size == 1.8)
    settings.gdblDefaultEngineSize = size;
}

void ReadComPort(S& settings, std::string_view text) {
  int port = StringToLong(text);
  if (!kComPortLimits.Allow(port)) port = kComPortLimits.least;
  settings.gstrSerialComPort = std::to_string(port);
}

void ReadLineFrequency(S& settings, std::string_view text) {
  if (const double lines = StringToDouble(text); lines > 0)
    settings.gdblDataLogLineFrequency = lines;
}

void ReadGearFactor(S& settings, std::string_view text) {
  if (const double factor = StringToDouble(text); factor >= 0 && factor < 100)
    settings.gdblGearSpeedConvFactor = factor;
}

constexpr Rule kZoomAmount{
    [](S& settings, std::string_view text) {
      settings.gintZoomAmount = ZoomAmount(StringToLong(text));
    },
    [](const S& settings) { return std::to_string(settings.gintZoomAmount); },
    "one of 2, 3, 4, 5, 10, 20, 30, 40, 50, 100"};
constexpr Rule kCheckedItems{
    ReadCheckedItems,
    [](const S& settings) { return ItemNumbersText(settings.gcolCheckedDataItems); },
    "data item numbers with commas"};
constexpr Rule kComPort{ReadComPort, [](const S& settings) { return settings.gstrSerialComPort; },
                        "1 to 9"};
constexpr Rule kEngineSize{
    ReadEngineSize, [](const S& settings) { return ShortestText(settings.gdblDefaultEngineSize); },
    "1.6 or 1.8"};
constexpr Rule kLineFrequency{
    ReadLineFrequency,
    [](const S& settings) { return ShortestText(settings.gdblDataLogLineFrequency); }, "above 0"};
constexpr Rule kGearFactor{
    ReadGearFactor,
    [](const S& settings) { return ShortestText(settings.gdblGearSpeedConvFactor); },
    "from 0 to below 100"};
constexpr Rule kHumidityType{
    [](S& settings, std::string_view text) {
      settings.gintHumidityType = StringToLong(text) == kWetBulb;
    },
    [](const S& settings) { return std::to_string(settings.gintHumidityType); }, "0 or 1"};
/// Held to its limits once all that they hang on is known: SettleHumidity.
constexpr Rule kHumidity{
    [](S& settings, std::string_view text) { settings.gintRelativeHumidity = StringToLong(text); },
    [](const S& settings) { return std::to_string(settings.gintRelativeHumidity); },
    "0 to 100; a wet bulb temperature -30 to 60 and not above Ambient Temp"};

template <std::size_t N>
constexpr Rule kUploadDefault{
    [](S& settings, std::string_view text) {
      settings.gblnUploadDefaults[N] = StringToDouble(text) != 0;
    },
    [](const S& settings) { return FlagText(settings.gblnUploadDefaults[N], IniFlagForm::Number); },
    "1 or 0"};

const IniKey<S> kUpToWindows[] = {
    // clang-format off
    {"Initial Directory", Text{&S::gstrInitialDirectory}},
    {"Default File Type", Whole{&S::gintDefaultFileType, {kFMLinkLog, kUniversalLog}}, {kFilesPage, "cboFileType"}},
    {"Zoom Amount", kZoomAmount, {kMain, "cboZoomAmount"}},
    {"Quick Graph", Flag{&S::gblnQuickGraph, Number}, {kMain, "chkQuickGraph"}},
    {"Checked Data Items", kCheckedItems, {kMain, "lvwSampleDetails"}, true},
    {"Log EXE", Text{&S::gstrLogEXE}, {kLinkPage, "txtPath(0)"}, true},
    {"Conversion EXE", Text{&S::gstrConversionEXE}, {kLinkPage, "txtPath(1)"}, true},
    {"Alternative Background Picture", Text{&S::gstrAlternativeBackgroundPicture}, {kFilesPage, "txtPath(2)"}},
    {"Default Working Directory", Text{&S::gstrDefaultWorkingDirectory}, {kFilesPage, "txtPath(3)"}, true},
    {"Aux Input Conversion File", Text{&S::gstrAuxInputConversionFile}, {kLinkPage, "txtPath(4)"}},
    {"O2 Input Conversion File", Text{&S::gstrO2InputConversionFile}, {kLinkPage, "txtPath(5)"}},
    {"Generic Data Log Definition File", Text{&S::gstrGenericDefinitionFile}, {kFilesPage, "txtPath(6)"}},
    {"Last Converted Binary File", Text{&S::gstrLastConvertedBinary}, {"frmConvertBIN", "txtPath(0)"}},
    {"Serial Com Port", kComPort, {kLinkPage, "txtComPort"}},
    {"Default Engine Size", kEngineSize, {kLinkPage, "cboChipType"}},
    {"Default Chip Date", Day{&S::gdatDefaultChipDate}, {kLinkPage, "txtChipDate"}},
    {"Default Chip Version", Whole{&S::gintDefaultChipVersion, kChipVersionLimits, Left}, {kLinkPage, "cboChipType"}},
    {"Default Atmospheric Pressure",
     Whole{&S::gintDefaultAtmosphericPressure, kAtmosphericPressureLimits},
     {kGeneralPage, "txtAtmos"}},
    {"Silent Defaults", Flag{&S::gblnSilentDefaults, OffUnlessY}, {kLinkPage, "chkSilentDefaults"}},
    {"Default Benchmark", Text{&S::gstrDefaultBenchmark}, {"frmZoneData", "cboBenchmark"}},
    {"Plot From Temperature",
     Whole{&S::gintPlotFromTemperature, kPlotFromTemperatureLimits},
     {kGeneralPage, "txtPlotFromTemp"}},
    {"Display Zone Influence", Flag{&S::gblnDisplayZoneInfluence, OnUnlessN}, {kMain, "mnuViewZoneInfl"}},
    {"Display Sample Details in Scatter Graph",
     Flag{&S::gblnDisplaySampleInScatter, OnUnlessN},
     {kGeneralPage, "chkSampleScatter"}},
    {"Upload Default 0", kUploadDefault<0>, {kLinkPage, "chkUploadDefs(0)"}},
    {"Upload Default 1", kUploadDefault<1>, {kLinkPage, "chkUploadDefs(1)"}},
    {"Upload Default 2", kUploadDefault<2>, {kLinkPage, "chkUploadDefs(2)"}},
    {"Upload Default 3", kUploadDefault<3>, {kLinkPage, "chkUploadDefs(3)"}},
    {"Retain Binary Files", Flag{&S::gblnRetainBinary, OnUnlessN}, {kLinkPage, "chkRetainBIN"}},
    {"Auto Open Data Tags Window", Flag{&S::gblnAutoOpenDataTags, OnUnlessN}, {kLinkPage, "chkAutoTag"}},
    // clang-format on
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
    // clang-format off
    {"Fix Graph Max", Flag{&S::gblnFixGraphMax, Number}, {kMain, "chkFixY"}},
    {"Graph Y Max", Whole{&S::gintGraphYMax, kGraphYMaxLimits}, {kMain, "txtYMax"}},
    {"Show Checked Only", Flag{&S::gblnShowCheckedOnly, OffUnlessY}, {kMain, "chkShowCheckedOnly"}},
    {"Auto File Names", Flag{&S::gblnAutoFileNames, OffUnlessY}, {kGeneralPage, "chkAutoFileNames"}},
    {"Scatter Graph Auto Draw", Flag{&S::gblnScatterGraphAutoDraw, OffUnlessY}, {kGeneralPage, "chkScatterAutoDraw"}},
    {"Auto Scatter Graph Sample Filter",
     Flag{&S::gblnAutoScatterFilter, OnUnlessN},
     {kGeneralPage, "chkAutoScatterFilter"}},
    {"Show Point Sample Graph Width",
     Whole{&S::glngShowPointWidth, kShowPointWidthLimits},
     {kGeneralPage, "txtSampleWidth"}},
    {"Data Log Line Frequency", kLineFrequency, {kGeneralPage, "txtDefFreq"}},
    {"Auto Gear Selection", Flag{&S::gblnAutoGearSelection, OnUnlessN}, {kGeneralPage, "chkPowerGraphGearSelection"}},
    {"Auto Gear Selection Speed Units",
     Whole{&S::gintGearSpeedUnits, kSpeedUnitsLimits, Left},
     {kGeneralPage, "cboSpeedUnits"}},
    {"Auto Gear Selection Speed Conversion Factor", kGearFactor, {kGeneralPage, "txtmsConvFactor"}},
    {"Initial Plot Width",
     Whole{&S::glngInitialPlotWidth, kInitialPlotWidthLimits},
     {kGeneralPage, "txtInitialPlotWidth"}},
    {"Ambient Temp", Whole{&S::gintAmbientTemp, kAirTemperatureLimits}, {kGeneralPage, "txtAmbTemp"}},
    {"Humidity Type", kHumidityType, {kGeneralPage, "cboHumidityType"}},
    {"Relative Humidity", kHumidity, {kGeneralPage, "txtRH"}},
    {"SAE Correction", Flag{&S::gblnSAECorrection, OffUnlessY}, {kGeneralPage, "chkSAE"}},
    {"Graph Colour Scheme",
     Whole{&S::gintGraphColourScheme, kColourSchemeLimits},
     {kGeneralPage, "cboGraphColourScheme"}},
    // clang-format on
};

/// Older files have one key for both: "1" correction by relative humidity, "2" by the wet bulb,
/// else none.
void ReadOldSAEType(const IniTable& table, S& settings) {
  const auto type = GetINIValue(table, kGeneral, "SAE Type");
  if (!type) return;
  if (!table.Find(kGeneral, "SAE Correction"))
    settings.gblnSAECorrection = *type == "1" || *type == "2";
  if (!table.Find(kGeneral, "Humidity Type"))
    settings.gintHumidityType = *type == "2" ? kWetBulb : 0;
}

void SettleHumidity(const IniTable& table, S& settings) {
  constexpr int kUsualWetBulb = 15;  // degrees C
  const bool missing = !table.Find(kGeneral, "Relative Humidity");
  if (missing && settings.gintHumidityType == kWetBulb)
    settings.gintRelativeHumidity = kUsualWetBulb;
  settings.gintRelativeHumidity = HumidityLimits(settings).Hold(settings.gintRelativeHumidity);
}

using A = GraphAngles;
constexpr const char* kAnglesSection = "3D Graph";

const IniKey<A> kAngles[] = {
    {"Initial Fuel Rotation",
     IniWhole<A>{&A::lngFuelRotation, kAngleLimits},
     {kLinkPage, "txt3DSpec(0)"}},
    {"Initial Fuel Elevation",
     IniWhole<A>{&A::lngFuelElevation, kAngleLimits},
     {kLinkPage, "txt3DSpec(1)"}},
    {"Initial Ignition Rotation",
     IniWhole<A>{&A::lngIgnitionRotation, kAngleLimits},
     {kLinkPage, "txt3DSpec(2)"}},
    {"Initial Ignition Elevation",
     IniWhole<A>{&A::lngIgnitionElevation, kAngleLimits},
     {kLinkPage, "txt3DSpec(3)"}},
};

/// A row for those who are neither reader nor writer. `part` gives the part of the settings that
/// the key belongs to.
template <class Record, class Part>
SettingRow RowOf(const char* section, const IniKey<Record>& key, Part part) {
  return {section,
          key.name,
          key.setIn,
          LimitsOf(key),
          [&key, part](const S& settings) { return IniTextOf(key, *part(&settings)); },
          [&key, part](S& settings, std::string_view text) {
            ReadIniText(key, text, *part(&settings));
          }};
}

constexpr int kMostRecentFiles = 9;

std::string FileKey(int n) { return "File " + std::to_string(n); }

}  // namespace

int ZoomAmount(int wanted) {
  constexpr auto& amounts = kZoomBoxAmounts;
  if (wanted > amounts.back()) return amounts.back();
  if (std::find(amounts.begin(), amounts.end(), wanted) == amounts.end()) return amounts.front();
  return wanted;
}

void ReadGeneralSettings(const IniTable& table, const IniTable* install, Settings& settings) {
  ReadIniKeys<S>(kUpToWindows, table, {kGeneral}, settings, IniMissing::Keeps, install);
  for (const WindowRow& row : kWindows)
    settings.windows.*row.window = ReadWindowConfig(table, kGeneral, row.keys);
  ReadIniKeys<S>(kBehindWindows, table, {kGeneral}, settings);
  ReadOldSAEType(table, settings);
  SettleHumidity(table, settings);
  settings.firstRun = GetINIValue(table, kGeneral, "First Run Indicator") == "Y";
}

void WriteGeneralSettings(const Settings& settings, IniWriter& file) {
  WriteIniKeys<S>(kUpToWindows, {kGeneral}, settings, file);
  for (const WindowRow& row : kWindows)
    if (const auto& config = settings.windows.*row.window)
      config->WriteIniFileEntry(file, row.keys.prefix);
  WriteIniKeys<S>(kBehindWindows, {kGeneral}, settings, file);
}

void ReadGraphAngles(const IniTable& table, GraphAngles& angles) {
  ReadIniKeys<A>(kAngles, table, {kAnglesSection}, angles);
}

void WriteGraphAngles(const GraphAngles& angles, IniWriter& file) {
  WriteIniKeys<A>(kAngles, {kAnglesSection}, angles, file);
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

Limits HumidityLimits(const Settings& settings) {
  if (settings.gintHumidityType != kWetBulb) return kPerCentLimits;
  return {kAirTemperatureLimits.least, settings.gintAmbientTemp};
}

std::vector<SettingRow> AllSettings() {
  const auto whole = [](auto* settings) { return settings; };
  const auto angles = [](auto* settings) { return &settings->angles; };
  std::vector<SettingRow> rows;
  for (const auto& key : kUpToWindows) rows.push_back(RowOf(kGeneral, key, whole));
  for (const auto& key : kBehindWindows) rows.push_back(RowOf(kGeneral, key, whole));
  for (const auto& key : kAngles) rows.push_back(RowOf(kAnglesSection, key, angles));
  const auto beyond = [](auto* settings) { return &settings->beyond; };
  for (const auto& key : BeyondKeys()) rows.push_back(RowOf(kBeyondSection, key, beyond));
  return rows;
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
  ReadBeyondSettings(table, settings.beyond);
  settings.recentFiles = ReadFileList(table, "Recently Used Files");
  settings.recentPowerGraphFiles = ReadFileList(table, "Recently Used Power Graph Files");
  return settings;
}

}  // namespace tarnview
