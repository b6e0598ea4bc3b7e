#include "cli/LogSession.h"

#include <algorithm>
#include <numeric>

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {}  // namespace

void LogOptions::AddTo(CLI::App& command) {
  command.add_option("LOG", log, "The log to open")->required();
  command.add_option("--type", fileType, "File type, 1 to 8; without it the type is guessed")->check(CLI::Range(1, 8));
  command.add_option("--settings", settings, "Read this Tarnview.ini; without it every setting has its default")
      ->check(CLI::ExistingFile);
  command.add_option("--definition", definition, "Read Universal logs through this definition file");
  command.add_option("--from", from, "First Sample of the range");
  command.add_option("--to", to, "Last Sample of the range");
  command.add_option("--items", items, "Data item numbers with commas, or \"all\"");
}

LogSession::LogSession(const LogOptions& options)
    : options_(options), program_(host_, files_, clock_, processes_, {}, options.settings) {
  program_.UseDefinition(options.definition);
  program_.Start("", false);
}

bool LogSession::Open() {
  if (files_.FileExists(options_.log)) return Window().LoadDataFile(options_.log, options_.fileType.value_or(0));
  Window().TellMessage(Message::FileNotLoaded);
  return false;
}

void LogSession::EnterRange() {
  if (options_.from) Window().PlotRangeFrom.Do({"type", {*options_.from}});
  if (options_.to) Window().PlotRangeTo.Do({"type", {*options_.to}});
}

std::vector<int> LogSession::Items(bool allByDefault) const {
  const clsLogDataItems* items = program_.Global().log.gcolDataItems;
  const int count = items ? items->Count() : kColumnCount;
  std::vector<int> numbers;
  if (options_.items == "all" || (options_.items.empty() && allByDefault)) {
    numbers.resize(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
  }
  for (const std::string& word : Split(options_.items, ',')) {
    const int number = StringToLong(word);
    if (number >= 1 && number <= count) numbers.push_back(number);
  }
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  return numbers;
}

}  // namespace tarnview
