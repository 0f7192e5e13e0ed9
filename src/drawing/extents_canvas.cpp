#include "drawing/extents_canvas.h"

#include <algorithm>
#include <cmath>

#include "core/angles.h"

namespace pitchcraft {

void ExtentsCanvas::Include(CanvasPoint point) {
  left_ = std::min(left_, point.X);
  right_ = std::max(right_, point.X);
  top_ = std::min(top_, point.Y);
  bottom_ = std::max(bottom_, point.Y);
}

void ExtentsCanvas::doLine(CanvasPoint from, CanvasPoint to) {
  Include(from);
  Include(to);
}

void ExtentsCanvas::doText(const CanvasText& text) {
  const double angle = text.Angle * kRadiansPerDegree;
  const double up = Map().ScaleY > 0 ? 1 : -1;
  for (const double along : {0.0, text.Width}) {
    for (const double across : {-kDescentPerCell * text.Height, kAscentPerCell * text.Height}) {
      Include({text.Origin.X + along * std::cos(angle) - across * std::sin(angle),
               text.Origin.Y + up * (along * std::sin(angle) + across * std::cos(angle))});
    }
  }
}

void ExtentsCanvas::doFill(std::span<const CanvasPoint> points, const DrawnBrush&) {
  for (const CanvasPoint& point : points) Include(point);
}

void ExtentsCanvas::doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush&) { doLine(from, to); }

void ExtentsCanvas::doArc(CanvasPoint from, CanvasPoint to, CanvasPoint, CanvasPoint) { doLine(from, to); }

void ExtentsCanvas::doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint, const DrawnBrush&) {
  doLine(from, to);
}

}  // namespace pitchcraft
