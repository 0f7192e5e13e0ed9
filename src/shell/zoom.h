// What of a drawing a view shows.
#pragma once

#include <QPointF>
#include <QSizeF>

namespace pitchcraft {

/// A view's magnification and the place of the drawing in it, in the view's coordinates. At first, and after
/// Fit, the whole drawing shows. Magnified, the drawing always covers the view: it cannot be lost beside it.
class Zoom {
 public:
  static constexpr double kMost = 32;

  double Factor() const { return factor_; }
  /// Where the drawing's own corner stands.
  QPointF Offset() const { return offset_; }
  bool ShowsAll() const { return factor_ == 1; }
  /// The point of the whole drawing that shows at a place of the view.
  QPointF ToDrawing(QPointF place) const { return (place - offset_) / factor_; }

  /// Magnifies by `share` so that what is at `place` stays there. The magnification stays within 1 and kMost.
  void About(QPointF place, double share, QSizeF view);
  void Pan(QPointF by, QSizeF view);
  void Fit() { *this = Zoom(); }
  /// The view has another size: the same part of the drawing shows, as far as it can.
  void Resize(QSizeF before, QSizeF after);

 private:
  void Cover(QSizeF view);

  double factor_ = 1;
  QPointF offset_;
};

}  // namespace pitchcraft
