#include "loaders/MapLoader.h"

#include "zones/MapFile.h"
#include "zones/ZoneFlags.h"

namespace tarnview {

LoadOutcome LoadMap(std::string_view bytes, const LoadContext& context) {
  context.progress.Stage("Preparing to load");
  context.log.Clear(context.items, 0);
  const MapReading reading = ParseMap(bytes, context.settings, false);
  LoadOutcome outcome;
  outcome.error = reading.error;
  outcome.loaded = reading.read;
  outcome.messages.assign(reading.messages.begin(), reading.messages.end());
  if (!reading.read) {
    outcome.messages.emplace_back(Message::NotAMapFile);
    return outcome;
  }
  SetMap(context.log.zones, reading.map);
  context.log.gblnZonesLoaded = true;
  context.log.zones.gblnZoneLayout6 = IsNormallyAspirated(reading.map.zones[zone::kFlags]);
  return outcome;
}

}  // namespace tarnview
