#include "platform/pdf_pages.h"

#include <QBuffer>
#include <QDate>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

#include "output/save_file.h"
#include "platform/font_setup.h"
#include "platform/painter_canvas.h"

namespace pitchcraft {
namespace {

constexpr double kTwipsPerPoint = 20;

}  // namespace

void PaintPage(QPainter& painter, const PrintedPage& page, const TextMeter& meter, double unitsPerTwip) {
  PainterCanvas canvas(painter, {page.Paper.PrintableWidth(), page.Paper.PrintableHeight(), true}, meter,
                       unitsPerTwip);
  page.PlayOn(canvas);
}

QByteArray PdfOf(const PrintedPage& page, const TextMeter& meter, const std::string& title) {
  EnsureGui();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setCreator("Pitchcraft");
  writer.setTitle(QString::fromStdString(title));
  writer.setResolution(kTwipsPerInch);
  const QSizeF points(page.Paper.Width / kTwipsPerPoint, page.Paper.Height / kTwipsPerPoint);
  writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  {
    QPainter painter(&writer);
    painter.translate(page.Paper.Margin, page.Paper.Margin);
    PaintPage(painter, page, meter, 1);
  }
  return bytes;
}

void WritePdf(const PrintedPage& page, const TextMeter& meter, const std::string& title,
              const std::filesystem::path& file) {
  const QByteArray bytes = PdfOf(page, meter, title);
  SaveFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::string ShortDateOfToday() {
  return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

}  // namespace pitchcraft
