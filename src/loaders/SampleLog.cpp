#include "loaders/SampleLog.h"

#include <algorithm>
#include <exception>
#include <new>

namespace tarnview {
namespace {

constexpr std::size_t kMostExpected = 1'000'000'000;
constexpr std::string_view kPreparing = "Preparing to load";

/// About fifty tellings of progress a load.
long LineStep(std::size_t lines) { return std::max(static_cast<long>(lines / 50), 1L); }

}  // namespace

void SampleLines::Tell() {
  context_.progress.Line(line_);
  nextTelling_ += lineStep_;
}

LoadOutcome LoadSampleLog(SampleLog& reader, std::string_view bytes, const LoadContext& context,
                          const SampleLogKind& kind) {
  OpenLog& log = context.log;
  context.progress.Stage(kPreparing);
  log.Clear(context.items, 0);

  LoadOutcome outcome;
  Message messageOfStage = kind.wrongFile;
  try {
    const std::size_t lines = bytes.size() / reader.ReadHeading();
    messageOfStage = Message::FileNotLoaded;
    const int expected = static_cast<int>(std::min(lines, kMostExpected));
    context.progress.Stage(kPreparing, expected);
    log.glngDataLog.Prepare(context.items.Count(), expected);
    reader.ReadSamples(LineStep(lines));
    log.gblnSamplesLoaded = log.glngDataLog.Rows() >= kind.fewestSamples;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception&) {
    outcome.messages.push_back(messageOfStage);
  }
  if (log.blnTooLong) outcome.messages.push_back(Message::LogTooLong);
  outcome.loaded = log.gblnSamplesLoaded;
  return outcome;
}

}  // namespace tarnview
