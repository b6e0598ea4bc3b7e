#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QScrollBar>
#include <QStatusBar>
#include <vector>

#include "qt/binder/Adapter.h"
#include "ui/ProgressBar.h"
#include "ui/ScrollBar.h"
#include "ui/StatusBar.h"

namespace tarnview {

class ScrollBarAdapter : public Adapter {
 public:
  ScrollBarAdapter(ScrollBar& bar, QScrollBar& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  ScrollBar& bar_;
  QScrollBar& view_;
};

class ProgressBarAdapter : public Adapter {
 public:
  ProgressBarAdapter(ProgressBar& bar, QProgressBar& view, Binder& binder)
      : Adapter(bar, &view, binder), bar_(bar), view_(view) {}

 protected:
  void ShowContent() override;

 private:
  ProgressBar& bar_;
  QProgressBar& view_;
};

/// The last of several panels stands at the right; a progress bar that the form puts into the bar
/// shares the second.
class StatusBarAdapter : public Adapter {
 public:
  StatusBarAdapter(StatusBar& bar, QStatusBar& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  StatusBar& bar_;
  std::vector<QLabel*> panels_;
};

}  // namespace tarnview
