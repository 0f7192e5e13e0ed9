#include "output/dxf_entities.h"

#include "output/dxf_file.h"

namespace pitchcraft {
namespace {

constexpr int kRotated = 0;
constexpr int kAligned = 1;
constexpr int kTextMoved = 128;

void BeginEntity(DxfPairs& pairs, std::string_view type, std::string_view layer, int color) {
  pairs.Name(0, type);
  pairs.Name(8, layer);
  if (color != kDxfByLayer) pairs.Whole(62, color);
}

void WriteArrow(DxfPairs& pairs, const std::array<DxfPoint, 3>& corners, int color) {
  BeginEntity(pairs, "SOLID", "0", color);
  pairs.Point(10, corners[0]);
  pairs.Point(11, corners[1]);
  pairs.Point(12, corners[2]);
  pairs.Point(13, corners[2]);  // a triangle repeats its last corner
}

}  // namespace

void BeginDxfSection(DxfPairs& pairs, std::string_view name) {
  pairs.Name(0, "SECTION");
  pairs.Name(2, name);
}

void EndDxfSection(DxfPairs& pairs) { pairs.Name(0, "ENDSEC"); }

std::string DxfBlockName(std::size_t index) { return "*D" + std::to_string(index + 1); }

void WriteDxfLine(DxfPairs& pairs, const DxfLine& line) {
  BeginEntity(pairs, "LINE", line.Layer, line.Color);
  pairs.Point(10, line.From);
  pairs.Point(11, line.To);
}

void WriteDxfText(DxfPairs& pairs, const DxfText& text) {
  BeginEntity(pairs, "TEXT", text.Layer, text.Color);
  // A reader that does not know 72 and 11 starts the text here.
  pairs.Point(10, DxfTextStart(text));
  pairs.Real(40, text.Height);
  pairs.Name(1, DxfTextCode(text.Text));
  if (text.Angle != 0) pairs.Real(50, text.Angle);
  pairs.Name(7, "STANDARD");
  if (text.Align == 'L') return;
  pairs.Whole(72, text.Align == 'C' ? 1 : 2);
  pairs.Point(11, text.At);
}

void WriteDxfBlock(DxfPairs& pairs, const std::string& name, const DxfDimensionLook& look) {
  constexpr int kAnonymous = 1;
  pairs.Name(0, "BLOCK");
  pairs.Name(8, "0");
  pairs.Name(2, name);
  pairs.Whole(70, kAnonymous);
  pairs.Point(10, {});
  pairs.Name(3, name);
  for (const DxfLine& line : look.Lines) WriteDxfLine(pairs, line);
  for (const auto& arrow : look.Arrows) WriteArrow(pairs, arrow, look.Color);
  if (look.Text) WriteDxfText(pairs, *look.Text);
  pairs.Name(0, "ENDBLK");
  pairs.Name(8, "0");
}

void WriteDxfDimension(DxfPairs& pairs, const std::string& block, const DxfDimension& dimension,
                       const DxfDimensionLook& look, int color) {
  const int type = dimension.Kind == DxfDimensionKind::kAligned ? kAligned : kRotated;
  BeginEntity(pairs, "DIMENSION", kDxfDimensionLayer, color);
  pairs.Name(2, block);
  pairs.Point(10, look.LineEnd);
  pairs.Point(11, look.TextMiddle);
  pairs.Whole(70, type + (look.TextMoved ? kTextMoved : 0));
  // A blank keeps readers from writing the measure themselves.
  pairs.Name(1, look.Text ? DxfTextCode(look.Text->Text) : " ");
  pairs.Name(3, "STANDARD");
  pairs.Point(13, dimension.P1);
  pairs.Point(14, dimension.P2);
  pairs.Real(50, look.Angle);  // aligned ones need it too: some readers measure along it
}

}  // namespace pitchcraft
