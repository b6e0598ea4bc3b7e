#include "presets/PresetFile.h"

#include "base/Text.h"

namespace tarnview {

std::string PresetFileText(const PresetFileLines& lines, const Moment& now,
                           const IniWriter& record) {
  return std::string(lines.banner) + "\r\nFile Created: " + LogTime(now) + "\r\n\r\n" +
         lines.details + "\r\n" + record.Text();
}

std::optional<IniTable> ReadPresetFile(const PresetFileLines& lines, std::string_view text) {
  std::string_view line;
  do {
    if (!TakeLine(text, line)) return std::nullopt;
  } while (line != lines.details);
  return ReadINIFileToArray(text);
}

}  // namespace tarnview
