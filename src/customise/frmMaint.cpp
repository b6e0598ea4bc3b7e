#include "customise/frmMaint.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {
frmMaint::frmMaint(Host& itsHost, MaintainedList& col, const Texts& texts,
                   const clsLogFamilies& families, int firstFamily, Messages& messages)
    : Form(itsHost, "frmMaint", texts.FormCaption),
      col_(col),
      families_(families),
      firstFamily_(firstFamily),
      messages_(messages) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = texts.HelpTopic;
  fraNameList.Caption = std::string(texts.FrameCaption);
  cboLogFamily.Click = [this] { PopulatePresetsListView(1); };
  lvwNameList.ItemClick = [this](int) { UpdateButtons(); };
  lvwNameList.DblClick = [this](int) { cmdModify_Click(); };
  // The order of the rows is that of the collection: a click on the heading sorts nothing.
  lvwNameList.ColumnClick = [this](int) {
    const std::string tag = std::to_string(FindObject(lvwNameList.SelectedRow()));
    PopulatePresetsListView(1);
    lvwNameList.Select(lvwNameList.RowOfTag(tag));
    UpdateButtons();
  };
  lvwNameList.KeyDown = [this](const KeyPress& key, bool& eaten) {
    // Alone they go from row to row; with a modifier they take the row along.
    if (key.Plain() || (key.key != "Up" && key.key != "Down")) return;
    if (key.key == "Up") cmdPresetUp.Press();
    if (key.key == "Down") cmdPresetDown.Press();
    eaten = true;
  };
  cmdNew.Click = [this] { cmdNew_Click(); };
  cmdModify.Click = [this] { cmdModify_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdPresetUp.Click = [this] { MovePreset(-1); };
  cmdPresetDown.Click = [this] { MovePreset(1); };
  cmdOK.Click = [this] { Accept(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmMaint::Form_Load() {
  cboLogFamily.SetList(families_.Descriptions());
  cboLogFamily.SetListIndex(firstFamily_ - 1);
  EnableLogFamilyFunction();
  PopulatePresetsListView(1);
}

void frmMaint::EnableLogFamilyFunction() {
  lblLogFamily.Visible = col_.HasFamilies();
  cboLogFamily.Visible = col_.HasFamilies();
}

void frmMaint::PopulatePresetsListView(int selectRow) {
  std::vector<ListView::Row> rows;
  for (int position = 1; position <= col_.Count(); ++position) {
    if (col_.HasFamilies() && col_.lngLogFamily(position) != Family()) continue;
    ListView::Row row;
    row.texts = {col_.strName(position)};
    row.tag = std::to_string(position);
    rows.push_back(std::move(row));
  }
  lvwNameList.SetRows(std::move(rows));
  lvwNameList.Select(selectRow);
  UpdateButtons();
}

void frmMaint::UpdateButtons() {
  const int row = lvwNameList.SelectedRow();
  cmdPresetUp.Enabled = row > 1;
  cmdPresetDown.Enabled = row > 0 && row < lvwNameList.Count();
}

int frmMaint::FindObject(int row) const {
  if (row < 1) return 0;
  return StringToLong(lvwNameList.At(row).tag);
}

bool frmMaint::NothingSelected() {
  if (lvwNameList.SelectedRow() > 0) return false;
  messages_.ShowMessage(Message::NoPresetSelected);
  return true;
}

void frmMaint::cmdNew_Click() {
  if (col_.New(Family())) PopulatePresetsListView(col_.Count());
}

void frmMaint::cmdModify_Click() {
  if (NothingSelected()) return;
  const int row = lvwNameList.SelectedRow();
  if (col_.Modify(FindObject(row))) PopulatePresetsListView(row);
}

void frmMaint::cmdDelete_Click() {
  if (NothingSelected() || !messages_.AskQuestion(Question::DeleteItem)) return;
  const int row = lvwNameList.SelectedRow();
  col_.Remove(FindObject(row));
  PopulatePresetsListView(row);
}

void frmMaint::MovePreset(int by) {
  const int row = lvwNameList.SelectedRow();
  // Between the two may lie presets of other families.
  col_.Move(FindObject(row), FindObject(row + by));
  PopulatePresetsListView(row + by);
}

}  // namespace tarnview
