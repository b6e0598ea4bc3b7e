#pragma once

#include <string>

#include "customise/MaintainedList.h"
#include "desk/Messages.h"
#include "model/clsLogFamilies.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"

namespace tarnview {

/// Keeps a list of anything: names in an order, each with a detail window of its own. It works on a
/// copy, which its caller takes on OK.
class frmMaint : public Form {
 public:
  struct Texts {
    const char* FormCaption;
    const char* FrameCaption;
    const char* HelpTopic;
  };
  frmMaint(Host& itsHost, MaintainedList& col, const Texts& texts, const clsLogFamilies& families,
           int firstFamily, Messages& messages);

  Label lblLogFamily{*this, "lblLogFamily", "&Log Family"};
  ComboBox cboLogFamily{*this, "cboLogFamily"};
  Frame fraNameList{*this, "fraNameList"};
  ListView lvwNameList{*this, "lvwNameList", {{"Name"}}};
  CommandButton cmdNew{*this, "cmdNew", "&New..."};
  CommandButton cmdModify{*this, "cmdModify", "&Modify..."};
  CommandButton cmdDelete{*this, "cmdDelete", "&Delete"};
  CommandButton cmdPresetUp{*this, "cmdPresetUp", "Move &Up"};
  CommandButton cmdPresetDown{*this, "cmdPresetDown", "Move Do&wn"};
  CommandButton cmdOK{*this, "cmdOK", "&OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void EnableLogFamilyFunction();
  void PopulatePresetsListView(int selectRow);
  void UpdateButtons();
  int Family() const { return cboLogFamily.ListIndex() + 1; }
  /// The position of a row's item in the collection; 0 for no row.
  int FindObject(int row) const;
  bool NothingSelected();
  void cmdNew_Click();
  void cmdModify_Click();
  void cmdDelete_Click();
  void MovePreset(int by);

  MaintainedList& col_;
  const clsLogFamilies& families_;
  int firstFamily_;
  Messages& messages_;
};

}  // namespace tarnview
