// A canvas that writes down what is drawn, one line for each shape: the golden traces are made with it.
#pragma once

#include <string>

#include "drawing/canvas.h"

namespace pitchcraft {

class TextTrace : public Canvas {
 public:
  /// With the map unchanged, the numbers are the drawing units of the recording.
  explicit TextTrace(const TextMeter& meter) : Canvas({}, meter) {}
  const std::string& Lines() const { return lines_; }

 private:
  void doPen(const CanvasPen& pen) override { pen_ = pen; }
  void doLine(CanvasPoint from, CanvasPoint to) override;
  void doText(const CanvasText& text) override;
  void doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) override;
  void doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) override;
  void doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) override;
  void doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) override;

  void Begin(const char* figure) { lines_ += figure; }
  void Add(CanvasPoint point);
  void Add(const char* name, double value);
  void EndWithPen();

  std::string lines_;
  CanvasPen pen_;
};

}  // namespace pitchcraft
