#include "samplegraph/frmPresetSampleDetails.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "presets/FamilyItems.h"
#include "presets/SampleGraphPresetFile.h"
#include "samplegraph/GraphScale.h"

namespace tarnview {
namespace {

constexpr const char* kDefaultGraphMax = "250";

}  // namespace

frmPresetSampleDetails::frmPresetSampleDetails(Host& itsHost,
                                               const PresetSurroundings& surroundings,
                                               const clsSampleGraphPreset& ColItem)
    : Form(itsHost, "frmPresetSampleDetails", "Preset Sample Graph Details"),
      around_(surroundings),
      preset_(ColItem) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "PresetSampleGraphDetails";
  BindControls();
  ShowPreset(preset_);
}

void frmPresetSampleDetails::BindControls() {
  txtYMax.Enabled = false;
  cboLogFamily.Click = [this] { ListItems(); };
  chkFixY.Click = [this] {
    txtYMax.Enabled = chkFixY.Value();
    if (chkFixY.Value && StringToLong(txtYMax.Text()) == 0) txtYMax.Text = kDefaultGraphMax;
  };
  txtYMax.LostFocus = [this] { ApplyFixedGraphMax(); };
  lvwDataItems.DblClick = [this](int row) {
    lvwDataItems.SetChecked(row, !lvwDataItems.At(row).checked);
  };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdLoad.Click = [this] { exchange_.Load([this](std::string_view bytes) { LoadPreset(bytes); }); };
  cmdOK.Click = [this] {
    if (!ValidateControls()) return;
    preset_ = CreatePresetSampleGraphObject();
    Accept();
  };
  cmdCancel.Click = [this] { Unload(); };
}

void frmPresetSampleDetails::ShowPreset(const clsSampleGraphPreset& preset) {
  exchange_.ShowHead(preset.strName, preset.lngLogFamily);
  ListItems();
  TickItems(preset);
  txtYMax.Text = std::to_string(preset.lngGraphMax);
  chkFixY.Value = preset.blnFixGraphMax;
}

void frmPresetSampleDetails::ListItems() {
  SampleListForm form;
  form.blnShowLongName = true;
  form.intMode = kPlottableItems;
  form.blnSeqColumn = true;
  form.lngLogFamily = Family();
  SetUpSampleListView(lvwDataItems, checked_, form, around_.families,
                      ItemsOfFamily(around_.catalogue, Family()));
}

void frmPresetSampleDetails::TickItems(const clsSampleGraphPreset& preset) {
  checked_.clear();
  for (int row = 1; row <= lvwDataItems.Count(); ++row) {
    const int item = StringToLong(lvwDataItems.At(row).tag);
    const auto& items = preset.colDataItems;
    lvwDataItems.SetChecked(row, std::find(items.begin(), items.end(), item) != items.end());
  }
}

void frmPresetSampleDetails::ApplyFixedGraphMax() {
  txtYMax.Text = std::to_string(ScaleForFixedMax(StringToLong(txtYMax.Text())).max);
}

bool frmPresetSampleDetails::ValidateControls() {
  ApplyFixedGraphMax();
  return exchange_.HasName();
}

clsSampleGraphPreset frmPresetSampleDetails::CreatePresetSampleGraphObject() const {
  clsSampleGraphPreset preset;
  preset.strName = exchange_.Name();
  preset.lngLogFamily = Family();
  preset.blnFixGraphMax = chkFixY.Value;
  preset.lngGraphMax = StringToLong(txtYMax.Text());
  for (const auto& row : lvwDataItems.Rows())
    if (row.checked) preset.colDataItems.push_back(StringToLong(row.tag));
  return preset;
}

void frmPresetSampleDetails::cmdSave_Click() {
  if (!ValidateControls()) return;
  exchange_.Save([this](bool blnWriteFamily, const Moment& now) {
    return SampleGraphPresetFileText(CreatePresetSampleGraphObject(), blnWriteFamily, now);
  });
}

void frmPresetSampleDetails::LoadPreset(std::string_view bytes) {
  auto preset = ReadSampleGraphPresetFile(bytes);
  if (!preset || !exchange_.AgreesToFamily(preset->lngLogFamily)) return;
  preset->lngLogFamily = Family();
  std::vector<std::string> unknown;
  for (const int item : preset->colDataItems)
    if (lvwDataItems.RowOfTag(std::to_string(item)) == 0) unknown.push_back(std::to_string(item));
  exchange_.TellNotRelevant(WithLead("Data Item(s): ", Join(unknown, ", ")));
  ShowPreset(*preset);
}

}  // namespace tarnview
