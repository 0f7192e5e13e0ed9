// The pen of a drawing: lines and simple shapes in drawing units, with a position of its own.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "core/single.h"
#include "drawing/recording.h"

namespace pitchcraft {

class DrawingRecorder;

/// Draws on its canvas and reports the box of each shape. The position is kept unrounded, so that a chain of
/// relative lines gathers no rounding error; what is recorded is in whole drawing units, halves rounded to
/// even. Raises Overflow for a coordinate that does not fit 32 bits. Without a canvas nothing happens.
class StrokeTool {
 public:
  using Bounds = std::function<void(double left, double top, double right, double bottom)>;
  /// Left may exceed Right, and Top may exceed Bottom.
  Bounds BoundsChanged;

  void SetCanvas(DrawingRecorder* canvas);
  DrawingRecorder* Canvas() const { return canvas_; }
  void Destroy() { canvas_ = nullptr; }
  int CanvasKind() const;
  void Clear();

  /// 0 reads coordinates as absolute, 1 as relative to the last point.
  int EntryMode = 0;
  int HatchPattern = 0;
  Single LastX, LastY;
  Single LastX3D, LastY3D, LastZ3D;

  DrawColor PenColor() const { return pen_.Color; }
  void SetPenColor(DrawColor color);
  int DrawStyle() const { return pen_.Style; }
  void SetDrawStyle(int style);
  int DrawWidth() const { return pen_.Width; }
  void SetDrawWidth(int width);
  DrawColor FillColor() const { return brush_.Color; }
  void SetFillColor(DrawColor color);
  int FillStyle() const { return brush_.Style; }
  void SetFillStyle(int style);
  double CurrentX() const;
  double CurrentY() const;
  void SetCurrentX(double x);
  void SetCurrentY(double y);

  /// A move alone leaves no trace, but it counts towards the extents.
  void MoveToPoint(Single x, Single y);
  /// From the last point to (x, y).
  void DrawLine(Single x, Single y);
  /// With both ends given, the start is absolute in either mode; in relative mode the end is an offset from
  /// it.
  void DrawLine(Single x1, Single y1, std::optional<Single> x2, std::optional<Single> y2);
  /// `angle` in degrees, from +X towards +Y; without x and y it starts at the last point. EntryMode does not
  /// matter.
  void DrawPolarLine(double angle, double length, std::optional<Single> x = {}, std::optional<Single> y = {});
  /// Isometric: the axes of the model are at 30, 90 and 330 degrees. A missing coordinate of the end is the
  /// same as that of the start.
  void DrawLine3D(Single x, Single y, Single z, std::optional<Single> x2 = {}, std::optional<Single> y2 = {},
                  std::optional<Single> z2 = {});
  /// `points` is x0, y0, x1, y1 and so on. Does not count towards the extents.
  void DrawRegionFill(std::span<const Single> points);
  /// A recording has no pixels for a colour to spread over, so nothing is recorded.
  void DrawFill(Single x, Single y, DrawColor borderColor);
  void DrawCircle(Single x, Single y, Single radius);
  void DrawEllipse(Single x, Single y, Single radiusX, Single radiusY);
  /// In relative mode x2 and y2 are width and height, from the moved first corner.
  void DrawRectangle(Single x1, Single y1, Single x2, Single y2);
  void DrawRoundedRectangle(Single x1, Single y1, Single x2, Single y2, Single corner);
  /// A small cross.
  void DrawPoint(Single x, Single y, Single size);
  /// Angles are in radians, from +X towards -Y.
  void DrawArc(Single x, Single y, Single radius, double startAngle, double endAngle, Single aspect);
  static int DrawPolygon() { return 0; }

 private:
  DrawingRecorder& Target() const;
  void Stroke(Single fromX, Single fromY, Single toX, Single toY);
  void Report(double left, double top, double right, double bottom) const;
  void DrawBox(Single x1, Single y1, Single x2, Single y2, Single corner);

  DrawingRecorder* canvas_ = nullptr;
  bool hasCanvas_ = false;  // once true, always true: a lost canvas is an error and must not go unnoticed
  DrawnPen pen_;
  DrawnBrush brush_;
};

}  // namespace pitchcraft
