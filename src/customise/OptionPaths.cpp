#include "customise/OptionPaths.h"

#include "base/Paths.h"

namespace tarnview {
namespace {

enum class Wanted { Program, FileOrNone, Folder };

struct PathRow {
  PathIndex index;
  Wanted wanted;
  const char* caption;
  const char* toolTip;
  const char* filter;
};

constexpr const char* kPrograms = "Programs (*.exe)|*.exe|All Files (*.*)|*.*";
constexpr const char* kTexts = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
constexpr const char* kPictures =
    "Pictures (*.bmp;*.jpg;*.png)|*.bmp;*.jpg;*.png|All Files (*.*)|*.*";

constexpr PathRow kPaths[] = {
    {LogEXE, Wanted::Program, "Data Logging/Upload Progra&m",
     "Path and file name of the program that captures logs from the ECU and uploads to it",
     kPrograms},
    {ConversionEXE, Wanted::Program, "Data Log Con&version Program",
     "Path and file name of the program that turns binary logs into text", kPrograms},
    {BackgroundPicture, Wanted::FileOrNone, "Alternative Background &Picture",
     "Path and file name of the picture behind an empty graph", kPictures},
    {WorkingDirectory, Wanted::Folder, "Default &Working Directory",
     "Folder in which logs are looked for and created", ""},
    {AuxConversionFile, Wanted::FileOrNone, "Au&x Input Conversion File",
     "Path and file name of the conversion table of the Aux input; empty for the built-in one",
     kTexts},
    {O2ConversionFile, Wanted::FileOrNone, "O&2 Input Conversion File",
     "Path and file name of the conversion table of the O2 input; empty for the built-in one",
     kTexts},
    {DefinitionFile, Wanted::FileOrNone, "&Universal Data Log Definition File",
     "Path and file name of the definition of Universal logs; empty for the built-in one", kTexts},
};

}  // namespace

OptionPaths::OptionPaths(OptionsControls& window, FileSystem& files, Messages& messages)
    : window_(window), files_(files), messages_(messages) {
  for (const PathRow& row : kPaths) {
    window_.lblPath(row.index).Caption = std::string(row.caption);
    window_.txtPath(row.index).ToolTip = std::string(row.toolTip);
    window_.cmdBrowse(row.index).ToolTip = std::string("Click to select it");
    window_.cmdBrowse(row.index).Click = [this, index = row.index] { cmdBrowse_Click(index); };
  }
}

bool OptionPaths::ValidatePath(int index) {
  TextBox& box = window_.txtPath(index);
  const auto check = [this](bool good, Message message) {
    if (!good) messages_.ShowMessage(message);
    return good;
  };
  switch (kPaths[index].wanted) {
    case Wanted::Program:
      return check(!box.Text().empty() && files_.IsProgram(box.Text()), Message::NotAnExecutable);
    case Wanted::FileOrNone:
      return check(box.Text().empty() || files_.FileExists(box.Text()), Message::FileNotLoaded);
    case Wanted::Folder:
      break;
  }
  if (!box.Text().empty()) box.Text = AddBackslash(box.Text());
  return check(!box.Text().empty() && files_.FolderExists(box.Text()), Message::FolderNotFound);
}

void OptionPaths::cmdBrowse_Click(int index) {
  const bool folder = kPaths[index].wanted == Wanted::Folder;
  Dialog dialog;
  if (folder) {
    dialog.kind = DialogKind::Folder;
    dialog.title = "Select Default Working Directory";
  } else {
    dialog.kind = DialogKind::Open;
    dialog.title = "Open";
  }
  dialog.filter = kPaths[index].filter;
  dialog.initialPath = window_.txtPath(index).Text();
  if (window_.host.Choose(dialog)) window_.txtPath(index).Text = dialog.path;
}

}  // namespace tarnview
