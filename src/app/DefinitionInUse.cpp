// The main window's side of Universal logs: their definition, and what a load of one tells.

#include "app/frmDataLogViewer.h"
#include "universal/DefinitionFiles.h"
#include "universal/DefinitionPresets.h"
#include "universal/GenericDescriptions.h"
#include "universal/UniversalDataItems.h"
#include "universal/UnknownColumns.h"

namespace tarnview {
void frmDataLogViewer::LoadDataLogDefinitionLocal(bool addPresets) {
  globals_.definitionOfSettings.reset();
  const clsLogDataItems& catalogue = globals_.catalogue.gcolFixedDataItems;
  DefinitionFiles files(services_.files, services_.messages.Teller(), services_.errors, catalogue);
  clsDataLog& definition = globals_.gclsDataLogDefinition;
  definition = files.LoadDataLogDefinitionWrapper(globals_.settings.gstrGenericDefinitionFile);
  globals_.catalogue.gcolUniversalDataItems = GenerateLogDataItemsGeneric(definition, catalogue);
  SetGenericDataLogDescriptions(globals_.kinds, definition);
  if (addPresets)
    AddDefinitionPresets(definition, globals_.gcolSampleGraphPresets,
                         globals_.gcolScatterGraphPresets);
}

const clsLogDataItems& frmDataLogViewer::ItemsOf(int fileType) const {
  return fileType == kUniversalLog ? globals_.catalogue.gcolUniversalDataItems
                                   : globals_.catalogue.gcolFixedDataItems;
}

/// Writes the report of unknown columns, which the message about a log with no known one offers to
/// open, and logs the faults.
void frmDataLogViewer::TellUniversalOutcome(const std::string& path, LoadOutcome& outcome) {
  std::string report;
  if (!outcome.unknownColumns.empty() && !globals_.gstrProgramFolder.empty())
    report = WriteUnknownUniversalColumns(
        services_.files, services_.clock.Now(), globals_.gstrProgramFolder,
        globals_.settings.gstrGenericDefinitionFile, path, outcome.unknownColumns);
  if (outcome.loaded) return;
  for (LoadMessage& message : outcome.messages) {
    services_.errors.LogError("modUniversal", "LoadGenericDataLog",
                              RuntimeError(-static_cast<int>(message.id), message.extra), false);
    if (message.id != Message::NoColumnsRecognised || report.empty()) continue;
    message.extra += "\r\n\r\nThe columns are listed in the report:\r\n" + report;
    message.report = report;
  }
}

}  // namespace tarnview
