#pragma once

#include <string_view>

namespace tarnview {

/// What a loader tells while it runs.
class LoadProgress {
 public:
  virtual ~LoadProgress() = default;
  /// A status text ("Preparing to load", "Loading zone settings"). `expectedRows` is the progress
  /// bar's maximum.
  virtual void Stage(std::string_view text, long expectedRows = 0) = 0;
  /// "Loading line n"; called about fifty times in a load.
  virtual void Line(long line) = 0;
};

/// Tells nobody.
class NoProgress : public LoadProgress {
 public:
  void Stage(std::string_view, long = 0) override {}
  void Line(long) override {}
};

}  // namespace tarnview
