#include <gtest/gtest.h>

#include <QPrinter>

#include "desk/PageLayout.h"
#include "qt/TestApplication.h"
#include "qt/host/Printing.h"
#include "qt/host/QtHost.h"
#include "support/MemoryFileSystem.h"
#include "ui/Chart.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class PrintingTest : public ::testing::Test {
 protected:
  PrintingTest() {
    TestApplication();
    ChartDescription data;
    data.colours.systemBackdrop = true;
    std::get<Curves>(data.kind).series.push_back({3, "RPM", {0, 1, 2}, {0.1, 0.9, 0.4}, {}});
    data.x.max = 2;
    chart.SetData(data);
  }
  static QSize Wide(const Chart&) { return {1400, 700}; }

  QTemporaryDir folder;
  RealFileSystem disk;
  RecordingHost host;
  Form form{host, "frmAny", "Any"};
  Chart chart{form, "chAny"};
  const PrintJob job{"Page", [this](Page& page) {
                       const PageLayout layout =
                           LayOutPage(page, "Title", {{"File", "a.txt"}}, page.ShapeOf(chart));
                       for (const auto& text : layout.texts)
                         page.DrawText(text.text, text.points, text.left, text.top);
                       page.DrawPicture(chart, layout.picture);
                     }};
};

TEST_F(PrintingTest, APageOfAPrinterHasTitleAndChart) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  std::string error;
  const auto size = [&](const QString& name, const PrintJob& what) {
    printer.setOutputFileName(folder.filePath(name));
    EXPECT_TRUE(DrawPage(disk, what, printer, Wide, error)) << error;
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_EQ(bytes.count("/Type /Page\n"), 1) << "one page";
    return bytes.size();
  };
  const PrintJob empty{"Page", [](Page&) {}};
  EXPECT_GT(size("page.pdf", job), size("empty.pdf", empty) + 2000);
  printer.setOutputFileName(folder.filePath("none/page.pdf"));
  EXPECT_FALSE(DrawPage(disk, job, printer, Wide, error));
  EXPECT_NE(error.find("none/page.pdf"), std::string::npos);
}

TEST_F(PrintingTest, AFileInThePrintersPlaceIsWrittenWholeOrNotAtAll) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setOutputFileName("/paper/page.pdf");
  MemoryFileSystem memory;
  std::string error;
  EXPECT_TRUE(DrawPage(memory, job, printer, Wide, error)) << error;
  const std::string whole = memory.files["/paper/page.pdf"];
  EXPECT_EQ(whole.substr(0, 5), "%PDF-");
  EXPECT_NE(whole.find("MediaBox [0 0 842"), std::string::npos) << "the page as the printer has it";
  memory.failWrites = true;
  EXPECT_FALSE(DrawPage(memory, job, printer, Wide, error));
  EXPECT_NE(error.find("/paper/page.pdf"), std::string::npos);
  EXPECT_EQ(memory.files["/paper/page.pdf"], whole);
}

TEST_F(PrintingTest, ThePictureIsCopiedAsPixelsAndAsADrawing) {
  QtHost desktop;
  desktop.CopyPicture(chart);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(1400, 800));
  EXPECT_TRUE(copied->data("image/svg+xml").contains("RPM"));
}

}  // namespace
}  // namespace tarnview
