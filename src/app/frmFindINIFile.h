#pragma once

#include <string>
#include <vector>

#include "desk/Messages.h"
#include "model/clsFileTypes.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/TextBox.h"
#include "universal/DefinitionFiles.h"

namespace tarnview {

/// The first run's one question: which kind of log the user opens most.
class frmFindINIFile : public Form {
 public:
  /// `definitions` are those that lie beside the program.
  frmFindINIFile(Host& itsHost, const clsFileTypes& types,
                 const std::vector<DefinitionChoice>& definitions, DefinitionFiles& files,
                 Messages& messages);

  Label lblTitle{*this, "lblTitle", "Which kind of data &log do you use?"};
  ListBox lstFileType{*this, "lstFileType"};
  Label lblPathOther{*this, "lblPathOther", "Data log &definition file"};
  TextBox txtPathOther{*this, "txtPathOther"};
  CommandButton cmdBrowse{*this, "cmdBrowse", "&Browse..."};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// The file type chosen, 1 to 8.
  int FileType() const { return chosen_.fileType; }
  /// Of a Universal choice.
  const std::string& DefinitionPath() const { return chosen_.definition; }

 private:
  struct Row {
    int fileType;
    std::string definition;
  };
  void FillList(const clsFileTypes& types, const std::vector<DefinitionChoice>& definitions);
  bool OtherIsChosen() const;
  void lstFileType_Click();
  void cmdBrowse_Click();
  void cmdOK_Click();
  bool ValidateForm();

  DefinitionFiles& files_;
  Messages& messages_;
  std::vector<Row> rows_;  ///< beside the list's entries
  Row chosen_{};
};

}  // namespace tarnview
