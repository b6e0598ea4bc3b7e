#pragma once

#include <string_view>

#include "customise/frmOptions.h"
#include "model/GeneralSettings.h"
#include "support/MemoryFileSystem.h"
#include "support/Table.h"
#include "support/WindowActions.h"

namespace tarnview {

inline constexpr const char* kDefinitionOfOptions =
    "[DATALOGDEFINITION]\r\nNAME=Mine\r\nFILEEXTENSION=log\r\nLINEFREQUENCY="
    "10\r\nDELIMITERASCIICHARACTER=44\r\n"
    "DATALINESBEFORE=1\r\nCOLUMNHEADERSLINESBEFORE=0\r\n"
    "[COLUMN]\r\nNAME=Revs\r\nCOLUMNTITLE=Revs\r\nDATAITEMID=3\r\nTYPE=1\r\nDESCRIPTION=Revs\r\n"
    "COLUMNDECIMALPLACES=0\r\nDISPLAYCOLOUR=255\r\nDISPLAYLINEWIDTH=5\r\n\r\n";

/// What the paths of ChangeEachSetting lead to.
inline void AddFilesOfOptions(MemoryFileSystem& files) {
  for (const char* path : {"/link/L.EXE", "/link/C.exe", "/pictures/a.bmp", "/tables/t.txt"})
    files.files[path] = "";
  files.files["/defs/mine.txt"] = kDefinitionOfOptions;
  files.folders.insert("/new");
}

/// Another value than the default for each kind of control.
inline void Change(Control& control) {
  constexpr const char* kTexts =
      "txtPath(0) /link/L.EXE, txtPath(1) /link/C.exe, txtPath(2) /pictures/a.bmp, "
      "txtPath(3) /new/, txtPath(4) /tables/t.txt, txtPath(5) /tables/t.txt, "
      "txtPath(6) /defs/mine.txt, txtChipDate 09-Jun-2003, txtmsConvFactor 0.5, txtComPort 7, "
      "txtAtmos 98, txtRH 12, txtAmbTemp 15";
  if (auto* box = dynamic_cast<CheckBox*>(&control)) return box->Do({"click", {}});
  if (auto* list = dynamic_cast<ComboBox*>(&control)) {
    const int next = (list->ListIndex() + 1) % static_cast<int>(list->Entries().size());
    return list->Do({"choose", {"#" + std::to_string(next)}});
  }
  const std::string name = control.FullName() + " ";
  for (const std::string& text : SplitAt(kTexts, ", "))
    if (text.starts_with(name)) return control.Do({"type", {text.substr(name.size())}});
  control.Do({"type", {"77"}});
}

/// Every setting of the Options window, but for the chip's version, which goes with its type.
inline void ChangeEachSetting(frmOptions& options) {
  for (const SettingRow& row : AllSettings())
    if (std::string_view(row.setIn.window).starts_with("frmOptions/") &&
        std::string_view(row.key) != "Default Chip Version") {
      Control& control = *ControlOf(options, row.setIn.control);
      if (!control.Enabled)
        Act(options, "click chkSAE");  // the air is asked for with the correction alone
      Change(control);
      if (!options.chkPowerGraphGearSelection.Value)
        Act(options, "click chkPowerGraphGearSelection");
    }
  Act(options, "click chkPowerGraphGearSelection");
  options.chkSAE.Value = true;
}

}  // namespace tarnview
