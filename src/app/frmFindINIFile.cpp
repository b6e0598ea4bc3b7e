#include "app/frmFindINIFile.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

constexpr const char* kOther = "<Other>";

}  // namespace

frmFindINIFile::frmFindINIFile(Host& itsHost, const clsFileTypes& types,
                               const std::vector<DefinitionChoice>& definitions,
                               DefinitionFiles& files, Messages& messages)
    : Form(itsHost, "frmFindINIFile", "Tarnview"), files_(files), messages_(messages) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "Start";
  lstFileType.Click = [this] { lstFileType_Click(); };
  cmdBrowse.Click = [this] { cmdBrowse_Click(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
  txtPathOther.HoldsPath = true;
  FillList(types, definitions);
}

void frmFindINIFile::FillList(const clsFileTypes& types,
                              const std::vector<DefinitionChoice>& definitions) {
  std::vector<std::vector<std::string>> table;  // text, file type, definition
  for (int id = 1; id <= types.Count(); ++id)
    if (id != kUniversalLog)
      table.push_back({types.Item(id).strDescription, std::to_string(id), ""});
  const std::string universal = std::to_string(kUniversalLog);
  for (const DefinitionChoice& choice : definitions)
    table.push_back({choice.strName + " Data Logs", universal, choice.path});
  Sort2DStringArray(table, 0);
  table.push_back({kOther, universal, ""});
  std::vector<std::string> texts;
  for (const auto& row : table) {
    texts.push_back(row[0]);
    rows_.push_back({StringToLong(row[1]), row[2]});
  }
  lstFileType.SetList(std::move(texts));
  lstFileType.ListIndex = 0;
}

bool frmFindINIFile::OtherIsChosen() const {
  return lstFileType.ListIndex() + 1 == static_cast<int>(rows_.size());
}

void frmFindINIFile::lstFileType_Click() {
  const bool other = OtherIsChosen();
  lblPathOther.Enabled = txtPathOther.Enabled = cmdBrowse.Enabled = other;
}

void frmFindINIFile::cmdBrowse_Click() {
  const std::string& path = txtPathOther.Text();
  Dialog dialog{.title = "Open", .filter = "Text Files|*.txt", .initialPath = path, .path = path};
  if (!host.Choose(dialog)) return;
  txtPathOther.Text = dialog.path;
  // Enter then means OK, and not another look for a file.
  cmdOK.SetFocus();
}

void frmFindINIFile::cmdOK_Click() {
  if (!ValidateForm()) return;
  chosen_ = rows_[static_cast<std::size_t>(lstFileType.ListIndex())];
  if (OtherIsChosen()) chosen_.definition = Trim(txtPathOther.Text());
  Accept();
}

/// A definition picked by hand must be a good one; what is wrong with it is told.
bool frmFindINIFile::ValidateForm() {
  if (!OtherIsChosen()) return lstFileType.ListIndex() >= 0;
  const std::string path(Trim(txtPathOther.Text()));
  if (path.empty())
    messages_.ShowMessage(Message::DefinitionPathNotValid, false, path);
  else if (files_.LoadDataLogDefinition(path))
    return true;
  txtPathOther.SetFocus();
  return false;
}

}  // namespace tarnview
