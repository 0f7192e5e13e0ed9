// A drawing as the text of a DXF file.
#pragma once

#include <string>

#include "output/dxf_dimension.h"
#include "output/dxf_figures.h"

namespace pitchcraft {

/// What applies to the file as a whole. Lengths are in real size.
struct DxfFileStyle {
  DxfUnits Units = DxfUnits::kInch;
  double TextHeight = 0;  ///< of texts that are added later in the CAD program
  double DimIncrement = 0;
  DxfDimensionStyle Dimensions;
};

/// A complete file of release 12. Raises Overflow for a number that does not fit a Single.
std::string DxfFile(const DxfDrawing& drawing, const DxfFileStyle& style);

}  // namespace pitchcraft
