#pragma once

#include "ui/RecordingHost.h"

namespace tarnview {

/// The desktop of the command line: boxes are told on standard error as `message ID: TEXT` and
/// answered with their default button; a picture is drawn by the library that draws.
class ConsoleHost : public RecordingHost {
 public:
  Reply Ask(const Box& box) override;
  bool SavePicture(const Chart& chart, const std::string& path, std::string& error) override;
};

}  // namespace tarnview
