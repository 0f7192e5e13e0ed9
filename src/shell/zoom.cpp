#include "shell/zoom.h"

#include <algorithm>

namespace pitchcraft {

void Zoom::About(QPointF place, double share, QSizeF view) {
  const QPointF point = ToDrawing(place);
  factor_ = std::clamp(factor_ * share, 1.0, kMost);
  offset_ = place - point * factor_;
  Cover(view);
}

void Zoom::Pan(QPointF by, QSizeF view) {
  offset_ += by;
  Cover(view);
}

void Zoom::Resize(QSizeF before, QSizeF after) {
  if (!before.isEmpty()) {
    offset_ = {offset_.x() * after.width() / before.width(), offset_.y() * after.height() / before.height()};
  }
  Cover(after);
}

void Zoom::Cover(QSizeF view) {
  const double beyond = factor_ - 1;
  offset_ = {std::clamp(offset_.x(), -beyond * view.width(), 0.0),
             std::clamp(offset_.y(), -beyond * view.height(), 0.0)};
}

}  // namespace pitchcraft
