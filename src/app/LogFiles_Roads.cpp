// The road of a file whose kind is not sure: what it looks like, one question, and the definition
// that it brings along.

#include "app/LogFiles.h"
#include "base/Paths.h"
#include "customise/frmLogDescription.h"
#include "universal/DefinitionWriter.h"

namespace tarnview {
namespace {

std::string NameOf(const LogRoad& road) {
  constexpr std::string_view kUniversal = "Universal: ";
  if (!road.takenAs.starts_with(kUniversal)) return "the kind " + road.takenAs;
  const std::string name = road.takenAs.substr(kUniversal.size());
  if (name == "by its shape") return "an unknown logger";
  return name;
}

std::string ColumnsOf(const LogRoad& road) {
  if (road.columns == 0) return "";
  return ": " + std::to_string(road.known) + " of " + std::to_string(road.columns) + " columns";
}

}  // namespace

bool LogFiles::OpenFile(const std::string& path, int fileType) {
  const auto bytes = services_.files.Read(path);
  if (!bytes) return LoadDataFile(path, fileType);  // which says why
  const bool guessed = fileType == kUnknownFile;
  const int wanted = guessed ? Guessed(path) : fileType;
  LogRoad asWanted;
  const LoadOutcome trial =
      roads_.TryAs(*bytes, wanted, definition_.SettingsDefinition(), asWanted);
  if (trial.loaded && (!guessed || asWanted.KnowsHalf())) return LoadDataFile(path, wanted);
  const auto road = roads_.ByContent(*bytes, path);
  const bool better = road && (!trial.loaded || road->known > asWanted.known);
  const Agreed agreed =
      better ? AgreesTo(*road, path, guessed ? kUnknownFile : wanted) : Agreed::No;
  if (agreed == Agreed::Yes) return LoadAs(path, *road);
  if (agreed == Agreed::Otherwise) return DescribeLog(path);
  if (!guessed || trial.loaded) return LoadDataFile(path, wanted);
  if (better) return false;
  return TellNothingLoads(path, trial);
}

bool LogFiles::OpenByContent(const std::string& path) {
  const auto bytes = services_.files.Read(path);
  auto road = bytes ? roads_.ByContent(*bytes, path) : std::nullopt;
  if (road) return LoadAs(path, std::move(*road));
  return LoadDataFile(path, kUnknownFile);
}

bool LogFiles::LoadAs(const std::string& path, LogRoad road) {
  mainWindow_.HideForLoad();  // the items of the log that is open go with its definition
  if (road.definition)
    definition_.UseDefinitionOfLog(std::move(*road.definition));
  else
    definition_.UseDefinitionOfSettings();
  globals_.takenAs = road.takenAs;
  if (!LoadNow(path, road.fileType)) return false;
  status_.Say("Loading complete: " + road.takenAs +
              (road.notes.empty() ? "" : ". Time: " + road.notes));
  return true;
}

LogFiles::Agreed LogFiles::AgreesTo(const LogRoad& road, const std::string& path, int chosenType) {
  std::string text;
  if (chosenType != kUnknownFile) {
    const clsFileType& type = globals_.kinds.gcolFileTypes.Item(chosenType);
    text = FileTitle(path) + " does not load as " + type.GetSingularDescription() + ".\r\n";
  }
  text += "This looks like a log of " + NameOf(road) + ColumnsOf(road) + ". Open it so?";
  bool describe = false;
  const Box box{0, text, kBoxYesNo | kBoxQuestion, kApplicationTitle, "&Describe...", [&describe] {
                  describe = true;
                }};
  const bool yes = services_.host.Ask(box) == Reply::Yes;
  if (describe) return Agreed::Otherwise;
  if (yes) return Agreed::Yes;
  return Agreed::No;
}

void LogFiles::mnuFileNewLogDescription_Click() {
  if (!SaveChangesPrompt()) return;
  Dialog dialog = OpenDialog();
  dialog.filter = "All Files (*.*)|*.*";
  if (services_.host.Choose(dialog)) DescribeLog(dialog.path);
}

bool LogFiles::DescribeLog(const std::string& path) {
  auto bytes = services_.files.Read(path);
  if (!bytes) {
    services_.messages.ShowMessage(Message::FileNotLoaded);
    return false;
  }
  frmLogDescription window(services_.host, std::move(*bytes), path, roads_.Titles(),
                           globals_.catalogue.gcolFixedDataItems);
  window.ShowModal();
  if (!window.Accepted()) return false;
  clsDataLog definition = window.Definition();
  KeepDefinition(definition);
  LogRoad road;
  road.fileType = kUniversalLog;
  road.takenAs = "Universal: " + definition.strName;
  road.definition = std::move(definition);
  return LoadAs(path, std::move(road));
}

/// Where the next look at a file finds it.
void LogFiles::KeepDefinition(const clsDataLog& definition) {
  if (globals_.gstrProgramFolder.empty()) return;
  const std::string folder =
      AddBackslash(globals_.gstrProgramFolder + "Universal Data Log Formats");
  services_.files.MakeFolder(folder);
  if (!services_.files.Write(folder + FileTitle(definition.strName) + ".txt",
                             DefinitionFileText(definition)))
    services_.messages.ShowMessage(Message::SettingsNotWritten);
}

/// The log that is open stays.
bool LogFiles::TellNothingLoads(const std::string& path, const LoadOutcome& outcome) {
  loading_.TellUniversalOutcome(path, outcome);
  services_.messages.ShowMessage(Message::TooFewRecords);
  status_.Say("Loading failed");
  return false;
}

}  // namespace tarnview
