#pragma once

#include <optional>
#include <string>

#include "ecu/EcuWorld.h"
#include "ecu/UploadOptions.h"
#include "ecu/frmUpload.h"
#include "zones/ZoneMap.h"
#include "zones/ZoneSheet.h"

namespace tarnview {

/// What the zone editor hands over.
struct ZonesToUpload {
  double dblEngineSize = 0;  ///< as it stands in the form
  Date datChipDate = kNoDate;
  ZoneSettings zones{};  ///< rebuilt from the form for the chip that the user owns
};

/// The sheet that the editor shows, made ready for the chip that the user owns. `source` is the map
/// that was opened.
ZonesToUpload ZonesOfSheet(const ZoneSheet& sheet, const ZoneMap& source, const Settings& settings);

/// Which comparison, if any, a map is measured against.
struct Comparison {
  std::optional<ZoneSettings> zones;
  std::optional<Message> fault;  ///< why there is none although one was asked for
};

/// The map that is sent: of what is like the comparison, of what does not fit the chip and of the
/// default atmospheric pressure nothing. Its chip is the user's own, without a version.
ZoneMap MapToSend(const Settings& settings, const ZonesToUpload& form,
                  const Comparison& comparison);

/// Whether a file that is to be compared with fits the user's own chip; `loaded` is nothing where
/// it could not be read.
Comparison ComparisonOf(const Settings& settings, const std::optional<ZoneMap>& loaded);

/// Sends zone settings to the ECU. The form's zones stay as they are.
class Upload {
 public:
  /// What it needs of the rest of the program.
  struct Editor {
    virtual ~Editor() = default;
    virtual ComparisonChoices ChoicesForComparison() = 0;
    /// Loads a log's or MAP file's zones, with the progress window; what goes wrong is told.
    virtual std::optional<ZoneMap> LoadComparison(const std::string& path) = 0;
  };

  Upload(const EcuWorld& world, Editor& editor) : world_(world), editor_(editor) {}

  /// Each failure ends the run and has been told; one of the program itself lets the user try
  /// again.
  void Run(const ZonesToUpload& form);

 private:
  // The steps, in their order. False ends the run.
  bool HasUploader();
  bool IsOwnEngine();
  bool AskHow();
  bool MakeMap();
  bool WriteMap();
  bool Send();

  Comparison FindComparison();
  bool SendOnce();
  void KeepMap();

  EcuWorld world_;
  Editor& editor_;
  ZonesToUpload form_;
  UploadOptions options_;
  ZoneMap map_;
  std::string text_;   ///< of the map, as it goes out
  bool kept_ = false;  ///< a copy of it is in the folder of what was sent
};

}  // namespace tarnview
