#pragma once

#include <QTimer>

#include "qt/binder/Adapter.h"
#include "ui/Timer.h"

namespace tarnview {

class TimerAdapter : public Adapter {
 public:
  TimerAdapter(Timer& timer, Binder& binder) : Adapter(timer, nullptr, binder), timer_(timer) {
    clock_.setInterval(timer.Interval);
    OnUser(clock_, &QTimer::timeout, [this] { timer_.Tick(); });
  }

 protected:
  void ShowState() override {
    if (timer_.Enabled() == clock_.isActive()) return;
    if (timer_.Enabled)
      clock_.start();
    else
      clock_.stop();
  }

 private:
  Timer& timer_;
  QTimer clock_;
};

}  // namespace tarnview
