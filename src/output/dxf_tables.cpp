#include "output/dxf_tables.h"

#include <algorithm>
#include <array>

#include "output/dxf_entities.h"

namespace pitchcraft {
namespace {

constexpr int kWhite = 7;
constexpr const char* kHiddenLineType = "HIDDEN";
// One dash and dot of the line type CENTER are 2 units long; this scale makes them 2 feet of a building.
constexpr double kInchLineScale = 12;
constexpr double kMillimetreLineScale = 300;

bool IsImperial(const DxfFileStyle& style) { return style.Units == DxfUnits::kInch; }

void Whole(DxfPairs& pairs, std::string_view name, int code, int value) {
  pairs.Variable(name);
  pairs.Whole(code, value);
}

void Real(DxfPairs& pairs, std::string_view name, double value) {
  pairs.Variable(name);
  pairs.Real(40, value);
}

void Name(DxfPairs& pairs, std::string_view name, int code, std::string_view value) {
  pairs.Variable(name);
  pairs.Name(code, value);
}

/// Dimension texts need a height other than 0 even if none is shown.
double TextHeightOf(const DxfFileStyle& style) {
  if (style.Dimensions.TextHeight > 0) return style.Dimensions.TextHeight;
  return style.TextHeight > 0 ? style.TextHeight : 1;
}

void WriteUnits(DxfPairs& pairs, const DxfFileStyle& style) {
  constexpr int kDecimal = 2;
  constexpr int kArchitectural = 4;
  constexpr int kSixteenths = 4;
  constexpr int kInch = 1;
  constexpr int kMillimetre = 4;
  Whole(pairs, "$LUNITS", 70, IsImperial(style) ? kArchitectural : kDecimal);
  Whole(pairs, "$LUPREC", 70, IsImperial(style) ? kSixteenths : 1);
  Whole(pairs, "$MEASUREMENT", 70, IsImperial(style) ? 0 : 1);
  Whole(pairs, "$INSUNITS", 70, IsImperial(style) ? kInch : kMillimetre);
}

struct StyleValue {
  std::string_view Name;
  int Code;  // in the table DIMSTYLE
  double Value;
};

/// The lengths of a dimension, for both the header and the table. A factor of 1 is written, too: otherwise
/// some readers use the units as a factor.
std::array<StyleValue, 8> DimensionLengths(const DxfFileStyle& style) {
  const DxfDimensionStyle& dim = style.Dimensions;
  return {{{"$DIMSCALE", 40, 1},
           {"$DIMASZ", 41, dim.ArrowSize},
           {"$DIMEXO", 42, dim.Start},
           {"$DIMDLI", 43, style.DimIncrement},
           {"$DIMEXE", 44, dim.Extension},
           {"$DIMTXT", 140, TextHeightOf(style)},
           {"$DIMLFAC", 144, 1},
           {"$DIMGAP", 147, dim.TextGap}}};
}

/// Texts run along their line and above it, and the line is not broken for them.
std::array<StyleValue, 7> DimensionModes(const DxfFileStyle& style) {
  const double color = style.Dimensions.Color;
  return {{{"$DIMTIH", 73, 0},
           {"$DIMTOH", 74, 0},
           {"$DIMTAD", 77, 1},
           {"$DIMTOFL", 172, 1},
           {"$DIMCLRD", 176, color},
           {"$DIMCLRE", 177, color},
           {"$DIMCLRT", 178, color}}};
}

void BeginTable(DxfPairs& pairs, std::string_view name, std::size_t entries) {
  pairs.Name(0, "TABLE");
  pairs.Name(2, name);
  pairs.Whole(70, static_cast<int>(entries));
}

void BeginEntry(DxfPairs& pairs, std::string_view table, std::string_view name) {
  pairs.Name(0, table);
  pairs.Name(2, name);
  pairs.Whole(70, 0);
}

void EndTable(DxfPairs& pairs) { pairs.Name(0, "ENDTAB"); }

/// The view when the file is opened: the whole drawing with a small margin.
void WriteView(DxfPairs& pairs, const DxfExtents& extents) {
  constexpr double kAspect = 1.5;
  constexpr double kAir = 1.1;
  const DxfPoint size = extents.Max - extents.Min;
  const double height = std::max(size.Y, size.X / kAspect) * kAir;
  BeginTable(pairs, "VPORT", 1);
  BeginEntry(pairs, "VPORT", "*ACTIVE");
  pairs.Flat(10, {0, 0});
  pairs.Flat(11, {1, 1});
  pairs.Flat(12, extents.Middle());
  pairs.Flat(13, {0, 0});
  pairs.Flat(14, {1, 1});
  pairs.Flat(15, {0, 0});
  pairs.Flat(16, {0, 0});
  pairs.Real(36, 1);  // seen from above
  pairs.Point(17, {0, 0});
  pairs.Real(40, height > 0 ? height : 1);
  pairs.Real(41, kAspect);
  pairs.Real(42, 50);
  for (const int code : {43, 44, 50, 51}) pairs.Real(code, 0);
  constexpr std::array<std::array<int, 2>, 8> kModes = {
      {{71, 0}, {72, 100}, {73, 1}, {74, 1}, {75, 0}, {76, 0}, {77, 0}, {78, 0}}};
  for (const auto& [code, value] : kModes) pairs.Whole(code, value);
  EndTable(pairs);
}

void WriteLineType(DxfPairs& pairs, std::string_view name, std::string_view look,
                   std::initializer_list<double> dashes) {
  double length = 0;
  for (const double dash : dashes) length += dash < 0 ? -dash : dash;
  BeginEntry(pairs, "LTYPE", name);
  pairs.Name(3, look);
  pairs.Whole(72, 'A');
  pairs.Whole(73, static_cast<int>(dashes.size()));
  pairs.Real(40, length);
  for (const double dash : dashes) pairs.Real(49, dash);
}

void WriteLayers(DxfPairs& pairs, const std::vector<std::string>& layers, int dimColor) {
  BeginTable(pairs, "LAYER", layers.size());
  for (const std::string& layer : layers) {
    const bool isCenter = layer == kDxfCenterLayer;
    BeginEntry(pairs, "LAYER", layer);
    pairs.Whole(62, isCenter || layer == kDxfDimensionLayer ? dimColor : kWhite);
    pairs.Name(6, isCenter ? "CENTER" : layer == kDxfHiddenLayer ? kHiddenLineType : "CONTINUOUS");
  }
  EndTable(pairs);
}

void WriteTextStyle(DxfPairs& pairs, double textHeight) {
  BeginTable(pairs, "STYLE", 1);
  BeginEntry(pairs, "STYLE", "STANDARD");
  pairs.Real(40, 0);  // each text has a height of its own
  pairs.Real(41, 1);
  pairs.Real(50, 0);
  pairs.Whole(71, 0);
  pairs.Real(42, textHeight);
  pairs.Name(3, "txt");
  pairs.Name(4, "");
  EndTable(pairs);
}

void WriteDimensionStyle(DxfPairs& pairs, const DxfFileStyle& style) {
  BeginTable(pairs, "DIMSTYLE", 1);
  BeginEntry(pairs, "DIMSTYLE", "STANDARD");
  for (const int code : {3, 4, 5, 6, 7}) pairs.Name(code, "");  // the usual arrowheads and affixes
  for (const StyleValue& length : DimensionLengths(style)) pairs.Real(length.Code, length.Value);
  for (const StyleValue& mode : DimensionModes(style)) pairs.Whole(mode.Code, static_cast<int>(mode.Value));
  EndTable(pairs);
}

}  // namespace

void WriteDxfHeader(DxfPairs& pairs, const DxfFileStyle& style, const DxfExtents& extents) {
  BeginDxfSection(pairs, "HEADER");
  Name(pairs, "$ACADVER", 1, "AC1009");
  pairs.Variable("$INSBASE");
  pairs.Point(10, {});
  pairs.Variable("$EXTMIN");
  pairs.Point(10, extents.Min);
  pairs.Variable("$EXTMAX");
  pairs.Point(10, extents.Max);
  pairs.Variable("$LIMMIN");
  pairs.Flat(10, extents.Min);
  pairs.Variable("$LIMMAX");
  pairs.Flat(10, extents.Max);
  Real(pairs, "$LTSCALE", IsImperial(style) ? kInchLineScale : kMillimetreLineScale);
  Real(pairs, "$TEXTSIZE", style.TextHeight > 0 ? style.TextHeight : TextHeightOf(style));
  Name(pairs, "$TEXTSTYLE", 7, "STANDARD");
  Name(pairs, "$CLAYER", 8, "0");
  WriteUnits(pairs, style);
  for (const StyleValue& length : DimensionLengths(style)) Real(pairs, length.Name, length.Value);
  for (const StyleValue& mode : DimensionModes(style)) {
    Whole(pairs, mode.Name, 70, static_cast<int>(mode.Value));
  }
  Name(pairs, "$DIMSTYLE", 2, "STANDARD");
  EndDxfSection(pairs);
}

void WriteDxfTables(DxfPairs& pairs, const DxfFileStyle& style, const DxfExtents& extents,
                    const std::vector<std::string>& layers) {
  BeginDxfSection(pairs, "TABLES");
  WriteView(pairs, extents);
  const bool hidden = std::find(layers.begin(), layers.end(), kDxfHiddenLayer) != layers.end();
  BeginTable(pairs, "LTYPE", hidden ? 3 : 2);
  WriteLineType(pairs, "CONTINUOUS", "Solid line", {});
  WriteLineType(pairs, "CENTER", "____ _ ____ _ ____ _ ____ _ ____", {1.25, -0.25, 0.25, -0.25});
  if (hidden) WriteLineType(pairs, kHiddenLineType, "__ __ __ __ __ __ __ __ __ __", {0.25, -0.125});
  EndTable(pairs);
  WriteLayers(pairs, layers, style.Dimensions.Color);
  WriteTextStyle(pairs, TextHeightOf(style));
  WriteDimensionStyle(pairs, style);
  EndDxfSection(pairs);
}

}  // namespace pitchcraft
