#pragma once

#include <utility>

namespace tarnview {

/// What asks the next draw to do more than it would.
class RedrawRequest {
 public:
  /// The next draw builds the graph even if nothing else has changed.
  void Force() { blnForceRedraw_ = true; }
  bool Forced() const { return blnForceRedraw_; }
  void Drawn() { blnForceRedraw_ = false; }

  /// The range's text has changed since the store rows were worked out from it.
  void RangeEdited() { blnRangeEdited_ = true; }
  /// Whether it has; the rows are worked out now.
  bool TakeRangeEdited() { return std::exchange(blnRangeEdited_, false); }

 private:
  bool blnForceRedraw_ = false;
  bool blnRangeEdited_ = true;
};

}  // namespace tarnview
