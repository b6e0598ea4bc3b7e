#pragma once

#include <functional>
#include <vector>

#include "model/Catalogue.h"
#include "model/OpenLog.h"
#include "samplegraph/DrawnGraph.h"
#include "samplegraph/SampleListView.h"
#include "samplegraph/Selection.h"
#include "ui/Chart.h"
#include "ui/CheckBox.h"

namespace tarnview {

/// The list beside the Sample Graph: which items are plotted, and their values at the selected
/// sample.
class SampleDetails {
 public:
  struct Controls {
    ListView& lvwSampleDetails;
    CheckBox& chkShowCheckedOnly;
    Chart& chSampleGraph;
  };
  SampleDetails(const Controls& controls, const DrawnGraph& drawn, const Selection& selection,
                const OpenLog& log, const clsLogFamilies& families);

  /// The row of a curve was clicked: the curve's place among those drawn, from 0.
  std::function<void(int place)> CurveChosen;

  /// Fills the list for a file type, keeping the checks.
  void SetUpSampleGraphSampleListView(int lngFileType, const clsLogDataItems& items);
  /// Writes the values of a store index.
  void PopulateSampleListView(std::int32_t lngIndex) {
    tarnview::PopulateSampleListView(lngIndex, controls_.lvwSampleDetails, log_);
  }
  /// Those of the highlighted sample.
  void ShowHighlighted();
  void ClearValues() { PopulateSampleListView(-1); }
  /// Selects the row of an item, if it is on show.
  void SelectItem(int item);
  /// Selects the first row below the selected one, or else from the top, in whose name or tool tip
  /// the text stands, in any case; an empty text selects nothing.
  void FindItem(const std::string& text);

  /// Data items whose check is set, those of hidden rows too; in item order.
  std::vector<int> CheckedItems() const;
  void SetCheckedItems(const std::vector<int>& items);

 private:
  void chkShowCheckedOnly_Click();
  void lvwSampleDetails_ItemCheck(int row);
  void lvwSampleDetails_ItemClick(int row);
  void ListViewToggleCheckBox(int row);

  Controls controls_;
  const DrawnGraph& drawn_;
  const Selection& selection_;
  const OpenLog& log_;
  const clsLogFamilies& families_;
  const clsLogDataItems* items_ = nullptr;
  int fileType_ = 0;
  CheckedKeys checked_;
};

}  // namespace tarnview
