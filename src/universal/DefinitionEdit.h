#pragma once

#include <string>
#include <vector>

#include "universal/LogShape.h"
#include "universal/clsDataLog.h"

namespace tarnview {

// A definition that is there, shown over a log and changed by hand.

/// What a definition settles of a log's form. Which column the time is, only a log's titles tell.
ShapeChoices ChoicesOf(const clsDataLog& definition);
/// The column of the shape that the definition takes the time from, from 0; -1 for none.
int TimeColumnOf(const clsDataLog& definition, const LogShape& shape);
/// Makes the items of the shape those of the definition; a column that it does not read becomes
/// item 0.
void ShowColumnsOf(const clsDataLog& definition, LogShape& shape);

/// What a user has changed.
struct DefinitionEdits {
  std::string name;
  bool form = false;                 ///< how the text is read, or its time
  std::vector<std::size_t> columns;  ///< of the shape
};
/// The definition with its edits; all else of it stays, columns that this log lacks among it.
clsDataLog EditedDefinition(const clsDataLog& definition, const LogShape& shape,
                            const DefinitionEdits& edits);

}  // namespace tarnview
