#include "samplegraph/PresetGraphs.h"

#include <algorithm>

#include "base/Numbers.h"
#include "samplegraph/SampleListView.h"

namespace tarnview {
namespace {

std::string DigitsOf(const std::string& text) {
  std::string digits;
  for (char c : text)
    if (c >= '0' && c <= '9') digits += c;
  return digits;
}

}  // namespace

PresetGraphs::PresetGraphs(const Controls& controls, clsSampleGraphPresets& presets,
                           const clsLogFamilies& families, MainWindow& mainWindow)
    : controls_(controls), list_(controls.lvwPresets, presets, families), mainWindow_(mainWindow) {
  controls_.lvwPresets.ItemClick = [this](int row) { lvwPresets_ItemClick(row); };
  controls_.lvwPresets.DblClick = [this](int row) {
    if (list_.Of(row)) mainWindow_.DrawGraphChecked();
  };
}

void PresetGraphs::lvwPresets_ItemClick(int row) {
  const clsSampleGraphPreset* preset = list_.Of(row);
  if (!preset) return;
  const bool checkedOnly = controls_.chkShowCheckedOnly.Value;
  controls_.chkShowCheckedOnly.Value = false;  // so that every item has its row
  ListView& list = controls_.lvwSampleDetails;
  for (int n = 1; n <= list.Count(); ++n) {
    const auto& items = preset->colDataItems;
    list.SetChecked(
        n, std::find(items.begin(), items.end(), StringToLong(list.At(n).tag)) != items.end());
  }
  controls_.chkFixY.Value = preset->blnFixGraphMax;
  controls_.txtYMax.Text = std::to_string(preset->lngGraphMax);
  controls_.chkShowCheckedOnly.Value = checkedOnly;
}

void PresetGraphs::UpdatePreset() {
  if (clsSampleGraphPreset* preset = list_.Selected()) TakeWhatIsTicked(*preset);
}

void PresetGraphs::AddPreset(const std::string& name, int fileType) {
  clsSampleGraphPreset preset = list_.NewPreset(name, fileType);
  TakeWhatIsTicked(preset);
  list_.Add(std::move(preset));
}

void PresetGraphs::TakeWhatIsTicked(clsSampleGraphPreset& preset) const {
  preset.colDataItems = ItemsOfRows(controls_.lvwSampleDetails, true);
  preset.blnFixGraphMax = controls_.chkFixY.Value;
  preset.lngGraphMax = StringToLong(DigitsOf(controls_.txtYMax.Text()));
}

}  // namespace tarnview
