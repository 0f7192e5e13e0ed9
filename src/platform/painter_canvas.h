// A canvas that paints with QPainter: on the screen, on an image, on paper.
#pragma once

#include <QFont>
#include <QPainter>

#include "drawing/canvas.h"

namespace pitchcraft {

/// Paints in the painter's own coordinates, sharp at any device pixel ratio. The thinnest line is as thick as
/// 15 twips, a pixel of a screen at the usual scale, on paper 6, and never thinner than a pixel of the
/// device.
class PainterCanvas : public Canvas {
 public:
  /// The painter outlives the canvas. `unitsPerTwip` is the size of a twip in the painter's coordinates,
  /// where the picture is looked at `magnified` times its size: its thinnest lines then stay as thin as they
  /// are. The painter's origin stands on a whole device pixel, and it neither scales nor turns.
  PainterCanvas(QPainter& painter, CanvasSize size, const TextMeter& meter, double unitsPerTwip,
                double magnified = 1);

 private:
  void doPen(const CanvasPen& pen) override;
  void doLine(CanvasPoint from, CanvasPoint to) override;
  void doText(const CanvasText& text) override;
  void doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) override;
  void doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) override;
  void doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) override;
  void doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) override;

  double OnGrid(double coordinate) const;
  void Fill(const QPainterPath& path, const DrawnBrush& brush);
  void Hatch(const QPainterPath& path, const QColor& color);

  QPainter& painter_;
  QFont font_;
  QString arialFamily_;  ///< the face that stands for Arial
  double devicePixel_;   ///< size of a device pixel in the painter's coordinates
  double hairline_;      ///< the thinnest line, in the painter's coordinates
  double penWidth_ = 1;
};

}  // namespace pitchcraft
