// The road of a file whose kind is not sure: what it looks like, one question, and the definition
// that it brings along.

#include "app/LogFiles.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "customise/frmLineFrequency.h"
#include "customise/frmLogDescription.h"
#include "universal/DefinitionFiles.h"
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

LogRoad RoadBy(clsDataLog definition) {
  LogRoad road;
  road.fileType = kUniversalLog;
  road.takenAs = "Universal: " + definition.strName;
  road.definition = std::move(definition);
  return road;
}

std::string ColumnsOf(const LogRoad& road) {
  if (road.columns == 0) return "";
  return ": " + std::to_string(road.known) + " of " + std::to_string(road.columns) + " columns";
}

}  // namespace

bool LogFiles::OpenFile(const std::string& path, int fileType) {
  Bytes bytes = ReadText(services_.files, path);
  if (!bytes) return LoadDataFile(path, fileType);  // which says why
  const bool guessed = fileType == kUnknownFile;
  const int wanted = guessed ? Guessed(path) : fileType;
  LogRoad asWanted;
  const LoadOutcome trial =
      roads_.TryAs(*bytes, wanted, definition_.SettingsDefinition(), asWanted);
  if (trial.loaded && (!guessed || asWanted.KnowsHalf()))
    return LoadAsSettings(path, wanted, std::move(bytes));
  auto road = roads_.ByContent(*bytes, path);
  const bool better = road && (!trial.loaded || road->known > asWanted.known);
  Agreed agreed = Agreed::No;
  if (better) agreed = AgreesTo(*road, path, fileType);
  if (agreed == Agreed::Yes)
    return SettleRate(*road) && LoadAs(path, std::move(*road), std::move(bytes));
  if (agreed == Agreed::Otherwise) return DescribeLog(path);
  if (!guessed || trial.loaded) return LoadAsSettings(path, wanted, std::move(bytes));
  if (better) return false;
  return TellNothingLoads(path, trial);
}

bool LogFiles::OpenByContent(const std::string& path) {
  Bytes bytes = ReadText(services_.files, path);
  std::optional<LogRoad> road;
  if (bytes) road = roads_.ByContent(*bytes, path);
  if (road) return LoadAs(path, std::move(*road), std::move(bytes));
  return LoadAsSettings(path, kUnknownFile, std::move(bytes));
}

/// A log without a clock is asked about, once; false: the user would rather not open it.
bool LogFiles::SettleRate(LogRoad& road) {
  if (!road.noRate) return true;
  double& rate = globals_.settings.beyond.linesASecond;
  frmLineFrequency window(services_.host, rate);
  window.ShowModal();
  if (!window.Accepted()) return false;
  road.definition->dblLineFrequency = rate = window.LinesASecond();
  return true;
}

bool LogFiles::LoadAs(const std::string& path, LogRoad road, Bytes bytes) {
  mainWindow_.HideForLoad();  // the items of the log that is open go with its definition
  if (road.definition)
    definition_.UseDefinitionOfLog(std::move(*road.definition));
  else
    definition_.UseDefinitionOfSettings();
  globals_.takenAs = road.takenAs;
  if (!LoadNow(path, road.fileType, std::move(bytes))) return false;
  status_.Say("Loading complete: " + road.takenAs + WithLead(". Time: ", road.notes));
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
  auto bytes = ReadText(services_.files, path);
  if (!bytes) {
    services_.messages.ShowMessage(Message::FileNotLoaded);
    return false;
  }
  frmLogDescription window(services_.host, std::move(*bytes), path, roads_.Titles(),
                           globals_.catalogue.gcolFixedDataItems);
  window.ShowModal();
  if (!window.Accepted()) return false;
  clsDataLog definition = window.Definition();
  KeepDefinition("", definition);
  return LoadAs(path, RoadBy(std::move(definition)), std::nullopt);
}

/// Over the log that is open where that is a Universal one, else over one to be chosen.
void LogFiles::mnuFileEditDefinition_Click() {
  if (!SaveChangesPrompt()) return;
  Dialog dialog{.title = "Edit Definition",
                .filter = "Data Log Definitions (*.txt)|*.txt|All Files (*.*)|*.*",
                .initialPath = OrElse(globals_.settings.gstrGenericDefinitionFile,
                                      globals_.gstrProgramFolder)};
  if (!services_.host.Choose(dialog)) return;
  DefinitionFiles files(services_.files, services_.messages.Teller(), services_.errors,
                        globals_.catalogue.gcolFixedDataItems);
  const auto definition = files.LoadDataLogDefinition(dialog.path, false);
  if (!definition) return;
  Dialog log = OpenDialog();
  log.title = "Open a Log to See It On";
  log.filter = "All Files (*.*)|*.*";
  const OpenLog& open = globals_.log;
  if (open.gintCurrentFileType == kUniversalLog && open.gblnSamplesLoaded)
    log.path = open.gstrCurrentFile;
  else if (!services_.host.Choose(log))
    return;
  EditDefinition(dialog.path, *definition, log.path);
}

void LogFiles::EditDefinition(const std::string& file, const clsDataLog& definition,
                              const std::string& log) {
  auto bytes = ReadText(services_.files, log);
  if (!bytes) return services_.messages.ShowMessage(Message::FileNotLoaded);
  frmLogDescription window(services_.host, std::move(*bytes), log, roads_.Titles(),
                           globals_.catalogue.gcolFixedDataItems, &definition);
  window.ShowModal();
  if (!window.Accepted()) return;
  clsDataLog edited = window.Definition();
  const std::string kept = KeepDefinition(file, edited);
  if (!kept.empty() && kept == globals_.settings.gstrGenericDefinitionFile) {
    CloseDataLogFile();  // the items of the log that is open go with its definition
    definition_.LoadDataLogDefinitionLocal();
  }
  LoadAs(log, RoadBy(std::move(edited)), std::nullopt);
}

/// Writes a definition to its file, and says to which. One that came with the program, or has no
/// file yet, is kept where the next look at a log finds it. Empty: nowhere.
std::string LogFiles::KeepDefinition(const std::string& file, const clsDataLog& definition) {
  const bool shipped = !globals_.dataFolder.empty() && file.starts_with(globals_.dataFolder);
  std::string path = file;
  if (file.empty() || shipped) {
    if (globals_.gstrProgramFolder.empty()) return "";
    const std::string folder =
        AddBackslash(globals_.gstrProgramFolder + "Universal Data Log Formats");
    services_.files.MakeFolder(folder);
    path = folder + FileTitle(definition.strName) + ".txt";
  }
  if (services_.files.Write(path, DefinitionFileText(definition))) return path;
  services_.messages.ShowMessage(Message::SettingsNotWritten);
  return "";
}

/// The log that is open stays.
bool LogFiles::TellNothingLoads(const std::string& path, const LoadOutcome& outcome) {
  loading_.TellUniversalOutcome(path, outcome);
  services_.messages.ShowMessage(Message::TooFewRecords);
  status_.Say("Loading failed");
  return false;
}

}  // namespace tarnview
