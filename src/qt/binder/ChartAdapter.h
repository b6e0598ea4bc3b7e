#pragma once

#include "qt/binder/Adapter.h"
#include "qt/chart/ChartWidget.h"
#include "ui/Chart.h"

namespace tarnview {

class ChartAdapter : public Adapter {
 public:
  ChartAdapter(Chart& chart, ChartWidget& view, Binder& binder)
      : Adapter(chart, &view, binder), chart_(chart), view_(view) {
    // A curve at place j owns the chart's series 2j + 1.
    connect(&view, &ChartWidget::PointClicked, this,
            [this](int place, int point) { chart_.SelectPoint(2 * place + 1, point); });
    connect(&view, &ChartWidget::RightClicked, this, [this] { chart_.RightClick(); });
  }

 protected:
  void ShowContent() override {
    view_.SetDescription(chart_.Data());
    ShowSelection();
  }
  void ShowSelection() override {
    view_.Select(chart_.SelectedSeries() < 1 ? -1 : (chart_.SelectedSeries() - 1) / 2, chart_.SelectedPoint());
  }

 private:
  Chart& chart_;
  ChartWidget& view_;
};

}  // namespace tarnview
