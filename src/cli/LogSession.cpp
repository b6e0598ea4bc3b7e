#include "cli/LogSession.h"

#include <algorithm>
#include <numeric>

#include "base/Numbers.h"
#include "base/ProgramFolder.h"
#include "base/Text.h"

namespace tarnview {
namespace {

/// "all", or item numbers with commas between them.
std::string CheckItems(const std::string& text) {
  if (text == "all") return "";
  for (const std::string& word : Split(text, ',')) {
    const bool whole = !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
    if (!whole) return "\"" + word + "\" is no data item's number; commas stand between them";
    const int number = StringToLong(word);
    if (number < 1) return "no data item has the number " + word;
  }
  if (text.empty() || text.ends_with(',')) return "a data item's number is missing";
  return "";
}

}  // namespace

std::string CheckNumber(const std::string& text) {
  if (IsNumeric(text)) return "";
  return "\"" + text + "\" is no number";
}

void LogOptions::AddTo(CLI::App& command) {
  AddOpeningTo(command, "LOG", "The log to open");
  command.add_option("--to", to, "Last Sample of the range")->check(CheckNumber);
}

void LogOptions::AddOpeningTo(CLI::App& command, const char* name, const char* description) {
  command.add_option(name, log, description)->required();
  command
      .add_option("--type", fileType,
                  "File type, 1 to 8, or auto: by the content; without it the type is guessed")
      ->check(CLI::IsMember({"1", "2", "3", "4", "5", "6", "7", "8", "auto"}));
  command
      .add_option("--settings", settings,
                  "Read this Tarnview.ini; without it every setting has its default")
      ->check(CLI::ExistingFile);
  command.add_option("--definition", definition,
                     "Read Universal logs through this definition file");
  command.add_option("--from", from, "First Sample of the range")->check(CheckNumber);
  command.add_option("--items", items, "Data item numbers with commas, or \"all\"")
      ->check(CheckItems);
}

std::string DataFolder(FileSystem& files) {
  for (const char* place : {"data/", "../share/tarnview/"})
    if (files.FolderExists(ProgramFolder() + place)) return ProgramFolder() + place;
  return "";
}

LogSession::LogSession(const LogOptions& options)
    : options_(options), program_(host_, files_, clock_, processes_, {}, options.settings) {
  program_.UseDefinition(options.definition);
  program_.Start("", false);
  program_.Global().dataFolder = DataFolder(files_);
}

bool LogSession::Open() {
  if (files_.FileExists(options_.log)) {
    if (options_.fileType == "auto") return Window().Files().OpenByContent(options_.log);
    return Window().LoadDataFile(options_.log, StringToLong(options_.fileType));
  }
  TellMessage(Message::FileNotLoaded);
  return false;
}

void LogSession::EnterRange() {
  if (options_.from) Window().PlotRangeFrom.Do({"type", {*options_.from}});
  if (options_.to) Window().PlotRangeTo.Do({"type", {*options_.to}});
}

std::vector<int> LogSession::Items(bool allByDefault) const {
  const clsLogDataItems* items = program_.Global().log.gcolDataItems;
  int count = kColumnCount;
  if (items) count = items->Count();
  std::vector<int> numbers;
  if (options_.items == "all" || (options_.items.empty() && allByDefault)) {
    numbers.resize(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
  }
  for (const std::string& word : Split(options_.items, ',')) {
    const int number = StringToLong(word);
    if (number > count)
      throw CLI::ValidationError("--items", "no data item of this log has the number " + word);
    numbers.push_back(number);
  }
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

}  // namespace tarnview
