#include "loaders/TecLine.h"

namespace tarnview {

void CheckTecHeading(TextLines lines, std::size_t blankAt) {
  lines.Skip(1);
  const bool saysSeconds = lines.Next().starts_with("SECONDS");
  const std::string_view first = lines.Next();
  if (!saysSeconds || first.size() <= blankAt || first[blankAt - 1] != ' ') throw RuntimeError(5, "Not a Tec log");
}

TextLines FromFirstPoint(TextLines lines, std::size_t pointAt) {
  for (TextLines behind = lines; !behind.AtEnd(); lines = behind) {
    const std::string_view line = behind.Next();
    if (line.size() >= pointAt && line[pointAt - 1] == '.') break;
  }
  return lines;
}

}  // namespace tarnview
