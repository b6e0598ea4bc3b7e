#include "loaders/BenchmarkLog.h"

#include "base/RuntimeError.h"
#include "loaders/FMLinkZones.h"
#include "zones/ZoneDefaults.h"

namespace tarnview {
namespace {

constexpr std::string_view kSettingsLine = " ATM", kZoneSection = "Initial zone map";

/// Reading of what a benchmark wants; true once the zones are whole.
class Reader {
 public:
  Reader(std::string_view bytes, const std::function<void(long)>& lineRead)
      : lines_(bytes), lineRead_(lineRead) {}

  LoadedZones loaded;
  bool read = false;

  void Read() {
    while (!lines_.AtEnd() && !IsStop(lines_.Next())) Tell();
    if (lines_.Current() != kZoneSection) return;
    ReadBenchmarkSection(lines_, loaded.zones);
    read = true;
    while (!lines_.Current().starts_with(kSettingsLine) && !lines_.AtEnd()) {
      lines_.Next();
      Tell();
    }
    if (lines_.Current().starts_with(kSettingsLine)) ParseATMLine(lines_.Current(), loaded);
  }

 private:
  static bool IsStop(std::string_view line) {
    return line.starts_with(kSettingsLine) || line == kZoneSection;
  }
  void Tell() {
    constexpr long kLineEnd = 2;
    lineRead_(static_cast<long>(lines_.Current().size()) + kLineEnd);
  }

  TextLines lines_;
  const std::function<void(long)>& lineRead_;
};

}  // namespace

MapReading ReadBenchmarkLog(std::string_view bytes, const Settings& settings,
                            const std::function<void(long)>& lineRead) {
  MapReading reading;
  Reader reader(bytes, lineRead);
  try {
    reader.Read();
  } catch (const RuntimeError& error) {
    reading.error = std::to_string(error.number) + ", " + error.what();
  }
  reading.read = reader.read;
  if (!reading.read) return reading;
  reading.messages = ApplyZoneDefaults(reader.loaded, settings, false);
  reading.map = MapOf(reader.loaded);
  return reading;
}

}  // namespace tarnview
