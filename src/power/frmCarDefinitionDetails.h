#pragma once

#include <string>

#include "desk/FileExchange.h"
#include "power/CarDefinitionControls.h"
#include "power/CarFields.h"

namespace tarnview {

/// Edits one car definition, and exchanges it with .car files.
class frmCarDefinitionDetails : public CarDefinitionControls {
 public:
  using Surroundings = FileExchange::Surroundings;
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
  void LoadFile(std::string_view bytes, const std::string& path);

  Surroundings around_;
  clsCarDef car_;
  CarFields before_;  ///< as the window opened
  FileExchange exchange_;
  bool shownImperial_ = true;  ///< units of the fields and labels
  bool showing_ = false;       ///< a definition is put into the fields: nothing is asked
};

}  // namespace tarnview
