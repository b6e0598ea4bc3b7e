#include "app/DefinitionInUse.h"

#include <utility>

#include "model/ItemDisplaySettings.h"
#include "model/OwnItemDisplay.h"
#include "universal/DefinitionFiles.h"
#include "universal/GenericDescriptions.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {

void DefinitionInUse::LoadDataLogDefinitionLocal() {
  DefinitionFiles files(services_.files, services_.messages.Teller(), services_.errors,
                        globals_.catalogue.gcolFixedDataItems);
  Take(files.LoadDataLogDefinitionWrapper(globals_.settings.gstrGenericDefinitionFile));
}

void DefinitionInUse::Take(clsDataLog definition) {
  globals_.definitionOfSettings.reset();  // the one that it kept is no longer the settings'
  globals_.gclsDataLogDefinition = std::move(definition);
  SetGenericDataLogDescriptions(globals_.kinds, globals_.gclsDataLogDefinition);
  Catalogue& catalogue = globals_.catalogue;
  catalogue.gcolUniversalDataItems =
      GenerateLogDataItemsGeneric(globals_.gclsDataLogDefinition, catalogue.gcolFixedDataItems);
  ShowOwnItemsAs(globals_.settings.beyond.ownItemDisplay, catalogue.gcolUniversalDataItems);
}

const clsLogDataItems& DefinitionInUse::ItemsOf(int fileType) const {
  const Catalogue& catalogue = globals_.catalogue;
  if (fileType == kUniversalLog) return catalogue.gcolUniversalDataItems;
  return catalogue.gcolFixedDataItems;
}

const clsDataLog& DefinitionInUse::SettingsDefinition() const {
  if (IsOfLog()) return globals_.definitionOfSettings->definition;
  return globals_.gclsDataLogDefinition;
}

/// How items are drawn stays the user's own.
void DefinitionInUse::UseDefinitionOfLog(clsDataLog definition) {
  clsLogDataItems& items = globals_.catalogue.gcolUniversalDataItems;
  globals_.log.Clear(globals_.catalogue.gcolFixedDataItems, 0);
  if (!IsOfLog())
    globals_.definitionOfSettings =
        Globals::KeptDefinition{std::move(globals_.gclsDataLogDefinition), std::move(items)};
  items = GenerateLogDataItemsGeneric(definition, globals_.catalogue.gcolFixedDataItems);
  CopyCatalogueDisplay(globals_.definitionOfSettings->items, items);
  ShowOwnItemsAs(globals_.settings.beyond.ownItemDisplay, items);
  globals_.gclsDataLogDefinition = std::move(definition);
}

void DefinitionInUse::UseDefinitionOfSettings() {
  if (!IsOfLog()) return;
  globals_.log.Clear(globals_.catalogue.gcolFixedDataItems, 0);
  globals_.gclsDataLogDefinition = std::move(globals_.definitionOfSettings->definition);
  globals_.catalogue.gcolUniversalDataItems = std::move(globals_.definitionOfSettings->items);
  globals_.definitionOfSettings.reset();
}

}  // namespace tarnview
