#pragma once

#include <memory>

#include "model/Catalogue.h"
#include "support/DeskTest.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {

/// What a zone editor stands on, and the editor.
class EditorWorld : public DeskTest {
 protected:
  frmZoneData& Open(ZoneEditorParameters parameters, DriveGrids::Drive* drive = nullptr) {
    frmZoneData::Surroundings around{
        settings, benchmarks, tables, catalogue.gcolFixedDataItems.Item(39), errors, messages};
    around.drive = drive;
    window = std::make_unique<frmZoneData>(host, around, std::move(parameters));
    window->Show();
    // Each step renames the entries for undo and redo, and a mark's tip says what the mark does.
    for (const char* part : {"cboSteps", "mnuEdit", " tool_tip"}) story.PassOver(part);
    return *window;
  }

  Settings settings;
  clsBenchmarks benchmarks;
  ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  Catalogue catalogue = BuildDataItemCatalogue();
  std::unique_ptr<frmZoneData> window;
};

}  // namespace tarnview
