#pragma once

#include <string>

#include "presets/ScatterGraphPresetFile.h"
#include "presets/clsScatterGraphPreset.h"
#include "samplegraph/PresetExchange.h"
#include "scatter/DataItemCombo.h"
#include "scatter/PointStyle.h"
#include "scatter/ScatterFilterList.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/Picture.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Edits one preset scatter graph, and exchanges it with .sca files.
class frmPresetScatterDetails : public Form {
 public:
  frmPresetScatterDetails(Host& itsHost, const PresetSurroundings& surroundings,
                          const clsScatterGraphPreset& ColItem);

  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  Label lblLogFamily{*this, "lblLogFamily", "Log &Family"};
  ComboBox cboLogFamily{*this, "cboLogFamily"};
  Label lblXAxis{*this, "lblXAxis", "&X Axis"};
  ComboBox imgcboXAxis{*this, "imgcboXAxis"};
  Label lblYAxis{*this, "lblYAxis", "&Y Axis"};
  ComboBox imgcboYAxis{*this, "imgcboYAxis"};
  Label lblPointShape{*this, "lblPointShape", "Point S&hape"};
  ComboBox cboPointShape{*this, "cboPointShape"};
  Label lblPointSize{*this, "lblPointSize", "Point Si&ze"};
  ComboBox cboPointSize{*this, "cboPointSize", true};
  Label lblColour{*this, "lblColour", "Point Colour"};
  Picture picColour{*this, "picColour", 600, 300};
  CommandButton cmdColourSelector{*this, "cmdColourSelector", "&Colour..."};
  CheckBox chkFileOpenDraw{*this, "chkFileOpenDraw", "Draw When a Log is &Opened"};
  Label lblFilters{*this, "lblFilters", "Filte&rs"};
  ListView lvwFilters{*this, "lvwFilters", FilterColumns()};
  CommandButton cmdFilterNew{*this, "cmdFilterNew", "N&ew..."};
  CommandButton cmdFilterMod{*this, "cmdFilterMod", "&Modify..."};
  CommandButton cmdFilterDelete{*this, "cmdFilterDelete", "&Delete"};
  CommandButton cmdSave{*this, "cmdSave", "&Save..."};
  CommandButton cmdLoad{*this, "cmdLoad", "&Load..."};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// The preset as the user left it.
  const clsScatterGraphPreset& ColItem() const { return preset_; }

 protected:
  void Form_Load() override;

 private:
  int Family() const { return exchange_.Family(); }
  void ListItems();
  void ShowPreset(const clsScatterGraphPreset& preset);
  clsScatterGraphPreset CreatePresetScatterGraphObject() const;
  void cmdSave_Click();
  void LoadPreset(std::string_view bytes);
  void TakeWhatFits(clsScatterGraphPreset& preset);

  PresetSurroundings around_;
  PresetExchange exchange_{
      *this, {txtName, cboLogFamily}, around_, {".sca", kScatterGraphPresetFilter}};
  DataItemCombo xAxis_{imgcboXAxis};
  DataItemCombo yAxis_{imgcboYAxis};
  PointStyleControls points_{{cboPointShape, cboPointSize, picColour, cmdColourSelector}};
  ScatterFilterList filters_{{lvwFilters, cmdFilterNew, cmdFilterMod, cmdFilterDelete},
                             {around_.catalogue, around_.messages}};
  clsScatterGraphPreset preset_;
};

}  // namespace tarnview
