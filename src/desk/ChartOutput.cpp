#include "desk/ChartOutput.h"

#include <algorithm>
#include <iterator>

#include "base/Paths.h"
#include "desk/PageLayout.h"
#include "desk/SaveDialog.h"

namespace tarnview {
namespace {

constexpr const char* kModule = "modPrinting";
/// The numbers of a printer that fails and of a file that cannot be written.
constexpr long kPrinterError = 482, kPathAccessError = 75;

constexpr const char* kPictureFilter =
    "PNG picture (*.png)|*.png|SVG drawing (*.svg)|*.svg|PDF page (*.pdf)|*.pdf";
constexpr const char* kEndings[] = {".png", ".svg", ".pdf"};  ///< in the filter's order

/// That of the chosen kind, where the user typed none.
void AddEnding(Dialog& dialog) {
  const int last = static_cast<int>(std::size(kEndings));
  if (GetExtension(dialog.path).empty())
    dialog.path += kEndings[std::clamp(dialog.filterIndex, 1, last) - 1];
}

}  // namespace

ChartOutput::ChartOutput(Host& host, Messages& messages, ErrorLog& errors)
    : host_(host), messages_(messages), errors_(errors) {}

void ChartOutput::Copy(const Chart& chart) { host_.CopyPicture(chart); }

void ChartOutput::Print(const Chart& chart, const PrintDetails& details) {
  std::string error;
  if (!host_.PrintPage(PageOf(chart, details), error))
    Fail("Print", "Problem printing the graph.", kPrinterError, error);
}

void ChartOutput::PrintPreview(const Chart& chart, const PrintDetails& details) {
  std::string error;
  if (!host_.PreviewPage(PageOf(chart, details), error))
    Fail("PrintPreview", "Problem printing the graph.", kPrinterError, error);
}

void ChartOutput::SavePictureAs(const Chart& chart, const std::string& strLogFile) {
  const std::string path = WithoutExtension(strLogFile) + kEndings[0];
  Dialog dialog{
      .title = "Save Picture As", .filter = kPictureFilter, .initialPath = path, .path = path};
  if (!ChooseFileToSave(host_, dialog, AddEnding)) return;
  std::string error;
  if (!host_.SavePicture(chart, dialog.path, error))
    Fail("SavePictureAs", "Problem saving the picture " + dialog.path + ".", kPathAccessError,
         error);
}

PrintJob ChartOutput::PageOf(const Chart& chart, const PrintDetails& details) const {
  const std::string title = kApplicationTitle + details.name;
  return {title, [&chart, rows = details.rows, title](Page& page) {
            const PageLayout layout = LayOutPage(page, title, rows, page.ShapeOf(chart));
            for (const PlacedText& text : layout.texts)
              page.DrawText(text.text, text.points, text.left, text.top);
            if (layout.picture.width > 0) page.DrawPicture(chart, layout.picture);
          }};
}

void ChartOutput::Fail(const char* procedure, const std::string& what, long number,
                       const std::string& error) {
  if (error.empty()) return;
  errors_.LogError(kModule, procedure, RuntimeError(number, error), false);
  messages_.Tell(what + "\r\n\r\n" + error, kBoxExclamation);
}

}  // namespace tarnview
