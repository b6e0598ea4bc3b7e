#include "qt/pictures/AllWindows.h"

namespace tarnview {
namespace {

/// As long as an installed definition's: the widest that the window must hold.
DefinitionDetails Definition(bool filled) {
  if (!filled) return {};
  return {"Hydra Nemesis", "1.4", "Built-in definition for logs of the Hydra Nemesis software, in metric units"};
}

}  // namespace

struct AllWindows::NoMainWindow : frmDataTags::MainWindow {
  bool CurrentRange(clsLogTag&) const override { return false; }
  void ShowRange(const clsLogTag&) override {}
  void ShowHelp(const char*) override {}
};

AllWindows::AllWindows(Host& host, const std::string& log)
    : messages_(host, [](int) { return std::string(); }),
      programs_(processes_, host),
      help_(files_, programs_, messages_, ""),
      program_(host, files_, clock_, processes_, ProgramFolders{}),
      mainWindow_(std::make_unique<NoMainWindow>()),
      splash_(host),
      about_(host, Definition(!log.empty()), [] {}),
      message_(host, [](int) {}),
      tags_(host, tagList_, *mainWindow_) {
  if (!log.empty()) Fill();
  oneSample_.Clear(program_.Global().catalogue.gcolFixedDataItems, 1);
  oneSample_.glngDataLog.AddRow();
  program_.Start(log, false);
  MakeGraphWindows();
  for (Form* form : Forms())
    if (!form->IsShown()) form->Show();
}

AllWindows::~AllWindows() {
  for (Form* form : Forms()) form->Unload();
}

void AllWindows::Fill() {
  message_.MessageText(
      "The log holds columns that the definition does not know.\r\n\r\nTheir names are in Universal Load Unknown "
      "Columns.txt.");
  for (const auto& [from, to] : {std::pair{120, 480}, std::pair{1912, 2203}, std::pair{30217, 31044}})
    tagList_.Add(from, to);
}

void AllWindows::MakeGraphWindows() {
  Globals& globals = program_.Global();
  Host& host = program_.MainWindow().host;
  const clsLogFamilies& families = globals.kinds.gcolLogFamilies;
  clsSampleGraphPresets presets;
  for (const char* name : {"Overview", "A/F Investigation", "Knock Investigation", "Power Graphing"}) {
    clsSampleGraphPreset& preset = presets.AddDirect(clsSampleGraphPresets::BlankPreset());
    preset.strName = name;
    preset.lngLogFamily = 1;
    preset.colDataItems = globals.settings.gcolCheckedDataItems;
  }
  if (globals.log.gblnSamplesLoaded)
    goto_ = std::make_unique<frmGoto>(host, globals.log, help_, program_.MainWindow().Plot().lngHighlightSample, true);
  else
    goto_ = std::make_unique<frmGoto>(host, oneSample_, help_, 1, false);
  newPreset_ = std::make_unique<frmNewPresetName>(host, messages_, clsSampleGraphPresets::NEW_NAME);
  presetList_ = std::make_unique<MaintainedCollection<clsSampleGraphPresets>>(presets, [](auto&) { return false; });
  maint_ = std::make_unique<frmMaint>(
      host, *presetList_, frmMaint::Texts{"Preset Sample Graph Editor", "&Preset Graphs", "PresetSampleGraphEditor"},
      families, 1, messages_, help_);
  presetDetails_ = std::make_unique<frmPresetSampleDetails>(
      host,
      frmPresetSampleDetails::Surroundings{families, globals.catalogue, globals.settings.gstrDefaultWorkingDirectory,
                                           files_, clock_, errors_, messages_, help_},
      presets.Item(1));
  definitionFiles_ =
      std::make_unique<DefinitionFiles>(files_, messages_, errors_, globals.catalogue.gcolFixedDataItems);
  firstRun_ = std::make_unique<frmFindINIFile>(host, globals.kinds.gcolFileTypes, std::vector<DefinitionChoice>{},
                                               *definitionFiles_, messages_);
}

std::vector<Form*> AllWindows::Forms() {
  return {
      &program_.MainWindow(), &splash_,       &about_, &message_, &tags_, goto_.get(), newPreset_.get(), maint_.get(),
      presetDetails_.get(),   firstRun_.get()};
}

}  // namespace tarnview
