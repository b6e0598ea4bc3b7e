#include "qt/host/Printing.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>

#include "qt/Text.h"

namespace tarnview {
namespace {

/// Pixels at which the preview shows all of its tools.
constexpr QSize kToolsAndPage(960, 720);

/// The file or the printer that did not print.
std::string Refusal(const QPrinter& printer) {
  if (!printer.outputFileName().isEmpty())
    return "Cannot write " + PathFromQt(printer.outputFileName());
  if (printer.printerName().isEmpty()) return "No printer is installed.";
  return "The printer does not answer: " + FromQt(printer.printerName());
}

bool Fill(const PrintJob& job, QPagedPaintDevice& paper, const SizeOfChart& sizeOf) {
  QCPPainter painter;
  if (!painter.begin(&paper)) return false;
  PaperPage page(painter, paper, sizeOf);
  job.fill(page);
  return painter.end();
}

/// What the preview asks for is drawn on its own pages, though the printer names a file.
bool GoesToFile(const QPrinter& printer) {
  return !printer.outputFileName().isEmpty() &&
         printer.paintEngine()->type() != QPaintEngine::Picture;
}

/// The toolkit's own printing into a file tells nothing of a disk that is full at the end.
bool FillFile(FileSystem& files, const PrintJob& job, const QPrinter& printer,
              const SizeOfChart& sizeOf) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setTitle(printer.docName());
  pdf.setResolution(printer.resolution());
  pdf.setPageLayout(printer.pageLayout());
  return Fill(job, pdf, sizeOf) &&
         files.Write(PathFromQt(printer.outputFileName()), bytes.toStdString());
}

}  // namespace

bool DrawPage(FileSystem& files, const PrintJob& job, QPrinter& printer, const SizeOfChart& sizeOf,
              std::string& error) {
  bool drawn = false;
  if (GoesToFile(printer))
    drawn = FillFile(files, job, printer, sizeOf);
  else
    drawn = Fill(job, printer, sizeOf) && printer.printerState() != QPrinter::Error;
  if (!drawn) error = Refusal(printer);
  return drawn;
}

Printing::Printing(SizeOfChart sizeOf) : sizeOf_(std::move(sizeOf)) {}
Printing::~Printing() = default;

QPrinter& Printing::PrinterFor(const PrintJob& job) {
  // Made when it is wanted: to look for the printers takes its time.
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setDocName(ShownToQt(job.title));
  printer_->setFullPage(true);
  printer_->setCopyCount(1);
  return *printer_;
}

bool Printing::Print(const PrintJob& job, QWidget* parent, std::string& error) {
  error.clear();
  QPrinter& printer = PrinterFor(job);
  QPrintDialog box(&printer, parent);
  box.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
  return box.exec() == QDialog::Accepted && DrawPage(files_, job, printer, sizeOf_, error);
}

bool Printing::Preview(const PrintJob& job, QWidget* parent, std::string& error) {
  error.clear();
  QPrintPreviewDialog box(&PrinterFor(job), parent, Qt::Window);
  box.setWindowTitle(QObject::tr("Print Preview") + " - " + ShownToQt(job.title));
  const QSize screen = box.screen()->availableSize();
  box.resize((screen * 3 / 4).expandedTo(kToolsAndPage).boundedTo(screen));
  QObject::connect(&box, &QPrintPreviewDialog::paintRequested, [&](QPrinter* printer) {
    error.clear();
    DrawPage(files_, job, *printer, sizeOf_, error);
  });
  box.exec();
  return error.empty();
}

}  // namespace tarnview
