#include "loaders/FMLinkLog.h"

#include <algorithm>
#include <exception>

#include "fields/TextLines.h"
#include "loaders/CalculatedData.h"
#include "loaders/FMLinkSamples.h"
#include "loaders/FMLinkZones.h"
#include "zones/ZoneDefaults.h"
#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

/// Rows to expect: lines of about 57 bytes, one of 17 a summary. A little high, so that the store
/// need not grow.
int ExpectedRows(std::size_t bytes) {
  constexpr double kBytesPerLine = 57;
  return static_cast<int>(std::min(static_cast<double>(bytes) / kBytesPerLine * 16 / 17, 1e9));
}

/// About fifty tellings of progress a load.
long LineStep(std::size_t bytes) { return std::max(static_cast<long>(bytes / 60 / 50), 1L); }

/// A load in stages; the stage that fails ends the reading and names the message.
class Load {
 public:
  Load(std::string_view bytes, const LoadContext& context)
      : bytes_(bytes), context_(context), log_(context.log), samples_(context), lines_(bytes) {}

  LoadOutcome Run(bool silent) {
    try {
      Read();
    } catch (const std::bad_alloc&) {
      throw;
    } catch (const std::exception&) {
      outcome_.messages.emplace_back(messageOfStage_);
    }
    End(silent);
    outcome_.loaded = log_.gblnSamplesLoaded || log_.gblnZonesLoaded || log_.gblnChangesLoaded;
    return outcome_;
  }

 private:
  void Read() {
    const int expected = ExpectedRows(bytes_.size());
    context_.progress.Stage("Preparing to load", expected);
    log_.Clear(context_.items, expected);
    if (!bytes_.starts_with("Sample")) throw RuntimeError(5, "Not an FM Link log");

    messageOfStage_ = Message::FileNotLoaded;
    log_.zones.zones.fill(-1);
    samples_.Read(lines_, LineStep(bytes_.size()));
    samples_.Finish();
    log_.gblnSamplesLoaded = log_.glngDataLog.Rows() >= kFewestSamples;

    messageOfStage_ = Message::ZonesNotLoaded;
    log_.zones.chip = samples_.Chip();
    ReadZoneSection(lines_, log_.zones.zones, context_.progress);
    log_.gblnZonesLoaded = true;

    messageOfStage_ = Message::ChangesNotLoaded;
    ReadChangesSection(lines_, log_.zones, context_.progress);
    log_.zones.original = log_.zones.zones;
    log_.gblnChangesLoaded = true;
  }

  /// Runs whatever came of the reading.
  void End(bool silent) {
    if (log_.gblnZonesLoaded) {
      const auto messages = ApplyZoneDefaults(log_.zones, context_.settings, silent);
      outcome_.messages.insert(outcome_.messages.end(), messages.begin(), messages.end());
    }
    samples_.FinishTags();
    log_.zones.gblnZoneLayout6 = IsNormallyAspirated(log_.zones.zones[zone::kFlags]);
    context_.progress.Stage("Generating calculated data...");
    GenerateCalculatedData(log_, context_.tables);
    if (log_.blnTooLong) outcome_.messages.emplace_back(Message::LogTooLong);
  }

  const std::string_view bytes_;
  const LoadContext& context_;
  OpenLog& log_;
  FMLinkSamples samples_;
  TextLines lines_;
  Message messageOfStage_ = Message::NotAnFMLinkLog;
  LoadOutcome outcome_;
};

}  // namespace

LoadOutcome LoadFMLinkLog(std::string_view bytes, const LoadContext& context, bool silent) {
  return Load(bytes, context).Run(silent);
}

}  // namespace tarnview
