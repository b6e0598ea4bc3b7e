#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/ControlArray.h"
#include "ui/Label.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"
#include "zoneeditor/SheetKeeper.h"

namespace tarnview {

/// The labelled fields and boxes of the editor: the chip, the general zones, the flags, auto
/// tuning, the notes.
class GeneralFields {
 public:
  GeneralFields(Form& form, SheetKeeper& keeper);

  Label lblEngineSize, lblMAPID, lblChipDate, lblAtmos;
  ComboBox cboEngineSize, cboMAPID;
  TextBox txtChipDate, txtAtmos;
  CheckBox chkMisc0, chkMisc1, chkMisc2, chkMisc3, chkMisc4, chkBoost0, chkBoost1, chkIdle0,
      chkIdle1, chkAutoTune1;
  Label lblAutoTune0, lblAutoTune1;
  ComboBox cboAutoTune0, cboAutoTune1;
  Label lblNotes;
  TextBox txtNotes;

  void Show(const ZoneSheet& sheet, bool readOnly);

 private:
  /// A general zone: label, field and arrows, named lblZone(n), txtZone(n), updZone(n).
  struct ZoneField {
    ZoneField(Form& form, int itsZone);
    int zone;
    Label label;
    TextBox text;
    UpDown arrows;
  };
  struct TickBox {
    Tick tick;
    CheckBox& box;
  };

  void BindZone(ZoneField& field);
  void BindChip();
  void BindTuning();
  void ShowZones(const ZoneSheet& sheet, bool readOnly);
  void ShowTuning(const ZoneSheet& sheet, bool readOnly);
  std::vector<TickBox> TickBoxes();

  void LeaveZone(int zone, const std::string& text);
  void StepZone(int zone, int by);
  void LeaveTrim(const std::string& degrees);
  void LeaveChipDate();

  SheetKeeper& keeper_;
  std::vector<std::unique_ptr<ZoneField>> zones_;
  TextBox txtTrim_;
  UpDown updTrim_;
  bool showing_ = false;  ///< what the controls raise comes from Show
};

}  // namespace tarnview
