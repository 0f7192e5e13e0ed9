// A drawing as the characters of a DXF file.
#pragma once

#include <string>

#include "output/dxf_dimension.h"
#include "output/dxf_figures.h"

namespace pitchcraft {

/// What counts for the file as a whole. Lengths are of real size.
struct DxfFileStyle {
  DxfUnits Units = DxfUnits::kInch;
  double TextHeight = 0;  ///< of a text that is added in the CAD program
  double DimIncrement = 0;
  DxfDimensionStyle Dimensions;
};

/// A whole file of release 12. Raises Overflow for a figure that is none as a Single.
std::string DxfFile(const DxfDrawing& drawing, const DxfFileStyle& style);

}  // namespace pitchcraft
