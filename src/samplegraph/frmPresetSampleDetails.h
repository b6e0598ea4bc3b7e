#pragma once

#include <string>

#include "presets/SampleGraphPresetFile.h"
#include "presets/clsSampleGraphPreset.h"
#include "samplegraph/PresetExchange.h"
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
  frmPresetSampleDetails(Host& itsHost, const PresetSurroundings& surroundings,
                         const clsSampleGraphPreset& ColItem);

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

  /// The preset as the user left it.
  const clsSampleGraphPreset& ColItem() const { return preset_; }

 private:
  void BindControls();
  void ShowPreset(const clsSampleGraphPreset& preset);
  void ListItems();
  void ApplyFixedGraphMax();
  bool ValidateControls();
  clsSampleGraphPreset CreatePresetSampleGraphObject() const;
  int Family() const { return exchange_.Family(); }
  void cmdSave_Click();
  void LoadPreset(std::string_view bytes);
  void TickItems(const clsSampleGraphPreset& preset);

  PresetSurroundings around_;
  PresetExchange exchange_{
      *this, {txtName, cboLogFamily}, around_, {".sam", kSampleGraphPresetFilter}};
  CheckedKeys checked_;
  clsSampleGraphPreset preset_;
};

}  // namespace tarnview
