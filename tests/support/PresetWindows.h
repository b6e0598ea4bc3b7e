#pragma once

#include <string>
#include <vector>

#include "samplegraph/PresetExchange.h"
#include "support/DeskTest.h"

namespace tarnview {

/// All that the windows of presets ask of a program.
class PresetWindowsTest : public DeskTest {
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

  FileKinds kinds = SetUpLogFamilies();
  Catalogue catalogue = BuildDataItemCatalogue();
  std::string folder = "/logs";
};

}  // namespace tarnview
