#include "app/Customising.h"

#include "app/DefinitionInUse.h"
#include "customise/OfferDefinitionPresets.h"
#include "desk/Placement.h"
#include "model/ItemDisplaySettings.h"
#include "model/OwnItemDisplay.h"
#include "samplegraph/frmPresetSampleDetails.h"
#include "scatter/frmPresetScatterDetails.h"

namespace tarnview {

OptionsDraft DraftOf(const Globals& globals) {
  const Catalogue& catalogue = globals.catalogue;
  return {globals.settings,
          globals.gclsDataLogDefinition,
          {catalogue.gcolFixedDataItems.Duplicate(), catalogue.gcolDefaultDataItems.Duplicate(),
           catalogue.gcolUniversalDataItems.Duplicate()},
          globals.kinds};
}

std::vector<Command> Customising::Rows() {
  const auto keep = [this](KeptList list) { return [this, list] { MaintainList(list); }; };
  return {
      // clang-format off
      {&controls_.mnuCustomiseOptions, [this] { mnuCustomiseOptions_Click(); }, {}},
      {&controls_.mnuCustomisePresetSample, keep(KeptList::SamplePresets), {}},
      {&controls_.mnuCustomisePresetScatter, keep(KeptList::ScatterPresets), {}},
      {&controls_.mnuCustomiseCarDefs, keep(KeptList::CarDefs), {}},
      {&controls_.mnuCustomiseBenchmarks, keep(KeptList::Benchmarks), {}},
      // clang-format on
  };
}

void Customising::mnuCustomiseOptions_Click() {
  frmOptions window(services_.host, {services_.files, services_.errors, services_.messages},
                    DraftOf(globals_), globals_.UsualFileType());
  window.ShowModal();
  if (window.Accepted()) TakeOptions(window);
}

/// All values, then the definition, then what is drawn with them, in the order in which users are
/// asked and told.
void Customising::TakeOptions(frmOptions& window) {
  OptionsDraft& draft = window.Draft();
  const std::string oldPath = globals_.settings.gstrGenericDefinitionFile;
  globals_.settings = draft.settings;
  std::string& ownItems = globals_.settings.beyond.ownItemDisplay;
  if (!window.DefinitionChanged())
    ownItems = KeepOwnItemDisplay(ownItems, globals_.catalogue.gcolUniversalDataItems,
                                  draft.catalogue.gcolUniversalDataItems);
  const bool changed = window.DefinitionChanged();
  const bool taken = changed && MayChangeDefinition();
  if (changed && !taken) globals_.settings.gstrGenericDefinitionFile = oldPath;
  if (taken) TakeDefinition(draft);
  CopyItemDisplay(draft.catalogue.gcolFixedDataItems, globals_.catalogue.gcolFixedDataItems);
  if (taken || !changed) TakeUniversalDisplay(draft.catalogue.gcolUniversalDataItems);
  mainWindow_.OptionsChanged();
  mainWindow_.WriteINIFile();
}

/// Behind a log that has brought its own definition stands that of the settings, which draws the
/// next log.
void Customising::TakeUniversalDisplay(const clsLogDataItems& items) {
  CopyItemDisplay(items, globals_.catalogue.gcolUniversalDataItems);
  if (globals_.definitionOfSettings)
    CopyCatalogueDisplay(items, globals_.definitionOfSettings->items);
}

/// A log that was read by the old definition is closed first; No keeps both.
bool Customising::MayChangeDefinition() {
  const OpenLog& log = globals_.log;
  if (log.gintCurrentFileType != kUniversalLog || !log.gblnSamplesLoaded) return true;
  if (!services_.messages.AskQuestion(Question::LoadDefinitionAndCloseLog)) return false;
  mainWindow_.CloseDataLogFile();
  return true;
}

void Customising::TakeDefinition(const OptionsDraft& draft) {
  DefinitionInUse(globals_, services_).Take(draft.definition);
  globals_.missingDefinitionFile.clear();
  OfferDefinitionPresets(draft.definition, globals_.gcolSampleGraphPresets,
                         globals_.gcolScatterGraphPresets, services_.messages);
}

/// Shows the details window of a preset; true on OK, with what the user made of it.
template <class Window, class Preset>
bool Customising::EditPreset(Preset& preset) {
  Window window(services_.host,
                PresetSurroundings{globals_.kinds.gcolLogFamilies, globals_.catalogue,
                                   globals_.settings.gstrDefaultWorkingDirectory, services_.files,
                                   services_.clock, services_.errors, services_.messages},
                preset);
  window.ShowModal();
  if (!window.Accepted()) return false;
  preset = window.ColItem();
  return true;
}

template <class Collection>
void Customising::Maintain(const frmMaint::Texts& texts, Collection& kept,
                           std::function<bool(typename Collection::Record&)> edit) {
  MaintainedCollection<Collection> copy(kept, std::move(edit));
  const clsLogFamilies& families = globals_.kinds.gcolLogFamilies;
  frmMaint window(services_.host, copy, texts, families,
                  families.FirstLogFamily(globals_.settings.gintDefaultFileType),
                  services_.messages);
  ApplyPlacement(globals_.settings.windows.maintenance, window);
  window.ShowModal();
  globals_.settings.windows.maintenance = PlacementOf(window);
  if (!window.Accepted()) return;
  kept = copy.Col;
  mainWindow_.ListsChanged();
}

void Customising::MaintainList(KeptList list) {
  const struct {
    KeptList list;
    frmMaint::Texts texts;
    std::function<void(const frmMaint::Texts&)> maintain;
  } kLists[] = {
      {KeptList::SamplePresets,
       {"Preset Sample Graph Editor", "&Preset Graphs", "PresetSampleGraphEditor"},
       [this](const frmMaint::Texts& texts) {
         Maintain(texts, globals_.gcolSampleGraphPresets,
                  [this](auto& preset) { return EditPreset<frmPresetSampleDetails>(preset); });
       }},
      {KeptList::ScatterPresets,
       {"Preset Scatter Graph Editor", "&Preset Graphs", "PresetScatterGraphEditor"},
       [this](const frmMaint::Texts& texts) {
         Maintain(texts, globals_.gcolScatterGraphPresets,
                  [this](auto& preset) { return EditPreset<frmPresetScatterDetails>(preset); });
       }},
      {KeptList::Benchmarks,
       {"Zone Data Benchmark Editor", "&Benchmarks", "ZoneDataBenchmarkEditor"},
       [this](const frmMaint::Texts& texts) {
         Maintain(texts, globals_.gcolBenchmarks,
                  [this](auto& benchmark) { return zones_.EditBenchmark(benchmark); });
       }},
      // The doubled word is kept on purpose.
      {KeptList::CarDefs,
       {"Car Definition Editor Editor", "&Car Definitions", "CarDefinitionEditor"},
       [this](const frmMaint::Texts& texts) {
         Maintain(texts, globals_.gcolCarDefs, [this](auto& car) { return power_.EditCar(car); });
         power_.CarsChanged();
       }},
  };
  for (const auto& row : kLists)
    if (row.list == list) row.maintain(row.texts);
}

}  // namespace tarnview
