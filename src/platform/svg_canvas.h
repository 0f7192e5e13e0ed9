// A canvas that writes a scalable picture, in which texts stay texts and lines stay lines.
#pragma once

#include <string>

#include "drawing/canvas.h"

namespace pitchcraft {

/// Needs no toolkit. The document's unit is a pixel of 15 twips.
class SvgCanvas : public Canvas {
 public:
  SvgCanvas(CanvasSize size, const TextMeter& meter);

  /// The whole document, on the given background.
  std::string Document(DrawColor background, const std::string& title) const;

 private:
  void doPen(const CanvasPen& pen) override;
  void doLine(CanvasPoint from, CanvasPoint to) override;
  void doText(const CanvasText& text) override;
  void doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) override;
  void doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) override;
  void doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) override;
  void doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) override;

  std::string FillOf(const DrawnBrush& brush);
  void EndStrokes();

  std::string body_;
  std::string patterns_;
  int patternCount_ = 0;
  std::string pen_;      ///< attributes of the current pen
  std::string strokes_;  ///< path data of the lines drawn with this pen so far
  CanvasPoint last_;
};

}  // namespace pitchcraft
