#include "ui/UserEvents.h"

#include <utility>

#include "ui/Action.h"

namespace tarnview {
namespace {

/// Sets a flag for as long as it lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Raised() { flag_ = before_; }
  Raised(const Raised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

bool UserEvents::Run(const std::string& module, const std::string& procedure, const Event& event) {
  const bool first = !busy_;
  bool ended = true;
  try {
    const Raised busy(busy_);
    event();
  } catch (const CannotDo&) {
    throw;
  } catch (const std::exception& error) {
    ended = false;
    if (Failed) Failed(module, procedure, error);
  }
  if (first) RunWaiting();
  return ended;
}

void UserEvents::RunWhenFree(const std::string& module, const std::string& procedure, Event event) {
  if (!busy_) {
    Run(module, procedure, event);
    return;
  }
  waiting_.push_back(
      [this, module, procedure, later = std::move(event)] { Run(module, procedure, later); });
}

void UserEvents::RunWaiting() {
  while (!busy_ && !waiting_.empty()) {
    const Event next = std::move(waiting_.front());
    waiting_.pop_front();
    next();
  }
}

UserEvents::Pause::Pause(UserEvents& events)
    : events_(events),
      wasBusy_(std::exchange(events.busy_, false)),
      waited_(std::exchange(events.waiting_, std::deque<Event>())) {}

// What still waits in the window that closes runs with what waited before it.
UserEvents::Pause::~Pause() {
  events_.busy_ = wasBusy_;
  for (Event& event : events_.waiting_) waited_.push_back(std::move(event));
  events_.waiting_ = std::move(waited_);
}

}  // namespace tarnview
