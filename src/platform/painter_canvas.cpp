#include "platform/painter_canvas.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "drawing/colors.h"
#include "platform/font_setup.h"

namespace pitchcraft {
namespace {

constexpr double kHairlineTwips = 15;
constexpr double kPaperHairlineTwips = 6;  // 0.3 points: finer than the finest outline
constexpr double kHatchTwips = 90;
// A point beyond this many units is so far outside any picture that only its direction matters.
constexpr double kFarAway = 1e6;

QColor ToColor(DrawColor color) {
  const Rgb rgb = RgbOf(static_cast<std::uint32_t>(color));
  return {rgb.Red, rgb.Green, rgb.Blue};
}

QPointF ToPoint(CanvasPoint point) {
  return {std::clamp(point.X, -kFarAway, kFarAway), std::clamp(point.Y, -kFarAway, kFarAway)};
}

QRectF ToRect(CanvasPoint from, CanvasPoint to) { return {ToPoint(from), ToPoint(to)}; }

/// The angle, in degrees, at which the ray from the middle of the box through the point meets the ellipse.
double AngleOn(const QRectF& box, CanvasPoint point) {
  const double x = (point.X - box.center().x()) / (box.width() / 2);
  const double y = (box.center().y() - point.Y) / (box.height() / 2);
  return std::atan2(y, x) * kDegreesPerRadian;
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter, CanvasSize size, const TextMeter& meter, double unitsPerTwip,
                             double magnified)
    : Canvas(size, meter, unitsPerTwip),
      painter_(painter),
      font_(DrawingFont()),
      arialFamily_(font_.family()),
      devicePixel_(1 / painter.device()->devicePixelRatio()),
      hairline_((size.Printer ? kPaperHairlineTwips : kHairlineTwips) * unitsPerTwip / magnified) {
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PainterCanvas::doPen(const CanvasPen& pen) {
  const double width = std::max(pen.Width, hairline_);
  // A whole number of device pixels: the line's edges then fall between pixels and are not blurred.
  penWidth_ = std::max(1.0, std::round(width / devicePixel_)) * devicePixel_;
  QPen qtPen(ToColor(pen.Color), penWidth_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (!pen.Dashes.empty()) {
    QList<qreal> dashes;
    for (const double length : pen.Dashes) dashes.push_back(length / penWidth_);
    qtPen.setCapStyle(Qt::FlatCap);
    qtPen.setDashPattern(dashes);
  }
  painter_.setPen(qtPen);
}

/// The nearest place where an upright or level line of the current width covers whole device pixels.
double PainterCanvas::OnGrid(double coordinate) const {
  const double half = penWidth_ / devicePixel_ / 2;
  return (std::round(coordinate / devicePixel_ - half) + half) * devicePixel_;
}

void PainterCanvas::doLine(CanvasPoint from, CanvasPoint to) {
  if (!std::isfinite(from.X + from.Y + to.X + to.Y)) return;
  constexpr double kLevel = 1e-6;
  if (std::fabs(from.X - to.X) < kLevel) from.X = to.X = OnGrid(from.X);
  if (std::fabs(from.Y - to.Y) < kLevel) from.Y = to.Y = OnGrid(from.Y);
  painter_.drawLine(ToPoint(from), ToPoint(to));
}

void PainterCanvas::doText(const CanvasText& text) {
  if (text.Text.empty() || !std::isfinite(text.Origin.X + text.Origin.Y)) return;
  font_.setBold(text.Bold);
  font_.setItalic(text.Italic);
  const bool isArial = text.Font == "Arial";
  font_.setFamily(isArial ? arialFamily_ : QString::fromUtf8(text.Font.data(), qsizetype(text.Font.size())));
  const QTransform before = painter_.transform();
  const QPen pen = painter_.pen();
  painter_.setFont(font_);
  painter_.setPen(ToColor(text.Color));
  painter_.translate(ToPoint(text.Origin));
  if (text.Angle != 0) painter_.rotate(-text.Angle);
  // A font comes only in whole pixels; the scale brings it to the exact size.
  const double scale = text.Height * kEmPerCell / font_.pixelSize();
  painter_.scale(scale, scale);
  painter_.drawText(QPointF(0, 0), QString::fromUtf8(text.Text.data(), qsizetype(text.Text.size())));
  painter_.setTransform(before);
  painter_.setPen(pen);
}

void PainterCanvas::Fill(const QPainterPath& path, const DrawnBrush& brush) {
  constexpr int kOpen = 1;
  constexpr int kHatched = 2;
  if (brush.Style == kOpen) return;
  if (brush.Style == kHatched) return Hatch(path, ToColor(brush.Color));
  painter_.fillPath(path, ToColor(brush.Color));
}

// Drawn line by line: the toolkit's hatch pattern has a fixed size in device pixels.
void PainterCanvas::Hatch(const QPainterPath& path, const QColor& color) {
  const QRectF box = path.boundingRect();
  const double step = std::max(kHatchTwips * UnitsPerTwip(), (box.width() + box.height()) / 1000);
  painter_.save();
  painter_.setClipPath(path, Qt::IntersectClip);
  painter_.setPen(QPen(color, kHairlineTwips * UnitsPerTwip()));
  for (double x = box.left() - box.height(); x < box.right(); x += step) {
    painter_.drawLine(QPointF(x, box.top()), QPointF(x + box.height(), box.bottom()));
  }
  painter_.restore();
}

void PainterCanvas::doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) {
  QPolygonF polygon;
  polygon.reserve(qsizetype(points.size()));
  for (const CanvasPoint& point : points) polygon << ToPoint(point);
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addPolygon(polygon);
  path.closeSubpath();
  Fill(path, brush);
}

void PainterCanvas::doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) {
  QPainterPath path;
  path.addEllipse(ToRect(from, to));
  Fill(path, brush);
  painter_.strokePath(path, painter_.pen());
}

void PainterCanvas::doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) {
  const QRectF box = ToRect(from, to);
  if (box.width() <= 0 || box.height() <= 0) return;
  const double first = AngleOn(box, start);
  double sweep = AngleOn(box, end) - first;
  if (sweep <= 0) sweep += 360;
  QPainterPath path;
  path.arcMoveTo(box, first);
  path.arcTo(box, first, sweep);
  painter_.strokePath(path, painter_.pen());
}

void PainterCanvas::doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner,
                                const DrawnBrush& brush) {
  QRectF box = ToRect(from, to);
  QPainterPath path;
  if (corner.X == 0) {
    box = {QPointF(OnGrid(box.left()), OnGrid(box.top())),
           QPointF(OnGrid(box.right()), OnGrid(box.bottom()))};
    path.addRect(box);
  } else {
    path.addRoundedRect(box, corner.X / 2, corner.Y / 2);
  }
  Fill(path, brush);
  painter_.strokePath(path, painter_.pen());
}

}  // namespace pitchcraft
