#include "samplegraph/frmDataTags.h"

#include <string>

namespace tarnview {
namespace {

/// Beyond the end of any list: the last row is selected.
constexpr int kLastRow = 99999;

}  // namespace

frmDataTags::frmDataTags(Host& itsHost, clsLogTags& tags, MainWindow& mainWindow)
    : Form(itsHost, "frmDataTags", "Tarnview Data Tags"), tags_(tags), mainWindow_(mainWindow) {
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
  tags_.Add(tag.FromSequence, tag.ToSequence);
  PopulateList(kLastRow);
}

void frmDataTags::PopulateList(int lngSelect) {
  std::vector<ListView::Row> rows;
  for (int n = 1; n <= tags_.Count(); ++n) {
    const clsLogTag& tag = tags_.Item(n);
    ListView::Row row;
    row.texts = {std::to_string(tag.FromSequence), std::to_string(tag.ToSequence)};
    row.tag = std::to_string(n);
    rows.push_back(row);
  }
  lvwTags.SetRows(std::move(rows));
  cmdShow.Enabled = lvwTags.Count() > 0;
  cmdDelete.Enabled = lvwTags.Count() > 0;
  if (lvwTags.Count() > 0) lvwTags.Select(lngSelect < 1 ? 1 : lngSelect);
}

void frmDataTags::cmdShow_Click() {
  const int row = lvwTags.SelectedRow();
  if (row < 1) return;
  const clsLogTag tag = tags_.Item(std::stoi(lvwTags.At(row).tag));
  mainWindow_.ShowRange(tag);
  lvwTags.Select(row);
}

void frmDataTags::cmdDelete_Click() {
  const int row = lvwTags.SelectedRow();
  if (row < 1) return;
  tags_.Remove(std::stoi(lvwTags.At(row).tag));
  PopulateList(row);
}

}  // namespace tarnview
