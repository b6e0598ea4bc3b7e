#pragma once

#include <string>
#include <vector>

#include "model/Catalogue.h"
#include "support/Table.h"
#include "universal/BuiltInTitles.h"
#include "universal/TitleDictionary.h"

namespace tarnview {

/// The data items that every program has.
inline const clsLogDataItems& BuiltInItems() {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  return catalogue.gcolFixedDataItems;
}

inline const TitleDictionary& BuiltInDictionary() {
  static const TitleDictionary dictionary(BuiltInTitles());
  return dictionary;
}

/// The text of a small definition of comma-separated logs: extra lines of the header, columns of
/// "key=value" lines and what follows them. Lines end in LF.
struct DefinitionText {
  std::string header;
  std::vector<std::string> columns;
  std::string behind;

  std::string Text() const {
    std::string text =
        "[DATALOGDEFINITION]\nNAME=Test "
        "Logs\nFILEEXTENSION=csv\nDELIMITERASCIICHARACTER=44\nDATALINESBEFORE=1\n" +
        header;
    for (const std::string& column : columns) text += "[COLUMN]\n" + column;
    return text + behind + "\n";
  }
};

/// The text of a definition's file, a line for each block.
inline std::string BlockLines(const std::string& file) {
  return Join(SplitAt(Join(SplitAt(file, "\r\n"), "; "), "; ["), "\n[");
}

/// The lines of a column that are mandatory, and more.
inline std::string ColumnText(const std::string& title, int item, int places = 0,
                              const std::string& more = "", int type = 1) {
  return "NAME=" + title + "\nDESCRIPTION=About " + title + "\nCOLUMNTITLE=" + title +
         "\nDATAITEMID=" + std::to_string(item) + "\nTYPE=" + std::to_string(type) +
         "\nCOLUMNDECIMALPLACES=" + std::to_string(places) + "\n" + more;
}

}  // namespace tarnview
