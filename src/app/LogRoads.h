#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/Globals.h"
#include "loaders/LoadContext.h"
#include "model/clsFileTypes.h"
#include "universal/LogShape.h"

namespace tarnview {

/// As what a file can be opened.
struct LogRoad {
  int fileType = kUnknownFile;
  std::string takenAs;  ///< "FM Link Data Log", "Universal: ME221", "Universal: by its shape"
  std::optional<clsDataLog>
      definition;              ///< of a Universal log, where that is not the one of the settings
  bool noRate = false;         ///< of a Universal log: it has no clock, and tells no lines a second
  std::string notes;           ///< what else was decided, such as the unit of its times
  int known = 0, columns = 0;  ///< of a Universal log: how many of its columns are

  bool KnowsHalf() const { return fileType != kUniversalLog || known * 2 >= columns; }
};

/// Looks at files whose kind is not sure. A look reads the beginning and the end of a text; nothing
/// is kept of it.
class LogRoads {
 public:
  LogRoads(const Globals& globals, FileSystem& files) : globals_(globals), files_(files) {}

  /// The head of a file loads as that type, or what became of it; `road` says how well. A Universal
  /// one by the definition of the settings.
  LoadOutcome TryAs(std::string_view bytes, int fileType, const clsDataLog& definition,
                    LogRoad& road) const;
  /// By the marks of the fixed layouts, by the definitions at hand, by its shape, in this order.
  /// Nothing: it is no log, or the path is one of the program's own kinds.
  std::optional<LogRoad> ByContent(std::string_view bytes, const std::string& path);

  /// The titles of the field, read from the program's folder of data when first asked for.
  const TitleDictionary& Titles();

 private:
  LoadOutcome Try(std::string_view bytes, int fileType, const clsDataLog& definition) const;
  std::optional<LogRoad> ByDefinitions(std::string_view head, const LogShape& shape);
  std::optional<clsDataLog> ReadDefinition(const std::string& path);
  std::optional<LogRoad> ByShape(std::string_view bytes, const LogShape& shape,
                                 const std::string& path);

  const Globals& globals_;
  FileSystem& files_;
  std::optional<TitleDictionary> titles_;
};

}  // namespace tarnview
