#pragma once

#include <map>
#include <string>

#include "base/FileBytes.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/TextBox.h"
#include "universal/LogShape.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// Describes a log of unknown form: what was found of it beside its text, each finding a choice,
/// and each column with the item that it becomes. OK gives a definition: a new one, or one that was
/// there with what has been changed.
class frmLogDescription : public Form {
 public:
  /// `edited`: the definition to be changed; nullptr for a new one.
  frmLogDescription(Host& itsHost, FileBytes bytes, const std::string& path,
                    const TitleDictionary& titles, const clsLogDataItems& catalogue,
                    const clsDataLog* edited = nullptr);

  // What the text is.
  Label lblEncoding{*this, "lblEncoding", "&Encoding"};
  ComboBox cboEncoding{*this, "cboEncoding"};
  Label lblDelimiter{*this, "lblDelimiter", "&Delimiter"};
  ComboBox cboDelimiter{*this, "cboDelimiter"};
  Label lblDecimalSign{*this, "lblDecimalSign", "Decimal &Sign"};
  ComboBox cboDecimalSign{*this, "cboDecimalSign"};
  Label lblTitleLine{*this, "lblTitleLine", "&Titles in Line"};
  TextBox txtTitleLine{*this, "txtTitleLine"};
  Label lblUnitsLine{*this, "lblUnitsLine", "&Units in Line"};
  TextBox txtUnitsLine{*this, "txtUnitsLine"};
  Label lblDataLine{*this, "lblDataLine", "D&ata from Line"};
  TextBox txtDataLine{*this, "txtDataLine"};
  Label lblTimeColumn{*this, "lblTimeColumn", "Ti&me"};
  ComboBox cboTimeColumn{*this, "cboTimeColumn"};
  Label lblTimeForm{*this, "lblTimeForm", "Time &Form"};
  ComboBox cboTimeForm{*this, "cboTimeForm"};
  Label lblLineFrequency{*this, "lblLineFrequency", "&Lines a Second"};
  TextBox txtLineFrequency{*this, "txtLineFrequency"};
  ListView lvwHead{*this, "lvwHead", {{"Line", true}, {"Is"}, {"Text"}}};
  Label lblWhy{*this, "lblWhy", ""};
  // What its columns become.
  ListView lvwColumns{*this,
                      "lvwColumns",
                      {{"Title"},
                       {"Unit"},
                       {"First Values"},
                       {"Lowest", true},
                       {"Highest", true},
                       {"Item"},
                       {"Conversion"},
                       {"Decimals", true},
                       {"Drawn"}}};
  Label lblItem{*this, "lblItem", "&Item"};
  ComboBox cboItem{*this, "cboItem"};
  Label lblFactor{*this, "lblFactor", "Facto&r"};
  TextBox txtFactor{*this, "txtFactor"};
  Label lblOffset{*this, "lblOffset", "&Plus"};
  TextBox txtOffset{*this, "txtOffset"};
  Label lblUnit{*this, "lblUnit", "I&n Unit"};
  TextBox txtUnit{*this, "txtUnit"};
  Label lblDecimals{*this, "lblDecimals", "De&cimals"};
  TextBox txtDecimals{*this, "txtDecimals"};
  CheckBox chkShown{*this, "chkShown", "S&hown in Lists"};
  Label lblName{*this, "lblName", "Definition &Name"};
  TextBox txtName{*this, "txtName"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Of what the window shows now.
  clsDataLog Definition() const;
  const LogShape& Shape() const { return shape_; }

 private:
  void FillLists();
  void TieEvents();
  void StartFrom(const clsDataLog& definition);
  void Look();
  void ShowFindings();
  void ShowHead();
  void ShowColumns();
  void ShowColumn();
  void TakeColumn();
  void TakeChoice(const std::function<void()>& choose);
  void TakeLine(std::optional<int>& choice, const TextBox& box);
  ShapeItem* Selected();
  std::string KeyOf(std::size_t column) const;

  const FileBytes bytes_;
  const std::string extension_;
  const TitleDictionary& titles_;
  const clsLogDataItems& catalogue_;
  const std::optional<clsDataLog> old_;  ///< the definition that is edited
  bool formEdited_ = false;
  ShapeChoices choices_;
  LogShape shape_;
  std::map<std::string, ShapeItem> edited_;  ///< by KeyOf
  bool showing_ = false;                     ///< controls follow the shape; they choose nothing
};

}  // namespace tarnview
