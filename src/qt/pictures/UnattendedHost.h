#pragma once

#include "qt/host/QtHost.h"

namespace tarnview {

/// The desktop with nobody before it to press a button.
class UnattendedHost : public QtHost {
 public:
  Reply Ask(const Box& box) override { return box.DefaultReply(); }
  bool Choose(Dialog&) override { return false; }
};

}  // namespace tarnview
