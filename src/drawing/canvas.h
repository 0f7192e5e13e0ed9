// A target on which a recording is played. This class does what is the same for every target: the mapping,
// the pen, the position of a text. A back-end draws a few plain shapes in its own units.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "drawing/recording.h"
#include "drawing/text_meter.h"

namespace pitchcraft {

/// The size of a target in twips (1440 to the inch). A negative height means that y grows upward; the size is
/// then its absolute value.
struct CanvasSize {
  double ScaleWidth = 0;
  double ScaleHeight = 0;
  bool Printer = false;
};

/// From drawing units to the units of a canvas with its origin at the top left and y growing downward: x
/// becomes OffsetX + x ScaleX, y becomes OffsetY + y ScaleY.
struct CanvasMap {
  double ScaleX = 1;
  double ScaleY = 1;
  double OffsetX = 0;
  double OffsetY = 0;
  bool operator==(const CanvasMap&) const = default;
};

struct CanvasPoint {
  double X = 0;
  double Y = 0;
};

/// Width is in canvas units; 0 is the thinnest line that still shows clearly. Dashes are alternating lengths
/// of dash and gap in canvas units, empty for a solid line.
struct CanvasPen {
  DrawColor Color = 0;
  double Width = 0;
  std::span<const double> Dashes;
  int Style = 0;
};

/// A text ready to draw: Origin is the left end of its base line; Angle turns it counter-clockwise about
/// Origin.
struct CanvasText {
  std::string_view Text;
  CanvasPoint Origin;
  double Width = 0;   ///< advance of the whole text, canvas units
  double Height = 0;  ///< of the cell; the em is Height times kEmPerCell
  double Angle = 0;   ///< degrees
  DrawColor Color = 0;
  std::string_view Font;
  bool Bold = false;
  bool Italic = false;
  CanvasPoint At;  ///< the anchor as recorded, mapped
  int Align = 0;   ///< the flags as recorded
};

/// The public calls update the pen and map the coordinates, once for all back-ends; the private virtual ones
/// draw.
class Canvas {
 public:
  /// `unitsPerTwip` is the size of a twip in the back-end's units: 1/15 on a screen with 96 dots per inch.
  Canvas(CanvasSize size, const TextMeter& meter, double unitsPerTwip = 1);
  virtual ~Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  const CanvasSize& Size() const { return size_; }
  double UnitsPerTwip() const { return unitsPerTwip_; }
  void SetMap(const CanvasMap& map) { map_ = map; }
  const CanvasMap& Map() const { return map_; }

  void Play(std::span<const DrawOp> recording);
  void Play(const LineOp& line);
  void Play(const TextOp& text);
  void Play(const FillOp& fill);
  void Play(const EllipseOp& ellipse);
  void Play(const ArcOp& arc);
  void Play(const RectangleOp& rectangle);

 private:
  /// The pen for the outlines that follow; called only when it changes.
  virtual void doPen(const CanvasPen& pen) = 0;
  virtual void doLine(CanvasPoint from, CanvasPoint to) = 0;
  virtual void doText(const CanvasText& text) = 0;
  virtual void doFill(std::span<const CanvasPoint> points, const DrawnBrush& brush) = 0;
  /// The left upper corner of a box comes first.
  virtual void doEllipse(CanvasPoint from, CanvasPoint to, const DrawnBrush& brush) = 0;
  virtual void doArc(CanvasPoint from, CanvasPoint to, CanvasPoint start, CanvasPoint end) = 0;
  /// `corner` is the width and height of the ellipse that rounds a corner.
  virtual void doRectangle(CanvasPoint from, CanvasPoint to, CanvasPoint corner, const DrawnBrush& brush) = 0;

  CanvasPoint Mapped(DrawnPoint point) const;
  void UsePen(const DrawnPen& pen);

  CanvasSize size_;
  const TextMeter& meter_;
  double unitsPerTwip_;
  CanvasMap map_;
  DrawnPen pen_;
  bool penKnown_ = false;
  double dashes_[2] = {};
  std::vector<CanvasPoint> polygon_;
};

}  // namespace pitchcraft
