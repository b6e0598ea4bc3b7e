#pragma once

#include "model/clsLogFamilies.h"
#include "presets/clsSampleGraphPreset.h"
#include "samplegraph/PresetList.h"
#include "ui/CheckBox.h"
#include "ui/ListView.h"
#include "ui/TextBox.h"

namespace tarnview {

/// The list of presets beside the Sample Graph: a click ticks a preset's items, a double click
/// draws it.
class PresetGraphs {
 public:
  struct Controls {
    ListView& lvwPresets;
    ListView& lvwSampleDetails;
    CheckBox& chkShowCheckedOnly;
    CheckBox& chkFixY;
    TextBox& txtYMax;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    virtual void DrawGraphChecked() = 0;
  };
  PresetGraphs(const Controls& controls, clsSampleGraphPresets& presets,
               const clsLogFamilies& families, MainWindow& mainWindow);

  /// Lists the presets of a file type's family, or "[None]". `blnKeepPosition` selects the last
  /// row.
  void PopulatePresetGraphs(bool blnKeepPosition, int fileType) {
    list_.Populate(blnKeepPosition, fileType);
  }
  bool HasRows() const { return list_.HasRows(); }
  /// Applies the first preset of that name in the list; false if there is none.
  bool ApplyNamed(const std::string& name) { return list_.ApplyNamed(name); }

  /// Gives the selected preset what is ticked now; nothing with none selected.
  void UpdatePreset();
  /// Adds what is ticked now as a new preset of the file type's family.
  void AddPreset(const std::string& name, int fileType);

 private:
  void lvwPresets_ItemClick(int row);
  void TakeWhatIsTicked(clsSampleGraphPreset& preset) const;

  Controls controls_;
  PresetList<clsSampleGraphPresets> list_;
  MainWindow& mainWindow_;
};

}  // namespace tarnview
