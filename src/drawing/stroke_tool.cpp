#include "drawing/stroke_tool.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"
#include "core/run_time_error.h"
#include "drawing/drawing_recorder.h"

namespace pitchcraft {
namespace {

constexpr double kAxisX = 30;
constexpr double kAxisY = 90;
constexpr double kAxisZ = 330;

struct Offset {
  double X, Y;
};

Offset Polar(double degrees, double length) {
  const double angle = degrees * kRadiansPerDegree;
  return {length * std::cos(angle), length * std::sin(angle)};
}

/// A point of the model in the drawing: the sum of three polar offsets.
Offset Projected(double x, double y, double z) {
  const Offset a = Polar(kAxisX, x);
  const Offset b = Polar(kAxisY, y);
  const Offset c = Polar(kAxisZ, z);
  return {a.X + b.X + c.X, a.Y + b.Y + c.Y};
}

DrawnPoint Rounded(double x, double y) { return {ToLong(x), ToLong(y)}; }

}  // namespace

void StrokeTool::SetCanvas(DrawingRecorder* canvas) {
  if (canvas == nullptr) throw RunTimeError(91, "Object variable or With block variable not set");
  canvas_ = canvas;
  hasCanvas_ = true;
}

DrawingRecorder& StrokeTool::Target() const {
  if (canvas_ == nullptr) throw RunTimeError(91, "Object variable or With block variable not set");
  return *canvas_;
}

int StrokeTool::CanvasKind() const { return hasCanvas_ ? Target().CanvasKind() : 0; }

void StrokeTool::Clear() {
  if (hasCanvas_) Target().Clear();
}

void StrokeTool::SetPenColor(DrawColor color) {
  pen_.Color = color;
  if (hasCanvas_) Target().Pen.Color = color;
}

void StrokeTool::SetDrawStyle(int style) {
  pen_.Style = style;
  if (hasCanvas_) Target().Pen.Style = style;
}

void StrokeTool::SetDrawWidth(int width) {
  pen_.Width = width;
  if (hasCanvas_) Target().Pen.Width = width;
}

void StrokeTool::SetFillColor(DrawColor color) {
  if (hasCanvas_) Target().Brush.Color = color;
  brush_.Color = color;
}

void StrokeTool::SetFillStyle(int style) {
  if (hasCanvas_) Target().Brush.Style = style;
  brush_.Style = style;
}

double StrokeTool::CurrentX() const { return hasCanvas_ ? Target().CurrentX() : 0; }
double StrokeTool::CurrentY() const { return hasCanvas_ ? Target().CurrentY() : 0; }

void StrokeTool::SetCurrentX(double x) {
  if (hasCanvas_) Target().SetCurrentX(EntryMode == 1 ? Target().CurrentX() + x : x);
}

void StrokeTool::SetCurrentY(double y) {
  if (hasCanvas_) Target().SetCurrentY(EntryMode == 1 ? Target().CurrentY() + y : y);
}

void StrokeTool::Report(double left, double top, double right, double bottom) const {
  if (BoundsChanged) BoundsChanged(left, top, right, bottom);
}

void StrokeTool::MoveToPoint(Single x, Single y) {
  if (!hasCanvas_) return;
  if (EntryMode == 1) {
    x += LastX;
    y += LastY;
  }
  Target().MoveTo(Rounded(x, y));
  LastX = x;
  LastY = y;
  Report(x, y, x, y);
}

/// Every line begins with a move of its own, so none depends on where the target's pen is.
void StrokeTool::Stroke(Single fromX, Single fromY, Single toX, Single toY) {
  const DrawnPoint from = Rounded(fromX, fromY);
  const DrawnPoint to = Rounded(toX, toY);
  LastX = toX;
  LastY = toY;
  Target().MoveTo(from);
  Target().LineTo(to);
  Report(fromX, fromY, toX, toY);
}

void StrokeTool::DrawLine(Single x, Single y) { DrawLine(x, y, std::nullopt, std::nullopt); }

void StrokeTool::DrawLine(Single x1, Single y1, std::optional<Single> x2, std::optional<Single> y2) {
  if (!hasCanvas_) return;
  const bool bothEnds = x2.has_value() && y2.has_value();
  const Single startX = bothEnds ? x1 : LastX;
  const Single startY = bothEnds ? y1 : LastY;
  Single endX = bothEnds ? *x2 : x1;
  Single endY = bothEnds ? *y2 : y1;
  if (EntryMode == 1) {
    endX += startX;
    endY += startY;
  }
  Stroke(startX, startY, endX, endY);
}

void StrokeTool::DrawPolarLine(double angle, double length, std::optional<Single> x,
                               std::optional<Single> y) {
  if (!hasCanvas_) return;
  const bool fromPoint = x.has_value() && y.has_value();
  const Single startX = fromPoint ? *x : LastX;
  const Single startY = fromPoint ? *y : LastY;
  const Offset offset = Polar(angle, length);
  Stroke(startX, startY, startX + offset.X, startY + offset.Y);
}

void StrokeTool::DrawLine3D(Single x, Single y, Single z, std::optional<Single> x2, std::optional<Single> y2,
                            std::optional<Single> z2) {
  if (!hasCanvas_) return;
  const Single startX = x2 ? x : LastX3D;
  const Single startY = y2 ? y : LastY3D;
  const Single startZ = z2 ? z : LastZ3D;
  const Single endX = x2.value_or(x);
  const Single endY = y2.value_or(y);
  const Single endZ = z2.value_or(z);
  const Offset end = Projected(endX, endY, endZ);
  if (EntryMode == 1) {
    Stroke(LastX, LastY, LastX + end.X, LastY + end.Y);
    LastX3D = endX + startX;
    LastY3D = endY + startY;
    LastZ3D = endZ + startZ;
    return;
  }
  const Offset start = Projected(startX, startY, startZ);
  Stroke(start.X, start.Y, end.X, end.Y);
  LastX3D = endX;
  LastY3D = endY;
  LastZ3D = endZ;
}

/// The polygon has one corner fewer than there are numbers: after the real corners it runs through the
/// origin, and the winding rule fills what this encloses.
void StrokeTool::DrawRegionFill(std::span<const Single> points) {
  if (!hasCanvas_ || points.empty()) return;
  const std::size_t corners = points.size() - 1;
  std::vector<DrawnPoint> polygon(points.size());
  for (std::size_t at = 0; at + 1 < points.size(); at += 2)
    polygon[at / 2] = Rounded(points[at], points[at + 1]);
  polygon.resize(corners);
  Target().FillPolygon(std::move(polygon), brush_);
}

void StrokeTool::DrawFill(Single x, Single y, DrawColor) {
  if (hasCanvas_) Target().MoveTo(Rounded(x, y));
}

void StrokeTool::DrawCircle(Single x, Single y, Single radius) { DrawEllipse(x, y, radius, radius); }

void StrokeTool::DrawEllipse(Single x, Single y, Single radiusX, Single radiusY) {
  if (EntryMode == 1) {
    x += LastX;
    y += LastY;
  }
  Target().Ellipse(Rounded(x - radiusX, y - radiusY), Rounded(x + radiusX, y + radiusY));
  LastX = x;
  LastY = y;
  Report(x - radiusX, y - radiusY, x + radiusX, y + radiusY);
}

void StrokeTool::DrawRectangle(Single x1, Single y1, Single x2, Single y2) { DrawBox(x1, y1, x2, y2, 0); }

void StrokeTool::DrawRoundedRectangle(Single x1, Single y1, Single x2, Single y2, Single corner) {
  DrawBox(x1, y1, x2, y2, corner);
}

void StrokeTool::DrawBox(Single x1, Single y1, Single x2, Single y2, Single corner) {
  if (!hasCanvas_) return;
  if (EntryMode == 1) {
    x1 += LastX;
    y1 += LastY;
    x2 += x1;
    y2 += y1;
  }
  Target().Rectangle(Rounded(x1, y1), Rounded(x2, y2), ToLong(corner));
  LastX = x2;
  LastY = y2;
  Report(x1, y1, x2, y2);
}

void StrokeTool::DrawPoint(Single x, Single y, Single size) {
  if (!hasCanvas_) return;
  const double half = size / 2;
  const bool relative = EntryMode == 1;
  const Single endX = relative ? double{size} : x + half;
  const Single endY = relative ? double{size} : y + half;
  DrawLine(x - half, y, endX, relative ? Single(0) : y);
  DrawLine(x, y - half, relative ? Single(0) : x, endY);
  Report(x - half, y - half, x + half, y + half);
}

void StrokeTool::DrawArc(Single x, Single y, Single radius, double startAngle, double endAngle,
                         Single aspect) {
  if (!hasCanvas_) return;
  const double halfWidth = aspect > 1 ? radius / aspect : double{radius};
  const double halfHeight = aspect > 1 ? double{radius} : radius * aspect;
  Target().Arc(Rounded(x - halfWidth, y - halfHeight), Rounded(x + halfWidth, y + halfHeight),
               Rounded(x + radius * std::cos(startAngle), y - radius * std::sin(startAngle)),
               Rounded(x + radius * std::cos(endAngle), y - radius * std::sin(endAngle)));
  LastX = x;
  LastY = y;
  Report(x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight);
}

}  // namespace pitchcraft
