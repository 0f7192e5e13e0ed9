#include "shell/arrow_button.h"

#include <QPainter>

namespace pitchcraft {

void DrawArrow(QPainter& painter, const QRectF& box, bool up, const QColor& color) {
  constexpr double kHalfWidth = 3.5;
  constexpr double kHalfHeight = 2;
  const QPointF middle = box.center();
  const double tip = up ? -kHalfHeight : kHalfHeight;
  const QPointF points[] = {{middle.x() - kHalfWidth, middle.y() - tip},
                            {middle.x() + kHalfWidth, middle.y() - tip},
                            {middle.x(), middle.y() + tip}};
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPolygon(points, 3);
}

ArrowButton::ArrowButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
  setAccessibleName(tr("Open the list"));
}

void ArrowButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isEnabled() && underMouse()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Midlight));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
  }
  DrawArrow(painter, rect(), false, palette().color(QPalette::WindowText));
}

}  // namespace pitchcraft
