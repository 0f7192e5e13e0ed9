// The small arrows beside fields.
#pragma once

#include <QAbstractButton>

namespace pitchcraft {

/// Draws a triangle in the middle of `box` that points up or down.
void DrawArrow(QPainter& painter, const QRectF& box, bool up, const QColor& color);

/// Draws the face of a small button.
void DrawFace(QPainter& painter, const QRectF& box, const QPalette& palette, bool hovered, bool pressed);

/// Opens a list.
class ArrowButton : public QAbstractButton {
 public:
  explicit ArrowButton(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace pitchcraft
