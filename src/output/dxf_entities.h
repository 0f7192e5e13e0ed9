// The entities of a DXF file, and the blocks that draw its dimensions.
#pragma once

#include <string>

#include "output/dxf_dimension.h"
#include "output/dxf_figures.h"
#include "output/dxf_pairs.h"

namespace pitchcraft {

void BeginDxfSection(DxfPairs& pairs, std::string_view name);
void EndDxfSection(DxfPairs& pairs);

/// The block of the dimension with this index, counted from 0.
std::string DxfBlockName(std::size_t index);

void WriteDxfLine(DxfPairs& pairs, const DxfLine& line);
void WriteDxfText(DxfPairs& pairs, const DxfText& text);
void WriteDxfBlock(DxfPairs& pairs, const std::string& name, const DxfDimensionLook& look);
void WriteDxfDimension(DxfPairs& pairs, const std::string& block, const DxfDimension& dimension,
                       const DxfDimensionLook& look, int color);

}  // namespace pitchcraft
