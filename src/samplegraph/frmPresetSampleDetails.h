#pragma once

#include <string>

#include "base/Clock.h"
#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "base/Help.h"
#include "base/Messages.h"
#include "model/Catalogue.h"
#include "model/clsLogFamilies.h"
#include "presets/clsSampleGraphPreset.h"
#include "samplegraph/SampleListView.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Edits one preset sample graph, and exchanges it with .sam files.
class frmPresetSampleDetails : public Form {
 public:
  /// What it asks of the program.
  struct Surroundings {
    const clsLogFamilies& families;
    const Catalogue& catalogue;
    const std::string& workingDirectory;  ///< where the first .sam file is looked for
    FileSystem& files;
    Clock& clock;
    ErrorLog& errors;
    Messages& messages;
    Help& help;
  };
  frmPresetSampleDetails(Host& itsHost, const Surroundings& surroundings, const clsSampleGraphPreset& ColItem);

  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  Label lblLogFamily{*this, "lblLogFamily", "Log &Family"};
  ComboBox cboLogFamily{*this, "cboLogFamily"};
  Label lblDataItems{*this, "lblDataItems", "&Data Items"};
  ListView lvwDataItems{*this, "lvwDataItems", {{"No.", true}, {"Item"}, {"Description"}}, true};
  CheckBox chkFixY{*this, "chkFixY", "Fi&x Graph Max"};
  TextBox txtYMax{*this, "txtYMax"};
  CommandButton cmdSave{*this, "cmdSave", "&Save..."};
  CommandButton cmdLoad{*this, "cmdLoad", "&Load..."};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// "OK" or "Cancel": the button that closed the window.
  const std::string& CloseMethod() const { return closeMethod_; }
  /// The preset as the user left it.
  const clsSampleGraphPreset& ColItem() const { return preset_; }

 protected:
  bool Form_KeyUp(const KeyPress& key) override;

 private:
  void BindControls();
  void ShowPreset(const clsSampleGraphPreset& preset);
  void ListItems();
  void ApplyFixedGraphMax();
  bool ValidateControls();
  clsSampleGraphPreset CreatePresetSampleGraphObject() const;
  int Family() const { return cboLogFamily.ListIndex() + 1; }
  std::string ProposedFile() const;
  void cmdSave_Click();
  void cmdLoad_Click();
  void LoadPreset(const std::string& path);
  void TickItems(const clsSampleGraphPreset& preset);

  Surroundings around_;
  CheckedKeys checked_;
  clsSampleGraphPreset preset_;
  std::string closeMethod_ = "Cancel";
  std::string lastFile_;  ///< the .sam file used last since the window opened
};

}  // namespace tarnview
