#include "customise/frmOptions.h"

#include "base/Numbers.h"
#include "desk/ColourScheme.h"
#include "model/SettingLimits.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/DefinitionFiles.h"
#include "universal/GenericDescriptions.h"
#include "universal/UniversalDataItems.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

enum Page { GeneralPage = 1, FMLinkPage, FilesPage, DataItemsPage };

/// By page.
constexpr const char* kHelpTopics[] = {"", "OptionsGeneralTab", "OptionsFMLinkECUTab",
                                       "OptionsFileLocationsTab", "OptionsDataItemDefinitionsTab"};

constexpr Page kPageOfPath[] = {FMLinkPage, FMLinkPage, FilesPage, FilesPage,
                                FMLinkPage, FMLinkPage, FilesPage};
static_assert(std::size(kPageOfPath) == kPathCount);

struct CaptionRow {
  const char* caption;
  const char* toolTip;
};
/// Those of the upload window.
constexpr CaptionRow kUploadDefaults[] = {
    {"Permanently Store", "Check to save the uploaded settings into the Link permanently"},
    {"Verify Upload", "Check to verify settings reached the ECU after upload"},
    {"Upload Changes Only", "Check to only upload the changed zones to the ECU"},
    {"Verbose Mode",
     "Check to show more information during the upload at the expense of upload time"},
};
constexpr const char* kAngles[] = {
    "Initial fuel graph rotation in degrees", "Initial fuel graph elevation in degrees",
    "Initial ignition graph rotation in degrees", "Initial ignition graph elevation in degrees"};

}  // namespace

frmOptions::frmOptions(Host& itsHost, const Surroundings& around, OptionsDraft draft, int fileType)
    : OptionsControls(itsHost),
      around_(around),
      draft_(std::move(draft)),
      firstFamily_(draft_.kinds.gcolLogFamilies.FirstLogFamily(fileType)),
      loadedDefinition_(draft_.settings.gstrGenericDefinitionFile) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  tabOptions.SetTabs({{"General", &fraGeneralTab},
                      {"FM Link ECU", &fraFMLinkTab},
                      {"File Locations", &fraFilesTab},
                      {"Data Item Definitions", &fraDataItemsTab}});
  tabOptions.Click = [this] { HelpTopic = kHelpTopics[tabOptions.Selected()]; };
  HelpTopic = kHelpTopics[GeneralPage];
  SetUpCaptions();
  find_.emplace(*this, fields_);  // the words of all captions and of the pages
  SetUpLists();
  BindFields();
}

void frmOptions::SetUpCaptions() {
  for (int option = 0; option < chkUploadDefs.Count(); ++option) {
    chkUploadDefs(option).Caption = std::string(kUploadDefaults[option].caption);
    chkUploadDefs(option).ToolTip = std::string(kUploadDefaults[option].toolTip);
  }
  for (int angle = 0; angle < txt3DSpec.Count(); ++angle)
    txt3DSpec(angle).ToolTip = std::string(kAngles[angle]);
  lbl3DSpec(0).Caption = std::string("Fuel");
  lbl3DSpec(1).Caption = std::string("Ignition");
  cmdLoadGeneric.ToolTip = std::string("Load the definition now, to see its data items");
  picDataSample.ToolTip = std::string("How the data item is drawn");
}

void frmOptions::SetUpLists() {
  cboGraphColourScheme.SetList({std::begin(kColourSchemes), std::end(kColourSchemes)});
  std::vector<std::string> chips;
  for (const ChipType& chip : ChipTypes()) chips.emplace_back(chip.text);
  cboChipType.SetList(std::move(chips));
  UpdateGenericDescriptions();
}

void frmOptions::BindFields() {
  for (const OptionFields::Field& field : fields_.All())
    if (auto* box = dynamic_cast<TextBox*>(field.control); box && box->name != "txtPath")
      box->LostFocus = [this, box] {
        if (!IsUnloading()) fields_.Settle(*box);
      };
  for (const int graph : {0, 1}) {
    updRotation(graph).UpClick = [this, graph] { StepAngle(2 * graph, 1); };
    updRotation(graph).DownClick = [this, graph] { StepAngle(2 * graph, -1); };
    updElevation(graph).UpClick = [this, graph] { StepAngle(2 * graph + 1, 1); };
    updElevation(graph).DownClick = [this, graph] { StepAngle(2 * graph + 1, -1); };
  }
  cmdLoadGeneric.Click = [this] {
    if (!ValidatePath(DefinitionFile)) txtPath(DefinitionFile).SetFocus();
  };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmOptions::StepAngle(int field, int by) {
  TextBox& angle = txt3DSpec(field);
  angle.Text = std::to_string(kAngleLimits.Hold(StringToLong(angle.Text()) + by));
}

void frmOptions::Form_Load() {
  fields_.Show(draft_.settings);
  for (const auto& path : txtPath) opened_.push_back(path->Text());
  items_.ShowFamily(std::max(firstFamily_, 1));
}

void frmOptions::UpdateGenericDescriptions() {
  SetGenericDataLogDescriptions(draft_.kinds, draft_.definition);
  const int fileType = cboFileType.ListIndex();
  std::vector<std::string> types;
  for (int id = 1; id <= draft_.kinds.gcolFileTypes.Count(); ++id)
    types.push_back(draft_.kinds.gcolFileTypes.Item(id).strDescription);
  cboFileType.SetList(std::move(types));
  if (fileType >= 0) cboFileType.SetListIndex(fileType);
  items_.UpdateFamilies();
}

bool frmOptions::ValidatePath(int index) {
  if (!paths_.ValidatePath(index)) return false;
  return index != DefinitionFile || LoadDataLogDefinitionLocal();
}

/// The definition of txtPath(6), or the built-in one for none, becomes the draft's. One with a
/// fault has been told of, and the old one stays.
bool frmOptions::LoadDataLogDefinitionLocal() {
  const std::string path = txtPath(DefinitionFile).Text();
  const clsLogDataItems& fixed = draft_.catalogue.gcolFixedDataItems;
  std::optional<clsDataLog> definition;
  if (path.empty())
    definition = DefaultDataLogDefinition();
  else
    definition = DefinitionFiles(around_.files, around_.messages.Teller(), around_.errors, fixed)
                     .LoadDataLogDefinition(path);
  if (!definition) return false;
  if (!path.empty()) around_.messages.ShowMessage(Message::DefinitionLoaded);
  draft_.definition = std::move(*definition);
  loadedDefinition_ = path;
  UpdateGenericDescriptions();
  draft_.catalogue.gcolUniversalDataItems = GenerateLogDataItemsGeneric(draft_.definition, fixed);
  items_.ShowFamily(kUniversalLogFamily);
  items_.CheckAll(true);
  return true;
}

/// In their order; the first that is refused has the focus. A path that the user left alone may be
/// as bad as it was, and a definition that was loaded already is not read again.
bool frmOptions::ValidatePaths() {
  for (int index = 0; index < kPathCount; ++index) {
    const std::string& text = txtPath(index).Text();
    const std::string& known = index == DefinitionFile ? loadedDefinition_ : Opened(index);
    if (text == known || ValidatePath(index)) continue;
    tabOptions.Select(kPageOfPath[index]);
    txtPath(index).SetFocus();
    return false;
  }
  return true;
}

void frmOptions::cmdOK_Click() {
  if (!ValidatePaths()) return;
  fields_.SettleAll();
  items_.RecordFactorChange();
  fields_.Take(draft_.settings);
  Accept();
}

}  // namespace tarnview
