// A canvas that draws nothing and only measures how far a drawing reaches.
#pragma once

#include <limits>

#include "drawing/canvas.h"

namespace pitchcraft {

class ExtentsCanvas : public Canvas {
 public:
  ExtentsCanvas(CanvasSize size, const TextMeter& meter, double unitsPerTwip = 1)
      : Canvas(size, meter, unitsPerTwip) {}

  /// True until something is drawn; the sides are then meaningless.
  bool Empty() const { return left_ > right_; }
  double Left() const { return left_; }
  double Top() const { return top_; }
  double Right() const { return right_; }
  double Bottom() const { return bottom_; }

 private:
  void doPen(const CanvasPen&) override {}
  void doLine(CanvasPoint from, CanvasPoint to) override;
  void doText(const CanvasText& text) override;
  void doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) override;
  void doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) override;
  void doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) override;
  void doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) override;
  void Include(CanvasPoint point);

  double left_ = std::numeric_limits<double>::infinity();
  double top_ = std::numeric_limits<double>::infinity();
  double right_ = -std::numeric_limits<double>::infinity();
  double bottom_ = -std::numeric_limits<double>::infinity();
};

}  // namespace pitchcraft
