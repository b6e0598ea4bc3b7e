#include "qt/host/Printing.h"

#include <qcustomplot.h>

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
  if (!printer.outputFileName().isEmpty()) return "Cannot write " + PathFromQt(printer.outputFileName());
  if (printer.printerName().isEmpty()) return "No printer is installed.";
  return "The printer does not answer: " + FromQt(printer.printerName());
}

}  // namespace

bool DrawPage(const PrintJob& job, QPrinter& printer, const SizeOfChart& sizeOf, std::string& error) {
  QCPPainter painter;
  if (painter.begin(&printer)) {
    PaperPage page(painter, printer, sizeOf);
    job.fill(page);
    if (painter.end() && printer.printerState() != QPrinter::Error) return true;
  }
  error = Refusal(printer);
  return false;
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
  return box.exec() == QDialog::Accepted && DrawPage(job, printer, sizeOf_, error);
}

bool Printing::Preview(const PrintJob& job, QWidget* parent, std::string& error) {
  error.clear();
  QPrintPreviewDialog box(&PrinterFor(job), parent, Qt::Window);
  box.setWindowTitle(QObject::tr("Print Preview") + " - " + ShownToQt(job.title));
  const QSize screen = box.screen()->availableSize();
  box.resize((screen * 3 / 4).expandedTo(kToolsAndPage).boundedTo(screen));
  QObject::connect(&box, &QPrintPreviewDialog::paintRequested, [&](QPrinter* printer) {
    error.clear();
    DrawPage(job, *printer, sizeOf_, error);
  });
  box.exec();
  return error.empty();
}

}  // namespace tarnview
