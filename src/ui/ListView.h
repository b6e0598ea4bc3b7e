#pragma once

#include <string>
#include <vector>

#include "ui/Control.h"

namespace tarnview {

/// A list of rows with columns, as a desktop's details list: check boxes, a tag per row, a heading
/// to sort by. Rows are numbered from 1; 0 stands for none.
class ListView : public Control {
 public:
  struct Column {
    std::string heading;
    bool rightAligned = false;
  };
  struct Row {
    std::vector<std::string> texts;  ///< the row's text, then its sub-items
    std::string tag;
    std::string toolTip;
    bool checked = false;
    int icon = 0;      ///< picture of the list's image list, from 1; 0 for none
    long colour = -1;  ///< 0xBBGGRR of the chip beside the text; -1 for none
  };

  ListView(Form& owner, std::string itsName, std::vector<Column> columns, bool checkBoxes = false);

  const bool CheckBoxes;
  Event<int> ItemCheck;    ///< a row's check changed, by hand or from code
  Event<int> ItemClick;    ///< a row was selected by hand
  Event<int> DblClick;     ///< a row was clicked twice
  Event<int> ColumnClick;  ///< a heading was clicked, from 1; the list has sorted itself already

  const std::vector<Column>& Columns() const { return columns_; }
  const std::vector<Row>& Rows() const { return rows_; }
  int Count() const { return static_cast<int>(rows_.size()); }
  const Row& At(int row) const { return rows_[static_cast<std::size_t>(row - 1)]; }

  void Clear();
  void SetRows(std::vector<Row> rows);
  void SetText(int row, int column, std::string text);  ///< column 0 is the row's text
  void SetChecked(int row, bool checked);
  int SelectedRow() const { return selected_; }
  void Select(int row);
  int RowOfTag(std::string_view tag) const;

  /// What a click on a row, its box or a heading does.
  void UserSelects(int row);
  void UserSorts(int column);

  std::string_view Kind() const override { return "list"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override;

 protected:
  void Perform(const Action& action) override;

 private:
  int RowOf(const Action& action) const;

  std::vector<Column> columns_;
  std::vector<Row> rows_;
  int selected_ = 0;
  int sortColumn_ = 0;
  bool sortDown_ = false;
};

}  // namespace tarnview
