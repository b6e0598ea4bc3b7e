#pragma once

#include <string>

namespace tarnview {

/// How the ECU tunes itself after an upload, in the order of the upload window's list.
enum class AutoTuneMode { None = 0, CoarseNoIdle = 1, FineNoIdle = 2, FineWithIdle = 3 };

/// What the user chose for an upload.
struct UploadOptions {
  bool blnPermanentlyStore = false;
  bool blnVerify = false;
  bool blnChangesOnly = false;
  bool blnVerbose = false;
  std::string strComparisonFile =
      {};  ///< what changes are measured against, where only changes are sent
  AutoTuneMode autoTune = AutoTuneMode::None;
};

}  // namespace tarnview
