#pragma once

#include <memory>
#include <string>

#include "base/Clock.h"
#include "model/Catalogue.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/Story.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {

/// What a zone editor stands on, and the editor.
struct EditorWorld {
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
  struct : RecordingHost {
    void PopupMenu(MenuItem& menu) override { popup = menu.FullName(); }
    std::string popup;
  } host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, "error.log"};
  Messages messages{host, [](int) { return std::string("FM Link MAP Files"); }};
  std::unique_ptr<frmZoneData> window;
  Story story{host};
};

}  // namespace tarnview
