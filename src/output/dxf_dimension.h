// What a dimension looks like: the lines, arrowheads and text of its block.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "output/dxf_figures.h"

namespace pitchcraft {

/// Lengths are in real size.
struct DxfDimensionStyle {
  int Color = 7;
  double TextHeight = 0;  ///< 0: dimensions without texts
  double ArrowSize = 0;
  double Extension = 0;  ///< how far extension lines pass the dimension line
  double Start = 0;      ///< from the measured point to the start of its extension line
  double TextGap = 0;    ///< from the dimension line to the text above it
  std::function<std::string(double)> LengthText;
};

struct DxfDimensionLook {
  int Color = 7;
  double Angle = 0;     ///< of the dimension line and its text: above -90 degrees, up to 90
  DxfPoint LineEnd;     ///< on the dimension line, where the second extension line meets it
  DxfPoint TextMiddle;  ///< also if no text is shown
  bool TextMoved = false;
  std::optional<DxfText> Text;
  std::vector<DxfLine> Lines;
  std::vector<std::array<DxfPoint, 3>> Arrows;
};

DxfDimensionLook LookOf(const DxfDimension& dimension, const DxfDimensionStyle& style);

/// The direction from the first measured point to the second along the dimension line; its length is 1.
DxfPoint DirectionOf(const DxfDimension& dimension);
/// The length that the dimension shows.
double MeasureOf(const DxfDimension& dimension);

}  // namespace pitchcraft
