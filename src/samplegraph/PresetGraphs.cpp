#include "samplegraph/PresetGraphs.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {
namespace {

constexpr const char* kNone = "[None]";

std::string DigitsOf(const std::string& text) {
  std::string digits;
  for (char c : text)
    if (c >= '0' && c <= '9') digits += c;
  return digits;
}

}  // namespace

PresetGraphs::PresetGraphs(const Controls& controls, clsSampleGraphPresets& presets, const clsLogFamilies& families,
                           MainWindow& mainWindow)
    : controls_(controls), presets_(presets), families_(families), mainWindow_(mainWindow) {
  controls_.lvwPresets.ItemClick = [this](int row) { lvwPresets_ItemClick(row); };
  controls_.lvwPresets.DblClick = [this](int row) {
    if (PresetOf(row)) mainWindow_.DrawGraphChecked();
  };
}

void PresetGraphs::PopulatePresetGraphs(bool blnKeepPosition, int fileType) {
  const int family = families_.FirstLogFamily(fileType);
  std::vector<ListView::Row> rows;
  for (int n = 1; n <= presets_.Count(); ++n) {
    if (presets_.Item(n).lngLogFamily != family) continue;
    ListView::Row row;
    row.texts = {presets_.Item(n).strName};
    row.tag = std::to_string(n);
    rows.push_back(std::move(row));
  }
  if (rows.empty()) rows.emplace_back().texts = {kNone};
  controls_.lvwPresets.SetRows(std::move(rows));
  if (blnKeepPosition && HasRows()) controls_.lvwPresets.Select(controls_.lvwPresets.Count());
}

bool PresetGraphs::HasRows() const {
  return controls_.lvwPresets.Count() > 0 && !controls_.lvwPresets.At(1).tag.empty();
}

bool PresetGraphs::ApplyNamed(const std::string& name) {
  for (int row = 1; row <= controls_.lvwPresets.Count(); ++row) {
    const clsSampleGraphPreset* preset = PresetOf(row);
    if (!preset || preset->strName != name) continue;
    controls_.lvwPresets.UserSelects(row);
    return true;
  }
  return false;
}

clsSampleGraphPreset* PresetGraphs::PresetOf(int row) {
  if (row < 1 || row > controls_.lvwPresets.Count()) return nullptr;
  const int position = StringToLong(controls_.lvwPresets.At(row).tag);
  return position >= 1 && position <= presets_.Count() ? &presets_.Item(position) : nullptr;
}

void PresetGraphs::lvwPresets_ItemClick(int row) {
  const clsSampleGraphPreset* preset = PresetOf(row);
  if (!preset) return;
  const bool checkedOnly = controls_.chkShowCheckedOnly.Value;
  controls_.chkShowCheckedOnly.Value = false;  // so that every item has its row
  ListView& list = controls_.lvwSampleDetails;
  for (int n = 1; n <= list.Count(); ++n) {
    const auto& items = preset->colDataItems;
    list.SetChecked(n, std::find(items.begin(), items.end(), StringToLong(list.At(n).tag)) != items.end());
  }
  controls_.chkFixY.Value = preset->blnFixGraphMax;
  controls_.txtYMax.Text = std::to_string(preset->lngGraphMax);
  controls_.chkShowCheckedOnly.Value = checkedOnly;
}

void PresetGraphs::UpdatePreset() {
  if (clsSampleGraphPreset* preset = PresetOf(controls_.lvwPresets.SelectedRow())) TakeWhatIsTicked(*preset);
}

void PresetGraphs::AddPreset(const std::string& name, int fileType) {
  clsSampleGraphPreset preset = clsSampleGraphPresets::BlankPreset();
  preset.strName = name;
  preset.lngLogFamily = families_.FirstLogFamily(fileType);
  TakeWhatIsTicked(preset);
  presets_.AddDirect(std::move(preset));
}

void PresetGraphs::TakeWhatIsTicked(clsSampleGraphPreset& preset) const {
  preset.colDataItems.clear();
  for (const auto& row : controls_.lvwSampleDetails.Rows())
    if (row.checked) preset.colDataItems.push_back(StringToLong(row.tag));
  preset.blnFixGraphMax = controls_.chkFixY.Value;
  preset.lngGraphMax = StringToLong(DigitsOf(controls_.txtYMax.Text()));
}

}  // namespace tarnview
