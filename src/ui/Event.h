#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace tarnview {

/// What a control raises. "=" sets the one handler that a window has for it, "+=" adds a listener
/// beside it.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event& operator=(Handler handler) {
    handlers_.clear();
    handlers_.push_back(std::move(handler));
    return *this;
  }
  Event& operator+=(Handler handler) {
    handlers_.push_back(std::move(handler));
    return *this;
  }
  /// Somebody handles it.
  bool Heard() const { return !handlers_.empty(); }
  void operator()(Args... args) const {
    // A copy of the list, since a handler may end the window that owns this event.
    const auto handlers = handlers_;
    for (const auto& handler : handlers) handler(args...);
  }

 private:
  std::vector<Handler> handlers_;
};

}  // namespace tarnview
