#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/Globals.h"
#include "app/MainWindowControls.h"
#include "desk/Commands.h"
#include "zoneeditor/frmBenchmarkDetails.h"
#include "zoneeditor/frmZoneData.h"
#include "zones/EditJournal.h"

namespace tarnview {

/// The windows of zone settings: the editor of the open file's, and what changes a benchmark.
class ZoneWindows {
 public:
  /// What they need of the main window.
  struct SampleGraphWindow {
    virtual ~SampleGraphWindow() = default;
    virtual bool LoadDataFile(const std::string& path, int fileType) = 0;
    /// The zones of the open file were changed.
    virtual void ZonesEdited() = 0;
    /// The plot range as store indices.
    virtual DrivenRange PlottedIndices() const = 0;
    /// Store index of the sample that is selected in the graph; -1 for none.
    virtual int SelectedIndex() const = 0;
    virtual void SelectIndex(int index) = 0;
  };
  ZoneWindows(MainWindowControls& controls, Globals& globals, Services& services,
              SampleGraphWindow& mainWindow)
      : controls_(controls), globals_(globals), services_(services), mainWindow_(mainWindow) {}

  /// What sends a sheet to the ECU; `source` is the map that the editor was opened on.
  std::function<void(const ZoneSheet& sheet, const ZoneMap& source)> Upload;

  std::vector<Command> Rows();

  /// The editor on the open file.
  void EditZones() { EditZones(nullptr); }
  /// The zones of a MAP file or log, read in the window that shows how far it is; nothing, and the
  /// user was told why.
  std::optional<ZoneMap> LoadZones(const std::string& path);
  /// At a start: edits that were lost with the last run are offered, once.
  void OfferLostEdits();
  /// Nothing is edited that a file does not hold: the journal of edits goes.
  void ForgetEdits();
  /// The details of a benchmark; true on OK, with what the user made of it in it.
  bool EditBenchmark(clsBenchmark& benchmark);

 private:
  void EditZones(const EditJournal* resumed);
  std::string JournalPath() const;
  void WriteJournal(const EditJournal& journal);
  void Resume(const EditJournal& journal);
  frmZoneData::Surroundings AroundEditor();
  bool EditBenchmarkZones(ZoneMap& map, const std::string& name);

  MainWindowControls& controls_;
  Globals& globals_;
  Services& services_;
  SampleGraphWindow& mainWindow_;
  struct OpenDrive : DriveGrids::Drive {
    OpenDrive(const OpenLog& itsLog, SampleGraphWindow& itsWindow)
        : log(itsLog), window(itsWindow) {}
    const OpenLog& Log() const override { return log; }
    DrivenRange PlotRange() const override { return window.PlottedIndices(); }
    int CurrentSample() const override { return window.SelectedIndex(); }
    void SelectSample(int index) override { window.SelectIndex(index); }
    const OpenLog& log;
    SampleGraphWindow& window;
  };
  OpenDrive drive_{globals_.log, mainWindow_};
};

}  // namespace tarnview
