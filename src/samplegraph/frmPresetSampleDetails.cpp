#include "samplegraph/frmPresetSampleDetails.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "presets/SampleGraphPresetFile.h"
#include "samplegraph/GraphScale.h"

namespace tarnview {
namespace {

constexpr int kWriteFailed = 19;
constexpr int kNameMissing = 41;
constexpr int kProblemLoading = 58;
constexpr int kItemsNotRelevant = 92;
constexpr int kOtherFamily = 8;    // question
constexpr int kIncludeFamily = 9;  // question
/// "File not found" of the run-time errors.
constexpr long kFileNotFound = 53;
constexpr const char* kDefaultGraphMax = "250";

bool IsLegalFileName(std::string_view name) {
  return !name.empty() && name.find_first_of("\"\\/:*?<>|") == name.npos && name != "." && name != "..";
}

}  // namespace

frmPresetSampleDetails::frmPresetSampleDetails(Host& itsHost, const Surroundings& surroundings,
                                               const clsSampleGraphPreset& ColItem)
    : Form(itsHost, "frmPresetSampleDetails", "Preset Sample Graph Details"), around_(surroundings), preset_(ColItem) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  std::vector<std::string> names;
  for (int id = 1; id <= around_.families.Count(); ++id) names.push_back(around_.families.Item(id).strDescription);
  cboLogFamily.SetList(std::move(names));
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
  lvwDataItems.DblClick = [this](int row) { lvwDataItems.SetChecked(row, !lvwDataItems.At(row).checked); };
  cmdSave.Click = [this] { cmdSave_Click(); };
  cmdLoad.Click = [this] { cmdLoad_Click(); };
  cmdOK.Click = [this] {
    if (!ValidateControls()) return;
    preset_ = CreatePresetSampleGraphObject();
    closeMethod_ = "OK";
    Unload();
  };
  cmdCancel.Click = [this] { Unload(); };
}

bool frmPresetSampleDetails::Form_KeyUp(const KeyPress& key) {
  if (key != KeyPress{"F1"}) return false;
  around_.help.ShowHelp("PresetSampleGraphDetails");
  return true;
}

void frmPresetSampleDetails::ShowPreset(const clsSampleGraphPreset& preset) {
  txtName.Text = preset.strName;
  cboLogFamily.SetListIndex(around_.families.ValidateLogFamily(preset.lngLogFamily) - 1);
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
  const clsLogDataItems& items =
      Family() == kUniversalLogFamily ? around_.catalogue.gcolUniversalDataItems : around_.catalogue.gcolFixedDataItems;
  SetUpSampleListView(lvwDataItems, checked_, form, around_.families, items);
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
  if (!Trim(txtName.Text()).empty()) return true;
  around_.messages.ShowMessage(kNameMissing);
  txtName.SetFocus();
  return false;
}

clsSampleGraphPreset frmPresetSampleDetails::CreatePresetSampleGraphObject() const {
  clsSampleGraphPreset preset;
  preset.strName = Trim(txtName.Text());
  preset.lngLogFamily = Family();
  preset.blnFixGraphMax = chkFixY.Value;
  preset.lngGraphMax = StringToLong(txtYMax.Text());
  for (const auto& row : lvwDataItems.Rows())
    if (row.checked) preset.colDataItems.push_back(StringToLong(row.tag));
  return preset;
}

std::string frmPresetSampleDetails::ProposedFile() const {
  if (!lastFile_.empty()) return lastFile_;
  const std::string name(Trim(txtName.Text()));
  if (!IsLegalFileName(name)) return "";
  const std::string& folder = around_.workingDirectory;
  return (folder.empty() ? "" : AddBackslash(folder)) + name + ".sam";
}

void frmPresetSampleDetails::cmdSave_Click() {
  if (!ValidateControls()) return;
  const bool withFamily = around_.messages.AskQuestion(kIncludeFamily);
  Dialog dialog;
  dialog.kind = DialogKind::Save;
  dialog.title = "Save As";
  dialog.filter = kSampleGraphPresetFilter;
  dialog.initialPath = lastFile_.empty() ? around_.workingDirectory : lastFile_;
  dialog.path = ProposedFile();
  if (!host.Choose(dialog)) return;
  lastFile_ = dialog.path;
  const std::string text = SampleGraphPresetFileText(CreatePresetSampleGraphObject(), withFamily, around_.clock.Now());
  if (!around_.files.Write(dialog.path, text)) around_.messages.ShowMessage(kWriteFailed);
}

void frmPresetSampleDetails::cmdLoad_Click() {
  Dialog dialog;
  dialog.title = "Load";
  dialog.filter = kSampleGraphPresetFilter;
  dialog.initialPath = lastFile_.empty() ? around_.workingDirectory : lastFile_;
  if (!host.Choose(dialog)) return;
  lastFile_ = dialog.path;
  if (!TrapEvent(around_.errors, name.c_str(), "cmdLoad_Click", [&] { LoadPreset(dialog.path); }))
    around_.messages.ShowMessage(kProblemLoading);
}

void frmPresetSampleDetails::LoadPreset(const std::string& path) {
  const auto bytes = around_.files.Read(path);
  if (!bytes) throw RuntimeError(kFileNotFound, "File not found: " + path);
  auto preset = ReadSampleGraphPresetFile(*bytes);
  if (!preset) return;
  const bool otherFamily = preset->lngLogFamily != 0 && preset->lngLogFamily != Family();
  if (otherFamily && !around_.messages.AskQuestion(kOtherFamily)) return;
  preset->lngLogFamily = Family();
  std::string unknown;
  for (const int item : preset->colDataItems)
    if (lvwDataItems.RowOfTag(std::to_string(item)) == 0)
      unknown += (unknown.empty() ? "" : ", ") + std::to_string(item);
  if (!unknown.empty()) around_.messages.ShowMessage(kItemsNotRelevant, false, "Data Item(s): " + unknown);
  ShowPreset(*preset);
}

}  // namespace tarnview
