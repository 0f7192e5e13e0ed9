#include "output/dxf_file.h"

#include <algorithm>

#include "output/dxf_entities.h"
#include "output/dxf_pairs.h"
#include "output/dxf_tables.h"

namespace pitchcraft {
namespace {

void WriteBlocks(DxfPairs& pairs, const std::vector<DxfDimensionLook>& looks) {
  BeginDxfSection(pairs, "BLOCKS");
  for (std::size_t i = 0; i < looks.size(); ++i) {
    WriteDxfBlock(pairs, DxfBlockName(i), looks[i]);
  }
  EndDxfSection(pairs);
}

void WriteEntities(DxfPairs& pairs, const DxfDrawing& drawing, const DxfDimensionStyle& style,
                   const std::vector<DxfDimensionLook>& looks) {
  BeginDxfSection(pairs, "ENTITIES");
  for (const DxfLine& line : drawing.Lines) WriteDxfLine(pairs, line);
  for (const DxfText& text : drawing.Texts) WriteDxfText(pairs, text);
  for (std::size_t i = 0; i < looks.size(); ++i) {
    WriteDxfDimension(pairs, DxfBlockName(i), drawing.Dimensions[i], looks[i], style.Color);
  }
  EndDxfSection(pairs);
}

/// The layers in use, and always that of centre lines.
std::vector<std::string> LayersOf(const DxfDrawing& drawing) {
  std::vector<std::string> layers = {"0", kDxfCenterLayer};
  const auto use = [&layers](const std::string& layer) {
    if (std::find(layers.begin(), layers.end(), layer) == layers.end()) layers.push_back(layer);
  };
  for (const DxfLine& line : drawing.Lines) use(line.Layer);
  for (const DxfText& text : drawing.Texts) use(text.Layer);
  if (!drawing.Dimensions.empty()) use(kDxfDimensionLayer);
  return layers;
}

}  // namespace

std::string DxfFile(const DxfDrawing& drawing, const DxfFileStyle& style) {
  DxfExtents extents = drawing.Extents;
  std::vector<DxfDimensionLook> looks;
  looks.reserve(drawing.Dimensions.size());
  for (const DxfDimension& dimension : drawing.Dimensions) {
    const DxfDimensionLook& look = looks.emplace_back(LookOf(dimension, style.Dimensions));
    for (const DxfLine& line : look.Lines) extents.Include(line);
    if (look.Text) extents.Include(*look.Text);
  }
  if (extents.IsEmpty()) extents.Include(DxfPoint{});
  DxfPairs pairs;
  WriteDxfHeader(pairs, style, extents);
  WriteDxfTables(pairs, style, extents, LayersOf(drawing));
  WriteBlocks(pairs, looks);
  WriteEntities(pairs, drawing, style.Dimensions, looks);
  pairs.Name(0, "EOF");
  return pairs.Take();
}

}  // namespace pitchcraft
