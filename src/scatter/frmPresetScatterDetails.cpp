#include "scatter/frmPresetScatterDetails.h"

#include "base/Text.h"
#include "presets/ScatterFilters.h"

namespace tarnview {

frmPresetScatterDetails::frmPresetScatterDetails(Host& itsHost,
                                                 const PresetSurroundings& surroundings,
                                                 const clsScatterGraphPreset& ColItem)
    : Form(itsHost, "frmPresetScatterDetails", "Preset Scatter Graph Details"),
      around_(surroundings),
      preset_(ColItem) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "PresetScatterGraphDetails";
  cboLogFamily.Click = [this] { ListItems(); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdLoad.Click = [this] { exchange_.Load([this](std::string_view bytes) { LoadPreset(bytes); }); };
  cmdOK.Click = [this] {
    if (!exchange_.HasName()) return;
    preset_ = CreatePresetScatterGraphObject();
    Accept();
  };
  cmdCancel.Click = [this] { Unload(); };
}

void frmPresetScatterDetails::Form_Load() { ShowPreset(preset_); }

void frmPresetScatterDetails::ListItems() {
  const DataItemList items = AxisItems(around_.catalogue, Family());
  xAxis_.SetItems(items);
  yAxis_.SetItems(items);
  filters_.SetLogFamily(Family());
}

void frmPresetScatterDetails::ShowPreset(const clsScatterGraphPreset& preset) {
  exchange_.ShowHead(preset.strName, preset.lngLogFamily);
  // A new preset has no items yet: it starts as a new scatter graph does.
  const bool isNew = preset.lngXAxisDataItem == 0;
  xAxis_.Choose(isNew ? ItemOf(kRPM) : preset.lngXAxisDataItem, around_.messages, isNew);
  yAxis_.Choose(preset.lngYAxisDataItem, around_.messages, isNew);
  points_.Show({preset.lngPointShape, preset.lngPointSize, preset.lngPointColour});
  chkFileOpenDraw.Value = preset.FileOpenDraw;
  filters_.SetFilters(preset.objFilters);
}

clsScatterGraphPreset frmPresetScatterDetails::CreatePresetScatterGraphObject() const {
  const PointStyle style = points_.Style();
  clsScatterGraphPreset preset;
  preset.strName = exchange_.Name();
  preset.lngLogFamily = Family();
  preset.lngXAxisDataItem = xAxis_.Item();
  preset.lngYAxisDataItem = yAxis_.Item();
  preset.lngPointShape = style.lngPointShape;
  preset.lngPointSize = style.lngPointSize;
  preset.lngPointColour = style.lngPointColour;
  preset.FileOpenDraw = chkFileOpenDraw.Value;
  preset.objFilters = filters_.objFilters();
  return preset;
}

void frmPresetScatterDetails::cmdSave_Click() {
  if (!exchange_.HasName()) return;
  exchange_.Save([this](bool blnWriteFamily, const Moment& now) {
    return ScatterGraphPresetFileText(CreatePresetScatterGraphObject(), blnWriteFamily, now);
  });
}

void frmPresetScatterDetails::LoadPreset(std::string_view bytes) {
  auto preset = ReadScatterGraphPresetFile(bytes, ItemsOfFamily(around_.catalogue, Family()));
  if (!preset || !exchange_.AgreesToFamily(preset->lngLogFamily)) return;
  preset->lngLogFamily = Family();
  preset->FileOpenDraw = chkFileOpenDraw.Value;
  TakeWhatFits(*preset);
  ShowPreset(*preset);
}

/// Tells what the family does not offer; there the first item stands in, and filters go.
void frmPresetScatterDetails::TakeWhatFits(clsScatterGraphPreset& preset) {
  std::vector<std::string> missing;
  const auto takeAxis = [&](DataItemCombo& axis, std::int32_t& item, const char* name) {
    if (!axis.SearchImageComboForDataItem(item)) {
      missing.push_back(name + std::to_string(item));
      axis.DataItemImageComboDefault();
    }
    item = axis.Item();
  };
  takeAxis(xAxis_, preset.lngXAxisDataItem, "X Axis: ");
  takeAxis(yAxis_, preset.lngYAxisDataItem, "Y Axis: ");
  const auto removed = RemoveNonDisplayFilters(preset.objFilters, around_.catalogue, Family());
  std::vector<std::string> filters;
  for (const int number : removed) filters.push_back(std::to_string(number));
  if (!filters.empty()) missing.push_back("Filters: " + Join(filters, ", "));
  exchange_.TellNotRelevant(Join(missing, ", "));
}

}  // namespace tarnview
