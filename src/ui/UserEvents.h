#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <string>

namespace tarnview {

/// The one road of what a user does (a click, a key, a file dropped, a timer) into the windows, for
/// every desktop. An error that nothing else has ended is told to `Failed` and ends here; while one
/// event is at work, others can wait.
class UserEvents {
 public:
  using Event = std::function<void()>;

  /// Told of an error, with the window's class and what was done in it ("cmdDrawGraph_click").
  /// Unset: it ends unheard.
  std::function<void(const std::string& module, const std::string& procedure,
                     const std::exception& error)>
      Failed;

  /// Runs it now, also within another. False: it failed. What a script cannot do (CannotDo) goes on
  /// to the script.
  bool Run(const std::string& module, const std::string& procedure, const Event& event);
  /// Runs it now, or as soon as the event at work has ended: for what must not come in between (a
  /// file dropped, a window closed).
  void RunWhenFree(const std::string& module, const std::string& procedure, Event event);
  /// An event is at work: input waits.
  bool Busy() const { return busy_; }

  /// While it lives, the event at work waits for the user (a box, a modal window), whose events run
  /// meanwhile.
  class Pause {
   public:
    explicit Pause(UserEvents& events);
    ~Pause();
    Pause(const Pause&) = delete;

   private:
    UserEvents& events_;
    bool wasBusy_;
    std::deque<Event> waited_;
  };

 private:
  void RunWaiting();

  bool busy_ = false;
  std::deque<Event> waiting_;
};

}  // namespace tarnview
