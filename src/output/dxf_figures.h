// What a DXF file shows, before it becomes text.
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "core/single.h"

namespace pitchcraft {

enum class DxfUnits { kInches, kMillimetres };

inline constexpr int kDxfByLayer = 256;

struct DxfPoint {
  double X = 0;
  double Y = 0;
};

struct DxfLine {
  DxfPoint From, To;
  std::string Layer;
  int Color = kDxfByLayer;
};

/// Text is UTF-8. At is on the base line, at the left end, the middle or the right end as Align ('L', 'C',
/// 'R') says. Angle is in degrees, counter-clockwise.
struct DxfText {
  std::string Text;
  DxfPoint At;
  double Height = 0;
  double Angle = 0;
  char Align = 'L';
  std::string Layer;
  int Color = kDxfByLayer;
};

enum class DxfDimensionKind { kAligned, kHorizontal, kVertical };

/// OnLine is a point of the dimension line. TextAt is the middle of the text where it has a place of its own.
struct DxfDimension {
  DxfDimensionKind Kind = DxfDimensionKind::kAligned;
  DxfPoint P1, P2, OnLine;
  std::optional<DxfPoint> TextAt;
};

/// The smallest box about what was put into it.
struct DxfExtents {
  DxfPoint Min{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
  DxfPoint Max{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

  bool IsEmpty() const { return Min.X > Max.X; }
  void Include(DxfPoint point);
  void Include(const DxfLine& line);
  void Include(const DxfText& text);
};

struct DxfDrawing {
  std::vector<DxfLine> Lines;
  std::vector<DxfText> Texts;
  std::vector<DxfDimension> Dimensions;
  DxfExtents Extents;  ///< of lines, texts and measured points
};

}  // namespace pitchcraft
