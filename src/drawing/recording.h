// A finished drawing: a flat list of operations, in drawing units with +Y up. Screen, picture file, paper and
// metafile all play it.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace pitchcraft {

/// A 32-bit colour as the settings hold it: red in the lowest byte, then green, then blue.
using DrawColor = std::int32_t;

/// A point in drawing units.
struct DrawnPoint {
  std::int32_t X = 0;
  std::int32_t Y = 0;
  bool operator==(const DrawnPoint&) const = default;
};

/// Style 0 is solid, 1 long dashes, 2 short dashes. Width is in drawing units; 0 is the target's thinnest
/// line.
struct DrawnPen {
  DrawColor Color = 0;
  int Style = 0;
  int Width = 0;
  bool operator==(const DrawnPen&) const = default;
};

/// Style 0 is solid, 1 leaves the inside empty, 2 hatches it with falling diagonals.
struct DrawnBrush {
  DrawColor Color = 0;
  int Style = 0;
  bool operator==(const DrawnBrush&) const = default;
};

struct LineOp {
  DrawnPoint From, To;
  DrawnPen Pen;
  bool operator==(const LineOp&) const = default;
};

/// Text is UTF-8. Height is that of the cell, ascent and descent together. Angle is in degrees,
/// counter-clockwise; Align is one of the text-align flags (text_align.h), taken in the text's own rotated
/// frame.
struct TextOp {
  DrawnPoint At;
  std::string Text;
  std::int32_t Height = 0;
  double Angle = 0;
  int Align = 0;
  DrawColor Color = 0;
  std::string Font;
  bool Bold = false;
  bool Italic = false;
  bool operator==(const TextOp&) const = default;
};

/// A closed polygon without outline, filled by the winding rule.
struct FillOp {
  std::vector<DrawnPoint> Points;
  DrawnBrush Brush;
  bool operator==(const FillOp&) const = default;
};

/// From and To are opposite corners of the box.
struct EllipseOp {
  DrawnPoint From, To;
  DrawnPen Pen;
  DrawnBrush Brush;
  bool operator==(const EllipseOp&) const = default;
};

/// Part of the ellipse in the box, counter-clockwise from the ray through Start to the ray through End.
struct ArcOp {
  DrawnPoint From, To, Start, End;
  DrawnPen Pen;
  bool operator==(const ArcOp&) const = default;
};

/// Corner is the width and height of the ellipse that rounds a corner; 0 leaves the corner sharp.
struct RectangleOp {
  DrawnPoint From, To;
  std::int32_t Corner = 0;
  DrawnPen Pen;
  DrawnBrush Brush;
  bool operator==(const RectangleOp&) const = default;
};

using DrawOp = std::variant<LineOp, TextOp, FillOp, EllipseOp, ArcOp, RectangleOp>;
using Recording = std::vector<DrawOp>;

}  // namespace pitchcraft
