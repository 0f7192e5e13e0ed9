#include "output/dxf_figures.h"

#include <algorithm>

#include "core/angles.h"
#include "drawing/arial_meter.h"

namespace pitchcraft {

DxfPoint DirectionAt(double degrees) {
  const double angle = degrees * kRadiansPerDegree;
  return {std::cos(angle), std::sin(angle)};
}

double DxfTextWidth(const std::string& text, double height) {
  // A DXF height is that of a capital letter, not of the cell.
  return ArialMeter().TextWidth(text, {"Arial", height / kCapitalPerCell, false, false});
}

DxfPoint DxfTextStart(const DxfText& text) {
  const double share = text.Align == 'C' ? 0.5 : text.Align == 'R' ? 1 : 0;
  if (share == 0) return text.At;
  return text.At - share * DxfTextWidth(text.Text, text.Height) * DirectionAt(text.Angle);
}

void DxfExtents::Include(DxfPoint point) {
  Min = {std::min(Min.X, point.X), std::min(Min.Y, point.Y)};
  Max = {std::max(Max.X, point.X), std::max(Max.Y, point.Y)};
}

void DxfExtents::Include(const DxfLine& line) {
  Include(line.From);
  Include(line.To);
}

void DxfExtents::Include(const DxfText& text) {
  const DxfPoint along = DxfTextWidth(text.Text, text.Height) * DirectionAt(text.Angle);
  const DxfPoint up = text.Height * LeftOf(DirectionAt(text.Angle));
  const DxfPoint start = DxfTextStart(text);
  for (const DxfPoint& corner : {start, start + along, start + up, start + along + up}) Include(corner);
}

}  // namespace pitchcraft
