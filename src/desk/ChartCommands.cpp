#include "desk/ChartCommands.h"

namespace tarnview {

std::vector<Command> ChartCommands(ChartOutput& output, const ChartItems& items,
                                   const ChartSource& source) {
  const auto copy = [&output, source] { output.Copy(source.chart); };
  const auto print = [&output, source] { output.Print(source.chart, source.details()); };
  const auto preview = [&output, source] { output.PrintPreview(source.chart, source.details()); };
  const auto save = [&output, source] { output.SavePictureAs(source.chart, source.file()); };
  return {
      {&items.copy, copy, source.drawn},
      {&items.rightClickCopy, copy, source.drawn},
      {&items.print, print, source.drawn},
      {&items.rightClickPrint, print, source.drawn},
      {&items.printPreview, preview, source.drawn},
      {&items.savePicture, save, source.drawn},
  };
}

}  // namespace tarnview
