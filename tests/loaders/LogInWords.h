#pragma once

#include <map>

#include "LoadedLog.h"
#include "support/Table.h"

namespace tarnview {

/// A line, or many, in words: "9*a,b" nine of them, "a~9" cut to nine characters or made as long by
/// more of its last one; bars stand for tabs.
inline std::string LinesInWords(std::string line, const std::map<std::string, std::string>& names) {
  const auto times = line.find_first_not_of("0123456789");
  const bool many = times > 0 && times != std::string::npos && line[times] == '*';
  const int count = many ? StringToLong(line.substr(0, times)) : 1;
  if (many) line.erase(0, times + 1);
  const auto parts = SplitAt(line, "~");
  const auto name = names.find(parts[0]);
  if (name != names.end() && name->second.ends_with('\n'))
    return Repeated("", name->second, count, "");
  line = name == names.end() ? parts[0] : name->second;
  if (parts.size() > 1) line.resize(std::stoul(parts[1]), line.empty() ? ' ' : line.back());
  std::replace(line.begin(), line.end(), '|', '\t');
  return Repeated("", line, count);
}

/// What comes of a log in words: its lines, some by their names, and the settings that count
/// ("plot from 70", "98 kPa", "10 Hz", "silent"); "CRLF" and "no end" are how its lines end.
/// "?RPM" asks for the cells of a column, `more` for more.
inline std::string TellOfLog(LoadedLog::Loader load, std::vector<std::string> words,
                             const std::map<std::string, std::string>& names = {},
                             std::string (*more)(const LoadedLog&) = nullptr) {
  Settings settings;
  std::string text;
  std::vector<std::string> asked;
  for (const std::string& word : words) {
    if (word.starts_with("?"))
      asked.push_back(word.substr(1));
    else if (word.starts_with("plot from "))
      settings.gintPlotFromTemperature = StringToLong(word.substr(10));
    else if (word.ends_with(" kPa"))
      settings.gintDefaultAtmosphericPressure = static_cast<int>(ValDouble(word));
    else if (word.ends_with(" Hz"))
      settings.gdblDataLogLineFrequency = ValDouble(word);
    else if (word == "silent")
      settings.gblnSilentDefaults = true;
    else if (word == "CRLF")
      text = Join(Split(text, '\n'), "\r\n");
    else if (word == "no end")
      text.pop_back();
    else
      text += LinesInWords(word, names);
  }
  const LoadedLog loaded(load, text, settings);
  std::string told = loaded.Outcome();
  for (const std::string& name : asked) told += ", " + name + " " + loaded.CellsOf(name);
  return more ? told + more(loaded) : told;
}

}  // namespace tarnview
