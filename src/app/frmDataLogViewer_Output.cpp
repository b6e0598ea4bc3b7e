// What the main window hands out of its graph: on paper, on the clipboard, as a picture.

#include "app/frmDataLogViewer.h"
#include "desk/ChartCommands.h"
#include "model/Column.h"

namespace tarnview {

std::vector<Command> frmDataLogViewer::OutputCommands() {
  const ChartItems items{
      mnuCopy,
      mnuRightClickCopy,
      mnuFilePrint,
      mnuRightClickPrint,
      mnuFilePrintPreview,
      mnuFileSavePicture,
  };
  return ChartCommands(
      output_, items,
      {chSampleGraph, [this] { return DetailsToPrint(); }, [this] { return log_.gstrCurrentFile; },
       [this] { return graph_.Drawn(); }});
}

PrintDetails frmDataLogViewer::DetailsToPrint() const {
  const auto text = [this](int item, std::int32_t index) {
    return log_.FormatDataItem(item, index);
  };
  const std::int32_t first = drawn_.lngPlotFirstIndex, last = drawn_.lngPlotLastIndex;
  return {
      " Sample Graph",
      {{"File", log_.gstrCurrentFile},
       {"Sample Range From", text(ItemOf(kSample), first) + " to " + text(ItemOf(kSample), last)},
       {"Time Range From",
        text(ItemOf(kSecs), first) + " secs to " + text(ItemOf(kSecs), last) + " secs"}}};
}

}  // namespace tarnview
