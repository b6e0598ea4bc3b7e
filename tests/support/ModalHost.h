#pragma once

#include <functional>

#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {

/// Works each modal window that opens by what is queued for it; one that is left open is closed.
class ModalHost : public RecordingHost {
 public:
  std::function<void(Form&)> work;

 protected:
  void RunModal(Form& form) override {
    if (work) work(form);
    if (form.IsShown()) form.Unload();
  }
};

}  // namespace tarnview
