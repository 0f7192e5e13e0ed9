// Splits the flat list of a drawing's recorded dimensions into strokes and texts.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "drawing/dimension_value.h"

namespace pitchcraft {

struct ListedStroke {
  Single X1, Y1, X2, Y2;
};

/// Angle is in radians; Align is 'L', 'C' or 'R', and 'L' if the list has no letter.
struct ListedText {
  Single X, Y;
  std::string Text;
  Single Angle;
  char Align = 'L';
};

struct ListedDimensions {
  std::vector<ListedStroke> Strokes;
  std::vector<ListedText> Texts;
};

/// Numbers left over that do not make a whole stroke are dropped.
ListedDimensions ReadDimensionList(std::span<const DimensionValue> values);

}  // namespace pitchcraft
