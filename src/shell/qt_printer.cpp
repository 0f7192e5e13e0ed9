#include "shell/qt_printer.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/number_text.h"
#include "core/run_time_error.h"
#include "drawing/arial_meter.h"
#include "platform/pdf_pages.h"
#include "shell/page_setup_dialog.h"

namespace pitchcraft {
namespace {

constexpr const char* kFilter = "PDF (*.pdf)|*.pdf|all files (*.*)|*.*";

QPageSize SizeOf(const Paper& paper) {
  return QPageSize(paper.Width == kA4Paper.Width ? QPageSize::A4 : QPageSize::Letter);
}

}  // namespace

QtPrinter::QtPrinter(Dialogs& dialogs) : dialogs_(dialogs) {}

/// Asking for the desktop's queues takes time that the start has not.
void QtPrinter::FindPrinter() {
  if (!chosen_) setup_.Printer = QPrinterInfo::defaultPrinterName();
  chosen_ = true;
}

void QtPrinter::ShowSetup() {
  FindPrinter();
  PageSetupDialog dialog(setup_, owner_);
  if (dialog.exec() == QDialog::Accepted) setup_ = dialog.Setup();
}

Paper QtPrinter::NextPaper(bool metric) {
  FindPrinter();
  const bool a4 = setup_.Paper == PageSetup::Size::kByUnits ? metric : setup_.Paper == PageSetup::Size::kA4;
  Paper paper = a4 ? kA4Paper : kLetterPaper;
  if (setup_.Printer.isEmpty()) return paper;
  QPrinter printer(QPrinterInfo::printerInfo(setup_.Printer));
  paper.Color = printer.colorMode() == QPrinter::Color;
  return paper;
}

void QtPrinter::Send(const PrintedPage& page, const std::string& name) {
  if (setup_.Printer.isEmpty()) {
    SendToFile(page, name);
  } else {
    SendToQueue(page, name);
  }
}

void QtPrinter::SendToFile(const PrintedPage& page, const std::string& name) {
  const auto answer = dialogs_.SaveFile({"Print to PDF", {}, name + ".pdf", "pdf", kFilter, false, true});
  const std::string path(Trimmed(answer.value_or("")));
  if (!path.empty()) WritePdf(page, ArialMeter(), name, path);
}

void QtPrinter::SendToQueue(const PrintedPage& page, const std::string& name) const {
  const QPrinterInfo queue = QPrinterInfo::printerInfo(setup_.Printer);
  if (queue.isNull()) throw RunTimeError::PrinterError();
  QPrinter printer(queue, QPrinter::HighResolution);
  printer.setDocName(QString::fromStdString(name));
  printer.setPageSize(SizeOf(page.Paper));
  printer.setPageOrientation(QPageLayout::Portrait);
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) throw RunTimeError::PrinterError();
  const double unitsPerTwip = static_cast<double>(printer.resolution()) / kTwipsPerInch;
  painter.translate(page.Paper.Margin * unitsPerTwip, page.Paper.Margin * unitsPerTwip);
  PaintPage(painter, page, ArialMeter(), unitsPerTwip);
  if (!painter.end() || printer.printerState() == QPrinter::Error) throw RunTimeError::PrinterError();
}

std::string QtPrinter::Today() { return ShortDateOfToday(); }

}  // namespace pitchcraft
