#include "model/Settings.h"

#include <algorithm>
#include <iterator>
#include <variant>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"
#include "model/IniFile.h"
#include "model/clsFileTypes.h"

namespace tarnview {
namespace {

// Kinds of keys: the value they set and how its text is read. A key that is missing leaves the default of Settings.

struct TextKey {
  std::string Settings::*value;
};
struct ClampedKey {  ///< brought into its limits
  int Settings::*value;
  int least, most;
};
struct WithinKey {  ///< the default outside its limits
  int Settings::*value;
  int least, most;
};
struct ZoomKey {  ///< one of the amounts of the zoom box
  int Settings::*value;
};
struct FlagKey {  ///< a number, 0 for off
  bool Settings::*value;
};
struct OnUnlessNKey {
  bool Settings::*value;
};
struct OffUnlessYKey {
  bool Settings::*value;
};
struct EngineSizeKey {
  double Settings::*value;
};
struct PositiveKey {  ///< the default unless above 0
  double Settings::*value;
};
struct DateKey {
  Date Settings::*value;
};
struct ItemsKey {  ///< item numbers with commas; the default if there is none
  std::vector<int> Settings::*value;
};

struct Key {
  const char* section;
  const char* name;
  std::variant<TextKey, ClampedKey, WithinKey, ZoomKey, FlagKey, OnUnlessNKey, OffUnlessYKey, EngineSizeKey,
               PositiveKey, DateKey, ItemsKey>
      kind;
};

using S = Settings;

constexpr const char* kGeneral = "General";

/// In the order of the file.
constexpr Key kKeys[] = {
    {kGeneral, "Initial Directory", TextKey{&S::gstrInitialDirectory}},
    {kGeneral, "Default File Type", ClampedKey{&S::gintDefaultFileType, kFMLinkLog, kUniversalLog}},
    {kGeneral, "Zoom Amount", ZoomKey{&S::gintZoomAmount}},
    {kGeneral, "Quick Graph", FlagKey{&S::gblnQuickGraph}},
    {kGeneral, "Checked Data Items", ItemsKey{&S::gcolCheckedDataItems}},
    {kGeneral, "Default Working Directory", TextKey{&S::gstrDefaultWorkingDirectory}},
    {kGeneral, "Aux Input Conversion File", TextKey{&S::gstrAuxInputConversionFile}},
    {kGeneral, "O2 Input Conversion File", TextKey{&S::gstrO2InputConversionFile}},
    {kGeneral, "Generic Data Log Definition File", TextKey{&S::gstrGenericDefinitionFile}},
    {kGeneral, "Default Engine Size", EngineSizeKey{&S::gdblDefaultEngineSize}},
    {kGeneral, "Default Chip Date", DateKey{&S::gdatDefaultChipDate}},
    {kGeneral, "Default Chip Version", WithinKey{&S::gintDefaultChipVersion, 1, 3}},
    {kGeneral, "Default Atmospheric Pressure", ClampedKey{&S::gintDefaultAtmosphericPressure, 75, 115}},
    {kGeneral, "Silent Defaults", OffUnlessYKey{&S::gblnSilentDefaults}},
    {kGeneral, "Plot From Temperature", ClampedKey{&S::gintPlotFromTemperature, -99, 99}},
    {kGeneral, "Display Zone Influence", OnUnlessNKey{&S::gblnDisplayZoneInfluence}},
    {kGeneral, "Auto Open Data Tags Window", OnUnlessNKey{&S::gblnAutoOpenDataTags}},
    {kGeneral, "Fix Graph Max", FlagKey{&S::gblnFixGraphMax}},
    {kGeneral, "Graph Y Max", ClampedKey{&S::gintGraphYMax, 10, 1000}},
    {kGeneral, "Show Checked Only", OffUnlessYKey{&S::gblnShowCheckedOnly}},
    {kGeneral, "Scatter Graph Auto Draw", OffUnlessYKey{&S::gblnScatterGraphAutoDraw}},
    {kGeneral, "Show Point Sample Graph Width", ClampedKey{&S::glngShowPointWidth, 50, 1000}},
    {kGeneral, "Data Log Line Frequency", PositiveKey{&S::gdblDataLogLineFrequency}},
    {kGeneral, "Initial Plot Width", ClampedKey{&S::glngInitialPlotWidth, 0, 300000}},
    {kGeneral, "Graph Colour Scheme", ClampedKey{&S::gintGraphColourScheme, 1, 3}},
};

/// An amount that the zoom box lacks becomes the least, one beyond the box the greatest.
int ZoomAmount(int wanted) {
  static constexpr int kAmounts[] = {2, 3, 4, 5, 10, 20, 30, 40, 50, 100};
  if (wanted > kAmounts[std::size(kAmounts) - 1]) return kAmounts[std::size(kAmounts) - 1];
  return std::find(std::begin(kAmounts), std::end(kAmounts), wanted) == std::end(kAmounts) ? kAmounts[0] : wanted;
}

std::vector<int> ItemNumbers(std::string_view text) {
  std::vector<int> numbers;
  for (const std::string& part : Split(text, ','))
    if (const int number = StringToLong(part); number >= 1 && number <= kColumnCount) numbers.push_back(number);
  return numbers;
}

/// Reads one key's text into the settings.
struct Reader {
  Settings& settings;
  std::string_view text;

  void operator()(const TextKey& key) const { settings.*key.value = text; }
  void operator()(const ClampedKey& key) const {
    settings.*key.value = std::clamp(StringToLong(text), key.least, key.most);
  }
  void operator()(const WithinKey& key) const {
    const int number = StringToLong(text);
    if (number >= key.least && number <= key.most) settings.*key.value = number;
  }
  void operator()(const ZoomKey& key) const { settings.*key.value = ZoomAmount(StringToLong(text)); }
  void operator()(const FlagKey& key) const { settings.*key.value = StringToDouble(text) != 0; }
  void operator()(const OnUnlessNKey& key) const { settings.*key.value = text != "N"; }
  void operator()(const OffUnlessYKey& key) const { settings.*key.value = text == "Y"; }
  void operator()(const EngineSizeKey& key) const {
    if (const double size = StringToDouble(text); size == 1.6 || size == 1.8) settings.*key.value = size;
  }
  void operator()(const PositiveKey& key) const {
    if (const double number = StringToDouble(text); number > 0) settings.*key.value = number;
  }
  void operator()(const DateKey& key) const { settings.*key.value = StringToDate(text, settings.*key.value); }
  void operator()(const ItemsKey& key) const {
    if (auto numbers = ItemNumbers(text); !numbers.empty()) settings.*key.value = std::move(numbers);
  }
};

std::vector<std::string> ReadRecentFiles(const IniTable& table) {
  constexpr int kMostRecentFiles = 9;
  std::vector<std::string> files;
  for (int n = 0; n < kMostRecentFiles; ++n) {
    const auto entry = GetINIValue(table, "Recently Used Files", "File " + std::to_string(n));
    if (entry && !entry->empty()) files.emplace_back(*entry);
  }
  return files;
}

}  // namespace

Settings ReadSettings(std::string_view text) {
  const IniTable table = ReadINIFileToArray(text);
  Settings settings;
  for (const Key& key : kKeys)
    if (const auto value = GetINIValue(table, key.section, key.name)) std::visit(Reader{settings, *value}, key.kind);
  settings.recentFiles = ReadRecentFiles(table);
  return settings;
}

}  // namespace tarnview
