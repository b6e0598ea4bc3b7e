#pragma once

#include <functional>
#include <vector>

#include "app/Globals.h"
#include "app/MainWindowControls.h"
#include "app/PowerWindows.h"
#include "app/ZoneWindows.h"
#include "customise/frmMaint.h"
#include "customise/frmOptions.h"
#include "desk/Commands.h"

namespace tarnview {

/// What the Options begin with: what is kept now.
OptionsDraft DraftOf(const Globals& globals);

/// What the user makes the program his own with: the Options, and the lists of presets, cars and
/// benchmarks.
class Customising {
 public:
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    virtual void CloseDataLogFile() = 0;
    virtual bool WriteINIFile() = 0;
    /// A list has changed: what shows it does so again.
    virtual void ListsChanged() = 0;
    /// Settings, data items or names have changed: every window that is open follows.
    virtual void OptionsChanged() = 0;
  };
  Customising(MainWindowControls& controls, Globals& globals, Services& services,
              PowerWindows& power, ZoneWindows& zones, MainWindow& mainWindow)
      : controls_(controls),
        globals_(globals),
        services_(services),
        power_(power),
        zones_(zones),
        mainWindow_(mainWindow) {}

  std::vector<Command> Rows();

 private:
  /// Which of the lists that are kept.
  enum class KeptList { SamplePresets, ScatterPresets, Benchmarks, CarDefs };

  void mnuCustomiseOptions_Click();
  void TakeOptions(frmOptions& window);
  bool MayChangeDefinition();
  void TakeDefinition(const OptionsDraft& draft);
  void TakeUniversalDisplay(const clsLogDataItems& items);

  void MaintainList(KeptList list);
  template <class Collection>
  void Maintain(const frmMaint::Texts& texts, Collection& kept,
                std::function<bool(typename Collection::Record&)> edit);
  template <class Window, class Preset>
  bool EditPreset(Preset& preset);

  MainWindowControls& controls_;
  Globals& globals_;
  Services& services_;
  PowerWindows& power_;
  ZoneWindows& zones_;
  MainWindow& mainWindow_;
};

}  // namespace tarnview
