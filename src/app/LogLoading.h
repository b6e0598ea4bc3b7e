#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/DefinitionInUse.h"
#include "app/Globals.h"
#include "app/Loaders.h"
#include "app/MapSaving.h"
#include "desk/StatusArea.h"
#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads a file into the open log, shows how far it is, and tells what came of it.
class LogLoading {
 public:
  LogLoading(Globals& globals, Services& services, StatusArea& status,
             const DefinitionInUse& definition, MapSaving& saving)
      : globals_(globals),
        services_(services),
        status_(status),
        definition_(definition),
        saving_(saving) {}

  /// `bytes`: of the file, where it has been read. False: nothing was loaded, and the reason was
  /// told where there is one.
  bool Load(const std::string& path, int fileType, std::optional<FileBytes> bytes);
  /// Tells why a Universal log does not load that was only tried.
  void TellUniversalOutcome(const std::string& path, LoadOutcome outcome);
  /// The tables for auxiliary and oxygen inputs, as the settings name them now.
  void LoadConversionFiles();

 private:
  std::optional<LoadOutcome> Run(const LoaderRow& loader, std::string_view bytes);
  void TellNotRead(const std::string& path, bool read);
  void TellMessages(const LoadOutcome& outcome);
  void NoteUniversalOutcome(const std::string& path, LoadOutcome& outcome);

  Globals& globals_;
  Services& services_;
  StatusArea& status_;
  const DefinitionInUse& definition_;
  MapSaving& saving_;
};

}  // namespace tarnview
