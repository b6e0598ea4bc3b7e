#pragma once

#include <string>

#include "base/Clock.h"
#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "desk/Messages.h"
#include "power/CarDefinitionControls.h"
#include "power/CarFields.h"

namespace tarnview {

/// Edits one car definition, and exchanges it with .car files.
class frmCarDefinitionDetails : public CarDefinitionControls {
 public:
  struct Surroundings {
    const std::string& workingDirectory;  ///< where the first file is looked for
    FileSystem& files;
    Clock& clock;
    ErrorLog& errors;
    Messages& messages;
  };
  frmCarDefinitionDetails(Host& itsHost, const Surroundings& surroundings,
                          const clsCarDef& ColItem);

  /// The definition as the user left it.
  const clsCarDef& ColItem() const { return car_; }

 protected:
  bool Form_QueryUnload() override;

 private:
  void FillLists();
  void BindControls();
  void BindOptions();
  /// The text boxes of the fields, each with the member that it shows.
  struct FieldBox {
    TextBox* box;
    std::string CarFields::*text;
  };
  std::vector<FieldBox> Boxes();
  void ShowFields(const CarFields& fields);
  CarFields FieldsNow();
  void ChooseOrAdd(ComboBox& list, const std::string& text);
  void ShowLabels();
  void UnitsChosen();
  void EnableFields();
  void ShowTotalWeight();
  bool Changed();
  void cmdOK_Click();
  void cmdSave_Click();
  void cmdLoad_Click();
  void LoadFile(const std::string& path);
  Dialog FileDialog(DialogKind kind, const char* title) const;

  Surroundings around_;
  clsCarDef car_;
  CarFields before_;  ///< as the window opened
  std::string lastFile_;
  bool shownImperial_ = true;  ///< units of the fields and labels
  bool showing_ = false;       ///< a definition is put into the fields: nothing is asked
};

}  // namespace tarnview
