#include "qt/pictures/AllWindows.h"

namespace tarnview {
namespace {

/// As long as an installed definition's: the widest that the window must hold.
DefinitionDetails Definition(bool filled) {
  if (!filled) return {};
  return {"Hydra Nemesis", "1.4", "Built-in definition for logs of the Hydra Nemesis software, in metric units"};
}

}  // namespace

struct AllWindows::NoMainWindow : frmDataTags::MainWindow {
  bool CurrentRange(clsLogTag&) const override { return false; }
  void ShowRange(const clsLogTag&) override {}
  void ShowHelp(const char*) override {}
};

AllWindows::AllWindows(Host& host, const std::string& log)
    : program_(host, files_, clock_, processes_, ProgramFolders{}),
      mainWindow_(std::make_unique<NoMainWindow>()),
      splash_(host),
      about_(host, Definition(!log.empty()), [] {}),
      message_(host, [](int) {}),
      tags_(host, tagList_, *mainWindow_) {
  if (!log.empty()) Fill();
  program_.Start(log, false);
  for (Form* form : Forms())
    if (!form->IsShown()) form->Show();
}

AllWindows::~AllWindows() {
  for (Form* form : Forms()) form->Unload();
}

void AllWindows::Fill() {
  message_.MessageText(
      "The log holds columns that the definition does not know.\r\n\r\nTheir names are in Universal Load Unknown "
      "Columns.txt.");
  for (const auto& [from, to] : {std::pair{120, 480}, std::pair{1912, 2203}, std::pair{30217, 31044}})
    tagList_.Add(from, to);
}

std::vector<Form*> AllWindows::Forms() { return {&program_.MainWindow(), &splash_, &about_, &message_, &tags_}; }

}  // namespace tarnview
