// What comes before the blocks of a DXF file: the header and the tables.
#pragma once

#include <string>
#include <vector>

#include "output/dxf_figures.h"
#include "output/dxf_file.h"
#include "output/dxf_pairs.h"

namespace pitchcraft {

void WriteDxfHeader(DxfPairs& pairs, const DxfFileStyle& style, const DxfExtents& extents);
void WriteDxfTables(DxfPairs& pairs, const DxfFileStyle& style, const DxfExtents& extents,
                    const std::vector<std::string>& layers);

}  // namespace pitchcraft
