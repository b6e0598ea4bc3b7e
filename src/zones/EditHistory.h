#pragma once

#include <string>
#include <utility>
#include <vector>

#include "zones/ZoneSheet.h"

namespace tarnview {

/// The sheets of an editor from the opened one on, each behind a step with a name. Undo, redo and
/// "reset" are a choice among them.
class EditHistory {
 public:
  struct Step {
    std::string name;  ///< "Offset +3 on 12 fuel cells"
    ZoneSheet after;
  };

  explicit EditHistory(ZoneSheet opened) : opened_(std::move(opened)), now_(opened_) {}

  const ZoneSheet& Opened() const { return opened_; }
  const ZoneSheet& Now() const { return now_; }

  /// A sheet that is the same as now is no step. What was undone is gone then.
  bool Do(std::string name, ZoneSheet after) {
    if (after == now_) return false;
    steps_.resize(done_);
    now_ = after;
    steps_.push_back({std::move(name), std::move(after)});
    ++done_;
    return true;
  }
  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  void Undo() {
    if (CanUndo()) GoTo(done_ - 1);
  }
  void Redo() {
    if (CanRedo()) GoTo(done_ + 1);
  }
  /// The name of the step that Undo takes back; "" for none.
  std::string UndoName() const {
    if (CanUndo()) return steps_[done_ - 1].name;
    return "";
  }
  std::string RedoName() const {
    if (CanRedo()) return steps_[done_].name;
    return "";
  }

  const std::vector<Step>& Steps() const { return steps_; }
  std::size_t Done() const { return done_; }
  /// So many steps done, up to Steps().size().
  void GoTo(std::size_t done) {
    done_ = done;
    if (done == 0)
      now_ = opened_;
    else
      now_ = steps_[done - 1].after;
  }

 private:
  ZoneSheet opened_, now_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;
};

}  // namespace tarnview
