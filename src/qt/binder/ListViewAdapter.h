#pragma once

#include <QTreeWidget>

#include "qt/binder/Adapter.h"
#include "ui/ListView.h"

namespace tarnview {

class ListViewAdapter : public Adapter {
 public:
  ListViewAdapter(ListView& list, QTreeWidget& view, Binder& binder);

 protected:
  void ShowContent() override;
  void ShowSelection() override;

 private:
  void SetUpColumns();
  void ConnectUser();
  void ShowRow(int row);
  void SelectByUser(QTreeWidgetItem* item);
  /// From 1; 0 for no item.
  int RowOf(QTreeWidgetItem* item) const {
    if (item) return view_.indexOfTopLevelItem(item) + 1;
    return 0;
  }

  ListView& list_;
  QTreeWidget& view_;
  /// The row that the click now going on has selected already.
  QTreeWidgetItem* justSelected_ = nullptr;
  QFont digits_;
  bool chips_ = false;  ///< rows show the colours of their curves
};

}  // namespace tarnview
