// What the main window hands out of its graph: on paper, on the clipboard, as a picture.

#include "app/frmDataLogViewer.h"
#include "model/Column.h"

namespace tarnview {

std::vector<Command> frmDataLogViewer::OutputCommands() {
  const auto drawn = [this] { return graph_.Drawn(); };
  const auto copy = [this] { output_.Copy(chSampleGraph); };
  const auto print = [this] { output_.Print(chSampleGraph, DetailsToPrint()); };
  return {
      {&mnuCopy, copy, drawn},
      {&mnuRightClickCopy, copy, drawn},
      {&mnuFilePrint, print, drawn},
      {&mnuRightClickPrint, print, drawn},
      {&mnuFilePrintPreview, [this] { output_.PrintPreview(chSampleGraph, DetailsToPrint()); },
       drawn},
      {&mnuFileSavePicture, [this] { output_.SavePictureAs(chSampleGraph, log_.gstrCurrentFile); },
       drawn},
  };
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
