#pragma once

#include "ui/RecordingHost.h"

namespace tarnview {

/// The desktop of the command line: boxes are told on standard error as `message ID: TEXT` and answered with their
/// default button.
class ConsoleHost : public RecordingHost {
 public:
  Reply Ask(const Box& box) override;
};

}  // namespace tarnview
