#include "qt/binder/BarAdapters.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <algorithm>

#include "qt/Text.h"

namespace tarnview {

ScrollBarAdapter::ScrollBarAdapter(ScrollBar& bar, QScrollBar& view, Binder& binder)
    : Adapter(bar, &view, binder), bar_(bar), view_(view) {
  // The value of a thumb counts when it is let go.
  view.setTracking(false);
  OnUser(view, &QScrollBar::valueChanged, [this](int value) {
    MarkDirty(What::Content);
    bar_.Value = value;
  });
  connect(&view, &QScrollBar::sliderReleased, this, [this] { MarkDirty(What::Content); });
}

void ScrollBarAdapter::ShowContent() {
  // A thumb in the user's hand stays there; it is looked at again when it is let go.
  if (view_.isSliderDown()) return;
  const QSignalBlocker quiet(view_);
  const auto [low, high] = std::minmax(bar_.Min(), bar_.Max());
  view_.setRange(low, high);
  view_.setInvertedAppearance(bar_.Min() > bar_.Max());
  view_.setSingleStep(bar_.SmallChange);
  view_.setPageStep(bar_.LargeChange);
  view_.setValue(bar_.Value);
}

void ProgressBarAdapter::ShowContent() {
  // The toolkit counts in 32 bits.
  const long most = std::max(bar_.Max(), 1L);
  view_.setMaximum(1000);
  view_.setValue(
      static_cast<int>(1000.0 * static_cast<double>(bar_.Value()) / static_cast<double>(most)));
}

StatusBarAdapter::StatusBarAdapter(StatusBar& bar, QStatusBar& view, Binder& binder)
    : Adapter(bar, &view, binder), bar_(bar) {
  auto* progress = view.findChild<QProgressBar*>();
  if (progress) {
    // It comes and goes with each draw: the bar's height must not, since the graph above would be
    // drawn anew each time.
    QSizePolicy policy = progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    progress->setSizePolicy(policy);
  }
  for (int panel = 1; panel <= bar.Count(); ++panel) {
    auto* place = new QWidget(&view);
    auto* row = new QHBoxLayout(place);
    row->setContentsMargins(view.fontMetrics().averageCharWidth(), 0,
                            view.fontMetrics().averageCharWidth(), 0);
    panels_.push_back(new QLabel(place));
    panels_.back()->setTextFormat(Qt::PlainText);
    // A long text must not widen the window.
    panels_.back()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    if (panel > 1 && panel == bar.Count())
      panels_.back()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(panels_.back());
    if (panel == 2 && progress) row->addWidget(progress, 1);
    view.addWidget(place, panel == 2 ? 1 : 2);
  }
}

void StatusBarAdapter::ShowContent() {
  for (int panel = 1; panel <= bar_.Count(); ++panel)
    panels_[static_cast<std::size_t>(panel - 1)]->setText(ShownToQt(bar_.Panel(panel)));
}

}  // namespace tarnview
