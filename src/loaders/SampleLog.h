#pragma once

#include <string_view>

#include "fields/TextLines.h"
#include "loaders/LoadContext.h"

namespace tarnview {

/// A log in which a line is a sample, as LoadSampleLog drives its reading.
class SampleLog {
 public:
  virtual ~SampleLog() = default;
  /// Reads what stands before the samples and gives the usual length of a line, at least 1. Throws
  /// where the file is of another kind.
  virtual std::size_t ReadHeading() = 0;
  /// `lineStep`: lines between two tellings of progress.
  virtual void ReadSamples(long lineStep) = 0;
};

struct SampleLogKind {
  Message wrongFile;  ///< the message where ReadHeading throws
  int fewestSamples = kFewestSamples;
};

/// Drops the log that was open, runs the reading and says what came of it.
LoadOutcome LoadSampleLog(SampleLog& reader, std::string_view bytes, const LoadContext& context,
                          const SampleLogKind& kind);

/// The lines of samples, one after the other, while there is room for samples; tells progress about
/// fifty times.
class SampleLines {
 public:
  SampleLines(TextLines lines, const LoadContext& context, long lineStep)
      : lines_(lines), context_(context), lineStep_(lineStep), nextTelling_(lineStep) {}

  /// False at the end of the file, or once the store is full.
  bool Next(std::string_view& line) {
    if (lines_.AtEnd()) return false;
    if (context_.log.glngDataLog.Rows() >= kMostSamples) {
      context_.log.blnTooLong = true;
      return false;
    }
    line = lines_.Next();
    if (++line_ == nextTelling_) Tell();
    return true;
  }

 private:
  void Tell();

  TextLines lines_;
  const LoadContext& context_;
  long line_ = 0;
  const long lineStep_;
  long nextTelling_;
};

}  // namespace tarnview
