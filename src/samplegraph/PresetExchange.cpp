#include "samplegraph/PresetExchange.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "desk/SaveDialog.h"

namespace tarnview {
namespace {

/// Kept on purpose: it speaks of sample graphs for files of scatter graphs as well.
/// "File not found" of the run-time errors.
constexpr long kFileNotFound = 53;

bool IsLegalFileName(std::string_view name) {
  return !name.empty() && name.find_first_of("\"\\/:*?<>|") == name.npos && name != "." &&
         name != "..";
}

}  // namespace

bool PresetExchange::HasName() {
  if (!Trim(txtName_.Text()).empty()) return true;
  around_.messages.ShowMessage(Message::NameMissing);
  txtName_.SetFocus();
  return false;
}

Dialog PresetExchange::DialogFor(DialogKind kind, const char* title) const {
  Dialog dialog;
  dialog.kind = kind;
  dialog.title = title;
  dialog.filter = kind_.filter;
  dialog.initialPath = OrElse(lastFile_, around_.workingDirectory);
  return dialog;
}

std::string PresetExchange::ProposedFile() const {
  if (!lastFile_.empty()) return lastFile_;
  const std::string name(Trim(txtName_.Text()));
  if (!IsLegalFileName(name)) return "";
  return PathIn(around_.workingDirectory, name + kind_.extension);
}

void PresetExchange::Save(
    const std::function<std::string(bool blnWriteFamily, const Moment& now)>& text) {
  const bool withFamily = around_.messages.AskQuestion(Question::IncludeLogFamily);
  Dialog dialog = DialogFor(DialogKind::Save, "Save As");
  dialog.path = ProposedFile();
  if (!ChooseFileToSave(window_.host, dialog)) return;
  lastFile_ = dialog.path;
  if (!around_.files.Write(dialog.path, text(withFamily, around_.clock.Now())))
    around_.messages.ShowMessage(Message::SomethingWentWrong);
}

void PresetExchange::Load(const std::function<void(std::string_view bytes)>& take) {
  Dialog dialog = DialogFor(DialogKind::Open, "Load");
  if (!window_.host.Choose(dialog)) return;
  lastFile_ = dialog.path;
  const bool loaded = TrapEvent(around_.errors, window_.name.c_str(), "cmdLoad_Click", [&] {
    const auto bytes = ReadText(around_.files, dialog.path);
    if (!bytes) throw RuntimeError(kFileNotFound, "File not found: " + dialog.path);
    take(*bytes);
  });
  if (!loaded) around_.messages.ShowMessage(Message::SamplePresetNotLoaded);
}

bool PresetExchange::AgreesToFamily(int lngLogFamily, int selected) {
  return lngLogFamily == 0 || lngLogFamily == selected ||
         around_.messages.AskQuestion(Question::PresetOfOtherFamily);
}

void PresetExchange::TellNotRelevant(const std::string& items) {
  if (!items.empty()) around_.messages.ShowMessage(Message::ItemsNotRelevant, false, items);
}

}  // namespace tarnview
