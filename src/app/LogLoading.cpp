#include "app/LogLoading.h"

#include <algorithm>
#include <new>

#include "base/TextFile.h"
#include "model/ConversionFiles.h"
#include "universal/UnknownColumns.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

/// A loader's progress in the status bar.
class StatusProgress : public LoadProgress {
 public:
  explicit StatusProgress(StatusArea& status) : status_(status) {}
  void Stage(std::string_view text, long expectedRows) override {
    status_.Say(std::string(text));
    if (expectedRows <= 0) return;
    expected_ = expectedRows;
    status_.ShowProgressInStatusBar(expectedRows);
  }
  void Line(long line) override {
    status_.Progress("Loading line " + std::to_string(line), std::min(line, expected_));
  }

 private:
  StatusArea& status_;
  long expected_ = 0;
};

}  // namespace

bool LogLoading::Load(const std::string& path, int fileType, std::optional<FileBytes> bytes) {
  globals_.log.Clear(definition_.ItemsOf(fileType), 0);
  const LoaderRow* loader = LoaderFor(fileType);
  if (!loader) {
    services_.messages.ShowMessage(Message::OddKindOfFile);
    return false;
  }
  if (bytes)
    SettleText(*bytes);
  else
    bytes = ReadText(services_.files, path);
  if (!bytes || !HasLines(*bytes)) {
    TellNotRead(path, bytes.has_value());
    return false;
  }
  saving_.FileOpened(fileType, *bytes);
  LoadConversionFiles();
  std::optional<LoadOutcome> outcome = Run(*loader, *bytes);
  if (!outcome) return false;
  if (!outcome->error.empty()) services_.messages.Tell(outcome->error, kBoxExclamation);
  if (fileType == kUniversalLog) NoteUniversalOutcome(path, *outcome);
  TellMessages(*outcome);
  return outcome->loaded;
}

/// Nothing: there was no memory for the log.
std::optional<LoadOutcome> LogLoading::Run(const LoaderRow& loader, std::string_view bytes) {
  OpenLog& log = globals_.log;
  const clsLogDataItems& items = definition_.ItemsOf(loader.fileType);
  StatusProgress progress(status_);
  try {
    return loader.load(bytes, {log, items, globals_.settings, globals_.tables, progress},
                       globals_.gclsDataLogDefinition);
  } catch (const std::bad_alloc&) {
    log.Clear(items, 0);
    services_.messages.Tell(kShortOfMemory, kBoxExclamation);
    return std::nullopt;
  }
}

void LogLoading::LoadConversionFiles() {
  ConversionFiles files(services_.files, services_.messages.Teller(), services_.errors);
  files.LoadAuxInputConvFile(globals_.tables, globals_.settings.gstrAuxInputConversionFile);
  files.LoadO2ConvFile(globals_.tables, globals_.settings.gstrO2InputConversionFile);
}

/// Writes the report of unknown columns, which the message about a log with no known one offers to
/// open, and logs the faults.
void LogLoading::NoteUniversalOutcome(const std::string& path, LoadOutcome& outcome) {
  std::string report;
  if (!outcome.unknownColumns.empty() && !globals_.gstrProgramFolder.empty())
    report = WriteUnknownUniversalColumns(
        services_.files, services_.clock.Now(), globals_.gstrProgramFolder,
        globals_.settings.gstrGenericDefinitionFile, path, outcome.unknownColumns);
  if (outcome.loaded) return;
  for (LoadMessage& message : outcome.messages) {
    services_.errors.LogError("modUniversal", "LoadGenericDataLog",
                              RuntimeError(-static_cast<int>(message.id), message.extra), false);
    if (message.id != Message::NoColumnsRecognised || report.empty()) continue;
    message.extra += "\r\n\r\nThe columns are listed in the report:\r\n" + report;
    message.report = report;
  }
}

void LogLoading::TellUniversalOutcome(const std::string& path, LoadOutcome outcome) {
  NoteUniversalOutcome(path, outcome);
  TellMessages(outcome);
}

void LogLoading::TellMessages(const LoadOutcome& outcome) {
  for (const LoadMessage& message : outcome.messages) {
    if (message.report.empty())
      services_.messages.ShowMessage(message.id, false, message.extra);
    else
      services_.messages.ShowMessageWithOffer(
          message.id, message.extra, "&Open Report",
          [&programs = services_.programs, report = message.report] {
            programs.ShellOpen(report);
          });
  }
}

/// A file that is just not there needs no reason.
void LogLoading::TellNotRead(const std::string& path, bool read) {
  if (globals_.log.gintCurrentFileType == kMAPFile && !read) {
    services_.messages.Tell(UnreadFileError(services_.files, path), kBoxExclamation);
    return services_.messages.ShowMessage(Message::NotAMapFile);
  }
  std::string why = "It has a line of more than 16 MB.";
  if (!read) why = services_.files.WhyNotRead(path);
  if (!read && why != kTooLargeToRead && why != kNoMemoryToRead) why.clear();
  services_.messages.ShowMessage(Message::FileNotLoaded, false, why);
}

}  // namespace tarnview
