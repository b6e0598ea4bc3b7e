#pragma once

#include <gtest/gtest.h>

#include "base/ErrorLog.h"
#include "desk/Messages.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/Story.h"

namespace tarnview {

/// What every window stands on: a desktop that records, a disk in memory, a clock that stands.
class DeskTest : public ::testing::Test {
 protected:
  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, "/car/error.log"};
  Messages messages{host, [](int) { return ""; }};
  Story story{host};
};

}  // namespace tarnview
