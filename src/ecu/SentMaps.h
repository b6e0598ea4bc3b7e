#pragma once

#include <string>
#include <string_view>

#include "base/Clock.h"
#include "base/FileSystem.h"

namespace tarnview {

/// Keeps a copy of a map that goes to an engine, "TVW 2026-11-24 14-05-09.map" in the folder
/// "Uploads" of the working directory, so that it can always be found again; the last 50 stay.
/// False: it could not be written. Without a working directory nothing is kept.
bool KeepSentMap(FileSystem& files, const std::string& workingDirectory, std::string_view text,
                 const Moment& now);

}  // namespace tarnview
