#include "platform/picture_files.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <algorithm>
#include <cmath>

#include "core/run_time_error.h"
#include "document/document.h"
#include "drawing/colors.h"
#include "files/file_names.h"
#include "platform/font_setup.h"
#include "platform/painter_canvas.h"
#include "platform/pdf_pages.h"
#include "platform/svg_canvas.h"

namespace pitchcraft {
namespace {

constexpr int kPngWidth = 1600;
constexpr int kTallestPng = 16000;

// Keeps strokes from being cut off at the edge.
constexpr double kBorderTwips = 120;
const PlayArea kArea{0, 0, {}, {}, kBorderTwips};

using Outcome = std::optional<std::string>;

std::string TextOf(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

QByteArray PngOf(const Picture& picture) {
  EnsureGui();
  const double width = std::fabs(picture.Size.ScaleWidth);
  const double height = std::fabs(picture.Size.ScaleHeight);
  const double pixelsPerTwip = kPngWidth / width;
  const int rows =
      std::clamp(static_cast<int>(std::lround(std::min(height * pixelsPerTwip, 1e6))), 1, kTallestPng);
  QImage image(kPngWidth, rows, QImage::Format_RGB32);
  const Rgb ground = RgbOf(static_cast<std::uint32_t>(picture.Background));
  image.fill(QColor(ground.Red, ground.Green, ground.Blue));
  {
    QPainter painter(&image);
    PaintPicture(painter, picture, pixelsPerTwip);
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

QByteArray SvgOf(const Picture& picture) {
  SvgCanvas canvas(picture.Size, picture.Drawing.Meter());
  picture.Drawing.Play(canvas, kArea);
  return QByteArray::fromStdString(canvas.Document(picture.Background, picture.Title));
}

/// A page of the picture's own size, filled with its background.
QByteArray PdfOf(const Picture& picture) {
  PrintedPage page;
  page.Paper = {std::fabs(picture.Size.ScaleWidth), std::fabs(picture.Size.ScaleHeight), 0};
  const std::int32_t right = ToLong(page.Paper.Width);
  const std::int32_t bottom = ToLong(page.Paper.Height);
  page.Layers.push_back(
      {{FillOp{{{0, 0}, {right, 0}, {right, bottom}, {0, bottom}}, {picture.Background, 0}}}, {}});
  page.Layers.push_back({picture.Drawing.Finished(), picture.Drawing.FitInto(picture.Size, 1, kArea)});
  return PdfOf(page, picture.Drawing.Meter(), picture.Title);
}

struct FormatRow {
  const char* extension;
  PictureFormat format;
};
constexpr FormatRow kFormats[] = {
    {".png", PictureFormat::kPng},
    {".svg", PictureFormat::kSvg},
    {".pdf", PictureFormat::kPdf},
};

const FormatRow* FormatOf(const std::filesystem::path& file) {
  const std::string extension = ExtensionOf(file);
  for (const FormatRow& row : kFormats) {
    if (extension == row.extension) return &row;
  }
  return nullptr;
}

Outcome Save(const QByteArray& bytes, const std::filesystem::path& file) {
  QSaveFile target(QString::fromStdString(TextOf(file)));
  const bool done =
      target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size() && target.commit();
  if (done) return std::nullopt;
  return "The picture cannot be written to " + TextOf(file) + ": " + target.errorString().toStdString() + ".";
}

}  // namespace

Picture ShownPicture(const Document& document) {
  const Area area = document.FigureArea();
  return {document.Board().Recorder,
          {static_cast<double>(area.Width), static_cast<double>(area.Height), false},
          static_cast<DrawColor>(document.preferences.BackColor),
          document.window.Title};
}

QByteArray PictureBytes(const Picture& picture, PictureFormat format) {
  switch (format) {
    case PictureFormat::kPng: return PngOf(picture);
    case PictureFormat::kSvg: return SvgOf(picture);
    case PictureFormat::kPdf: break;
  }
  return PdfOf(picture);
}

void PaintPicture(QPainter& painter, const Picture& picture, double unitsPerTwip, double magnified) {
  PainterCanvas canvas(painter, picture.Size, picture.Drawing.Meter(), unitsPerTwip, magnified);
  picture.Drawing.Play(canvas, kArea);
}

std::optional<std::string> WritePicture(const Picture& picture, const std::filesystem::path& file) {
  const FormatRow* format = FormatOf(file);
  if (format == nullptr) {
    return "The format of " + TextOf(file) +
           " is not known: a drawing is written as .dxf, .wmf, .svg, .png or .pdf.";
  }
  if (!picture.Drawing.IsClosed()) return "There is no drawing to write.";
  if (picture.Size.ScaleWidth == 0 || picture.Size.ScaleHeight == 0) return "The picture has no size.";
  return Save(PictureBytes(picture, format->format), file);
}

}  // namespace pitchcraft
