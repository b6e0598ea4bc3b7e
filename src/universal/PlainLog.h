#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "universal/PlainSteps.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// The text of a log as lines of plain fields: Windows-1252, no quotes, "." in numbers, one
/// delimiter between fields, as its definition says what it is. Where that has to be written anew
/// it is so a block of lines at a time, just before they are read: while they are at hand, and
/// without a second copy of the log.
class PlainLog {
 public:
  PlainLog(std::string_view bytes, const clsDataLog& definition);
  PlainLog(const PlainLog&) = delete;
  PlainLog& operator=(const PlainLog&) = delete;

  bool AtEnd() const { return rest_.empty(); }
  /// What is left of the block at hand: whole lines, which stay until something behind them is
  /// asked for.
  std::string_view Block() const { return rest_; }
  /// Passes over what Block gives.
  void NextBlock();
  /// Passes over up to so many lines; false if the log ends first.
  bool Skip(long lines);
  /// The line at hand, without its end.
  std::string_view Line() const;
  /// Back to the first line.
  void Restart();

  /// Bytes of the log.
  std::size_t Size() const { return bytes_.size(); }
  /// Of the whole log, by those at hand.
  double ExpectedLines() const;

 private:
  void ChooseSteps(const clsDataLog& definition);
  void Read();
  std::size_t EndOfBlock() const;

  std::string_view bytes_;
  PlainForm form_;
  std::vector<PlainStep> steps_;
  bool whole_;                       ///< it is one block
  char lineEnd_ = '\n';              ///< in the bytes
  std::size_t begin_ = 0, end_ = 0;  ///< of the block at hand, in the bytes
  std::string written_[2];           ///< by the steps, in turns
  std::string_view block_, rest_;
};

}  // namespace tarnview
