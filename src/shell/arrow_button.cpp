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

void DrawFace(QPainter& painter, const QRectF& box, const QPalette& palette, bool hovered, bool pressed) {
  const QColor face = palette.color(QPalette::Button);
  painter.setPen(QPen(palette.color(QPalette::Window).darker(140), 1));
  painter.setBrush(pressed ? face.darker(115) : hovered ? face.lighter(110) : face);
  painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
}

void ArrowButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawFace(painter, rect(), palette(), isEnabled() && underMouse(), isDown());
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  DrawArrow(painter, rect(), false, palette().color(group, QPalette::ButtonText));
}

}  // namespace pitchcraft
