#include "app/FirstRun.h"

#include "app/frmFindINIFile.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "model/IniFile.h"

namespace tarnview {
namespace {

constexpr const char* kGeneral = "General";
constexpr const char* kPicture = "Alternative Background Picture";
constexpr const char* kDefinitions = "Universal Data Log Formats";

/// `folder` ends with a separator, which the path goes on with.
std::string In(const std::string& folder, const char* inner, const std::string& name) {
  return AddBackslash(folder + inner) + name;
}

}  // namespace

bool FirstRun::GenerateINIFile(const std::string& path) {
  Choice choice{};
  if (!Ask(choice)) return false;
  const std::string from = TemplateOf(path, choice.fileType);
  const auto bytes = ReadText(services_.files, from);
  if (!bytes) {
    services_.messages.ShowMessage(Message::SettingsFileNotFound);
    return true;
  }
  std::string text(*bytes);
  FillIn(text, choice);
  if (!services_.files.Write(path, text))
    services_.messages.ShowMessage(Message::SettingsNotWritten);
  return true;
}

bool FirstRun::Ask(Choice& choice) {
  DefinitionFiles files(services_.files, services_.messages.Teller(), services_.errors,
                        globals_.catalogue.gcolFixedDataItems);
  std::vector<DefinitionChoice> definitions =
      files.GenericFileLocation(AddBackslash(programFolder_ + kDefinitions));
  if (dataFolder_ != programFolder_)
    for (DefinitionChoice& found :
         files.GenericFileLocation(AddBackslash(dataFolder_ + kDefinitions)))
      definitions.push_back(std::move(found));
  frmFindINIFile window(services_.host, globals_.kinds.gcolFileTypes, definitions, files,
                        services_.messages);
  window.ShowModal();
  choice = {window.FileType(), window.DefinitionPath()};
  return window.Accepted();
}

std::string FirstRun::TemplateOf(const std::string& path, int fileType) {
  const std::string beside =
      WithoutExtension(path) + "_Install" + std::to_string(fileType) + ".ini";
  if (services_.files.FileExists(beside)) return beside;
  return dataFolder_ + FileTitle(beside);
}

/// What a template cannot know: where the program lies, and what was chosen.
void FirstRun::FillIn(std::string& text, const Choice& choice) {
  const std::string parent = GetParentFolder(programFolder_);
  const auto set = [&](const char* key, const std::string& value) {
    SetINIValue(text, kGeneral, key, value);
  };
  const std::string logs = OrElse(logFolder_, parent);
  set("Default Working Directory", logs);
  set("Initial Directory", logs);
  const IniTable table = ReadINIFileToArray(text);
  if (const std::string* picture = table.Find(kGeneral, kPicture); picture && !picture->empty())
    set(kPicture, In(parent, "Images", FileTitle(*picture)));
  if (choice.fileType == kFMLinkLog || choice.fileType == kMAPFile) {
    const std::string title = "AEM_WB_Derived_AF_14.7.txt";
    const std::string usual = In(parent, "NB O2 Conversion Tables", title);
    const std::string installed = In(dataFolder_, "NB O2 Conversion Tables", title);
    const bool inData = !services_.files.FileExists(usual) && services_.files.FileExists(installed);
    set("Log EXE", In(parent, "LinkWin", "LinkWin.exe"));
    set("Conversion EXE", In(parent, "MDOS", "MDOS_AT.exe"));
    set("O2 Input Conversion File", inData ? installed : usual);
  }
  if (choice.fileType == kUniversalLog) set("Generic Data Log Definition File", choice.definition);
}

}  // namespace tarnview
