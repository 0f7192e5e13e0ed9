// A canvas that paints with QPainter: on screen, on an image or on paper.
#pragma once

#include <QFont>
#include <QPainter>

#include "drawing/canvas.h"

namespace pitchcraft {

/// Paints in the painter's own coordinates, sharp at any device pixel ratio. The thinnest line is 15 twips
/// wide, a pixel of an ordinary screen; on paper it is 6 twips; and it is never thinner than a pixel of the
/// device.
class PainterCanvas : public Canvas {
 public:
  /// The painter must outlive the canvas. `unitsPerTwip` is the size of a twip in the painter's coordinates
  /// in a picture magnified `magnified` times; the thinnest lines do not grow with it. The painter's origin
  /// must be on a whole device pixel, and it must neither scale nor rotate.
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
  QString arialFamily_;  ///< the face used for Arial
  double devicePixel_;   ///< size of a device pixel in the painter's coordinates
  double hairline_;      ///< the thinnest line, in the painter's coordinates
  double penWidth_ = 1;
};

}  // namespace pitchcraft
