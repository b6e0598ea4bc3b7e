#include "desk/FileExchange.h"

#include "base/Paths.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "desk/SaveDialog.h"

namespace tarnview {
namespace {

/// "File not found" of the run-time errors.
constexpr long kFileNotFound = 53;

}  // namespace

Dialog FileExchange::DialogFor(DialogKind kind, const char* title) const {
  return {.kind = kind,
          .title = title,
          .filter = kind_.filter,
          .initialPath = OrElse(lastFile_, around_.workingDirectory)};
}

std::string FileExchange::ProposedFile(std::string_view name) const {
  if (!lastFile_.empty()) return lastFile_;
  const bool isFolder = name.empty() || name == "." || name == "..";
  if (isFolder || !IsLegalFileName(name)) return "";
  return PathIn(around_.workingDirectory, std::string(name) + kind_.extension);
}

void FileExchange::Save(std::string_view name,
                        const std::function<std::string(const Moment& now)>& text) {
  Dialog dialog = DialogFor(DialogKind::Save, "Save As");
  dialog.path = ProposedFile(name);
  const auto withEnding = [this](Dialog& chosen) {
    if (kind_.addsExtension && GetExtension(chosen.path).empty()) chosen.path += kind_.extension;
  };
  if (!ChooseFileToSave(window_.host, dialog, withEnding)) return;
  lastFile_ = dialog.path;
  if (!around_.files.Write(dialog.path, text(around_.clock.Now())))
    around_.messages.ShowMessage(Message::SomethingWentWrong);
}

void FileExchange::Load(const Take& take) {
  Dialog dialog = DialogFor(DialogKind::Open, "Load");
  if (!window_.host.Choose(dialog)) return;
  lastFile_ = dialog.path;
  const bool loaded = TrapEvent(around_.errors, window_.name.c_str(), "cmdLoad_Click", [&] {
    const auto bytes = ReadText(around_.files, dialog.path);
    if (!bytes) throw RuntimeError(kFileNotFound, "File not found: " + dialog.path);
    take(*bytes, dialog.path);
  });
  if (!loaded) around_.messages.ShowMessage(kind_.notLoaded);
}

}  // namespace tarnview
