#include "qt/binder/ListViewAdapter.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>

#include "qt/Fonts.h"
#include "qt/Text.h"
#include "qt/icons/Icons.h"

namespace tarnview {
namespace {

bool AllNumbers(const std::vector<ListView::Column>& columns) {
  return std::all_of(columns.begin(), columns.end(),
                     [](const auto& column) { return column.rightAligned; });
}

QIcon IconOf(const ListView::Row& row, const QWidget& list, bool chips) {
  // In a list of chips a row without one keeps its place, so that the texts stand below each other.
  if (chips) {
    QColor colour;
    if (row.colour >= 0) colour = ColourToQt(row.colour);
    return ColourChip(colour, list.fontMetrics().ascent());
  }
  if (row.icon == 1) return TintedIcon("shown");
  if (row.icon == 2) return TintedIcon("hidden");
  return QIcon();
}

}  // namespace

ListViewAdapter::ListViewAdapter(ListView& list, QTreeWidget& view, Binder& binder)
    : Adapter(list, &view, binder), list_(list), view_(view), digits_(WithEvenDigits(view.font())) {
  view.setRootIsDecorated(false);
  view.setUniformRowHeights(true);
  view.setAllColumnsShowFocus(true);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  const int chip = view.fontMetrics().ascent();
  view.setIconSize(QSize(chip, chip));
  SetUpColumns();
  ConnectUser();
}

void ListViewAdapter::SetUpColumns() {
  const auto& columns = list_.Columns();
  QStringList headings;
  for (const auto& column : columns) headings << ToQt(column.heading);
  view_.setColumnCount(static_cast<int>(columns.size()));
  view_.setHeaderLabels(headings);
  QHeaderView& header = *view_.header();
  header.setSectionsClickable(true);
  const bool even = columns.size() <= 2 && AllNumbers(columns);
  header.setStretchLastSection(!even);
  header.setSectionResizeMode(even ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
  // Several columns of numbers stand together at the right, and the names before them take the
  // room.
  if (columns.size() > 2 && columns.back().rightAligned) {
    header.setStretchLastSection(false);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
  }
  for (int i = 0; i < static_cast<int>(columns.size()); ++i)
    if (columns[static_cast<std::size_t>(i)].rightAligned)
      view_.headerItem()->setTextAlignment(i, Qt::AlignRight | Qt::AlignVCenter);
}

void ListViewAdapter::ConnectUser() {
  OnUser(view_, &QTreeWidget::currentItemChanged, [this](QTreeWidgetItem* item) {
    justSelected_ = item;
    SelectByUser(item);
  });
  OnUser(view_, &QTreeWidget::itemClicked, [this](QTreeWidgetItem* item) {
    if (std::exchange(justSelected_, nullptr) != item) SelectByUser(item);
  });
  OnUser(view_, &QTreeWidget::itemDoubleClicked, [this](QTreeWidgetItem* item) {
    if (const int row = RowOf(item)) list_.DblClick(row);
  });
  OnUser(view_, &QTreeWidget::itemChanged, [this](QTreeWidgetItem* item, int column) {
    const int row = RowOf(item);
    if (column != 0 || row < 1 || row > list_.Count() || !list_.CheckBoxes) return;
    // The window may take the check back.
    MarkDirty(What::Content);
    list_.SetChecked(row, item->checkState(0) == Qt::Checked);
  });
  OnUser(*view_.header(), &QHeaderView::sectionClicked, [this](int section) {
    QHeaderView& header = *view_.header();
    const bool down = header.isSortIndicatorShown() && header.sortIndicatorSection() == section &&
                      header.sortIndicatorOrder() == Qt::AscendingOrder;
    header.setSortIndicatorShown(true);
    header.setSortIndicator(section, down ? Qt::DescendingOrder : Qt::AscendingOrder);
    list_.UserSorts(section + 1);
  });
}

void ListViewAdapter::SelectByUser(QTreeWidgetItem* item) {
  const int row = RowOf(item);
  if (row >= 1 && row <= list_.Count()) list_.UserSelects(row);
}

void ListViewAdapter::ShowContent() {
  const QSignalBlocker quiet(view_);
  if (view_.topLevelItemCount() != list_.Count()) {
    view_.clear();
    justSelected_ = nullptr;
    QList<QTreeWidgetItem*> items;
    for (int row = 1; row <= list_.Count(); ++row) items << new QTreeWidgetItem;
    view_.addTopLevelItems(items);
  }
  chips_ = std::any_of(list_.Rows().begin(), list_.Rows().end(),
                       [](const auto& row) { return row.colour >= 0; });
  for (int row = 1; row <= list_.Count(); ++row) ShowRow(row);
  ShowSelection();
}

void ListViewAdapter::ShowRow(int number) {
  const ListView::Row& row = list_.At(number);
  QTreeWidgetItem& item = *view_.topLevelItem(number - 1);
  for (int i = 0; i < static_cast<int>(row.texts.size()); ++i) {
    const QString text = ToQt(row.texts[static_cast<std::size_t>(i)]);
    if (item.text(i) != text) item.setText(i, text);
    if (list_.Columns()[static_cast<std::size_t>(i)].rightAligned &&
        !item.data(i, Qt::TextAlignmentRole).isValid()) {
      item.setTextAlignment(i, Qt::AlignRight | Qt::AlignVCenter);
      item.setFont(i, digits_);
    }
  }
  const QString tip = TipToQt(row.toolTip);
  if (item.toolTip(0) != tip) item.setToolTip(0, tip);
  // The picture is made anew only when it differs.
  const QVariant look = QVariantList{static_cast<qlonglong>(row.colour), row.icon, chips_};
  if (item.data(0, Qt::UserRole) != look) {
    item.setData(0, Qt::UserRole, look);
    item.setIcon(0, IconOf(row, view_, chips_));
  }
  if (list_.CheckBoxes) item.setCheckState(0, row.checked ? Qt::Checked : Qt::Unchecked);
}

void ListViewAdapter::ShowSelection() {
  QTreeWidgetItem* wanted = nullptr;
  if (list_.SelectedRow() > 0) wanted = view_.topLevelItem(list_.SelectedRow() - 1);
  if (wanted == view_.currentItem()) return;
  const QSignalBlocker quiet(view_);
  view_.setCurrentItem(wanted);
  if (wanted) view_.scrollToItem(wanted);
}

}  // namespace tarnview
