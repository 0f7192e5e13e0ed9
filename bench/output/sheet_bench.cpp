// A print as PDF, compared with the toolkit alone painting the same lines and texts: shows what the steps
// from the document to the print cost. Processor time, the best of several alternating rounds.
#include <time.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "document/actions.h"
#include "document/document.h"
#include "document/null_surroundings.h"
#include "document/print.h"
#include "document/session_ends.h"
#include "platform/font_setup.h"
#include "platform/pdf_pages.h"

namespace {

using namespace pitchcraft;

constexpr int kRounds = 30;
constexpr int kTwipsPerInch = 1440;

double ProcessorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

class KeepingPrinter final : public PrintService {
 public:
  void ShowSetup() override {}
  Paper NextPaper(bool) override { return kLetterPaper; }
  void Send(const PrintedPage& page, const std::string&) override { sheet = page; }
  std::string Today() override { return "11/21/26"; }
  PrintedPage sheet;
};

/// What is left to paint when everything is worked out.
struct BareLine {
  QPen Pen;
  QLineF Line;
};
struct BareText {
  QPointF At;
  double Angle;
  double Scale;
  bool Bold, Italic;
  QColor Color;
  QString Text;
};

/// A canvas that only notes what it would paint.
class NotingCanvas final : public Canvas {
 public:
  using Canvas::Canvas;
  std::vector<BareLine> lines;
  std::vector<BareText> texts;

 private:
  void doPen(const CanvasPen& pen) override {
    pen_ = QPen(QColor(pen.Color & 0xFF, (pen.Color >> 8) & 0xFF, (pen.Color >> 16) & 0xFF),
                std::max(6.0, pen.Width), pen.Dashes.empty() ? Qt::SolidLine : Qt::DashLine, Qt::FlatCap);
  }
  void doLine(CanvasPoint from, CanvasPoint to) override {
    lines.push_back({pen_, QLineF(from.X, from.Y, to.X, to.Y)});
  }
  void doText(const CanvasText& text) override {
    texts.push_back({QPointF(text.Origin.X, text.Origin.Y), text.Angle,
                     text.Height * kEmPerCell / DrawingFont().pixelSize(), text.Bold, text.Italic,
                     QColor(text.Color & 0xFF, (text.Color >> 8) & 0xFF, (text.Color >> 16) & 0xFF),
                     QString::fromUtf8(text.Text.data(), qsizetype(text.Text.size()))});
  }
  void doFill(std::span<const CanvasPoint>, const DrawnBrush&) override {}
  void doEllipse(CanvasPoint, CanvasPoint, const DrawnBrush&) override {}
  void doArc(CanvasPoint, CanvasPoint, CanvasPoint, CanvasPoint) override {}
  void doRectangle(CanvasPoint, CanvasPoint, CanvasPoint, const DrawnBrush&) override {}
  QPen pen_;
};

QByteArray BarePdf(const NotingCanvas& noted) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kTwipsPerInch);
  writer.setPageSize(QPageSize(QPageSize::Letter));
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.translate(720, 720);
  for (const BareLine& line : noted.lines) {
    painter.setPen(line.Pen);
    painter.drawLine(line.Line);
  }
  QFont font = DrawingFont();
  for (const BareText& text : noted.texts) {
    font.setBold(text.Bold);
    font.setItalic(text.Italic);
    painter.setFont(font);
    painter.setPen(text.Color);
    const QTransform before = painter.transform();
    painter.translate(text.At);
    painter.rotate(-text.Angle);
    painter.scale(text.Scale, text.Scale);
    painter.drawText(QPointF(0, 0), text.Text);
    painter.setTransform(before);
  }
  painter.end();
  return bytes;
}

}  // namespace

int main() {
  EnsureGui();
  NullSurroundings around;
  KeepingPrinter printer;
  Document document({around.dialogs, around.store, {}, &printer});
  Start(document);
  Actions actions(document);
  actions.Pick("cboType", "Hip");
  actions.Page("VSTab(0)", 2);
  PrintPageShown(document);

  const ArialMeter meter;
  NotingCanvas noted({kLetterPaper.Width, kLetterPaper.Height, true}, meter);
  printer.sheet.PlayOn(noted);
  double ours = 1e9;
  double bare = 1e9;
  qsizetype size = 0;
  qsizetype bareSize = 0;
  for (int round = 0; round < kRounds; ++round) {
    double start = ProcessorSeconds();
    PrintPageShown(document);
    size = PdfOf(printer.sheet, meter, "Bench").size();
    ours = std::min(ours, ProcessorSeconds() - start);
    start = ProcessorSeconds();
    bareSize = BarePdf(noted).size();
    bare = std::min(bare, ProcessorSeconds() - start);
  }
  std::printf("hip rafter's print: %zu lines, %zu texts\n", noted.lines.size(), noted.texts.size());
  std::printf("from the command to the PDF %7.2f ms, %lld bytes\n", ours * 1e3, static_cast<long long>(size));
  std::printf("the toolkit alone           %7.2f ms, %lld bytes\n", bare * 1e3,
              static_cast<long long>(bareSize));
  std::printf("ratio                       %7.2f\n", ours / bare);
  return 0;
}
