// The contents of a DXF file, before they become text.
#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace pitchcraft {

enum class DxfUnits { kInch, kMillimetre };

inline constexpr int kDxfByLayer = 256;

inline constexpr const char* kDxfPlainLayer = "0";
inline constexpr const char* kDxfCenterLayer = "CENTER";
inline constexpr const char* kDxfHiddenLayer = "HIDDEN";
inline constexpr const char* kDxfDimensionLayer = "DIMENSIONS";

struct DxfPoint {
  double X = 0;
  double Y = 0;

  friend DxfPoint operator+(DxfPoint a, DxfPoint b) { return {a.X + b.X, a.Y + b.Y}; }
  friend DxfPoint operator-(DxfPoint a, DxfPoint b) { return {a.X - b.X, a.Y - b.Y}; }
  friend DxfPoint operator*(double factor, DxfPoint point) { return {factor * point.X, factor * point.Y}; }
};

inline double Dot(DxfPoint a, DxfPoint b) { return a.X * b.X + a.Y * b.Y; }
inline double Length(DxfPoint point) { return std::sqrt(Dot(point, point)); }
/// The direction turned a quarter turn to the left.
inline DxfPoint LeftOf(DxfPoint direction) { return {-direction.Y, direction.X}; }
/// The direction of a text that runs at `degrees`.
DxfPoint DirectionAt(double degrees);

struct DxfLine {
  DxfPoint From, To;
  std::string Layer;
  int Color = kDxfByLayer;
};

/// Text is UTF-8. At is the left end, the middle or the right end of the base line, according to Align ('L',
/// 'C', 'R'). Angle is in degrees, counter-clockwise.
struct DxfText {
  std::string Text;
  DxfPoint At;
  double Height = 0;
  double Angle = 0;
  char Align = 'L';
  std::string Layer;
  int Color = kDxfByLayer;
};

/// Roughly how wide a text will be. Every reader has letters of its own, so this is an estimate.
double DxfTextWidth(const std::string& text, double height);
/// The left end of a text's base line, from that estimate.
DxfPoint DxfTextStart(const DxfText& text);

enum class DxfDimensionKind { kAligned, kHorizontal, kVertical };

/// OnLine is a point of the dimension line. TextX and TextY are the middle of the text, each given only if
/// the text does not take its usual place.
struct DxfDimension {
  DxfDimensionKind Kind = DxfDimensionKind::kAligned;
  DxfPoint P1, P2, OnLine;
  std::optional<double> TextX, TextY;
  std::string Text = {};  ///< empty for the text of its own measure
};

/// The smallest box around everything put into it.
struct DxfExtents {
  DxfPoint Min{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
  DxfPoint Max{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

  bool IsEmpty() const { return Min.X > Max.X; }
  void Include(DxfPoint point);
  void Include(const DxfLine& line);
  void Include(const DxfText& text);
  /// The middle of the box; the origin if it is empty.
  DxfPoint Middle() const { return IsEmpty() ? DxfPoint{} : 0.5 * (Min + Max); }
};

struct DxfDrawing {
  std::vector<DxfLine> Lines;
  std::vector<DxfText> Texts;
  std::vector<DxfDimension> Dimensions;
  DxfExtents Extents;  ///< of lines, texts and measured points
};

}  // namespace pitchcraft
