#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zones/EditHistory.h"
#include "zones/ZoneMap.h"

namespace tarnview {

/// What an editor has done that no file holds yet, so that it outlives a crash: kept as one small
/// text, written anew at each step.
struct EditJournal {
  std::string file;  ///< path of what is edited
  int fileType = 0;
  ZoneMap source;  ///< what the editor was opened on
  EditHistory history{OpenSheet(source)};

  EditJournal(std::string itsFile, int itsFileType, ZoneMap itsSource)
      : file(std::move(itsFile)), fileType(itsFileType), source(std::move(itsSource)) {}
};

/// The steps that are done, of many the last 200; undone ones are left out.
std::string JournalText(const EditJournal& journal);
/// Nothing for a text that is no whole journal; any bytes.
std::optional<EditJournal> ReadJournal(std::string_view bytes);

}  // namespace tarnview
