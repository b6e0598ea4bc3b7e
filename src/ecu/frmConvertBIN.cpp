#include "ecu/frmConvertBIN.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "desk/SaveDialog.h"
#include "ecu/Conversion.h"
#include "ecu/EcuFiles.h"
#include "ecu/NewFileNames.h"
#include "ecu/Overwrite.h"
#include "ecu/ProgramRun.h"
#include "ecu/SetAside.h"

namespace tarnview {
namespace {

struct PathRow {
  const char* caption;
  const char* toolTip;
  const char* filter;
};

constexpr PathRow kPaths[] = {
    {"&Binary File", "Path and File Name of Binary File",
     "Source files (*.bin; *.dat)|*.bin;*.dat"},
    {"&New Data Log", "Path and File Name of New Data Log", "Data Log files (*.txt)|*.txt"},
};

std::string StartFolder(const Settings& settings, const std::string& currentFile) {
  const std::string& last = settings.gstrLastConvertedBinary;
  return PathIn(GetParentFolder(OrElse(last, currentFile)), "");
}

bool IsBinaryLog(const EcuWorld& world, const std::string& path) {
  const std::string extension = Upper(GetExtension(path));
  return (extension == "BIN" || extension == "DAT") && world.files.FileExists(path);
}

}  // namespace

frmConvertBIN::frmConvertBIN(const EcuWorld& world, const std::string& currentFile)
    : Form(world.host, "frmConvertBIN", "Convert Binary File to Data Log"), world_(world) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "ConvertBinaryFile";
  chkAutoLoad.Value = true;
  for (const Path path : {Source, Target}) {
    lblPath(path).Caption = std::string(kPaths[path].caption);
    txtPath(path).ToolTip = std::string(kPaths[path].toolTip);
    txtPath(path).Text = StartFolder(world.settings, currentFile);
    cmdBrowse(path).ToolTip = std::string("Click to select the file to load");
    txtPath(path).LostFocus = [this, path] { LeavePath(path); };
    cmdBrowse(path).Click = [this, path] { cmdBrowse_Click(path); };
  }
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmConvertBIN::LeavePath(Path path) {
  // On the way to the buttons that make it good, or make it not matter, nobody is stopped.
  const Control* next = ActiveControl();
  if (IsUnloading() || next == &cmdCancel || next == &cmdBrowse(path)) return;
  ValidatePath(path);
}

bool frmConvertBIN::ValidatePath(Path path) {
  TextBox& box = txtPath(path);
  const auto refuse = [&](Message message) {
    world_.messages.ShowMessage(message);
    box.SetFocus();
    return false;
  };
  const std::string text = box.Text();
  if (!HasFolder(world_, GetParentFolder(text))) return refuse(Message::FolderNotFound);
  if (!IsLegalFileName(FileTitle(text))) return refuse(Message::IllegalFileName);
  if (FileTitle(text).empty() && path == Target) return refuse(Message::IllegalFileName);
  if (path == Source) return IsBinaryLog(world_, text) || refuse(Message::NotABinaryFile);
  box.Text = GetParentFolder(text) + NameOfType(FileTitle(text), "txt");
  return true;
}

void frmConvertBIN::cmdBrowse_Click(Path path) {
  Dialog dialog;
  if (path == Source)
    dialog.title = "Open";
  else
    dialog.title = "Save As";
  dialog.filter = kPaths[path].filter;
  dialog.initialPath = txtPath(path).Text();
  dialog.path = FileTitle(txtPath(path).Text());
  dialog.ofOpenFile = true;  // whether it goes is asked by cmdOK
  const bool chosen = path == Target ? ChooseFileToSave(host, dialog) : host.Choose(dialog);
  if (chosen) txtPath(path).Text = dialog.path;
}

void frmConvertBIN::cmdOK_Click() {
  if (!ValidatePath(Source) || !ValidatePath(Target) || !HasConverter(world_) ||
      IsStillAtWork(world_))
    return;
  const std::string source = txtPath(Source).Text(), target = txtPath(Target).Text();
  if (!MayWrite(world_, target)) return;
  SetAside aside(world_.files);
  aside.Take(target);
  for (const std::string& leftover : Leftovers(ConverterFiles(world_.settings).folder))
    if (leftover != source) aside.Take(leftover);
  const Converted converted = ConvertBinary(world_, source, target);
  if (converted == Converted::NotRun) return aside.PutBack();
  if (converted == Converted::Done) {
    target_ = target;
    world_.settings.gstrLastConvertedBinary = source;
  }
  Unload();
}

}  // namespace tarnview
