#pragma once

#include "LoadedLog.h"

namespace tarnview {

/// A log of any loader, with the default tables.
struct LoadedSampleLog : LoadedLog {
  using Loader = LoadOutcome (*)(std::string_view bytes, const LoadContext& context);

  LoadedSampleLog(Loader load, std::string_view text, const Settings& itsSettings = {})
      : LoadedLog("", itsSettings) {
    log = {};
    progress = {};
    outcome = load(text, {log, catalogue.gcolFixedDataItems, settings, tables, progress});
  }
};

/// A file that is no log, or not enough of one, and the messages that say so.
struct BadLog {
  const char* what;
  std::string text;
  std::vector<int> messages;
};
inline void ExpectBad(LoadedSampleLog::Loader load, const std::vector<BadLog>& logs) {
  for (const BadLog& bad : logs) {
    const LoadedSampleLog loaded(load, bad.text);
    EXPECT_FALSE(loaded.outcome.loaded) << bad.what;
    EXPECT_FALSE(loaded.log.gblnSamplesLoaded) << bad.what;
    EXPECT_EQ(loaded.outcome.messages, bad.messages) << bad.what;
  }
}

/// Lines that are all alike, behind a heading.
inline std::string Repeated(std::string text, std::string_view line, int count) {
  text.reserve(text.size() + (line.size() + 1) * static_cast<std::size_t>(count));
  while (count-- > 0) text.append(line).append("\n");
  return text;
}

}  // namespace tarnview
