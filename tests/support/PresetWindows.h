#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "samplegraph/PresetExchange.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/Story.h"

namespace tarnview {

/// All that the windows of presets ask of a program.
class PresetWindowsTest : public ::testing::Test {
 protected:
  PresetSurroundings Surroundings() {
    return {kinds.gcolLogFamilies, catalogue, folder, files, clock, errors, messages};
  }
  /// The ids of the boxes shown since the last call; a question is -1.
  std::vector<int> Boxes() {
    std::vector<int> ids;
    for (const Box& box : host.messages)
      ids.push_back(box.style & kBoxQuestion && box.style & kBoxYesNo ? -1 : box.id);
    host.messages.clear();
    return ids;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return ""; }};
  FileKinds kinds = SetUpLogFamilies();
  Catalogue catalogue = BuildDataItemCatalogue();
  std::string folder = "/logs";
  Story story{host};
};

}  // namespace tarnview
