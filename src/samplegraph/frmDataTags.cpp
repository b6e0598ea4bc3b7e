#include "samplegraph/frmDataTags.h"

#include <algorithm>
#include <string>

#include "base/Numbers.h"

namespace tarnview {
namespace {

/// Beyond the end of any list: the last row is selected.
constexpr int kLastRow = 99999;

}  // namespace

frmDataTags::frmDataTags(Host& itsHost, clsLogTags& logTags, MainWindow& mainWindow)
    : Form(itsHost, "frmDataTags", "Tarnview Data Tags"),
      logTags_(logTags),
      mainWindow_(mainWindow) {
  CancelButton = &cmdClose;
  HelpTopic = "DataTags";
  cmdNew.Click = [this] { NewDataTag(); };
  cmdShow.Click = [this] { cmdShow_Click(); };
  cmdDelete.Click = [this] { cmdDelete_Click(); };
  cmdClose.Click = [this] { Unload(); };
  lvwTags.DblClick = [this](int) { cmdShow_Click(); };
  lvwTags.KeyDown = [this](const KeyPress& key, bool& eaten) {
    if (key != KeyPress{"Enter"}) return;
    cmdShow_Click();
    eaten = true;
  };
}

void frmDataTags::Form_Load() { PopulateList(1); }

void frmDataTags::NewDataTag() {
  clsLogTag tag;
  if (!mainWindow_.CurrentRange(tag)) return;
  logTags_.Add(tag.FromSequence, tag.ToSequence);
  PopulateList(kLastRow);
  mainWindow_.TagsChanged();
}

void frmDataTags::PopulateList(int lngSelect) {
  shown_ = logTags_;
  ofOpenLog_ = true;
  FillList(lngSelect);
}

void frmDataTags::FillList(int lngSelect) {
  std::vector<ListView::Row> rows;
  for (int n = 1; n <= shown_.Count(); ++n) {
    const clsLogTag& tag = shown_.Item(n);
    ListView::Row row;
    row.texts = {std::to_string(tag.FromSequence), std::to_string(tag.ToSequence)};
    row.tag = std::to_string(n);
    rows.push_back(row);
  }
  lvwTags.SetRows(std::move(rows));
  cmdShow.Enabled = lvwTags.Count() > 0;
  cmdDelete.Enabled = lvwTags.Count() > 0;
  if (lvwTags.Count() > 0) lvwTags.Select(std::max(lngSelect, 1));
}

int frmDataTags::Selected() const {
  const int row = lvwTags.SelectedRow();
  if (row < 1) return 0;
  return StringToLong(lvwTags.At(row).tag);
}

void frmDataTags::cmdShow_Click() {
  const int row = lvwTags.SelectedRow();
  if (row < 1) return;
  mainWindow_.ShowRange(shown_.Item(Selected()));
  lvwTags.Select(row);
}

void frmDataTags::cmdDelete_Click() {
  const int row = lvwTags.SelectedRow();
  if (row < 1) return;
  if (ofOpenLog_) logTags_.Remove(Selected());
  shown_.Remove(Selected());
  FillList(row);
  mainWindow_.TagsChanged();
}

}  // namespace tarnview
