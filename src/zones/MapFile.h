#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "base/FileSystem.h"
#include "base/MessageTable.h"
#include "model/Settings.h"
#include "zones/ZoneMap.h"

namespace tarnview {

// A MAP file (.map): zone settings as text, 16 to a line of 64 characters, with their chip and
// notes. The data logging program writes such files too, with another layout around the zones.

/// What came of reading a MAP file.
struct MapReading {
  bool read = false;  ///< 15 lines of zones or more were there; without, the rest says nothing
  ZoneMap map;        ///< with 15 lines, z800 to z875 are 0
  std::string
      error;  ///< "9, Subscript out of range", to be shown with an exclamation icon; or empty
  std::vector<Message> messages;  ///< about defaults that were assumed, to be shown after the error
};

/// Any bytes are a map or none; never throws. `quiet` keeps the messages back.
MapReading ParseMap(std::string_view bytes, const Settings& settings, bool quiet);
/// Number and text of the failure to read a file.
std::string UnreadFileError(FileSystem& disk, const std::string& path);
/// A file that cannot be read is none, with an error.
MapReading ReadMapFile(FileSystem& disk, const std::string& path, const Settings& settings,
                       bool quiet);

/// The text of a MAP file. A zone that is not known, any negative value, is written as -1.
std::string MapText(const ZoneMap& map, const Moment& now);
/// False where the file could not be written; the old one is whole then.
bool WriteMapFile(FileSystem& disk, const std::string& path, const ZoneMap& map, const Moment& now);

}  // namespace tarnview
