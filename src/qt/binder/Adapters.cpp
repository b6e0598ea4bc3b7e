#include "qt/binder/Adapters.h"

#include <type_traits>

#include "qt/binder/BarAdapters.h"
#include "qt/binder/ButtonAdapters.h"
#include "qt/binder/ChartAdapter.h"
#include "qt/binder/FrameAdapter.h"
#include "qt/binder/GridAdapter.h"
#include "qt/binder/ListViewAdapter.h"
#include "qt/binder/MenuAdapters.h"
#include "qt/binder/PictureAdapter.h"
#include "qt/binder/TabStripAdapter.h"
#include "qt/binder/TextAdapters.h"
#include "qt/binder/TimerAdapter.h"

namespace tarnview {
namespace {

using Maker = std::unique_ptr<Adapter> (*)(Control&, QObject*, Binder&);

template <class Kind, class View, class Adapting>
std::unique_ptr<Adapter> Pair(Control& control, QObject* view, Binder& binder) {
  auto* kind = dynamic_cast<Kind*>(&control);
  auto* shown = qobject_cast<View*>(view);
  if (kind && shown) return std::make_unique<Adapting>(*kind, *shown, binder);
  return nullptr;
}

template <class Kind, class Adapting>
std::unique_ptr<Adapter> Unseen(Control& control, QObject* view, Binder& binder) {
  auto* kind = dynamic_cast<Kind*>(&control);
  if (kind && !view) return std::make_unique<Adapting>(*kind, binder);
  return nullptr;
}

// The first row that fits serves.
constexpr Maker kPairs[] = {
    Pair<Label, QLabel, LabelAdapter>,
    Pair<Frame, QGroupBox, GroupBoxAdapter>,
    Pair<Frame, QWidget, FrameAdapter>,
    Pair<CommandButton, QAbstractButton, CommandButtonAdapter>,
    Pair<CommandButton, QAction, CommandActionAdapter>,
    Pair<CheckBox, QCheckBox, CheckBoxAdapter>,
    Pair<OptionButton, QRadioButton, OptionButtonAdapter>,
    Pair<TabStrip, QTabWidget, TabStripAdapter>,
    Pair<TextBox, QLineEdit, LineEditAdapter>,
    Pair<TextBox, QPlainTextEdit, TextEditAdapter>,
    Pair<ComboBox, QComboBox, ComboBoxAdapter>,
    Pair<ListBox, QListWidget, ListBoxAdapter>,
    Pair<ListView, QTreeWidget, ListViewAdapter>,
    Pair<Grid, GridWidget, GridAdapter>,
    Pair<UpDown, UpDownWidget, UpDownAdapter>,
    Pair<ScrollBar, QScrollBar, ScrollBarAdapter>,
    Pair<ProgressBar, QProgressBar, ProgressBarAdapter>,
    Pair<StatusBar, QStatusBar, StatusBarAdapter>,
    Pair<MenuItem, QMenu, MenuAdapter>,
    Pair<MenuItem, QAction, MenuActionAdapter>,
    Pair<MenuItem, QAbstractButton, MenuButtonAdapter>,
    Pair<Chart, ChartWidget, ChartAdapter>,
    Pair<Picture, PictureWidget, PictureAdapter>,
    Unseen<Timer, TimerAdapter>,
};

}  // namespace

std::unique_ptr<Adapter> MakeAdapter(Control& control, QObject* view, Binder& binder) {
  for (Maker maker : kPairs)
    if (auto adapter = maker(control, view, binder)) return adapter;
  return nullptr;
}

}  // namespace tarnview
