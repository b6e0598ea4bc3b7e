#pragma once

#include <algorithm>

#include "FuzzUniversal.h"
#include "base/Text.h"
#include "universal/BuiltInTitles.h"
#include "universal/DefinitionWriter.h"
#include "universal/LogShape.h"
#include "universal/ShapeDefinition.h"

namespace tarnview {

/// The bytes are a log of unknown shape: it is looked at, and loaded by the definition of what is
/// found. The text of that definition reads back.
inline int FuzzLogShape(const unsigned char* data, std::size_t size) {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  static const TitleDictionary titles{BuiltInTitles()};
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const LogShape shape = ReadLogShape(text, titles, catalogue.gcolFixedDataItems);
  if (shape.columns.empty()) return 0;
  const clsDataLog definition = DefinitionOfShape(shape, "Fuzz", "csv", 10);
  LoadThrough(definition, text);
  const std::string file = DefinitionFileText(definition);
  return FuzzDataLogDefinition(reinterpret_cast<const unsigned char*>(file.data()), file.size());
}

/// The bytes are a table of titles and, behind its first empty line, titles to look up.
inline int FuzzLogTitles(const unsigned char* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const TitleDictionary titles(text);
  std::string_view rest = text.substr(std::min(text.find("\n\n"), size)), line;
  while (TakeLine(rest, line)) titles.Find(line);
  return titles.Items().size() > size ? -1 : 0;
}

}  // namespace tarnview
